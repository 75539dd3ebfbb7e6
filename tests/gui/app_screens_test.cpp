// One main screen at a time: the start screen, what stands in for the screens
// still to come, and the end of the program.

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>

#include "gui/app_screens.h"
#include "shell/texts.h"
#include "support/fakes.h"

namespace veroxia::testing {
namespace {

TEST(AppScreensTest, WithoutAStoreNothingIsShownAndTheStatusIsOne) {
  TempStore store(false);
  FakeDialogs dialogs;
  AppScreens screens(store.vars, dialogs);
  screens.ShowStart();
  EXPECT_EQ(screens.QuitStatus(), 1);
  EXPECT_EQ(screens.Current(), nullptr);
  EXPECT_EQ(dialogs.LastMessage(), texts::kStoreMissing);
  for (const QWidget* window : QApplication::topLevelWidgets()) EXPECT_FALSE(window->isVisible());
}

TEST(AppScreensTest, AScreenNotYetBuiltSaysSoTheHeaderScreenOpensUntilQuit) {
  TempStore store;
  FakeDialogs dialogs;
  AppScreens screens(store.vars, dialogs);
  screens.ShowStart();
  QPointer<QWidget> first = screens.Current();
  ASSERT_FALSE(first.isNull());
  EXPECT_TRUE(first->isVisible());

  for (const bool header : {true, false}) {
    dialogs.messages.clear();
    header ? screens.ShowHeader(Kind::Construction) : screens.ShowLines(Kind::Construction);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, texts::kNotAvailableYet);
    EXPECT_EQ(dialogs.messages[0].title, texts::kAppTitle);
    ASSERT_NE(screens.Current(), nullptr);
    EXPECT_TRUE(screens.Current()->isVisible());
  }
  EXPECT_NE(screens.Current(), first.data());
  // The screen shown before is closed, and destroyed once its event is over.
  QApplication::processEvents();
  EXPECT_TRUE(first.isNull());
  EXPECT_TRUE(store.vars.StoreOpen);
  EXPECT_FALSE(screens.QuitStatus().has_value());

  // The common-business header and employee screens are built: they open
  // instead of the start screen, with nothing to say (the employee screen in
  // new mode, without lines).
  dialogs.messages.clear();
  store.vars.DeclarationId = 1;
  store.vars.PeriodFrom = store.vars.PeriodTo = QStringLiteral("012002");
  for (const bool header : {true, false}) {
    header ? screens.ShowHeader(Kind::Common) : screens.ShowLines(Kind::Common);
    EXPECT_TRUE(dialogs.messages.empty());
    ASSERT_NE(screens.Current(), nullptr);
    const auto* entry = screens.Current()->findChild<QWidget*>(header ? "SaveCmd" : "OkCmd");
    EXPECT_TRUE(entry != nullptr && entry->isVisible());
  }
  QPointer<QWidget> last = screens.Current();
  screens.Quit(0);
  EXPECT_EQ(screens.QuitStatus(), 0);
  EXPECT_EQ(screens.Current(), nullptr);
  EXPECT_TRUE(last.isNull() || !last->isVisible());
}

}  // namespace
}  // namespace veroxia::testing
