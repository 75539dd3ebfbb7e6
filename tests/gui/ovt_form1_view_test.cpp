// The header window's wiring: real widgets, typed into and clicked.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "gui/driver.h"
#include "gui/form_binder.h"
#include "gui/ovt_form1_view.h"
#include "header/texts.h"
#include "store/rows.h"
#include "support/fakes.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;

class OvtForm1ViewTest : public ::testing::Test {
 protected:
  OvtForm1ViewTest() : form(store.vars, dialogs, screens) {
    store.Open();
    store.vars.DeclarationId = 1;
    store.vars.PeriodFrom = u"012002"_s;
    store.vars.PeriodTo = u"032002"_s;
    form.Load();
    view = std::make_unique<OvtForm1View>(form);
    ShowActive(*view);
  }

  template <class W = QLineEdit>
  W* Get(const QString& name) {
    auto* widget = view->findChild<W*>(name);
    EXPECT_NE(widget, nullptr) << name.toStdString();
    return widget;
  }

  void Type(const QString& name, const QString& text) {
    TypeInto(*view, name, text);
    QApplication::processEvents();
  }

  void TypeValidHeader() {
    Type(u"Text2"_s, u"123"_s);
    Type(u"Text3"_s, u"Αθήνα"_s);
    Type(u"Text4"_s, u"Εταιρεία"_s);
    Type(u"Text5"_s, u"1234567890"_s);
    Type(u"Text6"_s, u"123456789"_s);
    Type(u"Text7"_s, u"Οδός"_s);
    Type(u"Text9"_s, u"12345"_s);
    Type(u"Text10"_s, u"Πόλη"_s);
  }

  TempStore store;
  FakeDialogs dialogs;
  FakeScreens screens;
  OvtForm1 form;
  std::unique_ptr<OvtForm1View> view;
};

TEST_F(OvtForm1ViewTest, ANewHeaderOpensForEditingWithTheMonthLabels) {
  EXPECT_TRUE(Get<QPushButton>(u"SaveCmd"_s)->isVisible());
  EXPECT_FALSE(Get<QPushButton>(u"UpDateCmd"_s)->isVisible());
  EXPECT_FALSE(Get<QPushButton>(u"QorInsert"_s)->isEnabled());
  EXPECT_TRUE(Get(u"Text2"_s)->isEnabled());
  EXPECT_FALSE(Get(u"Text11_1"_s)->isEnabled());
  EXPECT_EQ(Get(u"Text13_2"_s)->text(), u"02/2002"_s);
  EXPECT_TRUE(Get<QRadioButton>(u"Option1_0"_s)->isChecked());
}

TEST_F(OvtForm1ViewTest, TypingAndSavingStoresTheHeaderAndLocksTheScreen) {
  TypeValidHeader();
  Type(u"FlDateTxt"_s, u"05032002"_s);
  EXPECT_EQ(form.Text(u"FlDateTxt"_s), u"05/03/2002"_s);
  Click(*view, u"SaveCmd"_s);

  ASSERT_FALSE(dialogs.messages.empty());
  EXPECT_EQ(dialogs.LastMessage(), header_texts::kSaveDone);
  const auto row = SelectHeader<EmployerRow>(*store.vars.StoreConnection, 1);
  ASSERT_TRUE(row.has_value());
  EXPECT_EQ(row->orgbra_branch_descr, u"ΑΘΗΝΑ"_s);
  EXPECT_EQ(row->CreateFlDate, u"05/03/2002"_s);
  EXPECT_EQ(row->stop_date, QString());
  EXPECT_TRUE(Get<QPushButton>(u"UpDateCmd"_s)->isVisible());
  EXPECT_FALSE(Get(u"Text2"_s)->isEnabled());
  EXPECT_TRUE(Get<QPushButton>(u"QorInsert"_s)->isEnabled());
}

TEST_F(OvtForm1ViewTest, ABadFieldIsReportedAndTakesTheFocus) {
  TypeValidHeader();
  Type(u"Text2"_s, u"12"_s);
  Get(u"Text4"_s)->setFocus();
  Click(*view, u"SaveCmd"_s);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(view->focusWidget(), Get(u"Text2"_s));
  EXPECT_FALSE(SelectHeader<EmployerRow>(*store.vars.StoreConnection, 1).has_value());
}

TEST_F(OvtForm1ViewTest, TheOptionsChooseTheType) {
  Click(*view, u"Option1_1"_s);
  EXPECT_EQ(form.SelectedType(), 1);
  EXPECT_EQ(form.Text(u"Text1"_s), u"02"_s);
  EXPECT_FALSE(view->findChild<QWidget*>(u"Option1Lbl_0"_s)->isEnabled());
}

TEST_F(OvtForm1ViewTest, TheCloseBoxAsksAndNoKeepsTheWindow) {
  dialogs.answers = {false};
  view->close();
  EXPECT_TRUE(view->isVisible());
  ASSERT_EQ(dialogs.questions.size(), 1u);
  EXPECT_FALSE(screens.quit_status.has_value());
}

}  // namespace
}  // namespace veroxia::testing
