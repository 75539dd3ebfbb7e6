// A report saved as a text file: every line, readable by the usual editors;
// a file that cannot be written is told.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "shell/file_names.h"
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

TEST(ReportTest, FilesOfADeclarationAreNamedByKindNumberAndPeriod) {
  EXPECT_EQ(DeclarationFileName(Kind::Common, 12, u"042002"_s, u"062002"_s, u"pdf"_s),
            u"OVT-common-12-2002-04_2002-06.pdf"_s);
  EXPECT_EQ(DeclarationFileName(Kind::Common, 7, u"042002"_s, u"042002"_s, u"txt"_s),
            u"OVT-common-7-2002-04.txt"_s);
  EXPECT_EQ(DeclarationFileName(Kind::Construction, 3, u"112026"_s, {}, u"csv"_s),
            u"OVT-construction-3-2026-11.csv"_s);
  EXPECT_EQ(DeclarationFileName(Kind::Construction, 3, u"1/2026"_s, {}, u"csv"_s),
            u"OVT-construction-3-12026.csv"_s);
}

}  // namespace
}  // namespace veroxia::testing
