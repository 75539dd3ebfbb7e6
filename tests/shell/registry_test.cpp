// Which declaration OK opens: the stored one of the period, or a new one that
// may take over the lines of the highest id of the kind.

#include <gtest/gtest.h>

#include "rules/texts.h"
#include "shell/start_form.h"
#include "shell/texts.h"
#include "store/rows.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

// Both kinds settle the same way; the fixture stores headers and types periods
// of one month for the kind under test.
class Registry : public ::testing::TestWithParam<Kind> {
 protected:
  void SetUp() override {
    ASSERT_TRUE(form_.Load());
    dialogs_.busy_calls.clear();
    vars_.DeclarationId = 99;
    vars_.PreviousDeclarationId = 98;
  }
  bool Common() const { return GetParam() == Kind::Common; }

  void Store(int id, const QString& month, const QString& year) {
    Database& db = *vars_.StoreConnection;
    if (Common()) {
      InsertRow(db, testing::SampleEmployer(id, {month, year, month, year}));
    } else {
      InsertRow(db, testing::SampleConEmployer(id, month, year));
    }
  }
  // Presses the kind's button, types a one-month period and presses OK.
  void Open(bool carry_over, const QString& month, const QString& year) {
    if (Common()) {
      carry_over ? form_.Command4_Click() : form_.Command1_Click();
      form_.Type(u"Month1"_s, month);
      form_.Type(u"Year1"_s, year);
      form_.Type(u"Month2"_s, month);
      form_.Type(u"Year2"_s, year);
    } else {
      carry_over ? form_.Command5_Click() : form_.Command2_Click();
      form_.Type(u"ConMonth"_s, month);
      form_.Type(u"ConYear"_s, year);
    }
    form_.OkCmd_Click();
  }
  QStringList HandedOver() const {
    return {Common() ? u"header common"_s : u"header construction"_s};
  }
  QStringList Messages() const {
    QStringList texts;
    for (const auto& message : dialogs_.messages) {
      EXPECT_EQ(message.title, texts::kAppTitle);
      texts << message.text;
    }
    return texts;
  }

  testing::TempStore store_;
  Vars& vars_ = store_.vars;
  testing::FakeDialogs dialogs_;
  testing::FakeScreens screens_;
  StartForm form_{vars_, dialogs_, screens_};
};

TEST_P(Registry, FirstDeclarationOfTheKindGetsIdOne) {
  Open(false, u"01"_s, u"2002"_s);
  EXPECT_EQ(Messages(), QStringList());
  EXPECT_EQ(vars_.DeclarationId, 1);
  EXPECT_FALSE(vars_.CarryOver);
  EXPECT_EQ(vars_.PreviousDeclarationId, 98);
  EXPECT_EQ(screens_.shown, HandedOver());
}

TEST_P(Registry, CarryOverWithNothingStoredStartsEmptyWithIdOne) {
  Open(true, u"01"_s, u"2002"_s);
  EXPECT_EQ(Messages(), QStringList{texts::kNoPreviousDeclaration});
  EXPECT_EQ(vars_.DeclarationId, 1);
  EXPECT_FALSE(vars_.CarryOver);
  EXPECT_EQ(screens_.shown, HandedOver());
}

TEST_P(Registry, NewPeriodTakesOverTheHighestIdWhateverItsPeriod) {
  Store(1, u"12"_s, u"2009"_s);
  Store(5, u"01"_s, u"1999"_s);
  Store(2, u"03"_s, u"2002"_s);
  Open(true, u"04"_s, u"2002"_s);
  EXPECT_EQ(Messages(), QStringList());
  EXPECT_TRUE(vars_.CarryOver);
  EXPECT_EQ(vars_.PreviousDeclarationId, 5);
  EXPECT_EQ(vars_.DeclarationId, 6);
  EXPECT_EQ(screens_.shown, HandedOver());
}

TEST_P(Registry, NewPeriodWithoutCarryOverGetsHighestIdPlusOne) {
  Store(1, u"01"_s, u"2002"_s);
  Store(5, u"02"_s, u"2002"_s);
  Open(false, u"04"_s, u"2002"_s);
  EXPECT_EQ(Messages(), QStringList());
  EXPECT_EQ(vars_.DeclarationId, 6);
  EXPECT_FALSE(vars_.CarryOver);
  EXPECT_EQ(vars_.PreviousDeclarationId, 98);
}

