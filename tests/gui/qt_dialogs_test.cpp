// What the message boxes show, and the hourglass; the report window, every
// column and note readable, the faults marked.

#include "gui/qt_dialogs.h"
#include "gui/driver.h"
#include "gui/report_window.h"
#include "header/texts.h"
#include "shell/errors.h"
#include "shell/texts.h"

namespace veroxia::testing {
namespace {

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
  // Words read from the left, figures line up on the right.
  EXPECT_EQ(table->item(0, 0)->textAlignment() & Qt::AlignHorizontal_Mask, int(Qt::AlignLeft));
  EXPECT_EQ(table->item(0, 1)->textAlignment() & Qt::AlignHorizontal_Mask, int(Qt::AlignRight));

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
  const int height = notes->height();
  window->resize(window->width(), window->height() + 300);
  QCoreApplication::processEvents();
  EXPECT_GT(notes->height(), height + 100);
  EXPECT_EQ(window->findChild<QLabel*>(u"ReportVerdict"_s)->text(), report.verdict);

  // Nothing to note: no notes box.
  report.notes.clear();
  const std::unique_ptr<QDialog> clean(MakeReportWindow(nullptr, report));
  EXPECT_EQ(clean->findChild<QListWidget*>(u"ReportNotes"_s), nullptr);

