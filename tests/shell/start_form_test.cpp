// The start screen: start-up, choosing a kind, leaving period entry and exit.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "shell/start_form.h"
#include "shell/texts.h"
#include "store/rows.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

const QStringList kCommonFields{u"Month1"_s, u"Year1"_s, u"Month2"_s, u"Year2"_s};
const QStringList kConFields{u"ConMonth"_s, u"ConYear"_s};
const QStringList kKindButtons{u"Command1"_s, u"Command2"_s, u"Command3"_s, u"Command4"_s,
                               u"Command5"_s};

class StartScreen : public ::testing::Test {
 protected:
  // The controls of `names` that are in the focus order.
  QStringList TabStops(const QStringList& names) const {
    QStringList stops;
    for (const QString& name : names) {
      if (form_.At(name).tab_stop) stops << name;
    }
    return stops;
  }
  QStringList Visible(const QStringList& names) const {
    QStringList shown;
    for (const QString& name : names) {
      if (form_.At(name).visible) shown << name;
    }
    return shown;
  }

  testing::TempStore store_;
  testing::FakeDialogs dialogs_;
  testing::FakeScreens screens_;
  StartForm form_{store_.vars, dialogs_, screens_};
};

TEST_F(StartScreen, LoadOpensTheStoreAndShowsTheVersionInTheTitle) {
  ASSERT_TRUE(form_.Load());
  EXPECT_EQ(form_.Title(), texts::kTitleStart + texts::kTitleVersion +
                               QString::number(VEROXIA_VERSION_MAJOR) + u'.' +
                               QString::number(VEROXIA_VERSION_MINOR) + u')');
  EXPECT_TRUE(form_.Title().startsWith(texts::kTitleStart + u"  ("_s))
      << form_.Title().toStdString();
  EXPECT_TRUE(store_.vars.StoreOpen);
  ASSERT_NE(store_.vars.StoreConnection, nullptr);
  EXPECT_TRUE(dialogs_.messages.empty());
  ASSERT_FALSE(dialogs_.busy_calls.empty());
  EXPECT_FALSE(dialogs_.busy_calls.back());
  EXPECT_EQ(screens_.quit_status, std::nullopt);
  EXPECT_FALSE(form_.At(u"Frame1"_s).visible);
  EXPECT_EQ(Visible(kKindButtons), kKindButtons);
  EXPECT_TRUE(form_.ImagePath().isEmpty());
  EXPECT_TRUE(form_.IconPath().isEmpty());
}

