// The header checks of the common-business screen: each rule on its field,
// the field names handed to the shared checks, where the focus goes, the stop
// date against the type, what may be left out; and the sequence runner
// itself. Their order is seen in the states' table.

#include <stdexcept>

#include "header/header_checks.h"
#include "header/ovt_form1_fixture.h"
#include "header/texts.h"
#include "rules/checks.h"
#include "shell/texts.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using namespace header_texts;

// The message a rule shows for the text of the field at fault.
using Says = std::function<Fault(const QString& text)>;

Says Fixed(const QString& message) {
  return [=](const QString&) { return Fault(message); };
}
Says Integer(const QString& name, int digits, bool exact) {
  return [=](const QString& text) { return CheckInteger(text, name, digits, exact); };
}
Says Decimal(const QString& name) {
  return [=](const QString& text) { return CheckDecimal(text, name, 10); };
}
Says NoDigits(const QString& name) {
  return [=](const QString& text) { return CheckNoDigits(text, name); };
}
Says Date(const QString& name) {
  return [=](const QString& text) { return CheckDate(text, name); };
}

struct CheckCase {
  const char* name;
  int type;           // the type option chosen
  const char* field;  // the one field typed over a valid header
  QString text;
  Says message;  // none: the header passes
  OnFault then = OnFault::Select;
  const char* at = nullptr;  // the field at fault, when not the typed one
};

void PrintTo(const CheckCase& c, std::ostream* out) { *out << c.name; }

constexpr OnFault kFocus = OnFault::Focus;

const CheckCase kCheckCases[] = {
    {"OvtCode", 0, "Text2", u"12"_s, Integer(kNameOvtCode, 3, true)},
    {"BranchBlank", 0, "Text3", u"   "_s, Fixed(kText3Blank)},
    {"EmployerBlank", 0, "Text4", u""_s, Fixed(kText4Blank)},
    {"FirstName", 0, "FirstNmTxt", u"Νίκος2"_s, NoDigits(kNameFirstNm)},
    {"FatherName", 0, "FatherNmTxt", u"Γ1ώργος"_s, NoDigits(kNameFatherNm)},
    {"Ame", 0, "Text5", u"123456789"_s, Integer(u"A.M.E."_s, 10, true)},
    {"Afm", 0, "Text6", u"12345678"_s, Integer(kNameAfm, 9, true)},
    {"StreetBlank", 0, "Text7", u" "_s, Fixed(kStreetBlank), kFocus},
    {"ZipCode", 0, "Text9", u"1234"_s, Integer(u"T.K."_s, 5, true), kFocus},
    {"CityBlank", 0, "Text10", u""_s, Fixed(kCityBlank), kFocus},
    {"Days1", 0, "Text14_1", u"1,5"_s, Integer(kNameDays, 8, false)},
    {"Salaries1", 0, "Text15_1", u"1.000"_s, Decimal(kNameSalaries)},
    {"Contributions1", 0, "Text16_1", u"1,234"_s, Decimal(kNameContributions)},
    {"TotalDays", 0, "Text17_1", u""_s, Integer(kNameTotalDays, 8, false)},
    {"Days2", 0, "Text14_2", u"x"_s, Integer(kNameDays, 8, false)},
    {"Salaries2", 0, "Text15_2", u"12345678901"_s, Decimal(kNameSalaries)},
    {"Contributions2", 0, "Text16_2", u"-5"_s, Decimal(kNameContributions)},
    {"TotalSalaries", 0, "Text17_2", u"1E3"_s, Decimal(kNameTotalSalaries)},
    {"Days3", 0, "Text14_3", u"5-"_s, Integer(kNameDays, 8, false)},
    {"Salaries3", 0, "Text15_3", u""_s, Decimal(kNameSalaries)},
    {"Contributions3", 0, "Text16_3", u"abc"_s, Decimal(kNameContributions)},
    {"TotalContributions", 0, "Text17_3", u"12345678901"_s, Decimal(kNameTotalContributions)},
    {"SubmissionDate", 0, "FlDateTxt", u"32/01/2002"_s, Date(kNameFlDate)},
    {"HalfTypedSubmissionDate", 0, "FlDateTxt", u"12/05/20__"_s, Date(kNameFlDate)},
    // The stop date: forbidden for types 01 and 03, a valid one needed for 02.
    {"RegularWithStopDate", 0, "StopDateTxt", u"15/03/2002"_s, Fixed(kStopDateNotIn01)},
    {"RegularWithBadStopDate", 0, "StopDateTxt", u"32/13/2002"_s, Fixed(kStopDateNotIn01)},
    {"ExtraordinaryWithout", 1, "StopDateTxt", kEmptyDateBox, Fixed(kStopDateBlank), kFocus},
    {"ExtraordinaryBadDay", 1, "StopDateTxt", u"32/01/2002"_s, Date(kNameStopDate)},
    {"ResubmissionWithStopDate", 2, "StopDateTxt", u"15/03/2002"_s, Fixed(kStopDateNotIn03)},
    // The type is read from the options, never from the hidden code.
    {"TypeFromTheOptions", 1, "Text1", u"01"_s, Fixed(kStopDateBlank), kFocus, "StopDateTxt"},
    // What may be left out or goes unchecked.
    {"Valid", 0, "Text8", u""_s, {}},
    {"DaysOfAnyLength", 0, "Text14_1", u"123456789012"_s, {}},
    {"TenDigitSalaries", 0, "Text15_1", u"1234567890,99"_s, {}},
    {"ValidSubmissionDate", 0, "FlDateTxt", u"31/12/2002"_s, {}},
    {"BlankSubmissionDate", 0, "FlDateTxt", u"  /  /    "_s, {}},
    {"ExtraordinaryWithStopDate", 1, "StopDateTxt", u"15/03/2002"_s, {}},
    {"ResubmissionWithout", 2, "StopDateTxt", kEmptyDateBox, {}},
};

