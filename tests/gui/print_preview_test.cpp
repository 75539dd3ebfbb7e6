// The print preview: drawn once before it shows, never shown for a printout
// that fails; printing from it to a PDF file; its page against the PDF
// printer's.

#include "gui/print_preview.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QTimer>

#include "gui/paper/pdf_printer.h"
#include "support/printers.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

// A printout of three pages; one that fails gives up on the second.
DrawPrintout Printout(bool fails, int& runs) {
  return [fails, &runs](Printer& printer) {
    ++runs;
    for (int page = 1; page <= 3; ++page) {
      if (page > 1) printer.NewPage();
      printer.Print(u"ΣΕΛΙΔΑ %1"_s.arg(page));
      if (fails) {
        printer.KillDoc();
        return false;
      }
    }
    printer.EndDoc();
    return true;
  };
}

TEST(PrintPreviewTest, ShownOnlyForAPrintoutThatIsDrawn) {
  for (const bool fails : {false, true}) {
    int runs = 0;
    int shown_pages = 0;
    int runs_when_shown = 0;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || !dialog->isVisible()) return;
      shown_pages = dialog->findChild<QPrintPreviewWidget*>()->pageCount();
      runs_when_shown = runs;
      dialog->reject();
    });
    poll.start(5);
    ShowPrintPreview(nullptr, Printout(fails, runs));
    EXPECT_EQ(runs, 1) << fails;
    EXPECT_EQ(shown_pages, fails ? 0 : 3) << fails;
    EXPECT_EQ(runs_when_shown, fails ? 0 : 1) << fails;
  }
}

// The printer as the print dialog's "print to file" leaves it.
TEST(PrintPreviewTest, PrintsToAFileOnlyWhenThePrintoutIsComplete) {
  for (const bool fails : {false, true}) {
    QTemporaryDir dir;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dir.filePath(u"out.pdf"_s));
    int runs = 0;
    EXPECT_EQ(DrawOn(printer, Printout(fails, runs)), !fails);
    EXPECT_EQ(QFile::exists(printer.outputFileName()), !fails);
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
}  // namespace veroxia
