// The start screen: opening the store beside the program once, and exit;
// choosing a kind and leaving period entry; the checks of the typed period;
// and which declaration OK opens: the stored one of the period, or a new one
// that may take over the lines of the highest id of the kind.

#include <QDir>
#include <QFileInfo>

#include "shell/errors.h"
#include "shell/start_form.h"
#include "support/files.h"
#include "support/rule_chain.h"
#include "support/store_rows.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;
using namespace texts;

const QStringList kKindButtons = u"Command1 Command2 Command3 Command4 Command5"_s.split(u' ');
const QStringList kCommonFields = u"Month1 Year1 Month2 Year2"_s.split(u' ');
const QStringList kConFields{u"ConMonth"_s, u"ConYear"_s};
const QStringList kFrameButtons{u"OkCmd"_s, u"CancelCmd"_s};

class StartScreen : public ::testing::Test {
 protected:
  // The controls of `names` whose flag is set.
  QStringList Where(bool Control::*flag, const QStringList& names) const {
    QStringList found;
    for (const QString& name : names) {
      if (form_.At(name).*flag) found << name;
    }
    return found;
  }
  // The kind buttons, by [common][carry over].
  static constexpr void (StartForm::*kKind[2][2])() = {
      {&StartForm::Command2_Click, &StartForm::Command5_Click},
      {&StartForm::Command1_Click, &StartForm::Command4_Click}};

  TempStore store_;
  Vars& vars_ = store_.vars;
  FakeDialogs dialogs_;
  FakeScreens screens_;
  StartForm form_{vars_, dialogs_, screens_};
};

// The store beside the program is opened once, whatever happens to the file
// afterwards, and closed by Exit.
TEST_F(StartScreen, LoadOpensTheStoreOnceKindButtonsOpenTheirPeriodAndExitCloses) {
  ASSERT_TRUE(form_.Load());
  EXPECT_EQ(form_.Title(), kTitleStart + kTitleVersion + QString::number(VEROXIA_VERSION_MAJOR) +
                               u'.' + QString::number(VEROXIA_VERSION_MINOR) + u')');
  const Database* first = vars_.StoreConnection.get();
  ASSERT_TRUE(vars_.StoreOpen && first != nullptr);
  EXPECT_TRUE(!dialogs_.busy_calls.empty() && !dialogs_.busy);
  EXPECT_EQ(Where(&Control::visible, kKindButtons + QStringList{u"Frame1"_s}), kKindButtons);
  EXPECT_EQ(form_.ImagePath() + form_.IconPath(), QString());
  // A kind button opens the period fields of its kind in the focus order;
  // Cancel brings the kind buttons back and keeps what was typed and chosen.
  const QStringList all = kKindButtons + kCommonFields + kConFields + kFrameButtons;
  for (const bool common : {true, false}) {
    for (const bool carry_over : {true, false}) {
      SCOPED_TRACE(::testing::Message() << common << carry_over);
      (form_.*kKind[common][carry_over])();
      const QStringList& fields = common ? kCommonFields : kConFields;
      EXPECT_EQ(Where(&Control::visible, kKindButtons + QStringList{u"Frame1"_s, u"Frame2"_s}),
                QStringList{u"Frame1"_s} + (common ? QStringList() : QStringList{u"Frame2"_s}));
      EXPECT_EQ(form_.FocusedField(), fields[0]);
      EXPECT_EQ(Where(&Control::tab_stop, all),
                (QStringList{u"Command4"_s, u"Command5"_s} + fields + kFrameButtons));
      EXPECT_EQ(form_.Text(fields[0]), carry_over ? QString() : u"07"_s);  // kept from before
      EXPECT_EQ(form_.SelectionOf(fields[0]).value_or(Selection{}).length,
                form_.Text(fields[0]).size());  // typed over
      form_.Type(fields[0], u"07"_s);

      form_.CancelCmd_Click();
      EXPECT_EQ(Where(&Control::visible, kKindButtons + QStringList{u"Frame1"_s}), kKindButtons);
      EXPECT_EQ(Where(&Control::tab_stop, all), kKindButtons);
      EXPECT_EQ(vars_.CarryOver, carry_over);
    }
  }

  const QDir dir(store_.Dir());
  for (const char* name : {"ovt.gif", "qormain.ico"}) {
    ASSERT_TRUE(WriteFile(dir.filePath(QString::fromLatin1(name)), "x"));
  }
  ASSERT_TRUE(QFile::remove(store_.Path()));
  StartForm again(vars_, dialogs_, screens_);
  ASSERT_TRUE(again.Load());
  EXPECT_EQ(vars_.StoreConnection.get(), first);
  EXPECT_EQ(QFileInfo(again.ImagePath()), QFileInfo(dir.filePath(u"ovt.gif"_s)));
  EXPECT_EQ(QFileInfo(again.IconPath()), QFileInfo(dir.filePath(u"qormain.ico"_s)));
  EXPECT_TRUE(dialogs_.messages.empty() && !screens_.quit_status);

  again.Command3_Click();
  EXPECT_TRUE(!vars_.StoreOpen && !vars_.StoreConnection);
  EXPECT_EQ(screens_.quit_status, 0);
}

