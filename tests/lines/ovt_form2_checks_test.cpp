// The line checks: each rule in its place of the order, with its message and
// where it leaves the focus; the period's both ends; an unreadable period.

#include "header/texts.h"
#include "lines/ovt_form2_fixture.h"
#include "lines/texts.h"
#include "shell/texts.h"
#include "support/rule_chain.h"

namespace veroxia::testing {
namespace {

using namespace lines_texts;

// Every rule in its place, with a text it refuses and the one typed after.
TEST_F(OvtForm2Test, RulesReportInOrderWithTheirMessagesAndFocus) {
  const QString bad_date = u"31/13/2001"_s;
  // clang-format off
  const std::vector<RuleStep> rules{
      {"Text18_1", u""_s, Integer(kNameBranch, 4, true), true, u"0001"_s},
      {"Text18_2", u"55"_s, Integer(kNameKad, 4, true), true, u"5510"_s},
      {"Text19", u"12345678"_s, Integer(kNameInsuredId, 9, true), true, u""_s},
      {"Text20", u"1234567890"_s, Integer(kNameAmka, 11, true), true, u""_s},
      {"Text21", u"   "_s, Fixed(kSurnameBlank), false, u"Παπα3"_s},
      {"Text21", u"Παπα3"_s, NoDigits(kNameSurname), true, u"Παπάς"_s},
      {"Text22", u""_s, Fixed(kNameBlank), false, u"Ι1"_s},
      {"Text22", u"Ι1"_s, NoDigits(kNameName), true, u"Ιωάννης"_s},
      {"Text23", u""_s, Fixed(kFatherBlank), false, u"Ν1"_s},
      {"Text23", u"Ν1"_s, NoDigits(kNameFather), true, u"Νίκος"_s},
      {"Text24", u""_s, Fixed(kMotherBlank), false, u"Μ2"_s},
      {"Text24", u"Μ2"_s, NoDigits(kNameMother), true, u"Μαρία"_s},
      {"Text25", u"__/__/____"_s, Fixed(kBirthBlank), false, u"05/03/19__"_s},
      {"Text25", u"05/03/19__"_s, Date(kNameBirth), true, u"05/03/1970"_s},
      {"Text26", u"12345678"_s, Integer(kNameAfm, 9, true), true, u"123456789"_s},
      {"Text27", u" "_s, Fixed(kFullDayBlank), true, u"ΙΣΩΣ"_s},
      {"Text27", u"ΙΣΩΣ"_s, Fixed(kFullDayYesNo), true, u"ναι"_s},
      {"Text28", u"ΝΑΙΙ"_s, Fixed(kAllDaysYesNo), true, u"οχι"_s},
      {"Text29", u"x"_s, Integer(kNameSundays, 1, true), true, u"0"_s},
      {"Text30", u"12a"_s, Integer(kNameCategory, 6, false), true, u"913000"_s},
      {"Text31", u"1x"_s, Integer(kNameSpecial, 2, false), true, u""_s},
      {"Text32", u""_s, Integer(kNameCover, 4, false), true, u"101"_s},
      {"Text33_1", u""_s, Fixed(kMonthBlank), false, u"3"_s},
      {"Text33_1", u"3"_s, Fixed(kMonthLength), true, u"13"_s},
      {"Text33_1", u"13"_s, Fixed(kMonthWrong), true, u"00"_s},
      {"Text33_1", u"00"_s, Fixed(kMonthWrong), true, u"12"_s},
      {"Text33_2", u""_s, Fixed(kYearBlank), false, u"ΑΒΓΔ"_s},
      {"Text33_2", u"ΑΒΓΔ"_s, Fixed(kYearNumeric), true, u"02"_s},
      {"Text33_2", u"02"_s, Fixed(kYearLength), true, u"2002"_s},
      {"Text33_1", u"12"_s, Fixed(kPeriodWrong), false, u"03"_s},  // 12/2002 is after the period
      {"Text34", bad_date, Date(kNameSalFrom), true, u"__/__/____"_s},
      {"Text35", bad_date, Date(kNameSalTo), true, u"28/02/2002"_s},
      {"Text36", u"-1"_s, Integer(kNameWageCode, 2, false), true, u"01"_s},
      {"Text37", u""_s, Integer(kNameDays, 3, false), true, u"25"_s},
      {"Text38", u"1.000"_s, Decimal(kNameDailyWage, 8), true, u""_s},
      {"Text39", u""_s, Decimal(kNameSalary, 8), true, u"1000,50"_s},
      {"Text40", u"1,234"_s, Decimal(kNameInsuredContr, 8), true, u"160"_s},
      {"Text41", u"x"_s, Decimal(kNameEmployerContr, 8), true, u"280,5"_s},
      {"Text42", u"1234567890"_s, Decimal(kNameTotalContr, 9), true, u"440,5"_s},
      {"Text43", u""_s, Decimal(kNameSubsidy, 8), true, u"1"_s},
      {"Text44", u"1000"_s, Decimal(kNameSubsidyPercent, 3), true, u"2"_s},
      {"Text45", u""_s, Decimal(kNameEmpSubsidy, 8), true, u"3"_s},
      {"Text46", u"1234567890"_s, Decimal(kNamePayed, 9), true, u"440,5"_s},
  };
  // clang-format on
  OvtForm2& form = Open();
  ExpectRulesInOrder(
      form, dialogs_, [&form] { return form.CheckLine(); }, rules);
  EXPECT_FALSE(dialogs_.busy);
}

TEST_F(OvtForm2Test, ThePeriodTakesBothItsEnds) {
  Open();
  TypeValidLine();
  for (const char* month : {"01", "03"}) {
    form_->Type(u"Text33_1"_s, QString::fromLatin1(month));
    EXPECT_TRUE(form_->CheckLine()) << dialogs_.LastMessage().toStdString();
  }
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
