#include "shell/report.h"

#include <algorithm>

namespace veroxia {

bool Report::AllHold() const {
  return notes.isEmpty() &&
         std::all_of(rows.begin(), rows.end(), [](const ReportRow& row) { return row.holds; });
}

QStringList ReportText(const Report& report) {
  QStringList text{report.columns.join(u'\t')};
  for (const ReportRow& row : report.rows) text << row.cells.join(u'\t');
  text << report.notes;
  if (!report.verdict.isEmpty()) text << report.verdict;
  return text;
}

}  // namespace veroxia