// The rules of the period in their order, as OK applies them: a fault is told
// once on its field and nothing is looked up; an accepted period goes on to
// the store (which header it opens is the registry's table below).
TEST_F(StartScreen, OkChecksThePeriodRuleByRule) {
  ASSERT_TRUE(form_.Load());
  const auto ok = [this] {
    screens_.shown.clear();
    dialogs_.busy_calls.clear();
    form_.FocusMovedTo(u"OkCmd"_s);
    form_.OkCmd_Click();
    return !screens_.shown.isEmpty() || !dialogs_.busy_calls.empty();
  };
  form_.Command1_Click();
  // clang-format off
  ExpectRulesInOrder(form_, dialogs_, ok, {
      {"Month1", u"  "_s, Fixed(kStartMonthBlank), false, u"5"_s},
      {"Month1", u"5"_s, Fixed(kStartMonthLength), true, u"13"_s},
      {"Month1", u"13"_s, Fixed(kStartMonthWrong), true, u"00"_s},
      {"Month1", u"00"_s, Fixed(kStartMonthWrong), true, u"1a"_s},
      {"Month1", u"1a"_s, Fixed(kStartMonthWrong), true, u"02"_s},
      {"Year1", u"    "_s, Fixed(kStartYearBlank), false, u"ab"_s},  // a number before its length
      {"Year1", u"ab"_s, Fixed(kStartYearNumeric), true, u"200"_s},
      {"Year1", u"200"_s, Fixed(kStartYearLength), true, u"2002"_s},
      {"Month2", u""_s, Fixed(kEndMonthBlank), false, u"6"_s},
      {"Month2", u"6"_s, Fixed(kEndMonthLength), true, u"13"_s},
      {"Month2", u"13"_s, Fixed(kEndMonthWrong), true, u"04"_s},
      {"Year2", u""_s, Fixed(kEndYearBlank), false, u"2oo2"_s},
      {"Year2", u"2oo2"_s, Fixed(kEndYearNumeric), true, u"200"_s},
      {"Year2", u"200"_s, Fixed(kEndYearLength), true, u"2003"_s},
      {"Year2", u"2003"_s, Fixed(kEndYearDiffers), true, u"2002"_s},  // within one year
      {"Month1", u"02"_s, Fixed(kStartMonthNotQuarter), true, u"01"_s},  // more than a month
      {"Month2", u"04"_s, Fixed(kEndMonthNotQuarter), true, u"02"_s},    // ends a quarter
      {"Month2", u"02"_s, Fixed(kEndMonthNotQuarter), true, u"03"_s}});
  form_.CancelCmd_Click();
  form_.Command2_Click();
  ExpectRulesInOrder(form_, dialogs_, ok, {
      {"ConMonth", u""_s, Fixed(kStartMonthBlank), false, u"5"_s},
      {"ConMonth", u"5"_s, Fixed(kStartMonthLength), true, u"13"_s},
      {"ConMonth", u"13"_s, Fixed(kStartMonthWrong), true, u"05"_s},
      {"ConYear", u"    "_s, Fixed(kConYearBlank), false, u"20x2"_s},
      {"ConYear", u"20x2"_s, Fixed(kConYearNumeric), true, u"200"_s},
      {"ConYear", u"200"_s, Fixed(kConYearLength), true, u"0000"_s}});
  // One month, or one calendar quarter; blanks around the numbers count.
  form_.CancelCmd_Click();
  form_.Command1_Click();
  for (const char* typed : {"12|2002|12|2002", "04|2002|06|2002", "07|2002|09|2002",
                            "10|2002|12|2002", " 5|2002| 5|2002", " 4|2002|06|2002",
                            "01|200 |01|200 "}) {
    const QStringList texts = QString::fromLatin1(typed).split(u'|');
    for (qsizetype i = 0; i < kCommonFields.size(); ++i) form_.Type(kCommonFields[i], texts[i]);
    EXPECT_TRUE(ok()) << typed << dialogs_.LastMessage().toStdString();
  }
  // clang-format on
}

struct SettleCase {
  const char* name;
  std::vector<std::pair<int, const char*>> stored;  // headers of the kind: id, month of 2002
  bool carry_over;
  QString month, message;  // typed, of 2002; told, if anything
  int id;                  // the declaration opened; 99 (as before): none
  bool carried;            // it takes over the lines of id - 1
  bool broken = false;     // the kind's header table is gone
};

