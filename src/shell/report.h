#pragma once
// A report the user reads in its own window before filing: a table whose
// rows each hold or not, notes under it and a closing verdict. The same
// report is told as text on the command line.

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

namespace veroxia {

struct ReportRow {
  QStringList cells;  // one per column
  bool holds = true;  // false: shown marked, as a fault
};

struct Report {
  QString title;        // of the window
  QStringList about;    // what the report is of, above the table
  QStringList columns;  // the table's headings
  std::vector<ReportRow> rows;
  QStringList notes;  // findings that are not rows of the table
  QString verdict;    // one closing sentence
  QString file_name;  // offered when it is saved as text; "report.txt" when empty
  bool AllHold() const;
};

// The caption of the box in which a screen shows a stored column, so that a
// report names a value as the user sees it: of the header screen when
// `in_header`, else of the line screen.
using BoxCaption = std::function<QString(bool in_header, const QString& column)>;

// The report as lines of text: what it is of, the headings and each row with
// the columns parted by tabs, then the notes and the verdict.
QStringList ReportText(const Report& report);

// Writes the report's text to a file at path (UTF-8 with its byte-order mark,
// CR LF line ends), whole or not at all. Why it could not, or nothing.
QString SaveReportText(const Report& report, const QString& path);

}  // namespace veroxia
