#pragma once
// The window of a report: the table with the rows that do not hold marked,
// the notes under it and the verdict, closed with one button.

#include "shell/report.h"

class QDialog;
class QWidget;

namespace veroxia {

// Builds the window, as wide as its table needs within the screen (not shown).
QDialog* MakeReportWindow(QWidget* parent, const Report& report);

// Shows the window modal over `parent` until it is closed.
void ShowReportWindow(QWidget* parent, const Report& report);

}  // namespace veroxia
