#pragma once
// The window of a report: the table with the rows that do not hold marked,
// the notes under it and the verdict; a button saves it all as a text file,
// another closes it.

#include <QString>

#include "shell/report.h"

class QDialog;
class QWidget;

namespace veroxia {

// Builds the window, as wide as its table needs within the screen (not shown).
// With `go_on`, a button of that caption accepts the window and the closing
// button is "Άκυρο", which rejects it.
QDialog* MakeReportWindow(QWidget* parent, const Report& report, const QString& go_on = {});

// Shows the window modal over `parent` until it is closed.
void ShowReportWindow(QWidget* parent, const Report& report);

// Shows the window with a button to go on, modal: true when it was pressed.
bool ConfirmReportWindow(QWidget* parent, const Report& report, const QString& go_on);

}  // namespace veroxia
