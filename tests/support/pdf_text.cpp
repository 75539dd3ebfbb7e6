#include "support/pdf_text.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QStandardPaths>

namespace veroxia::testing {

namespace {

const QString kProgram = QStringLiteral("pdftotext");

}  // namespace

bool HavePdfToText() { return !QStandardPaths::findExecutable(kProgram).isEmpty(); }

QString PdfText(const QString& path, const PdfColumns& columns) {
  const QString whole_page = QStringLiteral("100000");
  QProcess run;
  run.start(kProgram,
            {QStringLiteral("-fixed"), QString::number(columns.pitch), QStringLiteral("-x"),
             QString::number(columns.left), QStringLiteral("-y"), QStringLiteral("0"),
             QStringLiteral("-W"), whole_page, QStringLiteral("-H"), whole_page,
             QStringLiteral("-enc"), QStringLiteral("UTF-8"), path, QStringLiteral("-")});
  const bool finished = run.waitForFinished(60'000);
  if (!finished || run.exitStatus() != QProcess::NormalExit || run.exitCode() != 0) {
    ADD_FAILURE() << "pdftotext failed on " << path.toStdString() << ": "
                  << run.readAllStandardError().toStdString();
    return {};
  }
  return QString::fromUtf8(run.readAllStandardOutput());
}

QList<QStringList> PdfPages(const QString& text) {
  QList<QStringList> pages;
  QStringList page_texts = text.split(u'\f');
  page_texts.removeLast();  // what follows the last form feed
  for (const QString& page_text : page_texts) {
    QStringList lines;
    for (const QString& line : page_text.split(u'\n')) {
      qsizetype end = line.size();
      while (end > 0 && line[end - 1].isSpace()) --end;
      lines.append(line.first(end));
    }
    while (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
    pages.append(lines);
  }
  return pages;
}

}  // namespace veroxia::testing
