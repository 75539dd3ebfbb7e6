// The common-business header screen: each rule in its place of the order, the
// stop date against the type; which fields are unlocked, which buttons are
// shown and usable, what is told and which screen follows, on opening and
// after each button; the type selection and the cancelled correction; every
// field stored in its column and shown from it, and the header taken over.
// Then the construction-works header where it differs: its rules (the code
// page's last), how the first save and a correction store the columns, the
// branch code shown with three digits, the one month, the takeover, and the
// store error's message.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <map>
#include <optional>

#include "filing/totals.h"
#include "filing/volume_check.h"
#include "header/date_box.h"
#include "header/ovt_form1.h"
#include "header/ovt_form3.h"
#include "header/texts.h"
#include "shell/errors.h"
#include "support/rule_chain.h"
#include "support/screen_test.h"
#include "support/store_rows.h"

namespace veroxia::testing {
namespace {

using namespace header_texts;

// A header screen of either kind over its own temporary store; for the
// common one, a header that passes every check, the state of the fields and
// buttons as one list, and the stored header rows.
template <class Screen>
class HeaderTest : public ScreenTest<Screen> {
 protected:
  HeaderTest(int id, const QString& from, const QString& to) {
    this->vars_.DeclarationId = id;
    this->vars_.PreviousDeclarationId = id - 1;
    this->vars_.PeriodFrom = from;
    this->vars_.PeriodTo = to;
  }
};

// Fields never unlocked, and the two never shown (all others always are).
inline const QStringList kAlwaysLocked{u"Text11_1"_s, u"Text11_2"_s, u"Text12_1"_s, u"Text12_2"_s,
                                       u"Text13_1"_s, u"Text13_2"_s, u"Text13_3"_s};
inline const QStringList kHidden{u"Text1"_s, u"KodDescr"_s};
inline const QStringList kButtons{u"SaveCmd"_s, u"UpDateCmd"_s, u"ExitCmd"_s, u"CancelCmd"_s};
inline const QStringList kActions{u"QorInsert"_s,  u"PrintCmd"_s,  u"PrintSumCmd"_s,
                                  u"CreateFile"_s, u"TotalsCmd"_s, u"VolumesCmd"_s};

// A state as State() lists it: "fields" (all unlocked) or "locked", the
// buttons shown, and the action buttons, a greyed one marked with "-".
inline QStringList StateOf(bool fields, const QString& buttons, bool actions) {
  QStringList state{fields ? u"fields"_s : u"locked"_s};
  state << buttons.split(u' ');
  for (const QString& name : kActions) state << (actions ? name : name + u'-');
  return state;
}
inline const QStringList kNewState = StateOf(true, u"SaveCmd ExitCmd"_s, false);
inline const QStringList kTakeoverState = StateOf(false, u"SaveCmd ExitCmd"_s, false);
inline const QStringList kViewState = StateOf(false, u"UpDateCmd ExitCmd"_s, true);
inline const QStringList kCorrectingState = StateOf(true, u"SaveCmd CancelCmd"_s, false);
inline const QStringList kLoadFailedState = StateOf(false, u"ExitCmd"_s, false);

class OvtForm1Test : public HeaderTest<OvtForm1> {
 protected:
  static constexpr int kId = 7;
  OvtForm1Test() : HeaderTest(kId, u"012002"_s, u"032002"_s) {}

  // Types a header that passes every check: type 01, no dates, totals 0.
  void TypeValidHeader() {
    // clang-format off
    const std::pair<const char*, QString> typed[] = {
        {"Text2", u"123"_s}, {"Text3", u"Αθηνών"_s}, {"Text4", u"Ηλίας Α.Ε."_s},
        {"FirstNmTxt", {}}, {"FatherNmTxt", {}}, {"Text5", u"1234567890"_s},
        {"Text6", u"094014201"_s}, {"Text7", u"Πατησίων"_s}, {"Text8", {}}, {"Text9", u"10434"_s},
        {"Text10", u"Αθήνα"_s}, {"FlDateTxt", kEmptyDateBox}, {"StopDateTxt", kEmptyDateBox}};
    // clang-format on
    for (const auto& [field, text] : typed) form_->Type(QString::fromLatin1(field), text);
    for (int row = 14; row <= 17; ++row) {
      for (int month = 1; month <= 3; ++month)
        form_->Type(u"Text%1_%2"_s.arg(row).arg(month), u"0"_s);
    }
    form_->Option1_Click(0);
  }

