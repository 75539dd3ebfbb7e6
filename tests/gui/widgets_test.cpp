// The shared window mechanisms every screen is built on: boxes sized from
// their maximum length and shown from their first character, and button
// captions kept off the bevel.

#include "gui/driver.h"
#include "gui/fields.h"
#include "gui/form_binder.h"

namespace veroxia::testing {
namespace {

class TinyForm : public Form {
 public:
  TinyForm() {
    Declare(u"Code"_s, {}, 3);
    Declare(u"Name"_s, {}, 30);
    Declare(u"Street"_s, {}, 80);
  }
};

// A window of the three boxes one under the other.
class BinderTest : public ::testing::Test {
 protected:
  BinderTest() {
    auto* column = new QVBoxLayout(&window);  // owned by the window
    binder = new FormBinder(form, window, {u"Code"_s, u"Name"_s, u"Street"_s});  // owned too
    for (const QString& name : {u"Code"_s, u"Name"_s, u"Street"_s}) {
      column->addWidget(binder->Add<QLineEdit>(name, &window));
    }
    binder->Mirror();
  }

  void ShowAtWidth(int width) {
    window.setFixedWidth(width);
    ShowActive(window);
  }

  QLineEdit* Box(const QString& name) { return Find<QLineEdit>(window, name); }

  TinyForm form;
  QWidget window;
  FormBinder* binder;
};

// Wide enough for its maximum length and no wider; in a narrow window a long
// box takes the room there is. A width given by the view stands.
TEST_F(BinderTest, ABoxIsAsWideAsItsMaximumLengthNeeds) {
  ShowAtWidth(2000);
  for (const QString& name : {u"Code"_s, u"Name"_s, u"Street"_s}) {
    const int max_length = form.At(name).max_length;
    EXPECT_TRUE(ShowsWhole(*Box(name), QString(max_length, u'0'))) << name.toStdString();
    EXPECT_FALSE(ShowsWhole(*Box(name), QString(max_length + 4, u'0'))) << name.toStdString();
  }
  window.setFixedWidth(400);
  QApplication::processEvents();
  const QRect room = window.rect().marginsRemoved(window.layout()->contentsMargins());
  EXPECT_EQ(Box(u"Street"_s)->geometry().right(), room.right());
  EXPECT_TRUE(ShowsWhole(*Box(u"Name"_s), QString(30, u'0')));
  auto* capped = new QLineEdit(&window);  // owned by the window
  FitToLength(*capped, 80, 150);
  EXPECT_EQ(capped->maximumWidth(), 150);
  FitToCharacters(*capped, 2);
  binder->Bind(u"Street"_s, capped);
  EXPECT_EQ(capped->maximumWidth(), WidthForCharacters(*capped, 2));
}

// Texts from the logic are shown from their first character, in a choice box
// too; a locked box too narrow for its text shows all of it as its tip.
TEST_F(BinderTest, TextsFromTheLogicAreShownFromTheirFirstCharacterOrAsATip) {
  ShowAtWidth(300);
  const QString long_text(80, u'Ω');
  QLineEdit& street = *Box(u"Street"_s);
  form.At(u"Street"_s).text = long_text;  // loaded
  binder->Mirror();
  EXPECT_EQ(street.cursorPosition(), 0);
  form.Select(u"Street"_s, 80);  // the focus arrives selecting the whole text
  binder->Mirror();
  EXPECT_EQ(street.selectedText(), long_text);
  EXPECT_EQ(street.cursorPosition(), 0);

  street.setFocus();
  street.end(false);  // the user went to the end, then the box is locked
  form.At(u"Street"_s).enabled = false;
  binder->Mirror();
  EXPECT_EQ(street.cursorPosition(), 0);
  for (const QString& text : {u"ΑΡΧΗ"_s, long_text}) {
    form.At(u"Street"_s).text = text;
    binder->Mirror();
    QToolTip::hideText();
    QHelpEvent rest(QEvent::ToolTip, {5, 5}, street.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&street, &rest);
    EXPECT_EQ(QToolTip::text(), text == long_text ? text : QString());
  }
  auto* combo = new QComboBox(&window);  // owned by the window
  combo->setEditable(true);
  binder->Bind(u"Name"_s, combo);
  form.At(u"Name"_s).text = long_text.left(30);
  binder->Mirror();
  EXPECT_EQ(combo->lineEdit()->cursorPosition(), 0);
}

// At the narrowest width the longest word keeps a character off each edge;
// at the width it asks for, a button shows its caption on one line.
TEST(WrapButtonTest, CaptionsKeepOffTheBevelAndStandOnOneLineWhenRoomy) {
  WrapButton button;
  button.setText(u"Εκτύπωση συγκεντρωτικού"_s);
  button.resize(button.minimumSizeHint());
  const QFontMetrics metrics = button.fontMetrics();
  const int word = metrics.horizontalAdvance(u"συγκεντρωτικού"_s);
  EXPECT_GE((button.width() - word) / 2, metrics.averageCharWidth());
  EXPECT_TRUE(button.CaptionFits());
  button.setText(u"Νέος φάκελος"_s);
  for (const double points : {8.0, 8.5, 9.0}) {
    QFont font = button.font();
    font.setPointSizeF(points);
    button.setFont(font);
    EXPECT_EQ(button.sizeHint().height(), button.heightForWidth(10'000)) << points;
  }
}

}  // namespace
}  // namespace veroxia::testing
