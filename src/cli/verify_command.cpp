#include "cli/verify_command.h"

#include <QDir>
#include <cstdio>

#include "cli/console.h"

#include "filing/volume_check.h"
#include "shell/errors.h"
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
    return usage(u"verify needs a directory, and --against with a kind and an id"_s);
  }
  const QString& directory = args[0];
  Kind kind = Kind::Common;
  int id = 0;
  if (against) {
    if (!cli::ReadKind(args[2], kind)) return usage(u"the kind is common or construction"_s);
    bool number = false;
    id = args[3].toInt(&number);
    if (!number || id < 1 || id > 32767) return usage(u"the id is a number from 1 to 32767"_s);
  }
  if (directory.isEmpty() || !QDir(directory).exists()) {
    Print(stderr, u"veroxia-cli: no such directory: "_s + directory);
    return kError;
  }
  std::optional<VolumeCounts> expected;
  if (against) {
    try {
      const auto db = Database::Open(store, StorePassword());
      CheckSchema(*db);
      expected = ExpectedCounts(*db, kind, id);
    } catch (const StoreError& error) {
      Print(stderr, ErrorMessage(texts::kStoreCritical, error));
      return kError;
    }
    if (!expected) {
      Print(stderr, u"veroxia-cli: no declaration "_s + QString::number(id) + u" of that kind"_s);
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
