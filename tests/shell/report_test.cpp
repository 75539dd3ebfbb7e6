// A report saved as a text file: every line, readable by the usual editors;
// a file that cannot be written is told.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "shell/report.h"
#include "shell/texts.h"
#include "support/files.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;

TEST(ReportTest, SavedAsTextWholeOrToldWhyNot) {
  Report report;
  report.about = {u"Αρχείο: a.csv"_s};
  report.columns = {u"ΓΡΑΜΜΗ"_s, u"ΜΗΝΥΜΑ"_s};
  report.rows = {{{u"3"_s, u"ΠΡΟΣΟΧΗ!!"_s}, false}};
  report.notes = {u"σημείωση"_s};
  report.verdict = u"Τέλος."_s;
  QTemporaryDir dir;
  const QString path = dir.filePath(u"report.txt"_s);
  EXPECT_EQ(SaveReportText(report, path), QString());
  EXPECT_EQ(
      FileBytes(path),
      "\xEF\xBB\xBF" +
          u"Αρχείο: a.csv\r\nΓΡΑΜΜΗ\tΜΗΝΥΜΑ\r\n3\tΠΡΟΣΟΧΗ!!\r\nσημείωση\r\nΤέλος.\r\n"_s.toUtf8());
  const QString nowhere = dir.filePath(u"none/report.txt"_s);
  EXPECT_TRUE(SaveReportText(report, nowhere).startsWith(texts::kFileNotWritten.arg(nowhere)));
}

}  // namespace
}  // namespace veroxia::testing
