// The states of the common-business header screen: which fields are unlocked,
// which buttons are shown and usable, what is told and which screen follows,
// on opening and after each button; the type selection and the cancelled
// correction. First the checks: each rule in its place of the order, the stop
// date against the type, and the sequence runner.

#include <map>
#include <stdexcept>

#include "filing/totals.h"
#include "filing/volume_check.h"
#include "header/header_checks.h"
#include "header/ovt_form1_fixture.h"
#include "header/texts.h"
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

struct StateCase {
  const char* name;
  const char* steps;  // the names of steps_, in order
  QStringList state;
  bool is_new_header;
  QStringList messages = {};  // the title and text of each message shown
  QStringList shown = {};     // the screens shown instead
};

void PrintTo(const StateCase& c, std::ostream* out) { *out << c.name; }

class OvtForm1States : public OvtForm1Test, public ::testing::WithParamInterface<StateCase> {
 protected:
  // Before "open" the steps prepare the store and the variables; after it
  // they type and press buttons.
  const std::map<QString, std::function<void()>> steps_{
      {u"row"_s, [this] { Store(StoredRow()); }},
      {u"previous"_s, [this] { Store(StoredRow(vars_.PreviousDeclarationId)); }},
      {u"carry"_s, [this] { vars_.CarryOver = true; }},
      {u"drop"_s, [this] { db_.Exec("DROP TABLE QOR_EMPLOYERS"); }},
      {u"vanish"_s, [this] { db_.Exec("DELETE FROM QOR_EMPLOYERS"); }},
      {u"open"_s, [this] { Open(); }},
      {u"valid"_s, [this] { TypeValidHeader(); }},
      {u"type02"_s, [this] { form_->Option1_Click(1); }},
      {u"blank"_s, [this] { form_->Type(u"Text3"_s, {}); }},
      {u"nocity"_s, [this] { form_->Type(u"Text10"_s, {}); }},
      {u"badtotal"_s, [this] { form_->Type(u"Text17_3"_s, u"x"_s); }},
      {u"save"_s, [this] { form_->SaveCmd_Click(); }},
      {u"update"_s, [this] { form_->UpDateCmd_Click(); }},
      {u"cancel"_s, [this] { form_->CancelCmd_Click(); }},
      {u"print"_s, [this] { form_->PrintCmd_Click(); }},
      {u"printsum"_s, [this] { form_->PrintSumCmd_Click(); }},
      {u"file"_s, [this] { form_->CreateFile_Click(); }},
      {u"totals"_s, [this] { form_->TotalsCmd_Click(); }},
      {u"volumes"_s,
       [this] {
         dialogs_.directories.push_back(medium_.path());
         form_->VolumesCmd_Click();
       }},
      {u"nomedium"_s, [this] { form_->VolumesCmd_Click(); }},
      {u"exit"_s, [this] { form_->ExitCmd_Click(); }},
      {u"employees"_s, [this] { form_->QorInsert_Click(); }},
  };
  QTemporaryDir medium_;  // holds no volume
};

const QString kNoTable = texts::kStoreOtherError.arg(1);
const QStringList kSaved{kSaveTitle, kSaveDone};
const QStringList kRefused{texts::kAppTitle, kNoTable};  // a store error: its own text alone
// The first line, then the store's error number and text.
QStringList Unreadable(const QString& first) {
  return {texts::kAppTitle,
          first + u"\r\n"_s + texts::kErrorCode + u"1\r\n"_s + texts::kErrorDescription + kNoTable};
}

// clang-format off
const StateCase kStateCases[] = {
    {"NewHeader", "open", kNewState, true},
    {"TakenOver", "previous carry open", kTakeoverState, true},
    {"StoredHeader", "row open", kViewState, false},
    {"Correcting", "row open update", kCorrectingState, false},
    {"CancelledCorrection", "row open update cancel", kViewState, false},
    {"NewHeaderSaved", "open valid save", kViewState, false, kSaved},
    {"TakenOverSaved", "previous carry open save", kViewState, false, kSaved},
    {"CorrectedRowVanished", "row open update valid vanish save", kViewState, false, {kSaveTitle, kSaveFailed}},
    // Only the first failure in the order of the checks is told.
    {"FailedCheck", "open valid type02 badtotal nocity blank save", kNewState, true, {texts::kAppTitle, kText3Blank}},
    {"FailedLaterCheck", "open valid type02 badtotal nocity save", kNewState, true, {texts::kAppTitle, kCityBlank}},
    {"InsertRefused", "open valid drop save", kNewState, true, kRefused},
    {"UpdateRefused", "row open update valid drop save", kCorrectingState, false, kRefused},
    // A store that cannot be read leaves only the return.
    {"Unreadable", "drop open", kLoadFailedState, false, Unreadable(kLoadFailed)},
    {"UnreadableTakeover", "drop carry open", kLoadFailedState, true, Unreadable(kLoadFailed)},
    // The declaration printout asks first (No), the summary goes to the
    // preview, the file asks about the totals first (No).
    {"FileAndPrintouts", "row open print printsum file", kViewState, false},
    // The totals in their window, or why they could not be compared.
    {"Totals", "row open totals", kViewState, false},
    {"TotalsUnreadable", "row open drop totals", kViewState, false, Unreadable(kTotalsNotCompared)},
    // The volumes of a chosen directory in their window; none chosen, nothing.
    {"Volumes", "row open volumes", kViewState, false},
    {"NoMedium", "row open nomedium", kViewState, false},
    {"VolumesUnreadable",
     "row open volumes drop volumes",
     kViewState,
     false,
     Unreadable(kVolumesNotChecked)},
    // The buttons that leave show the next screen, without a question.
    {"Returned", "open exit", kNewState, true, {}, {u"start"_s}},
    {"ToTheEmployees", "row open employees", kViewState, false, {}, {u"lines common"_s}},
};
// clang-format on

