// The print preview: composed with a progress bar before it shows, never
// shown for a printout that fails or is stopped; its pages turned; its window
// on a small screen; printing from it to a PDF file.

#include "gui/print_preview.h"

#include "gui/driver.h"
#include "gui/paper/pdf_printer.h"
#include "printing/texts.h"

namespace veroxia::testing {
namespace {

namespace pt = printing_texts;

// A printout of three pages, each told to the progress; one that fails gives
// up on the second.
PrintJob Printout(bool fails, int& runs) {
  return {[fails, &runs](Printer& printer, Progress& progress) {
            ++runs;
            printer.SetFontSize(u"10"_s);
            for (int page = 1; page <= 3; ++page) {
              if (page > 1) printer.NewPage();
              printer.Print(u"ΣΕΛΙΔΑ %1\r\nΓΡΑΜΜΗ"_s.arg(page));
              if ((fails && page == 2) || !progress.Advance(page, 3)) {
                printer.KillDoc();
                return false;
              }
            }
            printer.EndDoc();
            return true;
          },
          u"OVT-common-1-2026-01.pdf"_s};
}

struct GoOn : Progress {
  bool Advance(qint64, qint64) override { return true; }
};

// The printout's pages, composed.
struct Composed {
  int runs = 0;
  PrintJob job = Printout(false, runs);
  PageFile pages;
  Composed() {
    GoOn go_on;
    EXPECT_TRUE(job.draw(pages, go_on));
  }
};

TEST(PrintPreviewTest, ShownOnlyForAPrintoutComposedWhole) {
  const struct {
    bool fails;
    int stop_at;
    bool shown;
  } cases[] = {{false, 0, true}, {true, 0, false}, {false, 2, false}};
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::Message() << c.fails << c.stop_at);
    FakeDialogs dialogs;
    dialogs.stop_at = c.stop_at;
    int runs = 0;
    QString count;
    EXPECT_EQ(
        AnswerNextBox<QDialog>([&] { ShowPrintPreview(nullptr, dialogs, Printout(c.fails, runs)); },
                               [&](QDialog& window) {
                                 count = Find<QLabel>(window, "PageCount")->text().trimmed();
                                 window.close();
                               }),
        c.shown);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(dialogs.progress_texts, QStringList{pt::kComposing});
    EXPECT_EQ(count, c.shown ? pt::kOfPages.arg(3) : QString());
  }
}

// Pages are turned by the buttons and the number. The offscreen screen is
// 800×600, smaller than the laptops' 1366×768 and 1024×768: the window, its
// toolbar and a page's whole width at a readable size are within it.
TEST(PrintPreviewTest, PagesTurnAndTheWindowFitsASmallScreen) {
  FakeDialogs dialogs;
  Composed printout;
  PrintPreviewWindow window(printout.pages, dialogs, printout.job, nullptr);
  window.show();
  auto* first = Find<QToolButton>(window, "FirstPageCmd");
  auto* next = Find<QToolButton>(window, "NextPageCmd");
  auto* box = Find<QSpinBox>(window, "PageBox");
  EXPECT_EQ(window.Page(), 0);
  EXPECT_FALSE(first->isEnabled());
  next->click();
  EXPECT_EQ(window.Page(), 1);
  EXPECT_EQ(box->value(), 2);
  Find<QToolButton>(window, "LastPageCmd")->click();
  EXPECT_EQ(window.Page(), 2);
  EXPECT_FALSE(next->isEnabled());
  EXPECT_TRUE(first->isEnabled());
  Find<QToolButton>(window, "PreviousPageCmd")->click();
  EXPECT_EQ(window.Page(), 1);
  box->setValue(1);
  EXPECT_EQ(window.Page(), 0);
  window.ShowPage(7);  // beyond the last: the last
  EXPECT_EQ(window.Page(), 2);
  const QRect area = window.screen()->availableGeometry();
  EXPECT_TRUE(area.contains(window.frameGeometry())) << area.height();
  EXPECT_LE(Find<QToolBar>(window, "PreviewToolbar")->sizeHint().width(), window.width());
  EXPECT_LE(Find<QWidget>(window, "PreviewSheets")->width(),
            Find<QWidget>(window, "PreviewScroll")->width());
  EXPECT_GE(window.Zoom(), 0.85);  // 10 points stay at least 11 pixels
}

// To a PDF file from the preview's own button, or from the print dialog's
// "print to file": the file is there only when the printout is complete.
TEST(PrintPreviewTest, SavesAPdfUnderTheDeclarationsNameOnlyWhenComplete) {
  for (const int stop_at : {0, 2}) {
    QTemporaryDir dir;
    const QString path = dir.filePath(u"out.pdf"_s);
    FakeDialogs dialogs;
    dialogs.files = {path};
    Composed printout;
    PrintPreviewWindow window(printout.pages, dialogs, printout.job, nullptr);
    dialogs.stop_at = stop_at;
    window.SavePdfCmd_Click();
    ASSERT_EQ(dialogs.file_questions.size(), 1u);
    EXPECT_EQ(dialogs.file_questions[0].suggested, printout.job.pdf_name);
    EXPECT_TRUE(dialogs.file_questions[0].save);
    EXPECT_EQ(dialogs.progress_texts, QStringList{pt::kSavingPdf});
    EXPECT_EQ(QFile::exists(path), stop_at == 0);
    EXPECT_TRUE(dialogs.messages.empty());

    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dir.filePath(u"printed.pdf"_s));
    GoOn go_on;
    const PrintJob job = Printout(stop_at != 0, printout.runs);
    EXPECT_EQ(DrawOn(printer, [&](Printer& p) { return job.draw(p, go_on); }), stop_at == 0);
    EXPECT_EQ(QFile::exists(printer.outputFileName()), stop_at == 0);
  }
}

TEST(PrintPreviewTest, PdfPageIsThatOfAPrinterWithoutPrinter) {
  if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
  const QPrinter printer(QPrinter::HighResolution);
  const PdfPrinter file(u"unused.pdf"_s);
  EXPECT_EQ(file.PageLayout(), printer.pageLayout());
  EXPECT_EQ(file.Resolution(), printer.resolution());
}

}  // namespace
}  // namespace veroxia::testing
