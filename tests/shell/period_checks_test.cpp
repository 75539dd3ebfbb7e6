// The checks of the typed period, rule by rule in their testing order, on
// their own and through the start screen's OK button.

#include <gtest/gtest.h>

#include "shell/period_checks.h"
#include "shell/start_form.h"
#include "shell/texts.h"
#include "support/fakes.h"
#include "support/printers.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using namespace texts;

struct PeriodCase {
  const char* name;
  PeriodTexts period;  // the construction kind reads the start month and year only
  const char* field;   // the field at fault; nullptr when the period is accepted
  const QString* message = nullptr;
  int select = 0;  // characters selected in the field; 0: focus only
};

void PrintTo(const PeriodCase& c, std::ostream* out) { *out << c.name; }

std::string NameOf(const ::testing::TestParamInfo<PeriodCase>& info) { return info.param.name; }

// clang-format off
const PeriodCase kCommonCases[] = {
    // 1: start month blank.
    {"AllBlank", {u""_s, u""_s, u""_s, u""_s}, "Month1", &kStartMonthBlank},
    {"StartMonthBlanks", {u"  "_s, u"2002"_s, u"01"_s, u"2002"_s}, "Month1", &kStartMonthBlank},
    // 2: start month shorter than two characters, tried before its value.
    {"Month1OneDigit", {u"5"_s, u"2002"_s, u"05"_s, u"2002"_s}, "Month1", &kStartMonthLength, 2},
    {"StartMonthQuote", {u"'"_s, u""_s, u""_s, u""_s}, "Month1", &kStartMonthLength, 2},
    // 3: start month not a number from 1 to 12 (Greek capital omicron).
    {"StartMonth13", {u"13"_s, u"2002"_s, u"12"_s, u"2002"_s}, "Month1", &kStartMonthWrong, 2},
    {"StartMonth00", {u"00"_s, u"2002"_s, u"01"_s, u"2002"_s}, "Month1", &kStartMonthWrong, 2},
    {"StartMonthLetters", {u"ab"_s, u"2002"_s, u"01"_s, u"2002"_s}, "Month1", &kStartMonthWrong, 2},
    {"StartMonthDigitLetter", {u"1a"_s, u""_s, u""_s, u""_s}, "Month1", &kStartMonthWrong, 2},
    {"Month1Negative", {u"-1"_s, u"2002"_s, u"01"_s, u"2002"_s}, "Month1", &kStartMonthWrong, 2},
    {"Month1QuoteDigit", {u"'1"_s, u"2002"_s, u"01"_s, u"2002"_s}, "Month1", &kStartMonthWrong, 2},
    // 4 to 6: start year blank, not a number, shorter than four characters.
    {"StartYearBlank", {u"01"_s, u""_s, u"01"_s, u"2002"_s}, "Year1", &kStartYearBlank},
    {"StartYearBlanks", {u"01"_s, u"    "_s, u"01"_s, u"2002"_s}, "Year1", &kStartYearBlank},
    {"StartYearLetter", {u"01"_s, u"20a2"_s, u"01"_s, u"2002"_s}, "Year1", &kStartYearNumeric, 4},
    {"StartYearQuote", {u"01"_s, u"'002"_s, u"01"_s, u"2002"_s}, "Year1", &kStartYearNumeric, 4},
    {"Year1TwoLetters", {u"01"_s, u"ab"_s, u"01"_s, u"2002"_s}, "Year1", &kStartYearNumeric, 4},
    {"Year1ThreeDigits", {u"01"_s, u"200"_s, u"01"_s, u"2002"_s}, "Year1", &kStartYearLength, 4},
    // 7 to 9: end month.
    {"EndMonthBlank", {u"01"_s, u"2002"_s, u""_s, u"2002"_s}, "Month2", &kEndMonthBlank},
    {"EndMonthOneDigit", {u"01"_s, u"2002"_s, u"6"_s, u"2002"_s}, "Month2", &kEndMonthLength, 2},
    {"EndMonth13", {u"01"_s, u"2002"_s, u"13"_s, u"2002"_s}, "Month2", &kEndMonthWrong, 2},
    {"EndMonth00", {u"01"_s, u"2002"_s, u"00"_s, u""_s}, "Month2", &kEndMonthWrong, 2},
    // 10 to 12: end year.
    {"EndYearBlank", {u"01"_s, u"2002"_s, u"01"_s, u""_s}, "Year2", &kEndYearBlank},
    {"EndYearLetters", {u"01"_s, u"2002"_s, u"01"_s, u"2oo2"_s}, "Year2", &kEndYearNumeric, 4},
    {"EndYearThreeDigits", {u"01"_s, u"2002"_s, u"01"_s, u"200"_s}, "Year2", &kEndYearLength, 4},
    // 13: the period stays within one year.
    {"EndYearLater", {u"10"_s, u"2002"_s, u"12"_s, u"2003"_s}, "Year2", &kEndYearDiffers, 4},
    {"EndYearEarlier", {u"01"_s, u"2003"_s, u"01"_s, u"2002"_s}, "Year2", &kEndYearDiffers, 4},
    // 14: a period of more than one month starts a quarter (Latin O).
    {"FebToApr", {u"02"_s, u"2002"_s, u"04"_s, u"2002"_s}, "Month1", &kStartMonthNotQuarter, 2},
    {"MarToJan", {u"03"_s, u"2002"_s, u"01"_s, u"2002"_s}, "Month1", &kStartMonthNotQuarter, 2},
    // 15: and ends two months later (Latin O).
    {"TwoMonths", {u"01"_s, u"2002"_s, u"02"_s, u"2002"_s}, "Month2", &kEndMonthNotQuarter, 2},
    {"FourMonths", {u"01"_s, u"2002"_s, u"04"_s, u"2002"_s}, "Month2", &kEndMonthNotQuarter, 2},
    {"JulToJun", {u"07"_s, u"2002"_s, u"06"_s, u"2002"_s}, "Month2", &kEndMonthNotQuarter, 2},
    // Accepted: one month, or one calendar quarter.
    {"January", {u"01"_s, u"2002"_s, u"01"_s, u"2002"_s}, nullptr},
    {"December", {u"12"_s, u"2002"_s, u"12"_s, u"2002"_s}, nullptr},
    {"FirstQuarter", {u"01"_s, u"2002"_s, u"03"_s, u"2002"_s}, nullptr},
    {"SecondQuarter", {u"04"_s, u"2002"_s, u"06"_s, u"2002"_s}, nullptr},
    {"ThirdQuarter", {u"07"_s, u"2002"_s, u"09"_s, u"2002"_s}, nullptr},
    {"FourthQuarter", {u"10"_s, u"2002"_s, u"12"_s, u"2002"_s}, nullptr},
    {"MonthWithLeadingBlank", {u" 5"_s, u"2002"_s, u" 5"_s, u"2002"_s}, nullptr},
    {"QuarterWithLeadingBlank", {u" 4"_s, u"2002"_s, u"06"_s, u"2002"_s}, nullptr},
    {"YearWithTrailingBlank", {u"01"_s, u"200 "_s, u"01"_s, u"200 "_s}, nullptr},
};

