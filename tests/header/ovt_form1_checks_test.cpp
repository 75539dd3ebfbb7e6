// The header checks of the common-business screen: the rules in their order,
// the field names handed to the shared checks, where the focus goes, the
// stop date against the type, and the sequence runner itself.

#include <stdexcept>

#include "header/header_checks.h"
#include "header/ovt_form1_fixture.h"
#include "header/texts.h"
#include "rules/checks.h"
#include "shell/texts.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

class OvtForm1Checks : public testing::OvtForm1Test {
 protected:
  void SetUp() override {
    Open();
    TypeValidHeader();
  }
  // Runs the checks; on failure expects exactly one message of the
  // application's title and answers it.
  QString Failure() {
    EXPECT_FALSE(form_->ValidateHeader());
    EXPECT_EQ(dialogs_.messages.size(), 1u);
    if (dialogs_.messages.empty()) return {};
    EXPECT_EQ(dialogs_.messages[0].title, texts::kAppTitle);
    return dialogs_.messages[0].text;
  }
  void ExpectSelected(const QString& field, int length) {
    EXPECT_EQ(form_->FocusedField(), field);
    const auto selection = form_->SelectionOf(field);
    ASSERT_TRUE(selection.has_value()) << field.toStdString();
    EXPECT_EQ(selection->start, 0);
    EXPECT_EQ(selection->length, length);
  }
  void ExpectFocusOnly(const QString& field) {
    EXPECT_EQ(form_->FocusedField(), field);
    EXPECT_FALSE(form_->SelectionOf(field).has_value()) << field.toStdString();
  }
};

TEST_F(OvtForm1Checks, ValidHeaderPasses) {
  EXPECT_TRUE(form_->ValidateHeader());
  EXPECT_TRUE(dialogs_.messages.empty());
}

struct StepCase {
  int step;
  const char* field;
  QString typed;
  // The message the step must show, built with the field name the step
  // must hand to the shared check.
  std::function<Fault(const QString&)> message;
  OnFault then;
};

void PrintTo(const StepCase& step, std::ostream* out) { *out << "step " << step.step; }

class OvtForm1CheckSteps : public OvtForm1Checks, public ::testing::WithParamInterface<StepCase> {};

TEST_P(OvtForm1CheckSteps, SpoiledFieldIsReported) {
  const StepCase& step = GetParam();
  const QString field = QString::fromLatin1(step.field);
  form_->Type(field, step.typed);
  const Fault expected = step.message(form_->Text(field));
  ASSERT_TRUE(expected.has_value()) << "step " << step.step << " has nothing to report";
  EXPECT_EQ(Failure(), *expected) << "step " << step.step;
  if (step.then == OnFault::Select) {
    ExpectSelected(field, static_cast<int>(form_->Text(field).size()));
  } else {
    ExpectFocusOnly(field);
  }
  form_->SaveCmd_Click();  // a failed check stores nothing
  EXPECT_EQ(HeaderCount(), 0);
}

Fault Fixed(const QString& text) { return text; }

using namespace header_texts;
constexpr OnFault kSelect = OnFault::Select;
constexpr OnFault kFocus = OnFault::Focus;

auto Integer(const QString& name, int digits, bool exact) {
  return [=](const QString& text) { return CheckInteger(text, name, digits, exact); };
}
auto Decimal(const QString& name) {
  return [=](const QString& text) { return CheckDecimal(text, name, 10); };
}