TEST_P(Registry, StoredPeriodOpensItsDeclarationSilently) {
  Store(1, u"04"_s, u"2002"_s);
  Store(2, u"05"_s, u"2002"_s);
  Store(5, u"06"_s, u"2002"_s);
  Open(false, u"05"_s, u"2002"_s);
  EXPECT_EQ(Messages(), QStringList());
  EXPECT_EQ(vars_.DeclarationId, 2);
  EXPECT_FALSE(vars_.CarryOver);
  EXPECT_EQ(screens_.shown, HandedOver());
}

TEST_P(Registry, StoredPeriodWithCarryOverIsToldAndOpensUnchanged) {
  Store(2, u"05"_s, u"2002"_s);
  Store(5, u"06"_s, u"2002"_s);
  Open(true, u"05"_s, u"2002"_s);
  EXPECT_EQ(Messages(), QStringList{texts::kDeclarationFound});
  EXPECT_EQ(vars_.DeclarationId, 2);
  EXPECT_FALSE(vars_.CarryOver);
  EXPECT_EQ(vars_.PreviousDeclarationId, 98);
  EXPECT_EQ(screens_.shown, HandedOver());
}

TEST_P(Registry, MonthIsComparedAsTypedText) {
  Store(3, u"4"_s, u"2002"_s);
  Open(false, u"04"_s, u"2002"_s);
  EXPECT_EQ(vars_.DeclarationId, 4);
}

TEST_P(Registry, KindsKeepTheirOwnIds) {
  Database& db = *vars_.StoreConnection;
  if (Common()) {
    InsertRow(db, testing::SampleConEmployer(7, u"04"_s, u"2002"_s));
  } else {
    InsertRow(db, testing::SampleEmployer(7, {u"04"_s, u"2002"_s, u"04"_s, u"2002"_s}));
  }
  Open(true, u"04"_s, u"2002"_s);
  EXPECT_EQ(Messages(), QStringList{texts::kNoPreviousDeclaration});
  EXPECT_EQ(vars_.DeclarationId, 1);
}

TEST_P(Registry, NoNewIdAfter32767) {
  Store(32767, u"01"_s, u"2002"_s);
  for (bool carry_over : {false, true}) {
    SCOPED_TRACE(carry_over);
    dialogs_.messages.clear();
    form_.CancelCmd_Click();
    Open(carry_over, u"02"_s, u"2002"_s);
    EXPECT_EQ(Messages(), QStringList{texts::kNoIdLeft});
    EXPECT_EQ(vars_.DeclarationId, 99);
    EXPECT_EQ(vars_.CarryOver, carry_over);
    EXPECT_TRUE(screens_.shown.isEmpty());
    EXPECT_FALSE(dialogs_.busy);
  }
  dialogs_.messages.clear();
  form_.CancelCmd_Click();
  Open(false, u"01"_s, u"2002"_s);
  EXPECT_EQ(Messages(), QStringList());
  EXPECT_EQ(vars_.DeclarationId, 32767);
}

TEST_P(Registry, HandOverSetsThePeriodAsTyped) {
  vars_.PeriodTo = u"left"_s;
  Open(false, u" 5"_s, u"2002"_s);
  EXPECT_EQ(vars_.PeriodFrom, u" 52002"_s);
  EXPECT_EQ(vars_.PeriodTo, Common() ? u" 52002"_s : u"left"_s);
}

TEST_P(Registry, StoreErrorIsToldAndNothingIsHandedOver) {
  vars_.StoreConnection->Exec(Common() ? "DROP TABLE QOR_EMPLOYERS"
                                       : "DROP TABLE QOR_CON_EMPLOYERS");
  Open(false, u"01"_s, u"2002"_s);
  ASSERT_EQ(Messages().size(), 1);
  EXPECT_TRUE(Messages()[0].startsWith(texts::kRegistryFailed + u"\r\n"_s + texts::kErrorCode +
                                       u"1\r\n"_s + texts::kErrorDescription))
      << Messages()[0].toStdString();
  EXPECT_TRUE(screens_.shown.isEmpty());
  EXPECT_EQ(vars_.DeclarationId, 99);
  EXPECT_EQ(dialogs_.busy_calls, (std::vector<bool>{true, false}));
}

INSTANTIATE_TEST_SUITE_P(Kinds, Registry, ::testing::Values(Kind::Common, Kind::Construction),
                         [](const auto& info) {
                           return info.param == Kind::Common ? "Common" : "Construction";
                         });

}  // namespace
}  // namespace veroxia
