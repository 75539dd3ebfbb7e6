// PDF files as the printouts make them: read back with pdftotext, every
// character of the page in the font, nothing lost off the edges, abandoned
// jobs and paths that cannot be written.

#include "gui/paper/pdf_printer.h"

#include <cerrno>

#include "filing/texts.h"
#include "gui/driver.h"
#include "shell/texts.h"
#include "support/pdf_text.h"

namespace veroxia::testing {
namespace {

using Pages = QList<QStringList>;

// Prints the pages as the printouts do: size, name, the first page, a new
// sheet before each further one. A page's first line is printed on its own,
// the others as one text of lines ended by CR LF.
void PrintPages(Printer& printer, const Pages& pages) {
  printer.SetFontSize(u"10"_s);
  printer.SetFontName(u"Courier New Greek"_s);
  for (qsizetype page = 0; page < pages.size(); ++page) {
    if (page > 0) printer.NewPage();
    printer.Print(pages[page].first());
    if (pages[page].size() > 1) printer.Print(pages[page].sliced(1).join(u"\r\n"_s));
  }
}

// The pages as they come back from a PDF file they were printed to.
Pages RoundTrip(const Pages& pages) {
  QTemporaryDir dir;
  PdfPrinter printer(dir.filePath(u"out.pdf"_s));
  PrintPages(printer, pages);
  printer.EndDoc();
  return PdfPagesByPosition(dir.filePath(u"out.pdf"_s));
}

class PdfTextTest : public ::testing::Test {
  void SetUp() override {
    if (!HavePdfToText()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
  }
};

// A line wider than the page goes on in the next line, broken after the last
// character that fits (blanks at its end do not count); a page longer than
// the sheet goes on on the next sheet.
TEST_F(PdfTextTest, NothingIsLostOffTheEdges) {
  QBuffer sink;
  QPdfWriter sheet(&sink);  // the PDF printer's
  const int columns = static_cast<int>(
      sheet.width() /
      QFontMetricsF(QFont(u"Liberation Mono"_s, 10), &sheet).horizontalAdvance(u'Ω'));
  ASSERT_GE(columns, 95);
  QString all;
  for (int i = 0; i < 2 * columns + 7; ++i) all += u"ΑΒΓΔΕΖΗΘάέή0123456789"_s[i % 21];
  QStringList long_page;
  for (int line = 1; line <= 80; ++line) long_page.append(u"ΓΡΑΜΜΗ %1"_s.arg(line));
  const Pages printed = {{all.first(columns), u"x"_s},
                         {all.first(columns) + u"   "_s, u"x"_s},
                         {all, u"x"_s},
                         long_page};
  const Pages read = RoundTrip(printed);
  ASSERT_EQ(read.size(), 5);
  EXPECT_EQ(read[0], printed[0]);
  EXPECT_EQ(read[1], printed[0]);
  EXPECT_EQ(read[2],
            QStringList({all.first(columns), all.sliced(columns, columns), all.last(7), u"x"_s}));
  EXPECT_GE(read[3].size(), 71);
  EXPECT_EQ(read[3] + read[4], long_page);
}

TEST(PainterPrinterTest, FontHoldsEveryCharacterOfThePage) {
  QBuffer sink;
  QPdfWriter sheet(&sink);
  PainterPrinter printer(sheet);
  printer.SetFontSize(u"12.5"_s);
  EXPECT_EQ(printer.Font().pointSizeF(), 12.5);
  printer.SetFontSize(u"10"_s);
  printer.SetFontName(u"Courier New Greek"_s);
  EXPECT_EQ(printer.Font().pointSizeF(), 10);
  EXPECT_EQ(QFontInfo(printer.Font()).family(), u"Liberation Mono"_s);
  EXPECT_TRUE(QFontInfo(printer.Font()).fixedPitch());
  const QRawFont font = QRawFont::fromFont(printer.Font());
  QStringDecoder code_page("windows-1253");
  ASSERT_TRUE(code_page.isValid());
  for (int byte = 0x20; byte <= 0xff; ++byte) {
    const QString c = code_page.decode(QByteArray(1, static_cast<char>(byte)));
    if (!c[0].isPrint() || c[0] == QChar::ReplacementCharacter) continue;
    EXPECT_TRUE(font.supportsCharacter(c[0])) << "byte " << byte;
  }
}

// An abandoned job leaves nothing, and the file it would replace as it was.
TEST(PdfPrinterTest, AbandonedJobLeavesNothing) {
  QTemporaryDir dir;
  QFile earlier(dir.filePath(u"out.pdf"_s));
  ASSERT_TRUE(earlier.open(QIODevice::WriteOnly) && earlier.write("earlier") == 7);
  earlier.close();
  PdfPrinter printer(earlier.fileName());
  PrintPages(printer, {{u"ΣΕΛΙΔΑ 1"_s}, {u"ΣΕΛΙΔΑ 2"_s}});
  printer.KillDoc();
  EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"out.pdf"_s});
  ASSERT_TRUE(earlier.open(QIODevice::ReadOnly));
  EXPECT_EQ(earlier.readAll(), "earlier");
}

// Each in our words, the system's being English: a general one with the number.
TEST(PdfPrinterTest, UnwritablePathFailsWithTheSystemError) {
  QTemporaryDir dir;
  QFile plain(dir.filePath(u"plain"_s));
  ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
  const std::tuple<QString, int, QString> cases[] = {
      {u"missing/out.pdf"_s, ENOENT, filing_texts::kDirectoryMissing},
      {u"plain/out.pdf"_s, ENOTDIR, filing_texts::kDirectoryMissing},
      {u"."_s, EISDIR, texts::kFileOtherError.arg(EISDIR)},
  };
  for (const auto& [path, code, description] : cases) {
    PdfPrinter printer(dir.filePath(path));
    try {
      printer.SetFontSize(u"10"_s);
      ADD_FAILURE() << "no failure for " << path.toStdString();
    } catch (const PrinterError& error) {
      EXPECT_EQ(error.code, code) << path.toStdString();
      EXPECT_EQ(error.description, description);
    }
  }
}

}  // namespace
}  // namespace veroxia::testing