  // A header of type 02 whose other columns hold values of their own, none
  // of which would pass the checks.
  EmployerRow StoredRow(int id = kId) {
    auto row = Sample<EmployerRow>(id);
    row.declaration_type = u"02"_s;
    return row;
  }
  void Store(const EmployerRow& row) { ASSERT_EQ(InsertRow(db_, row), 1); }
  std::optional<EmployerRow> Stored(int id = kId) { return SelectHeader<EmployerRow>(db_, id); }

  // The state the user sees, listed as StateOf lists it; anything out of
  // place (a field left locked, a field shown or hidden wrongly) is listed too.
  QStringList State() const {
    const auto enabled = [this](const QString& name) { return form_->At(name).enabled; };
    const QStringList& switched = form_->Layout().switched;
    const auto on = std::count_if(switched.begin(), switched.end(), enabled);
    QStringList state{on == switched.size() ? u"fields"_s
                      : on == 0             ? u"locked"_s
                                            : u"half locked"_s};
    for (const QString& name : kAlwaysLocked) {
      if (enabled(name)) state << name + u" unlocked"_s;
    }
    for (const HeaderField& field : form_->Layout().fields) {
      const bool shown = form_->At(field.name).visible;
      if (shown == kHidden.contains(field.name))
        state << field.name + (shown ? u" shown"_s : u" hidden"_s);
    }
    for (const QString& name : kButtons + kActions) {
      if (form_->At(name).visible) state << (enabled(name) ? name : name + u'-');
    }
    return state;
  }
};

TEST_F(OvtForm1Test, RulesReportInOrderWithTheirMessagesAndFocus) {
  // clang-format off
  const std::vector<RuleStep> rules{
      {"Text2", u"12"_s, Integer(kNameOvtCode, 3, true), true, u"012"_s}, {"Text3", u"   "_s, Fixed(kText3Blank), true, u"Αθηνών"_s},
      {"Text4", u""_s, Fixed(kText4Blank), true, u"Ηλίας Α.Ε."_s}, {"FirstNmTxt", u"Νίκος2"_s, NoDigits(kNameFirstNm), true, u""_s},
      {"FatherNmTxt", u"Γ1ώργος"_s, NoDigits(kNameFatherNm), true, u"Γιώργος"_s},
      {"Text5", u"123456789"_s, Integer(kNameAme, 10, true), true, u"1234567890"_s},
      {"Text6", u"12345678"_s, Integer(kNameAfm, 9, true), true, u"123456789"_s},
      {"Text7", u" "_s, Fixed(kStreetBlank), false, u"Πατησίων"_s}, {"Text9", u"1234"_s, Integer(kNameTk, 5, true), false, u"10434"_s},
      {"Text10", u""_s, Fixed(kCityBlank), false, u"Αθήνα"_s}, {"Text14_1", u"1,5"_s, Integer(kNameDays, 8, false), true, u"12345678"_s},
      {"Text15_1", u"1.000"_s, Decimal(kNameSalaries, 10), true, u"1234567890,99"_s},
      {"Text16_1", u"1,234"_s, Decimal(kNameContributions, 10), true, u"0"_s},
      {"Text17_1", u""_s, Integer(kNameTotalDays, 8, false), true, u"0"_s},
      {"Text14_2", u"x"_s, Integer(kNameDays, 8, false), true, u"0"_s},
      {"Text15_2", u"12345678901"_s, Decimal(kNameSalaries, 10), true, u"0"_s},
      {"Text16_2", u"-5"_s, Decimal(kNameContributions, 10), true, u"0"_s},
      {"Text17_2", u"1E3"_s, Decimal(kNameTotalSalaries, 10), true, u"0"_s},
      {"Text14_3", u"5-"_s, Integer(kNameDays, 8, false), true, u"0"_s}, {"Text15_3", u""_s, Decimal(kNameSalaries, 10), true, u"0"_s},
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
      // clang-format off
      {0, u"32/13/2002"_s, kStopDateNotIn01}, {1, kEmptyDateBox, kStopDateBlank},
      {1, u"32/01/2002"_s, CheckDate(u"32/01/2002"_s, kNameStopDate)},
      {1, u"15/03/2002"_s, std::nullopt}, {2, u"15/03/2002"_s, kStopDateNotIn03},
      {2, kEmptyDateBox, std::nullopt},
      // clang-format on
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
  // clang-format off
  const std::map<QString, std::function<void()>> steps_{
      {u"row"_s, [this] { Store(StoredRow()); }}, {u"carry"_s, [this] { vars_.CarryOver = true; }},
      {u"previous"_s, [this] { Store(StoredRow(vars_.PreviousDeclarationId)); }},
      {u"drop"_s, [this] { db_.Exec("DROP TABLE QOR_EMPLOYERS"); }},
      {u"vanish"_s, [this] { db_.Exec("DELETE FROM QOR_EMPLOYERS"); }},
      {u"open"_s, [this] { Open(); }}, {u"valid"_s, [this] { TypeValidHeader(); }},
      {u"type02"_s, [this] { form_->Option1_Click(1); }}, {u"blank"_s, [this] { form_->Type(u"Text3"_s, {}); }},
      {u"nocity"_s, [this] { form_->Type(u"Text10"_s, {}); }}, {u"badtotal"_s, [this] { form_->Type(u"Text17_3"_s, u"x"_s); }},
      {u"save"_s, [this] { form_->SaveCmd_Click(); }}, {u"update"_s, [this] { form_->UpDateCmd_Click(); }},
      {u"cancel"_s, [this] { form_->CancelCmd_Click(); }}, {u"print"_s, [this] { form_->PrintCmd_Click(); }},
      {u"printsum"_s, [this] { form_->PrintSumCmd_Click(); }}, {u"file"_s, [this] { form_->CreateFile_Click(); }},
      {u"totals"_s, [this] { form_->TotalsCmd_Click(); }}, {u"nomedium"_s, [this] { form_->VolumesCmd_Click(); }},
      {u"volumes"_s, [this] { dialogs_.directories.push_back(medium_.path()); form_->VolumesCmd_Click(); }},
      {u"exit"_s, [this] { form_->ExitCmd_Click(); }}, {u"employees"_s, [this] { form_->QorInsert_Click(); }},
  };
  // clang-format on
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
    {"StoredHeader", "row open", kViewState, false}, {"Correcting", "row open update", kCorrectingState, false},
    {"CancelledCorrection", "row open update cancel", kViewState, false},
    {"NewHeaderSaved", "open valid save", kViewState, false, kSaved},
    {"TakenOverSaved", "previous carry open save", kViewState, false, kSaved},
    {"CorrectedRowVanished", "row open update valid vanish save", kViewState, false, {kSaveTitle, kSaveFailed}},
    // Only the first failure in the order of the checks is told; a store
    // error leaves the correction open.
    {"FailedCheck", "open valid type02 badtotal nocity blank save", kNewState, true, {texts::kAppTitle, kText3Blank}},
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
    {"Volumes", "row open volumes", kViewState, false}, {"NoMedium", "row open nomedium", kViewState, false},
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
  // The busy pointer was put on as often as it was taken off, and is off.
  const auto busy = std::count(dialogs_.busy_calls.begin(), dialogs_.busy_calls.end(), true);
  EXPECT_EQ(2 * busy, static_cast<long>(dialogs_.busy_calls.size()));
  EXPECT_FALSE(dialogs_.busy);
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

using OvtForm1Store = OvtForm1Test;

// A new header, taken over or not, opens with the period of the start screen
// and its months, and the pictures found beside the program; a header taken
// over from none keeps the opening values.
TEST_F(OvtForm1Store, NewHeaderShowsThePeriodOfTheStartScreenAndItsMonths) {
  // The period boxes, then the three month labels.
  const std::pair<bool, QStringList> periods[] = {
      {false, {"05", "2003", "05", "2003", "05/2003", "", ""}},
      {true, {"01", "2002", "03", "2002", "01/2002", "02/2002", "03/2002"}},
  };
  const QDir dir(store_.Dir());
  for (const char* name : {"ovt2.gif", "qormain.ico"})
    ASSERT_TRUE(QFile(dir.filePath(QString::fromLatin1(name))).open(QIODevice::WriteOnly));
  vars_.PreviousDeclarationId = 3;  // none is stored
  for (const auto& [carry_over, shown] : periods) {
    vars_.PeriodFrom = shown[0] + shown[1];
    vars_.PeriodTo = shown[2] + shown[3];
    vars_.CarryOver = carry_over;
    OvtForm1& form = Open();
    EXPECT_EQ(Texts({"Text1", "Text4", "Text14_1", "Text11_1", "Text11_2", "Text12_1", "Text12_2",
                     "Text13_1", "Text13_2", "Text13_3"}),
              QStringList({u"01"_s, {}, u"0"_s}) + shown);
    EXPECT_TRUE(form.IsNewHeader());
    EXPECT_EQ(State(), carry_over ? kTakeoverState : kNewState);
    EXPECT_EQ(form.Title(), kOvtForm1Title);
    EXPECT_EQ(QFileInfo(form.ImagePath()), QFileInfo(dir.filePath(u"ovt2.gif"_s)));
    EXPECT_EQ(QFileInfo(form.IconPath()), QFileInfo(dir.filePath(u"qormain.ico"_s)));
  }
}

struct ColumnCase {
  const char *field, *column;
  const char16_t* typed;
  const char16_t* stored = nullptr;  // none: as typed
  const char16_t* shown = nullptr;   // none: as stored, trimmed
};

// Text columns take the text as typed; clean ones lose accents and blanks
// and are capitals; a date box stores nothing or all it shows. The stored
// period 02/2003 wins over the start screen's, and the month labels follow it.
const ColumnCase kColumns[] = {
    // clang-format off
    {"Text1", "declaration_type", u"02"},
    {"KodDescr", "declaration_descr", u" ΕΚΤΑΚΤΗ "}, {"Text2", "orgbra_branch_code", u" 12"},
    {"Text3", "orgbra_branch_descr", u" αθηνών' OR '1'='1 ", u"ΑΘΗΝΩΝ' OR '1'='1"},
    {"Text4", "employer_name", u"Ηλίας & Υιοί ο.ε.", u"ΗΛΙΑΣ & ΥΙΟΙ Ο.Ε."},
    {"Text5", "emp_employer_id", u" 012345678"}, {"Text6", "taxation_number", u"12345678 "},
    {"Text7", "address_street", u"Ώρας Προϊόντων 50%", u"ΩΡΑΣ ΠΡΟΪΟΝΤΩΝ 50%"},
    {"Text8", "num", u"12α ", u"12Α"}, {"Text9", "zip_code", u"104 3"},
    {"Text10", "city", u"x'); DROP TABLE x; --", u"X'); DROP TABLE X; --"},
    {"Text11_1", "from_month", u"02"}, {"Text11_2", "from_year", u"2003"},
    {"Text12_1", "to_month", u"02"}, {"Text12_2", "to_year", u"2003"},
    {"Text14_1", "total_days1", u"11"}, {"Text14_2", "total_days2", u"12"},
    {"Text14_3", "total_days3", u"13"}, {"Text17_1", "total_days", u" 99"},
    {"Text15_1", "total_salaries1", u"1,5"}, {"Text15_2", "total_salaries2", u"2,50"},
    {"Text15_3", "total_salaries3", u"3"}, {"Text17_2", "total_salaries", u"1000,99"},
    {"Text16_1", "total_contributions1", u"4"}, {"Text16_2", "total_contributions2", u"5"},
    {"Text16_3", "total_contributions3", u"6"}, {"Text17_3", "total_contributions", u"0"},
    {"Text13_1", "saldate1", u"stale 1", nullptr, u"02/2003"}, {"Text13_2", "saldate2", u"stale 2", nullptr, u""},
    {"Text13_3", "saldate3", u"stale 3", nullptr, u""}, {"FirstNmTxt", "emp_first_name", u"Σπύρος", u"ΣΠΥΡΟΣ"},
    {"FatherNmTxt", "emp_father_name", u"Ευάγγελος", u"ΕΥΑΓΓΕΛΟΣ"}, {"FlDateTxt", "CreateFlDate", u"08/05/20__"},
    {"StopDateTxt", "stop_date", u"__/__/____", u"", u"__/__/____"},
    // clang-format on
};

TEST_F(OvtForm1Store, EveryFieldIsStoredInItsColumnAndShownFromIt) {
  Store(StoredRow(kId + 1));  // a neighbour no statement may touch
  const auto neighbour = Stored(kId + 1);
  for (const bool update : {false, true}) {
    SCOPED_TRACE(update ? "UPDATE" : "INSERT");
    OvtForm1& form = Open();
    if (update) form.UpDateCmd_Click();
    for (const ColumnCase& c : kColumns)
      form.At(QString::fromLatin1(c.field)).text = QString::fromUtf16(c.typed);
    dialogs_.messages.clear();
    form.SaveData();
    EXPECT_EQ(dialogs_.LastMessage(), kSaveDone);
    const auto stored = Stored();
    ASSERT_TRUE(stored.has_value());
    const ColumnValues values = ColumnValuesOf(*stored);
    EXPECT_EQ(values.size(), std::size(kColumns));  // no column left out
    Open();
    for (const ColumnCase& c : kColumns) {
      const QString column = QString::fromUtf16(c.stored != nullptr ? c.stored : c.typed);
      EXPECT_EQ(ValueOf(values, QString::fromLatin1(c.column)), column) << c.column;
      const QString shown = c.shown != nullptr ? QString::fromUtf16(c.shown) : column.trimmed();
      EXPECT_EQ(form_->Text(QString::fromLatin1(c.field)), shown) << c.field;
    }
  }
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYERS").size(), 2u);
  EXPECT_EQ(ValuesOf(*Stored(kId + 1)), ValuesOf(*neighbour));
}

// A header of Null columns (a stored code the options do not know is the
// type selection's) shows the regular type and empty fields.
TEST_F(OvtForm1Store, NullColumnsShowTheRegularTypeAndEmptyFields) {
  EmployerRow row;
  row.id = kId;
  Store(row);
  OvtForm1& form = Open();
  EXPECT_EQ(form.SelectedType(), 0);
  EXPECT_EQ(Texts({"Text1", "KodDescr", "Text4", "Text14_1", "FlDateTxt", "StopDateTxt"}),
            (QStringList{u"01"_s, {}, {}, {}, kEmptyDateBox, kEmptyDateBox}));
}

// Stored unchecked, with the period of the start screen, no dates and the
// previous lines under the new id (a refused save is the states' table's).
TEST_F(OvtForm1Store, TakenOverHeaderIsStoredUncheckedWithTheLinesUnderTheNewId) {
  const EmployerRow previous = StoredRow(kId - 1);
  Store(previous);
  for (int row_num = 1; row_num <= 3; ++row_num)
    InsertRow(db_, Sample<EmployeeRow>(kId - 1, row_num));
  vars_.CarryOver = true;
  OvtForm1& form = Open();
  EXPECT_EQ(form.SelectedType(), 1);
  EXPECT_EQ(
      Texts({"Text4", "Text17_3", "Text11_1", "Text12_1", "FlDateTxt", "StopDateTxt", "Text13_2"}),
      (QStringList{*previous.employer_name, *previous.total_contributions, u"01"_s, u"03"_s,
                   kEmptyDateBox, kEmptyDateBox, u"02/2002"_s}));
  form.SaveCmd_Click();
  EXPECT_FALSE(vars_.CarryOver || form.IsNewHeader());
  EXPECT_EQ(CountLines(db_, Kind::Common, kId), 3);
  const EmployerRow stored = Stored().value_or(EmployerRow());
  EXPECT_EQ((std::vector<Text>{stored.declaration_type, stored.total_salaries, stored.from_month,
                               stored.to_month, stored.CreateFlDate, stored.stop_date}),
            (std::vector<Text>{u"02"_s, previous.total_salaries, u"01"_s, u"03"_s, u""_s, u""_s}));
}

// A tax number with a wrong check digit is stored only when the user says so
// (the question itself is the line screen's).
TEST_F(OvtForm1Store, AWrongCheckDigitIsAQuestion) {
  OvtForm1& form = Open();
  TypeValidHeader();
  form.Type(u"Text6"_s, u"123456789"_s);
  form.SaveCmd_Click();  // answered No
  EXPECT_EQ(form.FocusedField(), u"Text6"_s);
  EXPECT_FALSE(Stored());
  dialogs_.answers = {true};
  form.SaveCmd_Click();
  EXPECT_EQ(dialogs_.questions.size(), 2u);
  EXPECT_EQ(Stored().value_or(EmployerRow()).taxation_number, Text(u"123456789"_s));
}

class OvtForm3Test : public HeaderTest<OvtForm3> {
 protected:
  static constexpr int kId = 3;
  OvtForm3Test() : HeaderTest(kId, u"052003"_s, u"072003"_s) {}
  std::optional<ColumnValues> Stored(int id = kId) {
    const auto row = SelectHeader<ConEmployerRow>(db_, id);
    return row ? std::optional(ColumnValuesOf(*row)) : std::nullopt;
  }
};

// Every rule, in order, with a text it refuses and the one typed after.
TEST_F(OvtForm3Test, RulesReportInOrderWithTheirMessagesAndFocus) {
  // clang-format off
  const std::vector<RuleStep> rules{
      {"Text2", u"12"_s, Integer(kNameOvtCode, 3, true), true, u"012"_s}, {"Text3", u" "_s, Fixed(kText3Blank), true, u"Αθηνών"_s},
      {"Text4", u""_s, Fixed(kText4Blank), true, u"Δομική Α.Ε."_s}, {"FirstNmTxt", u"Νίκος2"_s, NoDigits(kNameFirstNm), true, u"ΑЖΒ"_s},
      {"FatherNmTxt", u"Γ1"_s, NoDigits(kNameFatherNm), true, u"Γιώργος"_s}, {"Text5", u" "_s, Fixed(kStreetBlank), false, u"Πατησίων"_s},
      {"Text7", u"1043"_s, Integer(kNameTk, 5, true), false, u"10434"_s}, {"Text8", u""_s, Fixed(kEmpCityBlank), false, u"Αθήνα"_s},
      {"Text9", u"  "_s, Fixed(kConDescrBlank), false, u"Πολυκατοικία"_s},
      {"Text10", u"123"_s, Integer(kNameAme, 10, true), true, u"1234567890"_s},
      {"Text11", u"12345"_s, Integer(kNameAmoe, 10, true), true, u"0987654321"_s},
      {"Text12", u"12345678"_s, Integer(kNameAfm, 9, true), true, u"094014201"_s},
      {"Text13", u""_s, Fixed(kStreetBlank), false, u"Σόλωνος"_s}, {"Text15", u"abcde"_s, Integer(kNameTk, 5, true), false, u"10672"_s},
      {"Text16", u""_s, Fixed(kCityBlank), false, u"Αθήνα"_s}, {"Text18", u"1.000"_s, Decimal(kNameSalaries, 10), true, u"1000,5"_s},
      {"Text19", u"1,5"_s, Integer(kNameWorkDays, 8, false), true, u"25"_s},
      {"Text20", u"x"_s, Decimal(kNameConContributions, 10), true, u"0"_s},
      {"FlDateTxt", u"32/01/2003"_s, Date(kNameFlDate), true, kEmptyDateBox},
      {"StopDateTxt", u"15/05/2003"_s, Fixed(kStopDateNotIn01), true, kEmptyDateBox},
      // Last, what the file's code page cannot hold, named by the box's caption.
      {"FirstNmTxt", u"ΑЖΒ"_s, Fixed(kNotInCodePage.arg(kFirstNmLbl, u"Ж"_s, u"0416"_s)), true, u"€"_s},
  };
  // clang-format on
  OvtForm3& form = Open();
  ExpectRulesInOrder(
      form, dialogs_, [&form] { return form.ValidateHeader(); }, rules);
  // Street numbers are not checked; an extraordinary declaration needs its
  // stop date here as well.
  form.Type(u"Text6"_s, u"x"_s);
  form.Option1_Click(1);
  EXPECT_FALSE(form.ValidateHeader());
  EXPECT_EQ(dialogs_.LastMessage(), kStopDateBlank);
}

// The first save cleans the codes and the register number; a correction keeps
// them as typed, the register number only upper-cased.
TEST_F(OvtForm3Test, FirstSaveAndCorrectionStoreEachColumnTheirWay) {
  struct Column {
    const char* field;
    const char* column;
    QString typed;
    QString inserted;
    QString updated;
  };
  // clang-format off
  const Column columns[] = {
      {"Text2", "ovt_code", u" 12"_s, u" 12"_s, u" 12"_s}, {"Text3", "ovt_name", u" αθηνών "_s, u"ΑΘΗΝΩΝ"_s, u"ΑΘΗΝΩΝ"_s},
      {"Text4", "emp_name", u"x'); DROP TABLE x; --"_s, u"X'); DROP TABLE X; --"_s, u"X'); DROP TABLE X; --"_s},
      {"FirstNmTxt", "emp_first_name", u"Ηλίας"_s, u"ΗΛΙΑΣ"_s, u"ΗΛΙΑΣ"_s},
      {"FatherNmTxt", "emp_father_name", u"ΐων"_s, u"ΪΩΝ"_s, u"ΪΩΝ"_s}, {"Text5", "emp_address", u"Οδός"_s, u"ΟΔΟΣ"_s, u"ΟΔΟΣ"_s},
      {"Text6", "emp_num", u" 2α "_s, u"2Α"_s, u"2Α"_s}, {"Text7", "emp_zip_code", u" ab "_s, u"AB"_s, u" ab "_s},
      {"Text8", "emp_city", u"Βόλος"_s, u"ΒΟΛΟΣ"_s, u"ΒΟΛΟΣ"_s}, {"Text9", "con_descr", u"έργο"_s, u"ΕΡΓΟ"_s, u"ΕΡΓΟ"_s},
      {"Text10", "ame", u" άΐb "_s, u"ΑΪB"_s, u" ΆΪB "_s}, {"Text11", "amoe", u" c "_s, u"C"_s, u" c "_s},
      {"Text12", "afm", u" d "_s, u"D"_s, u" d "_s}, {"Text13", "con_address", u"site's"_s, u"SITE'S"_s, u"SITE'S"_s},
      {"Text14", "con_num", u"4"_s, u"4"_s, u"4"_s}, {"Text15", "con_zip_code", u" e "_s, u"E"_s, u" e "_s},
      {"Text16", "con_city", u"Άρτα"_s, u"ΑΡΤΑ"_s, u"ΑΡΤΑ"_s}, {"Text18", "sum_salaries", u" 1,5"_s, u" 1,5"_s, u" 1,5"_s},
      {"Text19", "sum_days", u"7 "_s, u"7 "_s, u"7 "_s}, {"Text20", "sum_contr", u"0,1"_s, u"0,1"_s, u"0,1"_s},
      {"FlDateTxt", "createfldate", u"01/06/2003"_s, u"01/06/2003"_s, u"01/06/2003"_s},
      {"StopDateTxt", "stop_date", kEmptyDateBox, u""_s, u""_s},
  };
  // clang-format on
  OvtForm3& form = Open();
  form.Option1_Click(2);
  for (const Column& c : columns) form.Type(QString::fromLatin1(c.field), c.typed);
  for (const bool insert : {true, false}) {
    SCOPED_TRACE(insert ? "INSERT" : "UPDATE");
    form.SaveData();
    EXPECT_EQ(dialogs_.LastMessage(), kSaveDone);
    EXPECT_EQ(dialogs_.messages.back().title, texts::kAppTitle);
    const auto stored = Stored();
    ASSERT_TRUE(stored.has_value());
    for (const Column& c : columns) {
      EXPECT_EQ(ValueOf(*stored, QString::fromLatin1(c.column)), insert ? c.inserted : c.updated)
          << c.column;
    }
    EXPECT_EQ(ValueOf(*stored, u"declare_type"_s), u"03"_s);
    EXPECT_EQ(ValueOf(*stored, u"from_month"_s), u"05"_s);
    EXPECT_EQ(ValueOf(*stored, u"from_year"_s), u"2003"_s);
    form.UpDateCmd_Click();
    for (const Column& c : columns) form.Type(QString::fromLatin1(c.field), c.typed);
  }

  // A store error is reported with its number and text, on lines of their own.
  db_.Exec(
      "CREATE TRIGGER refuse BEFORE UPDATE ON QOR_CON_EMPLOYERS BEGIN SELECT RAISE(ABORT, "
      "'no'); END");
  form.SaveData();
  EXPECT_EQ(dialogs_.LastMessage(), ErrorMessage(kConSaveErrorFirstLine, 19, texts::kStoreRefused));
}

// A stored header: the branch code with three digits, the type from its
// code, the month and the dates as stored. A new one takes the month of the
// period's start, and its close box asks (Yes ends the program). The takeover
// is the common header's and the carry-over's.
TEST_F(OvtForm3Test, ShowsStoredAndNewHeaders) {
  ConEmployerRow row = Sample<ConEmployerRow>(kId);
  row.ovt_code = u"5"_s;
  row.declare_type = u"03"_s;
  row.createfldate = u""_s;
  ASSERT_EQ(InsertRow(db_, row), 1);
  OvtForm3& stored = Open();
  EXPECT_EQ(stored.SelectedType(), 2);
  EXPECT_EQ(Texts({"Text2", "Text9", "Text17_1", "Text17_2", "FlDateTxt", "StopDateTxt", "Text1"}),
            (QStringList{u"005"_s, *row.con_descr, *row.from_month, *row.from_year, kEmptyDateBox,
                         *row.stop_date, u"03"_s}));
  EXPECT_FALSE(stored.At(u"Text1"_s).visible || stored.At(u"Text1"_s).enabled);  // code kept only
  stored.QorConInsert_Click();
  EXPECT_EQ(screens_.shown, QStringList{u"lines construction"_s});

  vars_.DeclarationId = kId + 1;
  OvtForm3& fresh = Open();
  EXPECT_EQ(Texts({"Text17_1", "Text17_2", "Text2"}), (QStringList{u"05"_s, u"2003"_s, {}}));
  EXPECT_FALSE(fresh.QueryClose());  // the close box asks; No keeps the screen, Yes ends
  EXPECT_EQ(FakeDialogs::Told(dialogs_.questions), (QStringList{kConCloseTitle, kCloseQuestion}));
  EXPECT_EQ(dialogs_.last_style, AskStyle::Plain);
  dialogs_.answers = {true};
  EXPECT_TRUE(fresh.QueryClose());
  EXPECT_EQ(screens_.quit_status, 0);
}

}  // namespace
}  // namespace veroxia::testing