TEST_P(OvtForm1States, FieldsButtonsAndMessages) {
  const StateCase& c = GetParam();
  const QStringList steps = QString::fromLatin1(c.steps).split(u' ');
  for (const QString& step : steps) steps_.at(step)();
  EXPECT_EQ(State(), c.state);
  EXPECT_EQ(form_->IsNewHeader(), c.is_new_header);
  EXPECT_EQ(FakeDialogs::Told(dialogs_.messages), c.messages);
  EXPECT_EQ(screens_.shown, c.shown);
  EXPECT_EQ(form_->ClosingByCommand(), !c.shown.isEmpty());
  EXPECT_TRUE(c.shown.isEmpty() || form_->QueryClose());  // closes without a question
  // The file asks about the totals first, which a sample header never
  // agrees with; No stops it before the directory.
  EXPECT_EQ(dialogs_.questions.size(), size_t(steps.count(u"print"_s) + steps.count(u"file"_s)));
  EXPECT_EQ(dialogs_.printers.size(), size_t(steps.count(u"printsum"_s)));
  EXPECT_EQ(dialogs_.directories_asked, steps.count(u"volumes"_s) + steps.count(u"nomedium"_s));
  // A report shows for each check until the store's table is dropped.
  size_t reports = 0;
  for (const QString& step : steps) {
    if (step == u"drop"_s) break;
    reports += step == u"totals"_s || step == u"volumes"_s;
  }
  EXPECT_EQ(dialogs_.reports.size(), reports);
  if (c.name == std::string("Volumes")) {
    EXPECT_EQ(dialogs_.reports[0].title, kVolumesTitle);
    EXPECT_FALSE(dialogs_.reports[0].AllHold());  // no volume there
  }
  ExpectBusyBalanced();
}

INSTANTIATE_TEST_SUITE_P(Steps, OvtForm1States, ::testing::ValuesIn(kStateCases),
                         [](const auto& info) { return std::string(info.param.name); });

using OvtForm1Screen = OvtForm1Test;

// The options set the hidden code and description and grey the other two
// captions; the hidden code changed selects again only in the view state,
// leaving the options as they are.
TEST_F(OvtForm1Screen, TypeSelection) {
  const struct {
    bool stored;   // a header of type 02 is stored
    int option;    // clicked; -1: none
    QString code;  // typed into the hidden code; empty: nothing
    QString shown;
    int type;  // whose caption shows, and description unless the stored one shows
  } cases[] = {
      {false, -1, {}, u"01"_s, 0},      {false, 1, {}, u"02"_s, 1},
      {false, 2, {}, u"03"_s, 2},       {true, -1, {}, u"02"_s, 1},
      {true, -1, u"03"_s, u"03"_s, 2},  {true, -1, u"07"_s, u"01"_s, 0},
      {false, -1, u"02"_s, u"02"_s, 0},
  };
  const QString descriptions[] = {kType01Descr, kType02Descr, kType03Descr};
  Store(StoredRow());
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::Message() << c.stored << c.option << c.code.toStdString());
    vars_.DeclarationId = c.stored ? kId : kId + 1;
    OvtForm1& form = Open();
    if (c.option >= 0) form.Option1_Click(c.option);
    if (!c.code.isEmpty()) {
      form.Type(u"Text1"_s, c.code);
      form.Text1_Change();
    }
    EXPECT_EQ(form.Text(u"Text1"_s), c.shown);
    EXPECT_EQ(form.Text(u"KodDescr"_s),
              c.stored && c.code.isEmpty() ? *StoredRow().declaration_descr : descriptions[c.type]);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(form.At(u"Option1Lbl_%1"_s.arg(i)).enabled, i == c.type);
    EXPECT_EQ(form.SelectedType(), c.option >= 0 ? c.option : c.stored);  // the code selects none
  }
}

TEST_F(OvtForm1Screen, CorrectionStartsInTheBranchCodeAndCancelBringsBackTheStoredValues) {
  Store(StoredRow());
  OvtForm1& form = Open();
  const QStringList shown = Texts(form.Names());
  form.UpDateCmd_Click();
  EXPECT_EQ(form.FocusedField(), u"Text2"_s);
  EXPECT_EQ(form.SelectionOf(u"Text2"_s).value_or(Selection{}).length,
            std::min<qsizetype>(form.Text(u"Text2"_s).size(), 15));  // selected on arrival
  for (const QString& name : form.Layout().switched) {
    if (!name.startsWith(u"Option"_s)) form.Type(name, u"9"_s);
  }
  form.Option1_Click(2);
  form.CancelCmd_Click();
  EXPECT_EQ(Texts(form.Names()), shown);
  EXPECT_EQ(form.SelectedType(), 1);
}

}  // namespace
}  // namespace veroxia
