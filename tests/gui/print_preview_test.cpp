// The print preview: drawn once before it shows, never shown for a printout
// that fails; printing from it to a PDF file; its page against the PDF
// printer's; and Qt's own print dialogs speaking Greek.

#include "gui/print_preview.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <memory>
#include <string>

#include "gui/paper/pdf_printer.h"
#include "gui/qt_greek.h"
#include "support/printers.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;

// Every text the dialog can show: titles, labels, buttons, tabs, list items,
// unit suffixes, tooltips and the actions of its tool bar.
QStringList ShownTexts(const QWidget& dialog) {
  QStringList texts{dialog.windowTitle()};
  for (const auto* widget : dialog.findChildren<QWidget*>()) {
    texts << widget->toolTip();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) texts << button->text();
    if (const auto* label = qobject_cast<const QLabel*>(widget)) texts << label->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(widget)) texts << group->title();
    if (const auto* spin = qobject_cast<const QDoubleSpinBox*>(widget)) texts << spin->suffix();
    if (const auto* tabs = qobject_cast<const QTabWidget*>(widget))
      for (int i = 0; i < tabs->count(); ++i) texts << tabs->tabText(i);
    if (const auto* combo = qobject_cast<const QComboBox*>(widget))
      for (int i = 0; i < combo->count(); ++i) texts << combo->itemText(i);
  }
  for (const auto* action : dialog.findChildren<QAction*>())
    texts << action->text() << action->toolTip();
  return texts;
}

// The texts, one a line, with a word in Latin letters that does not stay Latin in Greek:
// PDF, OK, unit symbols, the names of paper series and the machine's printers.
std::string NotGreek(const QStringList& texts) {
  static const QRegularExpression latin_word(u"[A-Za-z0-9]*[A-Za-z][A-Za-z0-9]*"_s);
  static const QRegularExpression stays_latin(QRegularExpression::anchoredPattern(
      u"PDF|OK|CUPS|mm|pt|pc|DD|CC|P|[A-E][0-9]*|[0-9]+K|ANSI|JIS|PRC|DL|Letter|Legal|Executive|"
      "Tabloid|Ledger|Folio|Quarto|Statement|Note|Super|Extra|Plus|Monarch|Chou|Kaku|You"_s));
  QStringList not_greek;
  for (QString text : texts) {
    for (const auto& printer : QPrinterInfo::availablePrinters())
      for (const auto& own : {printer.printerName(), printer.description(), printer.location(),
                              printer.makeAndModel()})
        if (!own.isEmpty()) text.remove(own);
    for (const auto& word : latin_word.globalMatch(text))
      if (!stays_latin.match(word.captured()).hasMatch()) not_greek << text;
  }
  not_greek.removeDuplicates();
  return not_greek.join(u"\n"_s).toStdString();
}

TEST(QtGreekTest, ThePrintDialogsShowNoEnglish) {
  const std::unique_ptr<QTranslator> greek(UseGreekQtTexts());  // uninstalled when deleted
  ASSERT_NE(greek, nullptr);
  QPrinter printer;
  // A printer's own driver names its paper sizes in its own words; to PDF they are Qt's.
  printer.setOutputFormat(QPrinter::PdfFormat);
  QPrintPreviewDialog preview(&printer);
  QPageSetupDialog page_setup(&printer);
  QPrintDialog print(&printer);
  for (QDialog* dialog : std::initializer_list<QDialog*>{&preview, &page_setup, &print}) {
    dialog->show();
    EXPECT_EQ(NotGreek(ShownTexts(*dialog)), "") << dialog->metaObject()->className();
    dialog->hide();
  }
}

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
}  // namespace veroxia::testing
