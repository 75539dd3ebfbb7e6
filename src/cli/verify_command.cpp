#include "cli/verify_command.h"

#include <QDir>
#include <cstdio>

#include "cli/console.h"
#include "cli/texts.h"

#include "filing/volume_check.h"
#include "shell/store_open.h"
#include "shell/texts.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;
using cli::Print;

constexpr int kNotHolding = 1;
constexpr int kError = 2;

}  // namespace

int VerifyCommand(const QStringList& args, const QString& store, int (*usage)(const QString& why)) {
  const bool against = args.size() == 4 && args[1] == u"--against";
  if (args.size() != 1 && !against) {
    return usage(cli_texts::kVerifyNeeds);
  }
  const QString& directory = args[0];
  Kind kind = Kind::Common;
  int id = 0;
  if (against) {
    if (!cli::ReadKind(args[2], kind)) return usage(cli_texts::kKindWords);
    const std::optional<int> read = cli::ReadId(args[3]);
    if (!read) return usage(cli_texts::kIdRange);
    id = *read;
  }
  if (directory.isEmpty() || !QDir(directory).exists()) {
    Print(stderr, u"veroxia-cli: "_s + cli_texts::kNoDirectory.arg(directory));
    return kError;
  }
  std::optional<VolumeCounts> expected;
  if (against) {
    try {
      const auto db = OpenStoreFile(store, StorePassword());
      expected = ExpectedCounts(*db, kind, id);
      cli::ConsoleDialogs dialogs;
      if (!WriteBackStore(*db, dialogs)) return kError;
    } catch (const StoreError& error) {
      Print(stderr, OpenFailedMessage(store, error));
      return kError;
    }
    if (!expected) {
      Print(stderr, u"veroxia-cli: "_s + cli_texts::kNoDeclaration.arg(id));
      return kError;
    }
  }
  const VolumeCheck check = VerifyVolumes(directory, expected);
  for (const QString& line : ReportText(VolumeCheckWindow(check))) Print(stdout, line);
  if (check.AllHold()) return 0;
  Print(stderr, kVolumesBroken);
  return kNotHolding;
}

}  // namespace veroxia
