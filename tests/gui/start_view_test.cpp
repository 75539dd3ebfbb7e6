// The start screen's window: clicks, keys and the tab key reach the logic
// and come back, and nothing is cut.

#include "gui/start_view.h"
#include "gui/driver.h"
#include "shell/texts.h"

namespace veroxia::testing {
namespace {

const QStringList kKindButtons{"Command1", "Command4", "Command2", "Command5", "Command3"};

// The pictures lie beside the program.
class StartViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* file : {"ovt.gif", "qormain.ico"}) {
      ASSERT_TRUE(
          QFile::copy(QStringLiteral(VEROXIA_ASSETS "/") + file, store.Dir() + u'/' + file));
    }
    ASSERT_TRUE(form.Load());
    view = std::make_unique<StartView>(form);
    ShowActive(*view);
  }

  bool Shown(const QString& name) const {
    const QWidget* widget = Find(*view, name);
    return widget != nullptr && widget->isVisible();
  }

  TempStore store;
  FakeDialogs dialogs;
  FakeScreens screens;
  StartForm form{store.vars, dialogs, screens};
  std::unique_ptr<StartView> view;
};

// A kind button opens the period frame (Frame2 for construction works); the
// tab key then stops only where the logic says, and nothing is cut.
struct KindCase {
  const char* button;  // none: the choosing state
  bool carry_over;
  const char* stops;  // where the tab key goes, from the focus onwards
};

void PrintTo(const KindCase& c, std::ostream* os) { *os << c.stops; }

class ChooseKindTest : public StartViewTest, public ::testing::WithParamInterface<KindCase> {};

TEST_P(ChooseKindTest, KindButtonsOpenThePeriodFrameAndTheTabKeyFollows) {
  const KindCase& c = GetParam();
  const QStringList stops = QString::fromLatin1(c.stops).split(u' ');
  if (*c.button != '\0') {
    Click(*view, c.button);
    for (const QString& name : kKindButtons) EXPECT_FALSE(Shown(name)) << name.toStdString();
    EXPECT_TRUE(Shown("Frame1"));
    EXPECT_EQ(Shown("Frame2"), stops[0] == "ConMonth");
    EXPECT_EQ(store.vars.CarryOver, c.carry_over);
  } else {
    Find(*view, stops[0])->setFocus(Qt::MouseFocusReason);
    QApplication::processEvents();
  }
  QStringList visited{Focused(*view)};
  for (qsizetype i = 1; i < stops.size(); ++i) {
    Tab(*view);
    visited << Focused(*view);
  }
  EXPECT_EQ(visited, stops);
  EXPECT_EQ(form.FocusedField(), stops.back());  // the logic heard of every move
  // Nothing is cut at the window's size, nor at a somewhat smaller inner size
  // such as a window frame leaves.
  for (const QSize inner : {view->size(), view->size() - QSize(8, 34)}) {
    view->setFixedSize(inner);
    QApplication::processEvents();
    SCOPED_TRACE(::testing::Message() << inner.width() << "x" << inner.height());
    ExpectNothingCut(*view);
  }
}

INSTANTIATE_TEST_SUITE_P(
    States, ChooseKindTest,
    ::testing::Values(KindCase{"", false, "Command1 Command4 Command2 Command5 Command3 Command1"},
                      KindCase{"Command1", false, "Month1 Year1 Month2 Year2 OkCmd CancelCmd"},
                      KindCase{"Command4", true, "Month1 Year1"},
                      KindCase{"Command2", false, "ConMonth ConYear OkCmd CancelCmd ConMonth"},
                      KindCase{"Command5", true, "ConMonth ConYear"}));

// The window keeps its size; the pictures show; Frame2 lies over the common
// fields; Cancel brings the kind buttons back; Enter (Return or the keypad's)
// in any period field presses OK, and a good period hands over to the header
// screen.
TEST_F(StartViewTest, PicturesFrame2CancelAndEnterPressesOk) {
  const QSize fixed = view->size();
  view->resize(fixed * 2);
  QApplication::processEvents();
  EXPECT_EQ(view->size(), fixed);
  const auto* img = Find<QLabel>(*view, "Img");
  EXPECT_FALSE(img->pixmap().isNull());
  EXPECT_LE(img->pixmap().width(), img->width());
  EXPECT_FALSE(view->windowIcon().pixmap(32, 32).isNull());
  Click(*view, "Command2");
  const QWidget* frame1 = Find(*view, "Frame1");
  const QWidget* frame2 = Find(*view, "Frame2");
  for (const char* name : {"Label2", "Label3", "Month1", "Year1", "Month2", "Year2"}) {
    const QWidget* under = Find(*view, name);
    const QRect place(under->mapTo(frame1, QPoint(0, 0)), under->size());
    // What the user sees at the middle of the field is Frame2 or what it holds.
    const QWidget* seen = frame1->childAt(place.center());
    EXPECT_TRUE(seen == frame2 || frame2->isAncestorOf(seen)) << name;
  }
  Click(*view, "CancelCmd");
  EXPECT_FALSE(Shown("Frame1"));
  for (const QString& name : kKindButtons) EXPECT_TRUE(Shown(name)) << name.toStdString();
  Click(*view, "Command1");
  Key(*Find(*view, "Month1"), Qt::Key_Enter);
  EXPECT_EQ(dialogs.LastMessage(), texts::kStartMonthBlank);
  for (const char* name : {"Month1", "Month2"}) TypeInto(*view, name, "04");
  TypeInto(*view, "Year1", "2002");
  TypeInto(*view, "Year2", "2002");
  Key(*Find(*view, "Year2"), Qt::Key_Return);
  EXPECT_EQ(screens.shown, QStringList{"header common"});
  EXPECT_EQ(store.vars.PeriodFrom, "042002");
  EXPECT_EQ(store.vars.PeriodTo, "042002");
}

}  // namespace
}  // namespace veroxia::testing
