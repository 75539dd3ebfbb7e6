// The header checks of the common-business screen: each rule in its place of
// the order, with the field name handed to the shared checks and where the
// focus goes; the stop date against the type; and the sequence runner itself.

#include <stdexcept>

#include "header/header_checks.h"
#include "header/ovt_form1_fixture.h"
#include "header/texts.h"
#include "shell/texts.h"
#include "support/rule_chain.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using namespace header_texts;
using namespace testing;

TEST_F(OvtForm1Test, RulesReportInOrderWithTheirMessagesAndFocus) {
  // clang-format off
  const std::vector<RuleStep> rules{
      {"Text2", u"12"_s, Integer(kNameOvtCode, 3, true), true, u"012"_s},
      {"Text3", u"   "_s, Fixed(kText3Blank), true, u"Αθηνών"_s},
      {"Text4", u""_s, Fixed(kText4Blank), true, u"Ηλίας Α.Ε."_s},
      {"FirstNmTxt", u"Νίκος2"_s, NoDigits(kNameFirstNm), true, u""_s},
      {"FatherNmTxt", u"Γ1ώργος"_s, NoDigits(kNameFatherNm), true, u"Γιώργος"_s},
      {"Text5", u"123456789"_s, Integer(kNameAme, 10, true), true, u"1234567890"_s},
      {"Text6", u"12345678"_s, Integer(kNameAfm, 9, true), true, u"123456789"_s},
      {"Text7", u" "_s, Fixed(kStreetBlank), false, u"Πατησίων"_s},
      {"Text9", u"1234"_s, Integer(kNameTk, 5, true), false, u"10434"_s},
      {"Text10", u""_s, Fixed(kCityBlank), false, u"Αθήνα"_s},
      {"Text14_1", u"1,5"_s, Integer(kNameDays, 8, false), true, u"12345678"_s},
      {"Text15_1", u"1.000"_s, Decimal(kNameSalaries, 10), true, u"1234567890,99"_s},
      {"Text16_1", u"1,234"_s, Decimal(kNameContributions, 10), true, u"0"_s},
      {"Text17_1", u""_s, Integer(kNameTotalDays, 8, false), true, u"0"_s},
      {"Text14_2", u"x"_s, Integer(kNameDays, 8, false), true, u"0"_s},
      {"Text15_2", u"12345678901"_s, Decimal(kNameSalaries, 10), true, u"0"_s},
      {"Text16_2", u"-5"_s, Decimal(kNameContributions, 10), true, u"0"_s},
      {"Text17_2", u"1E3"_s, Decimal(kNameTotalSalaries, 10), true, u"0"_s},
      {"Text14_3", u"5-"_s, Integer(kNameDays, 8, false), true, u"0"_s},
      {"Text15_3", u""_s, Decimal(kNameSalaries, 10), true, u"0"_s},
      {"Text16_3", u"abc"_s, Decimal(kNameContributions, 10), true, u"0"_s},
      {"Text17_3", u"12345678901"_s, Decimal(kNameTotalContributions, 10), true, u"0"_s},
      {"FlDateTxt", u"32/01/2002"_s, Date(kNameFlDate), true, u"12/05/20__"_s},
      {"FlDateTxt", u"12/05/20__"_s, Date(kNameFlDate), true, u"  /  /    "_s},
      {"StopDateTxt", u"15/03/2002"_s, Fixed(kStopDateNotIn01), true, kEmptyDateBox},
  };
  // clang-format on
  OvtForm1& form = Open();
  form.Type(u"Text8"_s, u""_s);  // the street number is not checked
  ExpectRulesInOrder(
      form, dialogs_, [&form] { return form.ValidateHeader(); }, rules);
}

// The stop date against the type chosen by the options, never the hidden code.
TEST_F(OvtForm1Test, StopDateFollowsTheChosenType) {
  const struct {
    int type;
    QString date;
    Fault message;
  } cases[] = {
      {0, u"32/13/2002"_s, kStopDateNotIn01},
      {1, kEmptyDateBox, kStopDateBlank},
      {1, u"32/01/2002"_s, CheckDate(u"32/01/2002"_s, kNameStopDate)},
      {1, u"15/03/2002"_s, std::nullopt},
      {2, u"15/03/2002"_s, kStopDateNotIn03},
      {2, kEmptyDateBox, std::nullopt},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.type);
    dialogs_.messages.clear();
    OvtForm1& form = Open();
    TypeValidHeader();
    form.Option1_Click(c.type);
    form.Type(u"Text1"_s, u"01"_s);
    form.Type(u"StopDateTxt"_s, c.date);
    EXPECT_EQ(form.ValidateHeader(), !c.message);
    EXPECT_EQ(dialogs_.messages.empty() ? Fault() : dialogs_.LastMessage(), c.message);
    if (c.message) {
      EXPECT_EQ(form.FocusedField(), u"StopDateTxt"_s);
    }
  }
}

// An unexpected error ends the checks with the unknown-error message alone.
TEST(HeaderChecks, UnexpectedErrorGivesTheUnknownErrorMessageOnly) {
  Form form;
  FakeDialogs dialogs;
  const HeaderCheck pass = [] { return std::optional<FieldFault>(); };
  const HeaderCheck fail = [] { return std::optional(FieldFault{u"Text2"_s, u"later"_s}); };
  EXPECT_FALSE(RunHeaderChecks(
      form, dialogs,
      {pass, [&]() -> std::optional<FieldFault> { throw std::runtime_error("x"); }, fail}));
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, kUnknownFieldError);
  EXPECT_EQ(dialogs.messages[0].title, texts::kAppTitle);
}

}  // namespace
}  // namespace veroxia