TEST_F(StartScreen, LoadPicksUpThePicturesBesideTheProgram) {
  for (const char* name : {"ovt.gif", "qormain.ico"}) {
    QFile file(QDir(store_.Dir()).filePath(QString::fromLatin1(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("GIF89a");
  }
  ASSERT_TRUE(form_.Load());
  EXPECT_EQ(QFileInfo(form_.ImagePath()), QFileInfo(QDir(store_.Dir()).filePath(u"ovt.gif"_s)));
  EXPECT_EQ(QFileInfo(form_.IconPath()), QFileInfo(QDir(store_.Dir()).filePath(u"qormain.ico"_s)));
}

TEST_F(StartScreen, LoadingAgainReusesTheOpenStore) {
  ASSERT_TRUE(form_.Load());
  const Database* first = store_.vars.StoreConnection.get();
  StartForm again(store_.vars, dialogs_, screens_);
  ASSERT_TRUE(again.Load());
  EXPECT_EQ(store_.vars.StoreConnection.get(), first);
}

TEST_F(StartScreen, MissingStoreEndsTheProgramAfterOneMessage) {
  testing::TempStore empty(false);
  StartForm form(empty.vars, dialogs_, screens_);
  EXPECT_FALSE(form.Load());
  EXPECT_EQ(screens_.quit_status, 1);
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_EQ(dialogs_.messages[0].text, texts::kStoreMissing);
  EXPECT_TRUE(screens_.shown.isEmpty());
}

TEST_F(StartScreen, CommonKindOffersTheStartAndEndFields) {
  ASSERT_TRUE(form_.Load());
  form_.Command4_Click();
  EXPECT_EQ(form_.HeaderTable(), u"QOR_EMPLOYERS"_s);
  EXPECT_TRUE(store_.vars.CarryOver);
  EXPECT_TRUE(Visible(kKindButtons).isEmpty());
  EXPECT_TRUE(form_.At(u"Frame1"_s).visible);
  EXPECT_FALSE(form_.At(u"Frame2"_s).visible);
  EXPECT_EQ(form_.FocusedField(), u"Month1"_s);
  EXPECT_EQ(TabStops(kKindButtons), (QStringList{u"Command4"_s, u"Command5"_s}));
  EXPECT_EQ(TabStops(kCommonFields + kConFields), kCommonFields);
  EXPECT_EQ(TabStops({u"OkCmd"_s, u"CancelCmd"_s}).size(), 2);
}

TEST_F(StartScreen, ConstructionKindOffersTheWorkPeriodFields) {
  ASSERT_TRUE(form_.Load());
  form_.Command2_Click();
  EXPECT_EQ(form_.HeaderTable(), u"QOR_CON_EMPLOYERS"_s);
  EXPECT_FALSE(store_.vars.CarryOver);
  EXPECT_TRUE(form_.At(u"Frame1"_s).visible);
  EXPECT_TRUE(form_.At(u"Frame2"_s).visible);
  EXPECT_EQ(form_.FocusedField(), u"ConMonth"_s);
  EXPECT_EQ(TabStops(kCommonFields + kConFields), kConFields);
  EXPECT_EQ(TabStops({u"OkCmd"_s, u"CancelCmd"_s}).size(), 2);
}

TEST_F(StartScreen, CancelKeepsTheTypedPeriodAndTheCarryOverChoice) {
  ASSERT_TRUE(form_.Load());
  form_.Command5_Click();
  form_.Type(u"ConMonth"_s, u"07"_s);
  form_.Type(u"ConYear"_s, u"2004"_s);
  form_.CancelCmd_Click();
  EXPECT_FALSE(form_.At(u"Frame1"_s).visible);
  EXPECT_EQ(Visible(kKindButtons), kKindButtons);
  EXPECT_TRUE(store_.vars.CarryOver);
  EXPECT_EQ(TabStops({u"Command1"_s, u"Command2"_s, u"Command3"_s}).size(), 3);
  EXPECT_TRUE(
      TabStops(kCommonFields + kConFields + QStringList{u"OkCmd"_s, u"CancelCmd"_s}).isEmpty());

  form_.Command1_Click();
  EXPECT_FALSE(form_.At(u"Frame2"_s).visible);
  EXPECT_EQ(form_.FocusedField(), u"Month1"_s);
  form_.Command2_Click();
  EXPECT_EQ(form_.Text(u"ConMonth"_s), u"07"_s);
  EXPECT_EQ(form_.SelectionOf(u"ConMonth"_s).value_or(Selection{}).length, 2);  // typed over
  EXPECT_EQ(form_.Text(u"ConYear"_s), u"2004"_s);
}

TEST_F(StartScreen, PlainButtonAfterCancelDropsTheCarryOver) {
  ASSERT_TRUE(form_.Load());
  InsertRow(*store_.vars.StoreConnection,
            testing::SampleEmployer(3, {u"01"_s, u"2002"_s, u"01"_s, u"2002"_s}));
  form_.Command4_Click();
  form_.CancelCmd_Click();
  form_.Command1_Click();
  EXPECT_FALSE(store_.vars.CarryOver);
  for (const QString& field : kCommonFields) {
    form_.Type(field, field.startsWith(u"Month") ? u"02"_s : u"2002"_s);
  }
  form_.OkCmd_Click();
  EXPECT_TRUE(dialogs_.messages.empty());
  EXPECT_FALSE(store_.vars.CarryOver);
  EXPECT_EQ(store_.vars.DeclarationId, 4);
  EXPECT_EQ(screens_.shown, QStringList{u"header common"_s});
}

TEST_F(StartScreen, ExitClosesTheStoreAndEndsTheProgram) {
  ASSERT_TRUE(form_.Load());
  form_.Command3_Click();
  EXPECT_FALSE(store_.vars.StoreOpen);
  EXPECT_EQ(store_.vars.StoreConnection, nullptr);
  EXPECT_EQ(screens_.quit_status, 0);
}

}  // namespace
}  // namespace veroxia
