// The employee window and the search dialog: real widgets, typed into and
// clicked.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "gui/driver.h"
#include "gui/lines_view.h"
#include "gui/search_view.h"
#include "lines/ovt_form2.h"
#include "lines/texts.h"
#include "support/fakes.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;

class LinesViewTest : public ::testing::Test {
 protected:
  LinesViewTest() : form(store.vars, dialogs, screens) {
    store.Open();
    store.vars.DeclarationId = 1;
    store.vars.PeriodFrom = u"012002"_s;
    store.vars.PeriodTo = u"012002"_s;
    form.Load();
    view = std::make_unique<LinesView>(form, CommonLinesRows(), QRect(500, 100, 10320, 8175));
    ShowActive(*view);
  }

  TempStore store;
  FakeDialogs dialogs;
  FakeScreens screens;
  OvtForm2 form;
  std::unique_ptr<LinesView> view;
};

TEST_F(LinesViewTest, EveryControlHasItsWidgetAndTheFirstFieldTheFocus) {
  for (const QString& name : form.Names()) {
    EXPECT_NE(view->findChild<QWidget*>(name), nullptr) << name.toStdString();
  }
  EXPECT_EQ(Focused(*view), u"Text18_1"_s);
  EXPECT_EQ(Find<QLineEdit>(*view, u"Text25"_s)->displayText(), u"__/__/____"_s);
  EXPECT_EQ(Find<QComboBox>(*view, u"Text27"_s)->count(), 2);
  EXPECT_FALSE(Find<QPushButton>(*view, u"NewCmd"_s)->isVisible());
  EXPECT_FALSE(Find<QPushButton>(*view, u"FirstCmd"_s)->isEnabled());
}

// Typed texts reach the logic (the date box as shown, the choice box by its
// list); OK runs the checks, whose fault takes the focus; the close box asks.
TEST_F(LinesViewTest, TypedTextsReachTheChecksAndTheCloseBoxAsks) {
  TypeInto(*view, u"Text21"_s, u"Papas"_s);
  TypeInto(*view, u"Text25"_s, u"05031970"_s);
  Find<QComboBox>(*view, u"Text28"_s)->setCurrentIndex(1);
  QApplication::processEvents();
  EXPECT_EQ(form.Text(u"Text21"_s), u"Papas"_s);
  EXPECT_EQ(form.Text(u"Text25"_s), u"05/03/1970"_s);
  EXPECT_EQ(form.Text(u"Text28"_s), lines_texts::kNo);
  Click(*view, u"OkCmd"_s);
  EXPECT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(Focused(*view), u"Text18_1"_s);

  view->close();  // answered No: the window stays
  EXPECT_EQ(dialogs.questions.size(), 1u);
  EXPECT_TRUE(view->isVisible());
}

TEST(SearchViewTest, OneKeyAtATimeAndTheCloseBoxCancels) {
  FakeDialogs dialogs;
  SearchForm form(QString(), dialogs);
  form.Load();
  SearchView view(form);
  ShowActive(view);
  EXPECT_EQ(Focused(view), u"Text2"_s);
  TypeInto(view, u"Text2"_s, u"ab"_s);
  TypeInto(view, u"Text1"_s, u"12"_s);
  EXPECT_EQ(Find<QLineEdit>(view, u"Text2"_s)->text(), u""_s);
  Click(view, u"Command1"_s);
  EXPECT_EQ(dialogs.LastMessage(), lines_texts::kSearchNotNine);
  EXPECT_TRUE(view.isVisible());
  TypeInto(view, u"Text1"_s, u"123456789"_s);
  Click(view, u"Command1"_s);
  QApplication::processEvents();
  EXPECT_FALSE(view.isVisible());
  EXPECT_EQ(form.Answer().text, u"123456789"_s);
  EXPECT_EQ(form.Answer().kind, u"AMA"_s);

  SearchForm again(QString(), dialogs);
  SearchView closed(again);
  QTimer::singleShot(0, &closed, [&closed] { closed.close(); });
  EXPECT_TRUE(closed.Ask().text.isEmpty());
}

}  // namespace
}  // namespace veroxia::testing