class OvtForm1Checks : public testing::OvtForm1Test,
                       public ::testing::WithParamInterface<CheckCase> {};

TEST_P(OvtForm1Checks, FailureIsToldOnceOnItsFieldAndNothingIsStored) {
  const CheckCase& c = GetParam();
  OvtForm1& form = Open();
  TypeValidHeader();
  form.Option1_Click(c.type);
  form.At(QString::fromLatin1(c.field)).text = c.text;
  const QString field = QString::fromLatin1(c.at != nullptr ? c.at : c.field);
  const Fault expected = c.message ? c.message(form.Text(field)) : std::nullopt;
  ASSERT_EQ(expected.has_value(), static_cast<bool>(c.message)) << "the rule has nothing to say";
  EXPECT_EQ(form.ValidateHeader(), !expected);
  QStringList shown;
  for (const auto& message : dialogs_.messages) shown << message.title << message.text;
  EXPECT_EQ(shown, (expected ? QStringList{texts::kAppTitle, *expected} : QStringList()));
  if (expected) {
    EXPECT_EQ(form.FocusedField(), field);
    const auto selection = form.SelectionOf(field);
    const int whole = static_cast<int>(form.Text(field).size());
    EXPECT_EQ(selection ? selection->length : -1, c.then == OnFault::Select ? whole : -1);
  }
  form.SaveCmd_Click();
  EXPECT_EQ(HeaderCount(), expected ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(Rules, OvtForm1Checks, ::testing::ValuesIn(kCheckCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(HeaderChecks, UnexpectedErrorGivesTheUnknownErrorMessageOnly) {
  Form form;
  testing::FakeDialogs dialogs;
  bool later_rule_ran = false;
  EXPECT_FALSE(RunHeaderChecks(
      form, dialogs,
      {[]() -> std::optional<FieldFault> { return std::nullopt; },
       []() -> std::optional<FieldFault> { throw std::runtime_error("unreadable field"); },
       [&]() -> std::optional<FieldFault> {
         later_rule_ran = true;
         return FieldFault{u"Text2"_s, u"later"_s};
       }}));
  EXPECT_FALSE(later_rule_ran);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, kUnknownFieldError);
  EXPECT_EQ(dialogs.messages[0].title, texts::kAppTitle);
}

}  // namespace
}  // namespace veroxia
