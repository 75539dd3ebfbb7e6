// What the message boxes show, and the hourglass.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <optional>

#include "gui/qt_dialogs.h"
#include "shell/errors.h"
#include "shell/texts.h"

namespace veroxia::testing {
namespace {

struct TextCase {
  QString given;
  QString shown;
  QString line;  // the unattended line for title "T"
};

void PrintTo(const TextCase& c, std::ostream* os) { *os << c.line.toStdString(); }

class DisplayTextTest : public ::testing::TestWithParam<TextCase> {};

TEST_P(DisplayTextTest, LineBreaksAreShownAsLineBreaks) {
  EXPECT_EQ(DisplayText(GetParam().given), GetParam().shown);
  EXPECT_EQ(UnattendedLine(GetParam().given, QStringLiteral("T")), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, DisplayTextTest,
    ::testing::Values(TextCase{"one line", "one line", "T\tone line"},
                      TextCase{"a\r\nb", "a\nb", "T\ta\\nb"},
                      TextCase{"a\rb\rc", "a\nb\nc", "T\ta\\nb\\nc"},
                      TextCase{"a\r\n\rb\n", "a\n\nb\n", "T\ta\\n\\nb\\n"},
                      TextCase{texts::kStoreCritical + u'\r' + texts::kErrorCode + "26",
                               texts::kStoreCritical + u'\n' + texts::kErrorCode + "26",
                               "T\t" + texts::kStoreCritical + "\\n" + texts::kErrorCode + "26"}));

// The store errors a user can meet are told in Greek, any other in SQLite's
// words; the number stays.
TEST(StoreErrorTexts, TheErrorsAUserMeetsAreToldInGreek) {
  const std::pair<int, const QString*> cases[] = {
      {26, &texts::kStoreNotADatabase}, {8, &texts::kStoreReadOnly}, {5, &texts::kStoreInUse},
      {6, &texts::kStoreInUse},         {13, &texts::kStoreDiskFull}, {11, &texts::kStoreDamaged},
      {14, &texts::kStoreCannotOpen},   {10, &texts::kStoreIoError},  {266, &texts::kStoreIoError},
      {19, nullptr},                    {1, nullptr}};
  const QString sqlite = QStringLiteral("what SQLite says");
  for (const auto& [code, greek] : cases) {
    EXPECT_EQ(ErrorMessage(QStringLiteral("L"), StoreError{code, sqlite}),
              "L\r\n" + texts::kErrorCode + QString::number(code) + "\r\n" +
                  texts::kErrorDescription + (greek != nullptr ? *greek : sqlite))
        << code;
  }
}

TEST(QtDialogsTest, TheHourglassIsOnOrOffNeverStacked) {
  ASSERT_EQ(QGuiApplication::overrideCursor(), nullptr);
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
    {
      BusyPointer busy(dialogs);
      EXPECT_TRUE(dialogs.Busy());
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    dialogs.SetBusy(true);
  }
  // Whatever is still on when the dialogs end is put back.
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

// What a box showed, read while it was open; the box is then answered with the
// Return key, that is with its default button.
struct BoxSeen {
  QString title;
  QString text;
  QStringList buttons;
  QString default_button;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  bool button_icons = false;
};

std::optional<BoxSeen> AnswerWithReturn(const std::function<void()>& open) {
  std::optional<BoxSeen> seen;
  QTimer poll;
  poll.setInterval(5);
  QObject::connect(&poll, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    poll.stop();
    seen.emplace();
    seen->title = box->windowTitle();
    seen->text = box->text();
    for (const QAbstractButton* button : box->buttons()) {
      seen->buttons << button->text();
      seen->button_icons = seen->button_icons || !button->icon().isNull();
    }
    if (box->defaultButton() != nullptr) seen->default_button = box->defaultButton()->text();
    seen->icon = box->icon();
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(box, &enter);
  });
  poll.start();
  open();
  return seen;
}

TEST(QtDialogsTest, AMessageHasItsTitleItsLinesAndOkOnly) {
  QtDialogs dialogs(false);
  const auto seen = AnswerWithReturn([&] {
    dialogs.Message(texts::kStoreCritical + u'\r' + texts::kErrorCode, texts::kAppTitle);
  });
  ASSERT_TRUE(seen.has_value());
  EXPECT_EQ(seen->title, texts::kAppTitle);
  EXPECT_EQ(seen->text, texts::kStoreCritical + u'\n' + texts::kErrorCode);
  EXPECT_EQ(seen->buttons, QStringList{"OK"});
  EXPECT_EQ(seen->icon, QMessageBox::NoIcon);
  EXPECT_FALSE(seen->button_icons);
}

struct AskCase {
  AskStyle style;
  QMessageBox::Icon icon;
  const QString* default_button;
  bool answer;  // the answer of the Return key
};

void PrintTo(const AskCase& c, std::ostream* os) {
  *os << (c.style == AskStyle::Question ? "question" : "plain");
}

class AskTest : public ::testing::TestWithParam<AskCase> {};

TEST_P(AskTest, AQuestionHasGreekYesAndNo) {
  QtDialogs dialogs(false);
  bool answer = !GetParam().answer;
  const auto seen = AnswerWithReturn(
      [&] { answer = dialogs.Ask(QStringLiteral("?"), texts::kAppTitle, GetParam().style); });
  ASSERT_TRUE(seen.has_value());
  EXPECT_EQ(seen->title, texts::kAppTitle);
  EXPECT_EQ(seen->buttons.size(), 2);
  EXPECT_TRUE(seen->buttons.contains(texts::kYes) && seen->buttons.contains(texts::kNo));
  EXPECT_EQ(seen->icon, GetParam().icon);
  EXPECT_EQ(seen->default_button, *GetParam().default_button);
  EXPECT_FALSE(seen->button_icons);
  EXPECT_EQ(answer, GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(
    Styles, AskTest,
    ::testing::Values(AskCase{AskStyle::Plain, QMessageBox::NoIcon, &texts::kYes, true},
                      AskCase{AskStyle::Question, QMessageBox::Question, &texts::kNo, false}));

}  // namespace
}  // namespace veroxia::testing
