// veroxia-cli: the store's declarations, their submission files and their
// printouts without a window or a display, for scripts. It writes the same
// volumes, byte for byte, as the program's "Δημιουργία αρχείου", prints the
// same pages as its printout buttons, and tells the same messages on standard
// error.

#include <QGuiApplication>
#include <QStringList>
#include <cstdio>
#include <cstring>
#include <memory>

#include "cli/console.h"
#include "cli/lines_commands.h"
#include "cli/store_commands.h"
#include "cli/texts.h"
#include "cli/verify_command.h"
#include "filing/create_file.h"
#include "filing/totals.h"
#include "gui/paper/pdf_printer.h"
#include "header/box_captions.h"
#include "printing/printout.h"
#include "printing/text_printer.h"
#include "shell/errors.h"
#include "shell/ports.h"
#include "shell/store_open.h"
#include "shell/texts.h"
#include "shell/vars.h"
#include "store/declarations.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace {

using namespace veroxia;
using namespace veroxia::cli;
using namespace Qt::StringLiterals;

constexpr int kFailed = 1;
constexpr int kUsage = 2;

int Usage(const QString& why) {
  Print(stderr, u"veroxia-cli: "_s + why);
  std::fputs(cli_texts::kHelp, stderr);
  return kUsage;
}

int List(Database& db) {
  for (const Kind kind : {Kind::Common, Kind::Construction}) {
    for (const DeclarationSummary& d : ListDeclarations(db, kind)) {
      QString period = d.period.from_month + u'/' + d.period.from_year;
      if (kind == Kind::Common) period += u'-' + d.period.to_month + u'/' + d.period.to_year;
      Print(stdout, QStringList{kind == Kind::Common ? u"common"_s : u"construction"_s,
                                d.id.value_or(QString()), period, d.type.value_or(QString()),
                                QString::number(d.lines)}
                        .join(u'\t'));
    }
  }
  return 0;
}

// The totals report: 0 when everything agrees, 1 when not, 2 on an error.
int Check(Database& db, Kind kind, int id) {
  try {
    const std::optional<TotalsReport> report = CompareTotals(db, kind, id);
    if (!report) {
      Print(stderr, u"veroxia-cli: "_s + cli_texts::kNoDeclaration.arg(id));
      return kUsage;
    }
    for (const QString& line : ReportText(TotalsWindow(*report, BoxCaptionsOf(kind))))
      Print(stdout, line);
    if (report->AllAgree()) return 0;
    Print(stderr, kTotalsDisagree);
    return kFailed;
  } catch (const StoreError& error) {
    Print(stderr, ErrorMessage(texts::kStoreCritical, error));
    return kUsage;
  }
}

// PDF files are drawn with Qt Gui, on the platform that needs no display;
// everything else needs Qt Core alone.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--pdf") == 0) {
      qputenv("QT_QPA_PLATFORM", "offscreen");
      return std::make_unique<QGuiApplication>(argc, argv);
    }
  }
  return std::make_unique<QCoreApplication>(argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
  // Standard error carries the program's own messages only, not Qt's notes
  // on the environment.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  const std::unique_ptr<QCoreApplication> app = MakeApplication(argc, argv);
  QStringList args = QCoreApplication::arguments().mid(1);
  if (args.isEmpty() || args.contains(u"--help"_s)) {
    std::fputs(cli_texts::kHelp, args.isEmpty() ? stderr : stdout);
    return args.isEmpty() ? kUsage : 0;
  }
  QString store = StorePath(QCoreApplication::applicationDirPath());
  if (const qsizetype at = args.indexOf(u"--store"_s); at >= 0) {
    if (at + 1 >= args.size()) return Usage(cli_texts::kStoreNeedsFile);
    store = args.at(at + 1);
    args.remove(at, 2);
  }
  const QString command = args.value(0);
  if (command == u"verify") return VerifyCommand(args.mid(1), store, Usage);
  if (IsLinesCommand(command)) {
    if (const QString wrong = LinesCommandUsage(args); !wrong.isEmpty()) return Usage(wrong);
    return RunLinesCommand(store, args);
  }
  if (cli::IsStoreCommand(command)) {
    if (const QString wrong = cli::StoreCommandUsage(args); !wrong.isEmpty()) return Usage(wrong);
    return cli::RunStoreCommand(store, args);
  }
  Kind kind = Kind::Common;
  Printout printout = Printout::kSummary;
  QString id_text;
  QString pdf_file;  // empty: the pages as text
  if (command == u"volumes") {
    if (args.size() != 4) return Usage(cli_texts::kNeedsKindIdAndDirectory.arg(command));
    if (!ReadKind(args[1], kind)) return Usage(cli_texts::kKindWords);
    id_text = args[2];
  } else if (command == u"check") {
    if (args.size() != 3) return Usage(cli_texts::kNeedsKindAndId.arg(command));
    if (!ReadKind(args[1], kind)) return Usage(cli_texts::kKindWords);
    id_text = args[2];
  } else if (command == u"print") {
    const bool text = args.size() == 5 && args[4] == u"--text";
    const bool pdf = args.size() == 6 && args[4] == u"--pdf";
    if (!text && !pdf) {
      return Usage(cli_texts::kPrintNeeds);
    }
    pdf_file = pdf ? args[5] : QString();
    if (args[1] == u"declaration") {
      printout = Printout::kDeclaration;
    } else if (args[1] != u"summary") {
      return Usage(cli_texts::kPrintoutWords);
    }
    if (!ReadKind(args[2], kind)) return Usage(cli_texts::kKindWords);
    id_text = args[3];
  } else if (command != u"list" || args.size() != 1) {
    return Usage(cli_texts::kUnknownCommand + args.join(u' '));
  }
  int id = 0;
  if (command != u"list") {
    const std::optional<int> read = ReadId(id_text);
    if (!read) return Usage(cli_texts::kIdRange);
    id = *read;
  }

  Vars vars;
  vars.AppDir = QCoreApplication::applicationDirPath();
  try {
    vars.StoreConnection = OpenStoreFile(store, StorePassword());
  } catch (const StoreError& error) {
    Print(stderr, OpenFailedMessage(store, error));
    return kFailed;
  }
  vars.StoreOpen = true;
  vars.DeclarationId = static_cast<std::int16_t>(id);
  ConsoleDialogs dialogs(command == u"volumes" ? args[3] : QString());
  const auto run = [&]() -> int {
    if (command == u"list") {
      try {
        return List(*vars.StoreConnection);
      } catch (const StoreError& error) {
        Print(stderr, ErrorMessage(texts::kStoreCritical, error));
        return kFailed;
      }
    }
    if (command == u"check") return Check(*vars.StoreConnection, kind, id);
    if (command == u"print") {
      std::unique_ptr<Printer> printer;
      if (pdf_file.isEmpty()) {
        printer = std::make_unique<TextPrinter>(stdout);
      } else {
        printer = std::make_unique<PdfPrinter>(pdf_file);
      }
      return RunPrintout(vars, dialogs, kind, printout, *printer) ? 0 : kFailed;
    }
    return CreateFile(vars, dialogs, kind) == FileOutcome::kWritten ? 0 : kFailed;
  };
  const int status = run();
  // A log that cannot be written back is a failure of the store: check
  // tells those with its own status.
  if (!CloseStore(vars, dialogs) && status == 0) return command == u"check" ? kUsage : kFailed;
  return status;
}
