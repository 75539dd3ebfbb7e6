// The start screen's window: its widgets carry the controls' names and
// captions, and clicks, keys and the tab key reach the logic and come back.

#include <gtest/gtest.h>

#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <memory>

#include "driver.h"
#include "gui/form_binder.h"
#include "gui/start_view.h"
#include "gui/twips.h"
#include "gui/wrap_button.h"
#include "shell/texts.h"
#include "support/fakes.h"

namespace veroxia::testing {
namespace {

const QStringList kKindButtons{"Command1", "Command4", "Command2", "Command5", "Command3"};

class StartViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(form.Load());
    view = std::make_unique<StartView>(form);
    ShowActive(*view);
  }

  bool Shown(const QString& name) const {
    const QWidget* widget = Find(*view, name);
    return widget != nullptr && widget->isVisible();
  }

  // Types a whole period into the fields of the kind chosen.
  void TypePeriod(const QStringList& names, const QStringList& values) {
    for (qsizetype i = 0; i < names.size(); ++i) TypeInto(*view, names[i], values[i]);
  }

  TempStore store;
  FakeDialogs dialogs;
  FakeScreens screens;
  StartForm form{store.vars, dialogs, screens};
  std::unique_ptr<StartView> view;
};

TEST_F(StartViewTest, TheWindowKeepsItsSize) {
  const QSize fixed = view->size();
  view->resize(fixed * 2);
  QApplication::processEvents();
  EXPECT_EQ(view->size(), fixed);
}

struct KindCase {
  const char* button;
  bool construction;
  bool carry_over;
  const char* focus;
};

void PrintTo(const KindCase& c, std::ostream* os) { *os << c.button; }

class ChooseKindTest : public StartViewTest, public ::testing::WithParamInterface<KindCase> {};

TEST_P(ChooseKindTest, KindButtonOpensThePeriodFrame) {
  const KindCase& c = GetParam();
  Click(*view, c.button);
  for (const QString& name : kKindButtons) EXPECT_FALSE(Shown(name)) << name.toStdString();
  EXPECT_TRUE(Shown("Frame1"));
  EXPECT_EQ(Shown("Frame2"), c.construction);
  EXPECT_EQ(Focused(*view), c.focus);
  EXPECT_EQ(form.FocusedField(), c.focus);
  EXPECT_EQ(store.vars.CarryOver, c.carry_over);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ChooseKindTest,
                         ::testing::Values(KindCase{"Command1", false, false, "Month1"},
                                           KindCase{"Command4", false, true, "Month1"},
                                           KindCase{"Command2", true, false, "ConMonth"},
                                           KindCase{"Command5", true, true, "ConMonth"}));

struct TabCase {
  const char* button;  // the kind chosen first; none: the choosing state
  QStringList stops;   // where the tab key goes, from the focus onwards
};

void PrintTo(const TabCase& c, std::ostream* os) { *os << c.stops.join(u' ').toStdString(); }

class TabOrderTest : public StartViewTest, public ::testing::WithParamInterface<TabCase> {};

TEST_P(TabOrderTest, TabStopsOnlyWhereTheLogicSays) {
  const TabCase& c = GetParam();
  if (*c.button != '\0') {
    Click(*view, c.button);
  } else {
    Find(*view, c.stops.front())->setFocus(Qt::MouseFocusReason);
    QApplication::processEvents();
  }
  QStringList visited{Focused(*view)};
  for (qsizetype i = 1; i < c.stops.size(); ++i) {
    Tab(*view);
    visited << Focused(*view);
  }
  EXPECT_EQ(visited, c.stops);
  EXPECT_EQ(form.FocusedField(), c.stops.back());  // the logic heard of every move
}

INSTANTIATE_TEST_SUITE_P(
    States, TabOrderTest,
    ::testing::Values(
        TabCase{"", {"Command1", "Command4", "Command2", "Command5", "Command3", "Command1"}},
        TabCase{"Command1", {"Month1", "Year1", "Month2", "Year2", "OkCmd", "CancelCmd"}},
        TabCase{"Command2", {"ConMonth", "ConYear", "OkCmd", "CancelCmd", "ConMonth"}}));

struct BadPeriodCase {
  const char* button;
  QStringList values;  // Month1, Year1, Month2, Year2 or ConMonth, ConYear
  const QString* message;
  const char* field;
  const char* selected;  // empty: the focus only
};

void PrintTo(const BadPeriodCase& c, std::ostream* os) {
  *os << c.button << ' ' << c.values.join(u'/').toStdString();
}

class BadPeriodTest : public StartViewTest, public ::testing::WithParamInterface<BadPeriodCase> {};

TEST_P(BadPeriodTest, OkReportsTheFaultAndSelectsTheField) {
  const BadPeriodCase& c = GetParam();
  Click(*view, c.button);
  const bool construction = c.values.size() == 2;
  TypePeriod(construction ? QStringList{"ConMonth", "ConYear"}
                          : QStringList{"Month1", "Year1", "Month2", "Year2"},
             c.values);
  Click(*view, "OkCmd");

  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, *c.message);
  EXPECT_EQ(dialogs.messages[0].title, texts::kAppTitle);
  EXPECT_EQ(Focused(*view), c.field);
  const auto* edit = Find<QLineEdit>(*view, c.field);
  ASSERT_NE(edit, nullptr);
  EXPECT_EQ(edit->selectedText(), c.selected);
  EXPECT_TRUE(screens.shown.isEmpty());
  EXPECT_TRUE(Shown("Frame1"));
}