const PeriodCase kConCases[] = {
    {"MonthBlank", {u""_s, u"2002"_s, {}, {}}, "ConMonth", &kStartMonthBlank},
    {"MonthOneDigit", {u"5"_s, u""_s, {}, {}}, "ConMonth", &kStartMonthLength, 2},
    {"Month13", {u"13"_s, u"2002"_s, {}, {}}, "ConMonth", &kStartMonthWrong, 2},
    {"Month00", {u"00"_s, u"2002"_s, {}, {}}, "ConMonth", &kStartMonthWrong, 2},
    {"MonthQuote", {u"'1"_s, u"2002"_s, {}, {}}, "ConMonth", &kStartMonthWrong, 2},
    {"YearBlank", {u"01"_s, u""_s, {}, {}}, "ConYear", &kConYearBlank},
    {"YearBlanks", {u"01"_s, u"    "_s, {}, {}}, "ConYear", &kConYearBlank},
    {"YearLetter", {u"01"_s, u"20x2"_s, {}, {}}, "ConYear", &kConYearNumeric, 4},
    {"YearThreeDigits", {u"01"_s, u"200"_s, {}, {}}, "ConYear", &kConYearLength, 4},
    {"May", {u"05"_s, u"2002"_s, {}, {}}, nullptr},
    {"MonthWithLeadingBlank", {u" 5"_s, u"2002"_s, {}, {}}, nullptr},
    {"AnyYear", {u"12"_s, u"0000"_s, {}, {}}, nullptr},
};
// clang-format on

void ExpectFault(const std::optional<FieldFault>& fault, const PeriodCase& c) {
  if (c.field == nullptr) {
    EXPECT_EQ(fault.has_value() ? fault->message : QString(), QString());
    return;
  }
  ASSERT_TRUE(fault.has_value());
  EXPECT_EQ(fault->field, QString::fromLatin1(c.field));
  EXPECT_EQ(fault->message, *c.message);
  EXPECT_EQ(fault->select_length, c.select);
}

