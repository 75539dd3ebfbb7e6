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
#include "cli/verify_command.h"
#include "filing/create_file.h"
#include "filing/totals.h"
#include "gui/paper/pdf_printer.h"
#include "header/box_captions.h"
#include "printing/printout.h"
#include "printing/text_printer.h"
#include "shell/errors.h"
#include "shell/ports.h"
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

const char* const kHelp =
    "Usage: veroxia-cli [--store PATH] COMMAND\n"
    "\n"
    "Commands:\n"
    "  list                              the stored declarations, one a line:\n"
    "                                    kind, id, period, type, number of lines\n"
    "  volumes common|construction ID DIRECTORY\n"
    "                                    writes the submission file of the\n"
    "                                    declaration into DIRECTORY\n"
    "  check common|construction ID      the header's totals against the sums\n"
    "                                    of the lines; exit status 0 when all\n"
    "                                    agree, 1 when not, 2 on an error\n"
    "  print summary|declaration common|construction ID --pdf FILE|--text\n"
    "                                    the pages of the summary form or of\n"
    "                                    the whole declaration: as a PDF file,\n"
    "                                    or as text on standard output with a\n"
    "                                    form feed between pages\n"
    "  verify DIRECTORY [--against common|construction ID]\n"
    "                                    reads the volumes in DIRECTORY back\n"
    "                                    and checks every record, against the\n"
    "                                    stored declaration's counts with\n"
    "                                    --against; exit status 0 when all\n"
    "                                    holds, 1 when not, 2 on an error\n"
    "  import common|construction ID FILE [--append|--replace] [--keep-duplicates]\n"
    "                                    φέρνει στη δήλωση τις γραμμές εργαζομένων\n"
    "                                    ενός αρχείου CSV, καθεμία ελεγμένη όπως\n"
    "                                    στην οθόνη εργαζομένων: καταχωρούνται\n"
    "                                    όλες ή καμία, και κάθε γραμμή με λάθος\n"
    "                                    γράφεται στο standard error. Κωδικός\n"
    "                                    εξόδου 0 όταν καταχωρήθηκαν, 1 όταν όχι.\n"
    "                                    Σε δήλωση που έχει ήδη γραμμές χρειάζεται\n"
    "                                    --append (μετά την τελευταία γραμμή) ή\n"
    "                                    --replace (στη θέση όλων των γραμμών).\n"
    "                                    Γραμμές που επαναλαμβάνουν γραμμή (ίδιος\n"
    "                                    Α.Μ., μήνας και τύπος αποδοχών) γράφονται\n"
    "                                    στο standard error και καταχωρούνται μόνο\n"
    "                                    με --keep-duplicates\n"
    "  export-lines common|construction ID FILE\n"
    "                                    writes the declaration's lines to a CSV\n"
    "                                    file that import reads back\n"
    "  backup                            copies the store now into the folder\n"
    "                                    backups/ beside it; prints the copy's path\n"
    "  restore FILE                      puts FILE, a copy of the store, in the\n"
    "                                    store's place once its password, tables\n"
    "                                    and health are proven; the replaced store\n"
    "                                    is kept in backups/; refused while the\n"
    "                                    program holds the store\n"
    "\n"
    "Options:\n"
    "  --store PATH   the store file (default: QorDb.mdb beside the program)\n"
    "  --help         this text\n"
    "\n"
    "Exit status: 0 when done; 1 when the store, the file or the printout\n"
    "failed, the declaration has no submission date, or a restore was refused;\n"
    "2 for a wrong command line.\n";

int Usage(const QString& why) {
  Print(stderr, u"veroxia-cli: "_s + why);
  std::fputs(kHelp, stderr);
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
      Print(stderr, u"veroxia-cli: no declaration "_s + QString::number(id) + u" of that kind"_s);
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
    std::fputs(kHelp, args.isEmpty() ? stderr : stdout);
    return args.isEmpty() ? kUsage : 0;
  }
  QString store = StorePath(QCoreApplication::applicationDirPath());
  if (const qsizetype at = args.indexOf(u"--store"_s); at >= 0) {
    if (at + 1 >= args.size()) return Usage(u"--store needs a path"_s);
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
    if (args.size() != 4) return Usage(u"volumes needs a kind, an id and a directory"_s);
    if (!ReadKind(args[1], kind)) return Usage(u"the kind is common or construction"_s);
    id_text = args[2];
  } else if (command == u"check") {
    if (args.size() != 3) return Usage(u"check needs a kind and an id"_s);
    if (!ReadKind(args[1], kind)) return Usage(u"the kind is common or construction"_s);
    id_text = args[2];
  } else if (command == u"print") {
    const bool text = args.size() == 5 && args[4] == u"--text";
    const bool pdf = args.size() == 6 && args[4] == u"--pdf";
    if (!text && !pdf) {
      return Usage(u"print needs a printout, a kind, an id and --pdf FILE or --text"_s);
    }
    pdf_file = pdf ? args[5] : QString();
    if (args[1] == u"declaration") {
      printout = Printout::kDeclaration;
    } else if (args[1] != u"summary") {
      return Usage(u"the printout is summary or declaration"_s);
    }
    if (!ReadKind(args[2], kind)) return Usage(u"the kind is common or construction"_s);
    id_text = args[3];
  } else if (command != u"list" || args.size() != 1) {
    return Usage(u"unknown command: "_s + args.join(u' '));
  }
  int id = 0;
  if (command != u"list") {
    bool number = false;
    id = id_text.toInt(&number);
    if (!number || id < 1 || id > 32767) return Usage(u"the id is a number from 1 to 32767"_s);
  }

  Vars vars;
  vars.AppDir = QCoreApplication::applicationDirPath();
  try {
    vars.StoreConnection = Database::Open(store, StorePassword());
    CheckSchema(*vars.StoreConnection);
  } catch (const StoreError& error) {
    Print(stderr, ErrorMessage(texts::kStoreCritical, error));
    return kFailed;
  }
  vars.StoreOpen = true;
  if (command == u"list") {
    try {
      return List(*vars.StoreConnection);
    } catch (const StoreError& error) {
      Print(stderr, ErrorMessage(texts::kStoreCritical, error));
      return kFailed;
    }
  }
  vars.DeclarationId = static_cast<std::int16_t>(id);
  if (command == u"check") return Check(*vars.StoreConnection, kind, id);
  if (command == u"print") {
    ConsoleDialogs dialogs;
    std::unique_ptr<Printer> printer;
    if (pdf_file.isEmpty()) {
      printer = std::make_unique<TextPrinter>(stdout);
    } else {
      printer = std::make_unique<PdfPrinter>(pdf_file);
    }
    return RunPrintout(vars, dialogs, kind, printout, *printer) ? 0 : kFailed;
  }
  ConsoleDialogs dialogs(args[3]);
  return CreateFile(vars, dialogs, kind) == FileOutcome::kWritten ? 0 : kFailed;
}