INSTANTIATE_TEST_SUITE_P(
    Faults, BadPeriodTest,
    ::testing::Values(
        BadPeriodCase{
            "Command1", {"13", "2002", "06", "2002"}, &texts::kStartMonthWrong, "Month1", "13"},
        BadPeriodCase{
            "Command1", {"04", "2002", "06", "2003"}, &texts::kEndYearDiffers, "Year2", "2003"},
        BadPeriodCase{"Command4", {"04", "2002", "", "2002"}, &texts::kEndMonthBlank, "Month2", ""},
        BadPeriodCase{"Command1",
                      {"02", "2002", "04", "2002"},
                      &texts::kStartMonthNotQuarter,
                      "Month1",
                      "02"},
        BadPeriodCase{"Command2", {"05", "02"}, &texts::kConYearLength, "ConYear", "02"}));

TEST_F(StartViewTest, AGoodPeriodHandsOverToTheHeaderScreen) {
  Click(*view, "Command1");
  TypePeriod({"Month1", "Year1", "Month2", "Year2"}, {"04", "2002", "06", "2002"});
  Click(*view, "OkCmd");
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(screens.shown, QStringList{"header common"});
  EXPECT_EQ(store.vars.PeriodFrom, "042002");
  EXPECT_EQ(store.vars.PeriodTo, "062002");
}

TEST_F(StartViewTest, CancelKeepsWhatWasTyped) {
  Click(*view, "Command4");
  TypePeriod({"Month1", "Year1"}, {"07", "2003"});
  Click(*view, "CancelCmd");
  EXPECT_FALSE(Shown("Frame1"));
  for (const QString& name : kKindButtons) EXPECT_TRUE(Shown(name)) << name.toStdString();
  EXPECT_TRUE(store.vars.CarryOver);

  Click(*view, "Command1");
  EXPECT_EQ(Find<QLineEdit>(*view, "Month1")->text(), "07");
  EXPECT_EQ(Find<QLineEdit>(*view, "Year1")->text(), "2003");
  EXPECT_EQ(form.Text("Year1"), "2003");
  EXPECT_FALSE(store.vars.CarryOver);
}

TEST_F(StartViewTest, Frame2LiesOverTheCommonFields) {
  Click(*view, "Command2");
  const auto* frame1 = Find(*view, "Frame1");
  const auto* frame2 = Find(*view, "Frame2");
  ASSERT_TRUE(frame1 != nullptr && frame2 != nullptr);
  EXPECT_EQ(frame2->parentWidget(), frame1);
  for (const char* name : {"Label2", "Label3", "Month1", "Year1", "Month2", "Year2"}) {
    const QWidget* under = Find(*view, name);
    const QRect place(under->mapTo(frame1, QPoint(0, 0)), under->size());
    EXPECT_TRUE(frame2->geometry().contains(place)) << name;
    // What the user sees at the middle of the field is Frame2 or what it holds.
    const QWidget* seen = frame1->childAt(place.center());
    EXPECT_TRUE(seen == frame2 || frame2->isAncestorOf(seen)) << name;
  }
  for (const char* name : {"ConMonth", "ConYear", "Label6"}) EXPECT_TRUE(Shown(name)) << name;
}

// Every caption, label and field shows all of itself at the window's size, and
// at a somewhat smaller inner size such as a window frame leaves.
class NothingCutTest : public StartViewTest, public ::testing::WithParamInterface<const char*> {
 protected:
  void ExpectNothingCut() {
    for (const QWidget* widget : view->findChildren<QWidget*>()) {
      if (!widget->isVisible()) continue;
      const std::string name = widget->objectName().toStdString();
      const QWidget* parent = widget->parentWidget();
      EXPECT_TRUE(parent->rect().contains(widget->geometry())) << name;
      if (const auto* button = qobject_cast<const WrapButton*>(widget)) {
        EXPECT_TRUE(button->CaptionFits()) << name;
      } else if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        const QSize needed = label->minimumSizeHint();
        EXPECT_LE(needed.width(), label->width()) << name;
        EXPECT_LE(needed.height(), label->height()) << name;
      } else if (const auto* edit = qobject_cast<const QLineEdit*>(widget)) {
        EXPECT_GE(edit->width(), edit->minimumSizeHint().width()) << name;
        EXPECT_GE(edit->height(), edit->sizeHint().height()) << name;
      }
    }
  }
};

TEST_P(NothingCutTest, AtTheWindowSizeAndWithAFrame) {
  for (const QSize inner : {view->size(), view->size() - QSize(8, 34)}) {
    view->setFixedSize(inner);
    if (*GetParam() != '\0') Click(*view, GetParam());
    QApplication::processEvents();
    SCOPED_TRACE(::testing::Message() << inner.width() << "x" << inner.height());
    ExpectNothingCut();
  }
}

INSTANTIATE_TEST_SUITE_P(States, NothingCutTest, ::testing::Values("", "Command1", "Command2"));

TEST(StartViewPictures, PicturesBesideTheProgramAreShown) {
  TempStore store;
  for (const char* file : {"ovt.gif", "qormain.ico"}) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(VEROXIA_ASSETS "/") + file, store.Dir() + u'/' + file));
  }
  FakeDialogs dialogs;
  FakeScreens screens;
  StartForm form(store.vars, dialogs, screens);
  ASSERT_TRUE(form.Load());
  StartView view(form);
  const auto* img = Find<QLabel>(view, "Img");
  ASSERT_NE(img, nullptr);
  EXPECT_FALSE(img->pixmap().isNull());
  EXPECT_LE(img->pixmap().width(), img->width());
  EXPECT_FALSE(view.windowIcon().pixmap(32, 32).isNull());
}

}  // namespace
}  // namespace veroxia::testing