class CommonPeriod : public ::testing::TestWithParam<PeriodCase> {};
class ConPeriod : public ::testing::TestWithParam<PeriodCase> {};

TEST_P(CommonPeriod, FirstFailingRuleDecides) {
  ExpectFault(CheckCommonPeriod(GetParam().period), GetParam());
}

TEST_P(ConPeriod, FirstFailingRuleDecides) {
  const PeriodTexts& period = GetParam().period;
  ExpectFault(CheckConPeriod(period.from_month, period.from_year), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rules, CommonPeriod, ::testing::ValuesIn(kCommonCases), NameOf);
INSTANTIATE_TEST_SUITE_P(Rules, ConPeriod, ::testing::ValuesIn(kConCases), NameOf);

// The same cases typed on the start screen and confirmed with OK.
class PeriodOnStartScreen : public ::testing::TestWithParam<std::pair<bool, PeriodCase>> {
 protected:
  void SetUp() override {
    ASSERT_TRUE(form_.Load());
    dialogs_.busy_calls.clear();
    store_.vars.DeclarationId = 77;
    store_.vars.PeriodFrom = u"untouched"_s;
  }

  testing::TempStore store_;
  testing::FakeDialogs dialogs_;
  testing::FakeScreens screens_;
  StartForm form_{store_.vars, dialogs_, screens_};
};

TEST_P(PeriodOnStartScreen, FaultIsToldOnceWithFocusAndNothingElseHappens) {
  const auto& [construction, c] = GetParam();
  const QStringList fields = construction
                                 ? QStringList{u"ConMonth"_s, u"ConYear"_s}
                                 : QStringList{u"Month1"_s, u"Year1"_s, u"Month2"_s, u"Year2"_s};
  const QStringList typed{c.period.from_month, c.period.from_year, c.period.to_month,
                          c.period.to_year};
  construction ? form_.Command2_Click() : form_.Command1_Click();
  for (qsizetype i = 0; i < fields.size(); ++i) form_.Type(fields[i], typed[i]);
  form_.FocusMovedTo(u"OkCmd"_s);
  if (c.field != nullptr) {
    // Without header tables any look-up would fail with a message of its own.
    store_.vars.StoreConnection->Exec("DROP TABLE QOR_EMPLOYERS");
    store_.vars.StoreConnection->Exec("DROP TABLE QOR_CON_EMPLOYERS");
  }
  form_.OkCmd_Click();

  for (qsizetype i = 0; i < fields.size(); ++i) EXPECT_EQ(form_.Text(fields[i]), typed[i]);
  if (c.field == nullptr) {
    EXPECT_TRUE(dialogs_.messages.empty()) << dialogs_.LastMessage().toStdString();
    EXPECT_EQ(screens_.shown,
              QStringList{construction ? u"header construction"_s : u"header common"_s});
    EXPECT_EQ(store_.vars.DeclarationId, 1);
    return;
  }
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_EQ(dialogs_.messages[0].text, *c.message);
  EXPECT_EQ(dialogs_.messages[0].title, kAppTitle);
  const QString field = QString::fromLatin1(c.field);
  EXPECT_EQ(form_.FocusedField(), field);
  const auto selection = form_.SelectionOf(field);
  if (c.select == 0) {
    EXPECT_FALSE(selection.has_value());
  } else {
    ASSERT_TRUE(selection.has_value());
    EXPECT_EQ(selection->start, 0);
    EXPECT_EQ(selection->length,
              std::min<int>(c.select, static_cast<int>(form_.Text(field).size())));
  }
  EXPECT_TRUE(screens_.shown.isEmpty());
  EXPECT_TRUE(dialogs_.busy_calls.empty());
  EXPECT_EQ(store_.vars.DeclarationId, 77);
  EXPECT_EQ(store_.vars.PeriodFrom, u"untouched"_s);
  EXPECT_TRUE(form_.At(u"Frame1"_s).visible);
}

std::vector<std::pair<bool, PeriodCase>> ScreenCases() {
  std::vector<std::pair<bool, PeriodCase>> cases;
  for (const PeriodCase& c : kCommonCases) cases.emplace_back(false, c);
  for (const PeriodCase& c : kConCases) cases.emplace_back(true, c);
  return cases;
}

INSTANTIATE_TEST_SUITE_P(Rules, PeriodOnStartScreen, ::testing::ValuesIn(ScreenCases()),
                         [](const auto& info) {
                           return std::string(info.param.first ? "Con" : "Common") +
                                  info.param.second.name;
                         });

}  // namespace
}  // namespace veroxia
