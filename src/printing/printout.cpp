#include "printing/printout.h"

#include <optional>

#include "printing/texts.h"
#include "shell/errors.h"
#include "shell/texts.h"

namespace veroxia {

namespace pt = printing_texts;

void PrintPages(Pages& pages, Printer& printer) {
  printer.SetFontSize(QStringLiteral("10"));
  printer.SetFontName(pt::kFontName);
  QString page;
  for (bool first = true; pages.Next(page); first = false) {
    if (!first) printer.NewPage();
    printer.Print(page);
  }
  printer.EndDoc();
}

bool RunPrintout(Vars& vars, Dialogs& dialogs, Kind kind, Printout printout, Printer& printer) {
  std::optional<BusyPointer> busy(dialogs);
  QString message;
  try {
    std::unique_ptr<Pages> pages =
        ComposePages(*vars.StoreConnection, kind, printout, vars.DeclarationId);
    PrintPages(*pages, printer);
    return true;
  } catch (const StoreError& error) {
    message = ErrorMessage(pt::kProblem, error);
  } catch (const PrinterError& error) {
    message = ErrorMessage(pt::kProblem, error.code, error.description);
  }
  busy.reset();
  dialogs.Message(message, texts::kAppTitle);
  printer.KillDoc();
  return false;
}

void PrintSummary(Vars& vars, Dialogs& dialogs, Kind kind) {
  dialogs.PrintPreview([&](Printer& printer) {
    return RunPrintout(vars, dialogs, kind, Printout::kSummary, printer);
  });
}

void PrintDeclaration(Vars& vars, Dialogs& dialogs, Kind kind) {
  if (!dialogs.Ask(pt::kAskAll, texts::kAppTitle, AskStyle::Plain)) return;
  dialogs.PrintPreview([&](Printer& printer) {
    return RunPrintout(vars, dialogs, kind, Printout::kDeclaration, printer);
  });
}

}  // namespace veroxia
