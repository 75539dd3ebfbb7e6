#include "printing/printout.h"

#include "printing/texts.h"
#include "shell/errors.h"
#include "shell/file_names.h"
#include "shell/texts.h"

namespace veroxia {

using namespace Qt::StringLiterals;
namespace pt = printing_texts;

bool PrintPages(Pages& pages, Printer& printer, Progress* progress) {
  printer.SetFontSize(QStringLiteral("10"));
  printer.SetFontName(pt::kFontName);
  QString page;
  for (qint64 printed = 0; pages.Next(page); ++printed) {
    if (printed > 0) printer.NewPage();
    printer.Print(page);
    if (progress != nullptr && !progress->Advance(printed + 1, pages.Count())) return false;
  }
  printer.EndDoc();
  return true;
}

bool RunPrintout(Vars& vars, Dialogs& dialogs, Kind kind, Printout printout, Printer& printer,
                 Progress* progress) {
  QString message;  // stays empty when the user stopped the printout
  {
    BusyPointer busy(dialogs);
    try {
      std::unique_ptr<Pages> pages =
          ComposePages(*vars.StoreConnection, kind, printout, vars.DeclarationId);
      if (PrintPages(*pages, printer, progress)) return true;
    } catch (const StoreError& error) {
      message = ErrorMessage(pt::kProblem, error);
    } catch (const PrinterError& error) {
      message = ErrorMessage(pt::kProblem, error.code, error.description);
    }
  }
  if (!message.isEmpty()) dialogs.Message(message, texts::kAppTitle);
  printer.KillDoc();
  return false;
}

namespace {

// The preview of the printout, offered as a PDF file under the declaration's
// name.
void Preview(Vars& vars, Dialogs& dialogs, Kind kind, Printout printout) {
  dialogs.PrintPreview(
      {[&](Printer& printer, Progress& progress) {
         return RunPrintout(vars, dialogs, kind, printout, printer, &progress);
       },
       DeclarationFileName(kind, vars.DeclarationId, vars.PeriodFrom, vars.PeriodTo, u"pdf"_s)});
}

}  // namespace

void PrintSummary(Vars& vars, Dialogs& dialogs, Kind kind) {
  Preview(vars, dialogs, kind, Printout::kSummary);
}

void PrintDeclaration(Vars& vars, Dialogs& dialogs, Kind kind) {
  if (!dialogs.Ask(pt::kAskAll, texts::kAppTitle, AskStyle::Plain)) return;
  Preview(vars, dialogs, kind, Printout::kDeclaration);
}

}  // namespace veroxia