INSTANTIATE_TEST_SUITE_P(
    OvtForm1Checks, OvtForm1CheckSteps,
    ::testing::Values(
        StepCase{1, "Text2", u"12"_s, Integer(kNameOvtCode, 3, true), kSelect},
        StepCase{2, "Text3", u"   "_s, [](const QString&) { return Fixed(kText3Blank); }, kSelect},
        StepCase{3, "Text4", u""_s, [](const QString&) { return Fixed(kText4Blank); }, kSelect},
        StepCase{4, "FirstNmTxt", u"Νίκος2"_s,
                 [](const QString& text) { return CheckNoDigits(text, kNameFirstNm); }, kSelect},
        StepCase{5, "FatherNmTxt", u"Γ1ώργος"_s,
                 [](const QString& text) { return CheckNoDigits(text, kNameFatherNm); }, kSelect},
        StepCase{6, "Text5", u"123456789"_s, Integer(u"A.M.E."_s, 10, true), kSelect},
        StepCase{7, "Text6", u"12345678"_s, Integer(kNameAfm, 9, true), kSelect},
        StepCase{8, "Text7", u" "_s, [](const QString&) { return Fixed(kStreetBlank); }, kFocus},
        StepCase{9, "Text9", u"1234"_s, Integer(u"T.K."_s, 5, true), kFocus},
        StepCase{10, "Text10", u""_s, [](const QString&) { return Fixed(kCityBlank); }, kFocus},
        StepCase{11, "Text14_1", u"1,5"_s, Integer(kNameDays, 8, false), kSelect},
        StepCase{12, "Text15_1", u"1.000"_s, Decimal(kNameSalaries), kSelect},
        StepCase{13, "Text16_1", u"1,234"_s, Decimal(kNameContributions), kSelect},
        StepCase{14, "Text17_1", u""_s, Integer(kNameTotalDays, 8, false), kSelect},
        StepCase{15, "Text14_2", u"x"_s, Integer(kNameDays, 8, false), kSelect},
        StepCase{16, "Text15_2", u"12345678901"_s, Decimal(kNameSalaries), kSelect},
        StepCase{17, "Text16_2", u"-5"_s, Decimal(kNameContributions), kSelect},
        StepCase{18, "Text17_2", u"1E3"_s, Decimal(kNameTotalSalaries), kSelect},
        StepCase{19, "Text14_3", u"5-"_s, Integer(kNameDays, 8, false), kSelect},
        StepCase{20, "Text15_3", u""_s, Decimal(kNameSalaries), kSelect},
        StepCase{21, "Text16_3", u"abc"_s, Decimal(kNameContributions), kSelect},
        StepCase{22, "Text17_3", u"12345678901"_s, Decimal(kNameTotalContributions), kSelect},
        StepCase{23, "FlDateTxt", u"32/01/2002"_s,
                 [](const QString& text) { return CheckDate(text, kNameFlDate); }, kSelect}),
    [](const auto& info) {
      return "Step" + std::to_string(info.param.step) + "_" + info.param.field;
    });

TEST_F(OvtForm1Checks, OnlyTheFirstFailureInTheOrderIsReported) {
  form_->Type(u"Text10"_s, u""_s);
  form_->Type(u"Text17_3"_s, u"x"_s);
  form_->Type(u"Text2"_s, u"1"_s);
  form_->Option1_Click(1);  // and no stop date
  EXPECT_EQ(Failure(), *CheckInteger(u"1"_s, kNameOvtCode, 3, true));
  EXPECT_EQ(form_->FocusedField(), u"Text2"_s);
  dialogs_.messages.clear();
  form_->Type(u"Text2"_s, u"123"_s);
  EXPECT_EQ(Failure(), kCityBlank);
}

TEST_F(OvtForm1Checks, WhatMayBeLeftOutOrGoesUnchecked) {
  form_->Type(u"FirstNmTxt"_s, u"   "_s);
  form_->Type(u"FatherNmTxt"_s, u""_s);
  form_->Type(u"Text8"_s, u""_s);
  form_->Type(u"FlDateTxt"_s, u"__/__/____"_s);
  form_->At(u"Text14_1"_s).text = u"123456789012"_s;  // days: the count is not exact
  form_->Type(u"Text17_1"_s, u"1"_s);
  form_->Type(u"Text15_1"_s, u"1234567890,99"_s);
  form_->Type(u"Text16_3"_s, u"0,5"_s);
  form_->Type(u"Text17_2"_s, u"999"_s);  // no rule compares totals with the months
  form_->Type(u"FirstNmTxt"_s, u"Νίκος"_s);
  form_->Type(u"FlDateTxt"_s, u"31/12/2002"_s);
  EXPECT_TRUE(form_->ValidateHeader());
  EXPECT_TRUE(dialogs_.messages.empty()) << dialogs_.LastMessage().toStdString();
}

TEST_F(OvtForm1Checks, HalfTypedSubmissionDateFailsAsADate) {
  form_->Type(u"FlDateTxt"_s, u"12/05/20__"_s);
  const Fault expected = CheckDate(u"12/05/20__"_s, kNameFlDate);
  ASSERT_TRUE(expected.has_value());
  EXPECT_EQ(Failure(), *expected);
  ExpectSelected(u"FlDateTxt"_s, 10);
}

