#include "shell/report.h"

#include <QSaveFile>
#include <algorithm>
#include <cerrno>

#include "filing/volume_files.h"
#include "shell/errors.h"
#include "shell/texts.h"

namespace veroxia {

bool Report::AllHold() const {
  return notes.isEmpty() &&
         std::all_of(rows.begin(), rows.end(), [](const ReportRow& row) { return row.holds; });
}

QStringList ReportText(const Report& report) {
  QStringList text = report.about;
  text << report.columns.join(u'\t');
  for (const ReportRow& row : report.rows) text << row.cells.join(u'\t');
  text << report.notes;
  if (!report.verdict.isEmpty()) text << report.verdict;
  return text;
}

QString SaveReportText(const Report& report, const QString& path) {
  QSaveFile file(path);
  const QByteArray text =
      "\xEF\xBB\xBF" +
      (ReportText(report).join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")).toUtf8();
  errno = 0;
  if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit()) {
    return {};
  }
  const int code = errno != 0 ? errno : static_cast<int>(file.error());
  return ErrorMessage(texts::kFileNotWritten.arg(path), code, FileErrorDescription(code));
}

}  // namespace veroxia
