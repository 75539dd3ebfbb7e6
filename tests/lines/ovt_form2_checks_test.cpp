// The line checks: each rule in its place of the order, with its message and
// where it leaves the focus; the first failing rule is the one reported.

#include "header/texts.h"
#include "lines/ovt_form2_fixture.h"
#include "lines/texts.h"
#include "rules/checks.h"
#include "shell/texts.h"

namespace veroxia::testing {
namespace {

using namespace lines_texts;

struct CheckCase {
  const char* field;
  QString typed;
  QString message;
  bool selected;  // the field's text is selected, not only focused

  friend void PrintTo(const CheckCase& c, std::ostream* out) {
    *out << c.field << " = \"" << c.typed.toStdString() << '"';
  }
};

QString Fault(const std::optional<QString>& fault) { return fault.value_or(u"<passes>"_s); }

class CheckLineTest : public OvtForm2Test, public ::testing::WithParamInterface<CheckCase> {};

TEST_P(CheckLineTest, ReportsTheRuleWithItsFocus) {
  const CheckCase& c = GetParam();
  Open();
  TypeValidLine();
  const QString field = QString::fromLatin1(c.field);
  form_->Type(field, c.typed);
  EXPECT_FALSE(form_->CheckLine());
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_EQ(dialogs_.LastMessage(), c.message);
  EXPECT_EQ(dialogs_.messages.back().title, texts::kAppTitle);
  EXPECT_EQ(form_->FocusedField(), field);
  EXPECT_EQ(form_->SelectionOf(form_->FocusedField()).has_value(), c.selected);
  EXPECT_FALSE(dialogs_.busy);
}

const QString kBadDate = u"31/13/2001"_s;

INSTANTIATE_TEST_SUITE_P(
    EveryRule, CheckLineTest,
    ::testing::Values(
        CheckCase{"Text18_1", u""_s, Fault(CheckInteger(u""_s, kNameBranch, 4, true)), true},
        CheckCase{"Text18_2", u"55"_s, Fault(CheckInteger(u"55"_s, kNameKad, 4, true)), true},
        CheckCase{"Text19", u"12345678"_s,
                  Fault(CheckInteger(u"12345678"_s, kNameInsuredId, 9, true)), true},
        CheckCase{"Text20", u"1234567890"_s,
                  Fault(CheckInteger(u"1234567890"_s, kNameAmka, 11, true)), true},
        CheckCase{"Text21", u"   "_s, kSurnameBlank, false},
        CheckCase{"Text21", u"Παπα3"_s, Fault(CheckNoDigits(u"Παπα3"_s, kNameSurname)), true},
        CheckCase{"Text22", u""_s, kNameBlank, false},
        CheckCase{"Text23", u"Ν1"_s, Fault(CheckNoDigits(u"Ν1"_s, kNameFather)), true},
        CheckCase{"Text24", u""_s, kMotherBlank, false},
        CheckCase{"Text25", u"__/__/____"_s, kBirthBlank, false},
        CheckCase{"Text25", u"05/03/19__"_s, Fault(CheckDate(u"05/03/19__"_s, kNameBirth)), true},
        CheckCase{"Text26", u"12345678"_s, Fault(CheckInteger(u"12345678"_s, kNameAfm, 9, true)),
                  true},
        CheckCase{"Text27", u" "_s, kFullDayBlank, true},
        CheckCase{"Text27", u"ΙΣΩΣ"_s, kFullDayYesNo, true},
        CheckCase{"Text28", u"ΝΑΙΙ"_s, kAllDaysYesNo, true},
        CheckCase{"Text29", u"x"_s, Fault(CheckInteger(u"x"_s, kNameSundays, 1, true)), true},
        CheckCase{"Text30", u"12a"_s, Fault(CheckInteger(u"12a"_s, kNameCategory, 6, false)), true},
        CheckCase{"Text31", u"1x"_s, Fault(CheckInteger(u"1x"_s, kNameSpecial, 2, false)), true},
        CheckCase{"Text32", u""_s, Fault(CheckInteger(u""_s, kNameCover, 4, false)), true},
        CheckCase{"Text33_1", u""_s, kMonthBlank, false},
        CheckCase{"Text33_1", u"3"_s, kMonthLength, true},
        CheckCase{"Text33_1", u"13"_s, kMonthWrong, true},
        CheckCase{"Text33_1", u"00"_s, kMonthWrong, true},
        CheckCase{"Text33_2", u""_s, kYearBlank, false},
        CheckCase{"Text33_2", u"ΑΒΓΔ"_s, kYearNumeric, true},
        CheckCase{"Text33_2", u"02"_s, kYearLength, true},
        CheckCase{"Text33_1", u"12"_s, kPeriodWrong, false},  // 12/2002 is after the period
        CheckCase{"Text34", kBadDate, Fault(CheckDate(kBadDate, kNameSalFrom)), true},
        CheckCase{"Text35", kBadDate, Fault(CheckDate(kBadDate, kNameSalTo)), true},
        CheckCase{"Text36", u"-1"_s, Fault(CheckInteger(u"-1"_s, kNameWageCode, 2, false)), true},
        CheckCase{"Text37", u""_s, Fault(CheckInteger(u""_s, kNameDays, 3, false)), true},
        CheckCase{"Text38", u"1.000"_s, Fault(CheckDecimal(u"1.000"_s, kNameDailyWage, 8)), true},
        CheckCase{"Text39", u""_s, Fault(CheckDecimal(u""_s, kNameSalary, 8)), true},
        CheckCase{"Text40", u"1,234"_s, Fault(CheckDecimal(u"1,234"_s, kNameInsuredContr, 8)),
                  true},
        CheckCase{"Text41", u"x"_s, Fault(CheckDecimal(u"x"_s, kNameEmployerContr, 8)), true},
        CheckCase{"Text42", u"1234567890"_s,
                  Fault(CheckDecimal(u"1234567890"_s, kNameTotalContr, 9)), true},
        CheckCase{"Text43", u""_s, Fault(CheckDecimal(u""_s, kNameSubsidy, 8)), true},
        CheckCase{"Text44", u"1000"_s, Fault(CheckDecimal(u"1000"_s, kNameSubsidyPercent, 3)),
                  true},
        CheckCase{"Text45", u""_s, Fault(CheckDecimal(u""_s, kNameEmpSubsidy, 8)), true},
        CheckCase{"Text46", u"1234567890"_s, Fault(CheckDecimal(u"1234567890"_s, kNamePayed, 9)),
                  true}),
    [](const auto& info) {
      return std::string(info.param.field) + "_" + std::to_string(info.index);
    });

TEST_F(OvtForm2Test, ValidLinesPassAndTheFirstFailureWins) {
  Open();
  TypeValidLine();
  // Optional boxes left empty, small-letter choices, the period's both ends.
  for (const auto& [month, year] : {std::pair{u"01"_s, u"2002"_s}, std::pair{u"03"_s, u"2002"_s}}) {
    form_->Type(u"Text33_1"_s, month);
    form_->Type(u"Text33_2"_s, year);
    form_->Type(u"Text19"_s, u" "_s);
    form_->Type(u"Text28"_s, u"οχι"_s);
    EXPECT_TRUE(form_->CheckLine()) << dialogs_.LastMessage().toStdString();
  }
  form_->Type(u"Text33_1"_s, u"04"_s);  // after the period
  EXPECT_FALSE(form_->CheckLine());
  EXPECT_EQ(dialogs_.LastMessage(), kPeriodWrong);
  form_->Type(u"Text46"_s, u""_s);
  form_->Type(u"Text22"_s, u""_s);
  EXPECT_FALSE(form_->CheckLine());
  EXPECT_EQ(dialogs_.LastMessage(), kNameBlank);
}

TEST_F(OvtForm2Test, AnUnreadablePeriodIsAnUnknownError) {
  store_.vars.PeriodTo = u"ΧΧ2002"_s;
  Open();
  TypeValidLine();
  EXPECT_FALSE(form_->CheckLine());
  EXPECT_EQ(dialogs_.LastMessage(), header_texts::kUnknownFieldError);
  EXPECT_FALSE(dialogs_.busy);
}

}  // namespace
}  // namespace veroxia::testing
