#include "cli/lines_commands.h"

#include <QCoreApplication>

#include "cli/console.h"
#include "cli/texts.h"
#include "lines/import_texts.h"
#include "lines/line_import.h"
#include "lines/line_kinds.h"
#include "rules/texts.h"
#include "shell/store_open.h"
#include "store/declarations.h"

namespace veroxia::cli {

namespace {

using namespace Qt::StringLiterals;

constexpr int kFailed = 1;

const QString kAppendOption = u"--append"_s;
const QString kReplaceOption = u"--replace"_s;
const QString kKeepRepeatsOption = u"--keep-duplicates"_s;

// The words without the import's options.
QStringList WithoutOptions(QStringList args) {
  args.removeAll(kAppendOption);
  args.removeAll(kReplaceOption);
  args.removeAll(kKeepRepeatsOption);
  return args;
}

class NoScreens : public Screens {
 public:
  void ShowStart() override {}
  void ShowHeader(Kind) override {}
  void ShowLines(Kind) override {}
  void Quit(int) override {}
};

// The period the screens were opened for, as the header stores it: month
// then year, as the start screen hands it on.
void TakePeriod(Vars& vars, Kind kind) {
  Rows header = HeaderRow(*vars.StoreConnection, kind, vars.DeclarationId);
  if (!header->Next()) return;
  const auto text = [&](const char* column) {
    const int at = header->ColumnIndex(QString::fromLatin1(column));
    return at < 0 ? QString() : FieldText(header->Value(at));
  };
  vars.PeriodFrom = text("from_month") + text("from_year");
  vars.PeriodTo = kind == Kind::Common ? text("to_month") + text("to_year") : QString();
}

}  // namespace

bool IsLinesCommand(const QString& command) {
  return command == u"import" || command == u"export-lines";
}

QString LinesCommandUsage(const QStringList& all) {
  const bool append = all.contains(kAppendOption);
  const bool replace = all.contains(kReplaceOption);
  if (append && replace) return cli_texts::kAppendOrReplace;
  if ((append || replace || all.contains(kKeepRepeatsOption)) && all[0] != u"import") {
    return cli_texts::kImportOptionsOnly;
  }
  const QStringList args = WithoutOptions(all);
  if (args.size() != 4) return cli_texts::kNeedsKindIdAndFile.arg(args[0]);
  Kind kind = Kind::Common;
  if (!ReadKind(args[1], kind)) return cli_texts::kKindWords;
  if (!ReadId(args[2])) return cli_texts::kIdRange;
  return {};
}

int RunLinesCommand(const QString& store_path, const QStringList& all) {
  const QStringList args = WithoutOptions(all);
  std::optional<ImportMode> mode;
  if (all.contains(kAppendOption)) mode = ImportMode::kAppend;
  if (all.contains(kReplaceOption)) mode = ImportMode::kReplace;
  Kind kind = Kind::Common;
  ReadKind(args[1], kind);
  const QString& file = args[3];
  // Failing rows and wrong check digits are reported on standard error.
  ConsoleDialogs dialogs(file, stderr);
  NoScreens screens;
  Vars vars;
  vars.AppDir = QCoreApplication::applicationDirPath();
  if (!OpenStoreAt(vars, dialogs, store_path)) return kFailed;
  vars.DeclarationId = static_cast<std::int16_t>(*ReadId(args[2]));
  const auto run = [&] {
    if (args[0] == u"export-lines") return ExportLinesTo(vars, kind, dialogs, file);
    try {
      TakePeriod(vars, kind);
      // Without an option there is no answer to what becomes of the lines a
      // declaration has already: it is refused.
      const int existing = CountLines(*vars.StoreConnection, kind, vars.DeclarationId);
      if (!mode && existing > 0) {
        Print(stderr, import_texts::kExistingLinesOption.arg(vars.DeclarationId).arg(existing));
        return false;
      }
    } catch (const StoreError&) {
      // The import itself tells the store's error.
    }
    const std::unique_ptr<LinesForm> form = MakeLinesForm(kind, vars, dialogs, screens);
    // Rows that repeat a line are listed and refused, unless asked for.
    const ImportAnswers answers{mode.value_or(ImportMode::kAppend),
                                all.contains(kKeepRepeatsOption)};
    const bool stored = ImportLines(*form, dialogs, file, {}, answers);
    return (!vars.Session || vars.Session->Settle()) && stored;
  };
  const bool done = run();
  return CloseStore(vars, dialogs) && done ? 0 : kFailed;
}

}  // namespace veroxia::cli
