// Qt's own print dialogs speak Greek once the program's catalogue is in.

#include "gui/qt_greek.h"
#include "gui/driver.h"

namespace veroxia::testing {
namespace {

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

}  // namespace
}  // namespace veroxia::testing