struct StopCase {
  int type;
  const char* stop_date;
  // Empty: the header passes. "date": the shared date message.
  QString message;
  OnFault then;
  const char* name;
};

void PrintTo(const StopCase& stop, std::ostream* out) { *out << stop.name; }

class OvtForm1StopDate : public OvtForm1Checks, public ::testing::WithParamInterface<StopCase> {};

TEST_P(OvtForm1StopDate, DependsOnTheSelectedType) {
  const StopCase& stop = GetParam();
  form_->Option1_Click(stop.type);
  form_->Type(u"StopDateTxt"_s, QString::fromLatin1(stop.stop_date));
  if (stop.message.isEmpty()) {
    EXPECT_TRUE(form_->ValidateHeader());
    EXPECT_TRUE(dialogs_.messages.empty()) << dialogs_.LastMessage().toStdString();
    return;
  }
  QString expected = stop.message;
  if (expected == u"date"_s) {
    const Fault date = CheckDate(QString::fromLatin1(stop.stop_date), kNameStopDate);
    ASSERT_TRUE(date.has_value());
    expected = *date;
  }
  EXPECT_EQ(Failure(), expected);
  if (stop.then == OnFault::Select) {
    ExpectSelected(u"StopDateTxt"_s, 10);
  } else {
    ExpectFocusOnly(u"StopDateTxt"_s);
  }
}

INSTANTIATE_TEST_SUITE_P(
    OvtForm1Checks, OvtForm1StopDate,
    ::testing::Values(StopCase{0, "__/__/____", {}, kSelect, "Regular_Empty"},
                      StopCase{0, "15/03/2002", kStopDateNotIn01, kSelect, "Regular_Valid"},
                      StopCase{0, "32/13/2002", kStopDateNotIn01, kSelect, "Regular_Invalid"},
                      StopCase{1, "__/__/____", kStopDateBlank, kFocus, "Extraordinary_Empty"},
                      StopCase{1, "15/03/2002", {}, kSelect, "Extraordinary_Valid"},
                      StopCase{1, "32/01/2002", u"date"_s, kSelect, "Extraordinary_BadDay"},
                      StopCase{1, "15/13/2002", u"date"_s, kSelect, "Extraordinary_BadMonth"},
                      StopCase{1, "15/03/____", u"date"_s, kSelect, "Extraordinary_HalfTyped"},
                      StopCase{2, "__/__/____", {}, kSelect, "Resubmission_Empty"},
                      StopCase{2, "15/03/2002", kStopDateNotIn03, kSelect, "Resubmission_Valid"},
                      StopCase{2, "99/99/9999", kStopDateNotIn03, kSelect, "Resubmission_Invalid"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(OvtForm1Checks, TheTypeIsReadFromTheOptionsNotFromTheHiddenCode) {
  form_->Option1_Click(1);
  form_->Type(u"Text1"_s, u"01"_s);
  EXPECT_EQ(Failure(), kStopDateBlank);
}

// The sequence runner shared by both header screens.
class HeaderChecks : public ::testing::Test {
 protected:
  class Screen : public Form {
   public:
    Screen() {
      Declare(u"A"_s, u"abc"_s);
      Declare(u"B"_s, u"defgh"_s);
    }
  };
  Screen form_;
  testing::FakeDialogs dialogs_;
};

TEST_F(HeaderChecks, UnexpectedErrorGivesTheUnknownErrorMessageOnly) {
  bool later_rule_ran = false;
  const bool passed = RunHeaderChecks(
      form_, dialogs_,
      {[]() -> std::optional<FieldFault> { return std::nullopt; },
       []() -> std::optional<FieldFault> { throw std::runtime_error("unreadable field"); },
       [&]() -> std::optional<FieldFault> {
         later_rule_ran = true;
         return FieldFault{u"A"_s, u"later"_s};
       }});
  EXPECT_FALSE(passed);
  EXPECT_FALSE(later_rule_ran);
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_EQ(dialogs_.messages[0].text, header_texts::kUnknownFieldError);
  EXPECT_EQ(dialogs_.messages[0].title, texts::kAppTitle);
}

}  // namespace
}  // namespace veroxia