// clang-format off
const SettleCase kSettleCases[] = {
    {"FirstOfTheKind", {}, false, u"01"_s, {}, 1, false},
    {"CarryOverWithNothingStored", {}, true, u"01"_s, kNoPreviousDeclaration, 1, false},
    {"NewPeriodTakesOverTheHighestId", {{1, "12"}, {5, "01"}, {2, "03"}}, true, u"04"_s, {}, 6, true},
    {"NewPeriodGetsTheHighestIdPlusOne", {{9, "01"}, {10, "02"}, {2, "03"}}, false, u"04"_s, {}, 11, false},
    {"StoredPeriodOpensSilently", {{1, "04"}, {2, "05"}, {5, "06"}}, false, u"05"_s, {}, 2, false},
    {"StoredPeriodWithCarryOverIsTold", {{2, "05"}, {5, "06"}}, true, u"05"_s, kDeclarationFound, 2, false},
    {"MonthIsComparedAsTypedText", {{3, "4"}}, false, u"04"_s, {}, 4, false},
    {"MonthWithALeadingBlank", {}, false, u" 5"_s, {}, 1, false},
    {"NoNewIdAfter32767", {{32767, "01"}}, false, u"02"_s, kNoIdLeft, 99, false},
    {"NoNewIdToTakeOverAfter32767", {{32767, "01"}}, true, u"02"_s, kNoIdLeft, 99, false},
    {"StoredPeriodOf32767", {{32767, "01"}}, false, u"01"_s, {}, 32767, false},
    {"StoreError", {}, false, u"01"_s, {}, 99, false, true},
};
// clang-format on

void PrintTo(const SettleCase& c, std::ostream* out) { *out << c.name; }

class Registry : public StartScreen,
                 public ::testing::WithParamInterface<std::tuple<Kind, SettleCase>> {};

// Both kinds settle the same way, each on its own headers only.
TEST_P(Registry, OkOpensTheDeclarationOfThePeriod) {
  const auto& [kind, c] = GetParam();
  const bool common = kind == Kind::Common;
  Database& db = store_.Open();
  const auto store = [&](bool common_kind, int id, const QString& month) {
    const PeriodTexts period{month, u"2002"_s, month, u"2002"_s};
    common_kind ? InsertRow(db, SampleHeader<EmployerRow>(id, period))
                : InsertRow(db, SampleHeader<ConEmployerRow>(id, period));
  };
  store(!common, 7, u"04"_s);
  for (const auto& [id, month] : c.stored) store(common, id, QString::fromLatin1(month));
  if (c.broken) db.Exec(common ? "DROP TABLE QOR_EMPLOYERS" : "DROP TABLE QOR_CON_EMPLOYERS");
  ASSERT_TRUE(form_.Load());
  dialogs_.busy_calls.clear();
  vars_.DeclarationId = 99;
  vars_.PreviousDeclarationId = 98;
  vars_.PeriodFrom = vars_.PeriodTo = u"left"_s;

  (form_.*kKind[common][c.carry_over])();  // a period of one month of 2002
  for (const QString& field : common ? kCommonFields : kConFields) {
    form_.Type(field, field.contains(u"Month"_s) ? c.month : u"2002"_s);
  }
  form_.OkCmd_Click();

  const QString message =
      c.broken ? ErrorMessage(kRegistryFailed, 1, kStoreOtherError.arg(1)) : c.message;
  EXPECT_EQ(FakeDialogs::Told(dialogs_.messages),
            (message.isEmpty() ? QStringList() : QStringList{kAppTitle, message}));
  const bool opened = c.id != 99;
  EXPECT_EQ(vars_.DeclarationId, c.id);
  EXPECT_EQ(vars_.CarryOver, opened ? c.carried : c.carry_over);
  EXPECT_EQ(vars_.PreviousDeclarationId, c.carried ? c.id - 1 : 98);
  const QString period = opened ? c.month + u"2002"_s : u"left"_s;
  EXPECT_EQ(vars_.PeriodFrom, period);
  EXPECT_EQ(vars_.PeriodTo, common ? period : u"left"_s);
  EXPECT_EQ(screens_.shown,
            (opened ? QStringList{common ? u"header common"_s : u"header construction"_s}
                    : QStringList()));
  EXPECT_EQ(dialogs_.busy_calls, (std::vector<bool>{true, false}));
}

INSTANTIATE_TEST_SUITE_P(Kinds, Registry,
                         ::testing::Combine(::testing::Values(Kind::Common, Kind::Construction),
                                            ::testing::ValuesIn(kSettleCases)));

}  // namespace
}  // namespace veroxia::testing
