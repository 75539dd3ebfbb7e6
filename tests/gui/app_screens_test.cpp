// One main screen at a time: the start screen, the header and employee
// screens of both kinds, and the end of the program. (Without a store the
// program's own test sees it end.)

#include "gui/app_screens.h"
#include "gui/driver.h"
#include "header/header_columns.h"
#include "header/ovt_form1.h"
#include "header/ovt_form3.h"
#include "lines/ovt_form2.h"
#include "lines/ovt_form4.h"

namespace veroxia::testing {
namespace {

// Each kind's screens open with nothing to say and lead from one to the
// next: from a stored header the employee button opens the employee screen,
// its Back the header again, and the header's exit the start screen. The
// screen shown before is closed, and destroyed once its event is over.
TEST(AppScreensTest, EachKindsScreensLeadFromOneToTheNextUntilQuit) {
  TempStore store;
  FakeDialogs dialogs;
  AppScreens screens(store.vars, dialogs);
  screens.ShowStart();
  QPointer<QWidget> first = screens.Current();
  ASSERT_FALSE(first.isNull());
  EXPECT_TRUE(first->isVisible());
  store.vars.DeclarationId = 1;
  store.vars.PeriodFrom = store.vars.PeriodTo = u"012002"_s;
  WriteHeaderColumns<EmployerRow>(*store.vars.StoreConnection, 1, {}, true);
  WriteHeaderColumns<ConEmployerRow>(*store.vars.StoreConnection, 1, {}, true);

  const struct {
    Kind kind;
    const HeaderLayout& header;
    const LinesLayout& lines;
  } kinds[] = {
      {Kind::Common, OvtForm1::CommonLayout(), OvtForm2::CommonLayout()},
      {Kind::Construction, OvtForm3::ConstructionLayout(), OvtForm4::ConstructionLayout()}};
  for (const auto& [kind, header, lines] : kinds) {
    const auto shown = [&screens] { return screens.Current()->windowTitle(); };
    screens.ShowHeader(kind);
    EXPECT_EQ(shown(), header.title);
    Click(*screens.Current(), header.lines_button);
    EXPECT_EQ(shown(), lines.title);
    Click(*screens.Current(), u"BackCmd"_s);
    EXPECT_EQ(shown(), header.title);
    Click(*screens.Current(), u"ExitCmd"_s);
    EXPECT_NE(screens.Current()->findChild<QWidget*>(u"Command2"_s), nullptr);
  }
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_NE(screens.Current(), first.data());
  QApplication::processEvents();
  EXPECT_TRUE(first.isNull());
  EXPECT_TRUE(store.vars.StoreOpen);
  EXPECT_FALSE(screens.QuitStatus().has_value());

  QPointer<QWidget> last = screens.Current();
  screens.Quit(0);
  EXPECT_EQ(screens.QuitStatus(), 0);
  EXPECT_EQ(screens.Current(), nullptr);
  EXPECT_TRUE(last.isNull() || !last->isVisible());
}

}  // namespace
}  // namespace veroxia::testing
