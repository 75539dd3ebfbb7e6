#pragma once
// The two printout buttons of the header screens, and the one way every
// printout goes to a printer.

#include "printing/pages.h"
#include "printing/printer.h"
#include "shell/ports.h"
#include "shell/vars.h"

namespace veroxia {

// Prints the pages in the set way: font size "10", then the font name, the
// first page, a new page before each further one, the end of the document.
// Each page printed is told to `progress`, when given; when it answers that
// the user wants to stop, printing stops before the end of the document and
// the answer is false. Throws what the pages or the printer throw.
bool PrintPages(Pages& pages, Printer& printer, Progress* progress = nullptr);

// Prints the printout of the declaration vars.DeclarationId of that kind on
// the printer, with the busy pointer. On any failure the normal pointer is
// restored, the printing-problem message shown and the job abandoned; when
// the user stops it through `progress`, the job is abandoned and nothing
// told. Answers false in both cases.
bool RunPrintout(Vars& vars, Dialogs& dialogs, Kind kind, Printout printout, Printer& printer,
                 Progress* progress = nullptr);

// "Εκτύπωση συγκεντρωτικού": the summary form, through the print preview.
void PrintSummary(Vars& vars, Dialogs& dialogs, Kind kind);
// "Εκτύπωση στοιχείων": asks first; on Yes the whole declaration through the
// print preview.
void PrintDeclaration(Vars& vars, Dialogs& dialogs, Kind kind);

}  // namespace veroxia
