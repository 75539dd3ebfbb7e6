#include "support/pdf_text.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <cmath>

namespace veroxia::testing {

namespace {

const QString kProgram = QStringLiteral("pdftotext");

}  // namespace

bool HavePdfToText() { return !QStandardPaths::findExecutable(kProgram).isEmpty(); }

QList<QStringList> PdfPagesByPosition(const QString& path, double margin) {
  QProcess run;
  run.start(kProgram, {QStringLiteral("-bbox"), QStringLiteral("-enc"), QStringLiteral("UTF-8"),
                       path, QStringLiteral("-")});
  if (!run.waitForFinished(60'000) || run.exitCode() != 0) {
    ADD_FAILURE() << "pdftotext -bbox failed on " << path.toStdString();
    return {};
  }
  const QString html = QString::fromUtf8(run.readAllStandardOutput());
  static const QRegularExpression word(QStringLiteral(
      R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>)re"));
  QList<QStringList> pages;
  for (const QString& page : html.split(QStringLiteral("<page "), Qt::SkipEmptyParts).mid(1)) {
    QStringList lines;
    for (auto found = word.globalMatch(page); found.hasNext();) {
      const QRegularExpressionMatch w = found.next();
      QString text = w.captured(5);
      text.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
          .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
          .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
          .replace(QStringLiteral("&apos;"), QStringLiteral("'"))
          .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
      const double x_min = w.captured(1).toDouble(), y_min = w.captured(2).toDouble();
      const double pitch = (w.captured(3).toDouble() - x_min) / text.size();
      const double spacing = w.captured(4).toDouble() - y_min;
      const auto row = static_cast<qsizetype>(std::lround((y_min - margin) / spacing));
      const auto column = static_cast<qsizetype>(std::lround((x_min - margin) / pitch));
      while (lines.size() <= row) lines.append(QString());
      QString& line = lines[row];
      if (line.size() < column) line += QString(column - line.size(), u' ');
      line.replace(column, text.size(), text);
    }
    pages.append(lines);
  }
  return pages;
}

}  // namespace veroxia::testing
