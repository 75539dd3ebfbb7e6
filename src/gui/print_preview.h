#pragma once
// The print preview of a printout, on the system's default printer. From it
// the printout goes to that printer or, through the print dialog's "print to
// file", to a PDF file. With no printer installed the preview and the PDF
// file still work.

#include <functional>

#include "printing/printer.h"

class QPrinter;
class QWidget;

namespace veroxia {

// Prints the whole printout on the printer it is given, page by page; false
// when it failed, after telling the user and abandoning the job (KillDoc).
using DrawPrintout = std::function<bool(Printer&)>;

// Draws the printout for the preview and shows it, modal over `parent`,
// until it is closed. When the first drawing fails, nothing is shown. When a
// later one fails (the preview redrawn, or printing), the preview closes.
void ShowPrintPreview(QWidget* parent, const DrawPrintout& draw);

// Runs `draw` on `target`: for a printer that prints to a PDF file, on a
// PdfPrinter with the printer's page (so the file appears only when the
// printout is complete); otherwise on a PainterPrinter drawing on it.
bool DrawOn(QPrinter& target, const DrawPrintout& draw);

}  // namespace veroxia