  // A window that asks to go on: its button accepts, the other is "Άκυρο".
  report.about = {u"Αρχείο: a.csv"_s};
  const std::unique_ptr<QDialog> asking(MakeReportWindow(nullptr, report, u"Εισαγωγή"_s));
  EXPECT_EQ(asking->findChild<QLabel*>(u"ReportAbout"_s)->text(), report.about[0]);
  EXPECT_EQ(asking->findChild<QPushButton*>(u"CloseCmd"_s)->text(), texts::kCancelCmd);
  asking->findChild<QPushButton*>(u"GoOnCmd"_s)->click();
  EXPECT_EQ(asking->result(), QDialog::Accepted);
}

TEST(QtDialogsTest, LineBreaksAreShownAsLineBreaks) {
  const QString cases[][3] = {{u"one line"_s, u"one line"_s, u"T\tone line"_s},
                              {u"a\r\nb"_s, u"a\nb"_s, u"T\ta\\nb"_s},
                              {u"a\rb\rc"_s, u"a\nb\nc"_s, u"T\ta\\nb\\nc"_s},
                              {u"a\r\n\rb\n"_s, u"a\n\nb\n"_s, u"T\ta\\n\\nb\\n"_s}};
  for (const auto& [given, shown, line] : cases) {
    EXPECT_EQ(DisplayText(given), shown);
    EXPECT_EQ(UnattendedLine(given, u"T"_s), line);  // one line in unattended runs
  }
}

// The store errors a user can meet are told in Greek, any other by its
// number unless its words are ours; SQLite's English never shows.
TEST(StoreErrorTexts, TheErrorsAUserMeetsAreToldInGreek) {
  // clang-format off
  const std::pair<int, const QString*> cases[] = {
      {26, &texts::kStoreNotADatabase}, {8, &texts::kStoreReadOnly}, {5, &texts::kStoreInUse},
      {6, &texts::kStoreInUse}, {13, &texts::kStoreDiskFull}, {11, &texts::kStoreDamaged},
      {14, &texts::kStoreCannotOpen}, {10, &texts::kStoreIoError}, {266, &texts::kStoreIoError},
      {19, &texts::kStoreRefused}, {3, &texts::kStoreNoPermission}, {1, nullptr}};
  // clang-format on
  const QString sqlite = u"what SQLite says"_s;
  for (const auto& [code, greek] : cases) {
    EXPECT_EQ(ErrorMessage(u"L"_s, StoreError{code, sqlite, true}),
              u"L\r\n"_s + texts::kErrorCode + QString::number(code) + u"\r\n"_s +
                  texts::kErrorDescription +
                  (greek != nullptr ? *greek : texts::kStoreOtherError.arg(code)))
        << code;
  }
  EXPECT_EQ(ErrorDescription(StoreError{1, u"ours"_s}), u"ours"_s);
}

TEST(QtDialogsTest, TheHourglassIsOnOrOffNeverStacked) {
  {
    QtDialogs dialogs(true);
    dialogs.SetBusy(false);  // off while off: nothing to restore
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    dialogs.SetBusy(true);
    dialogs.SetBusy(true);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    dialogs.SetBusy(false);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    dialogs.SetBusy(true);
  }
  // Whatever is still on when the dialogs end is put back.
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

// Each box, answered with the Return key: its buttons, icon and answer; wide
// enough for each line of its message, so no line is broken again, and for
// its title beside the buttons of a title bar.
struct BoxCase {
  std::optional<AskStyle> ask;  // none: a message
  QString text;
  QString title;
  QStringList buttons;
  QMessageBox::Icon icon;
  bool answer;
};

TEST(QtDialogsTest, BoxesShowTheirTextTitleAndGreekButtons) {
  // clang-format off
  const BoxCase cases[] = {
      {std::nullopt, header_texts::kStopDateNotIn03, texts::kAppTitle, {u"OK"_s},
       QMessageBox::NoIcon, false},
      {AskStyle::Plain, texts::kStoreCritical + u'\r' + texts::kErrorCode,
       header_texts::kSaveTitle, {texts::kYes, texts::kNo}, QMessageBox::NoIcon, true},
      {AskStyle::Question, header_texts::kCloseQuestion, header_texts::kOvtForm1CloseTitle,
       {texts::kYes, texts::kNo}, QMessageBox::Question, false}};
  // clang-format on
  QtDialogs dialogs(false);
  const QFontMetrics metrics(QApplication::font());
  QFont bold = QApplication::font();
  bold.setBold(true);
  for (const BoxCase& c : cases) {
    bool answer = c.ask ? !c.answer : c.answer;
    ASSERT_TRUE(AnswerNextBox(
        [&] {
          if (c.ask) answer = dialogs.Ask(c.text, c.title, *c.ask);
          if (!c.ask) dialogs.Message(c.text, c.title);
        },
        [&](QMessageBox& box) {
          EXPECT_EQ(box.text(), DisplayText(c.text));
          EXPECT_EQ(box.windowTitle(), c.title);
          EXPECT_EQ(box.icon(), c.icon);
          QStringList buttons;
          for (const QAbstractButton* button : box.buttons()) {
            buttons << button->text();
            EXPECT_TRUE(button->icon().isNull());
          }
          EXPECT_EQ(buttons, c.buttons);
          const int text_room = box.findChild<QLabel*>(u"qt_msgbox_label"_s)->width();
          for (const QString& line : box.text().split(u'\n')) {
            EXPECT_GE(text_room, metrics.horizontalAdvance(line)) << line.toStdString();
          }
          EXPECT_GE(box.width(),
                    QFontMetrics(bold).horizontalAdvance(c.title) + 3 * metrics.height());
        }));
    EXPECT_EQ(answer, c.answer) << c.title.toStdString();
  }
}

TEST(QtDialogsTest, AChoiceAnswersThePlaceOfTheButtonPressed) {
  QtDialogs dialogs(false);
  const QStringList captions = {u"Προσθήκη"_s, u"Αντικατάσταση"_s, texts::kCancelCmd};
  int answer = -2;
  ASSERT_TRUE(
      AnswerNextBox([&] { answer = dialogs.Choose(u"Ερώτηση"_s, texts::kAppTitle, captions); },
                    [&](QMessageBox& box) {
                      QStringList shown;
                      for (const QAbstractButton* b : box.buttons()) shown << b->text();
                      EXPECT_EQ(shown, captions);
                      EXPECT_EQ(box.defaultButton(), box.buttons().front());
                      box.setDefaultButton(qobject_cast<QPushButton*>(box.buttons()[1]));
                    }));
  EXPECT_EQ(answer, 1);
}

// A box the task opens while its bar shows comes up with the bar gone, and
// the task goes on after it.
TEST(QtDialogsTest, ABoxFromAWorkWithABarIsNotUnderTheBar) {
  QtDialogs dialogs(false);
  const auto bars = [] {
    int shown = 0;
    for (const QWidget* window : QApplication::topLevelWidgets())
      shown += qobject_cast<const QProgressDialog*>(window) != nullptr && window->isVisible();
    return shown;
  };
  int under_box = -1;
  bool went_on = false;
  ASSERT_TRUE(AnswerNextBox(
      [&] {
        dialogs.RunWithProgress(u"Εργασία"_s, [&](Progress& progress) {
          QElapsedTimer waited;
          waited.start();
          while (bars() == 0 && waited.elapsed() < 3000) {
            progress.Advance(1, 10);
            QThread::msleep(20);
          }
          ASSERT_EQ(bars(), 1);
          dialogs.Message(u"Μήνυμα"_s, texts::kAppTitle);
          went_on = progress.Advance(2, 10);
        });
      },
      [&](QMessageBox&) { under_box = bars(); }));
  EXPECT_EQ(under_box, 0);
  EXPECT_TRUE(went_on);
}

}  // namespace
}  // namespace veroxia::testing
