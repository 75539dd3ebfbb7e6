// The report window: every column and note readable, the faults marked.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <memory>

#include "gui/report_window.h"
#include "shell/texts.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;

TEST(ReportWindowTest, ShowsEveryColumnAndNoteAndMarksTheRowsThatDoNotHold) {
  Report report;
  report.title = u"Έλεγχος"_s;
  report.columns = {u"ΣΤΟΙΧΕΙΟ"_s, u"ΤΙΜΗ"_s};
  report.rows = {{{u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ ΣΥΝΟΛΟ"_s, u"1.234.567,89"_s}, true},
                 {{u"ΑΠΟΔΟΧΕΣ"_s, u"-75"_s}, false}};
  report.notes = {QString(60, u'Ω'), u"δεύτερη"_s, u"μακριά σημείωση "_s.repeated(40)};
  report.verdict = u"ΠΡΟΣΟΧΗ!! Διαφέρει."_s;
  const std::unique_ptr<QDialog> window(MakeReportWindow(nullptr, report));
  window->show();
  EXPECT_EQ(window->windowTitle(), report.title);

  auto* table = window->findChild<QTableWidget*>(u"ReportTable"_s);
  ASSERT_NE(table, nullptr);
  ASSERT_EQ(table->rowCount(), 2);
  EXPECT_EQ(table->horizontalScrollBar()->maximum(), 0);  // every column in view
  EXPECT_FALSE(table->item(0, 1)->font().bold());
  EXPECT_TRUE(table->item(1, 1)->font().bold());
  EXPECT_NE(table->item(0, 1)->foreground(), table->item(1, 1)->foreground());

  auto* notes = window->findChild<QListWidget*>(u"ReportNotes"_s);
  ASSERT_NE(notes, nullptr);
  ASSERT_EQ(notes->count(), 3);
  EXPECT_EQ(notes->item(0)->text(), report.notes[0]);
  // A long note reads whole on one line; one wider than the screen wraps.
  const int line = notes->fontMetrics().lineSpacing();
  EXPECT_LE(notes->visualItemRect(notes->item(0)).right(), notes->viewport()->width());
  EXPECT_LT(notes->visualItemRect(notes->item(0)).height(), 2 * line);
  const QRect wide = notes->visualItemRect(notes->item(2));
  EXPECT_TRUE(wide.right() <= notes->viewport()->width() && wide.height() > 2 * line);
  // The user sizes the window, and the notes grow with it.
  EXPECT_TRUE(window->isSizeGripEnabled());
  const int height = notes->height();
  window->resize(window->width(), window->height() + 300);
  QCoreApplication::processEvents();
  EXPECT_GT(notes->height(), height + 100);
  EXPECT_EQ(window->findChild<QLabel*>(u"ReportVerdict"_s)->text(), report.verdict);

  // Nothing to note: no notes box.
  report.notes.clear();
  const std::unique_ptr<QDialog> clean(MakeReportWindow(nullptr, report));
  EXPECT_EQ(clean->findChild<QListWidget*>(u"ReportNotes"_s), nullptr);
  EXPECT_NE(clean->findChild<QPushButton*>(u"SaveCmd"_s), nullptr);

  // A window that asks to go on: its button accepts, the other is "Άκυρο".
  report.about = {u"Αρχείο: a.csv"_s};
  const std::unique_ptr<QDialog> asking(MakeReportWindow(nullptr, report, u"Εισαγωγή"_s));
  EXPECT_EQ(asking->findChild<QLabel*>(u"ReportAbout"_s)->text(), report.about[0]);
  EXPECT_EQ(asking->findChild<QPushButton*>(u"CloseCmd"_s)->text(), texts::kCancelCmd);
  asking->findChild<QPushButton*>(u"GoOnCmd"_s)->click();
  EXPECT_EQ(asking->result(), QDialog::Accepted);
}

}  // namespace
}  // namespace veroxia::testing
