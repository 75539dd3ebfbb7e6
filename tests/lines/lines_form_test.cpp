// The line screens. The employee screen: the line checks rule by rule; its
// modes, browsing, the insert, correction and delete of lines with their
// numbering, and the find. The construction-works worker screen where it
// differs: its rules in their order, the columns and the marital status as
// stored and shown, the reading order, the focus after Clear and after the
// last delete, the pointer before the insert message and its own delete
// message. A character the submission file's code page cannot hold.

#include "header/date_box.h"
#include "header/texts.h"
#include "lines/ovt_form2_fixture.h"
#include "lines/ovt_form4_fixture.h"
#include "lines/texts.h"
#include "shell/errors.h"
#include "support/rule_chain.h"

namespace veroxia::testing {
namespace {

using namespace lines_texts;
using Lines = std::vector<std::tuple<int, QString, QString>>;

// Every rule in its place, with a text it refuses and the one typed after.
TEST_F(OvtForm2Test, RulesReportInOrderWithTheirMessagesAndFocus) {
  // clang-format off
  const std::vector<RuleStep> rules{
      {"Text18_1", u""_s, Integer(kNameBranch, 4, true), true, u"0001"_s},
      {"Text18_2", u"55"_s, Integer(kNameKad, 4, true), true, u"5510"_s},
      {"Text19", u"12345678"_s, Integer(kNameInsuredId, 9, true), true, u""_s},
      {"Text20", u"1234567890"_s, Integer(kNameAmka, 11, true), true, u""_s}, {"Text21", u"   "_s, Fixed(kSurnameBlank), false, u"Παπα3"_s},
      {"Text21", u"Παπα3"_s, NoDigits(kNameSurname), true, u"Παπάς"_s}, {"Text22", u""_s, Fixed(kNameBlank), false, u"Ι1"_s},
      {"Text22", u"Ι1"_s, NoDigits(kNameName), true, u"Ιωάννης"_s}, {"Text23", u""_s, Fixed(kFatherBlank), false, u"Ν1"_s},
      {"Text23", u"Ν1"_s, NoDigits(kNameFather), true, u"Νίκος"_s}, {"Text24", u""_s, Fixed(kMotherBlank), false, u"Μ2"_s},
      {"Text24", u"Μ2"_s, NoDigits(kNameMother), true, u"Μαρία"_s}, {"Text25", u"__/__/____"_s, Fixed(kBirthBlank), false, u"05/03/19__"_s},
      {"Text25", u"05/03/19__"_s, Date(kNameBirth), true, u"05/03/1970"_s},
      {"Text26", u"12345678"_s, Integer(kNameAfm, 9, true), true, u"123456789"_s},
      {"Text27", u" "_s, Fixed(kFullDayBlank), true, u"ΙΣΩΣ"_s}, {"Text27", u"ΙΣΩΣ"_s, Fixed(kFullDayYesNo), true, u"ναι"_s},
      {"Text28", u"ΝΑΙΙ"_s, Fixed(kAllDaysYesNo), true, u"οχι"_s}, {"Text29", u"x"_s, Integer(kNameSundays, 1, true), true, u"0"_s},
      {"Text30", u"12a"_s, Integer(kNameCategory, 6, false), true, u"913000"_s},
      {"Text31", u"1x"_s, Integer(kNameSpecial, 2, false), true, u""_s}, {"Text32", u""_s, Integer(kNameCover, 4, false), true, u"101"_s},
      {"Text33_1", u""_s, Fixed(kMonthBlank), false, u"3"_s}, {"Text33_1", u"3"_s, Fixed(kMonthLength), true, u"13"_s},
      {"Text33_1", u"13"_s, Fixed(kMonthWrong), true, u"00"_s}, {"Text33_1", u"00"_s, Fixed(kMonthWrong), true, u"12"_s},
      {"Text33_2", u""_s, Fixed(kYearBlank), false, u"ΑΒΓΔ"_s}, {"Text33_2", u"ΑΒΓΔ"_s, Fixed(kYearNumeric), true, u"02"_s},
      {"Text33_2", u"02"_s, Fixed(kYearLength), true, u"2002"_s},
      {"Text33_1", u"12"_s, Fixed(kPeriodWrong), false, u"03"_s},  // 12/2002 is after the period
      {"Text34", u"31/13/2001"_s, Date(kNameSalFrom), true, u"__/__/____"_s}, {"Text35", u"31/13/2001"_s, Date(kNameSalTo), true, u"28/02/2002"_s},
      {"Text36", u"-1"_s, Integer(kNameWageCode, 2, false), true, u"01"_s}, {"Text37", u""_s, Integer(kNameDays, 3, false), true, u"25"_s},
      {"Text38", u"1.000"_s, Decimal(kNameDailyWage, 8), true, u""_s}, {"Text39", u""_s, Decimal(kNameSalary, 8), true, u"1000,50"_s},
      {"Text40", u"1,234"_s, Decimal(kNameInsuredContr, 8), true, u"160"_s},
      {"Text41", u"x"_s, Decimal(kNameEmployerContr, 8), true, u"280,5"_s},
      {"Text42", u"1234567890"_s, Decimal(kNameTotalContr, 9), true, u"440,5"_s}, {"Text43", u""_s, Decimal(kNameSubsidy, 8), true, u"1"_s},
      {"Text44", u"1000"_s, Decimal(kNameSubsidyPercent, 3), true, u"2"_s}, {"Text45", u""_s, Decimal(kNameEmpSubsidy, 8), true, u"3"_s},
      {"Text46", u"1234567890"_s, Decimal(kNamePayed, 9), true, u"440,5"_s},
  };
  // clang-format on
  OvtForm2& form = Open();
  ExpectRulesInOrder(
      form, dialogs_, [&form] { return form.CheckLine(); }, rules);
}

// The pay month may be the period's first (its last ends the rules above); a
// period that cannot be read is an unknown error.
TEST_F(OvtForm2Test, ThePeriodTakesItsFirstMonthAndAnUnreadableOneIsAnUnknownError) {
  Open();
  TypeValidLine();
  form_->Type(u"Text33_1"_s, u"01"_s);
  EXPECT_TRUE(form_->CheckLine()) << dialogs_.LastMessage().toStdString();
  vars_.PeriodTo = u"ΧΧ2002"_s;
  EXPECT_FALSE(form_->CheckLine());
  EXPECT_EQ(dialogs_.LastMessage(), header_texts::kUnknownFieldError);
}

// Without lines the screen stays ready for a new one: Cancel keeps what was
// typed. A wrong check digit is a question: No keeps the line out with the
// number selected, Yes stores it. Back closes without asking; the close box
// asks.
TEST_F(OvtForm2Test, WithoutLinesItWaitsForANewOne) {
  Open();
  EXPECT_EQ(Mode(), u"new"_s);
  EXPECT_EQ(Texts({"Text39", "Text27", "Text34"}), (QStringList{u"0"_s, kYes, kEmptyDateBox}));
  TypeValidLine();
  form_->CancelCmd_Click();
  EXPECT_EQ(Mode(), u"new"_s);
  EXPECT_FALSE(form_->HasLines());
  EXPECT_EQ(form_->FocusedField(), u"Text18_1"_s);
  EXPECT_EQ(form_->Text(u"Text21"_s), u"Παπαδάκης"_s);

  form_->Type(u"Text20"_s, u"12345678901"_s);  // AMKA, Luhn digit wrong
  form_->Type(u"Text26"_s, u"123456789"_s);    // tax number, digit wrong
  form_->OkCmd_Click();
  ASSERT_EQ(dialogs_.questions.size(), 1u);
  EXPECT_TRUE(dialogs_.questions[0].text.contains(u"'12345678901'"_s));
  EXPECT_EQ(dialogs_.last_style, AskStyle::Question);
  EXPECT_EQ(form_->SelectionOf(u"Text20"_s).value_or(Selection{}).length, 11);
  EXPECT_EQ(Stored(), Lines{});
  dialogs_.answers = {true, true};
  form_->OkCmd_Click();
  ASSERT_EQ(dialogs_.questions.size(), 3u);
  EXPECT_TRUE(dialogs_.questions[2].text.contains(u"'123456789'"_s));
  EXPECT_EQ(dialogs_.LastMessage(), kInsertDone);
  EXPECT_EQ(Stored().size(), 1u);

  EXPECT_FALSE(form_->QueryClose());  // answered No
  EXPECT_EQ(dialogs_.questions.back().text, kCloseQuestion);
  EXPECT_EQ(dialogs_.questions.back().title, kHeading);
  dialogs_.answers = {true};
  EXPECT_TRUE(form_->QueryClose());
  EXPECT_EQ(screens_.quit_status, 0);
  form_->BackCmd_Click();
  EXPECT_EQ(screens_.shown, QStringList{u"header common"_s});
  EXPECT_TRUE(form_->QueryClose());
}

// A correction is stored into the line it was made on, found again by its
// number; one of a line gone behind the screen keeps the typed values.
TEST_F(OvtForm2Test, ModesFollowTheButtonsAndCorrectionsFindTheirLine) {
  StoreLine(1, u"200000000"_s, u"ΒΑΣΙΛΕΙΟΥ"_s);
  StoreLine(2, u"100000000"_s, u"ΑΛΕΞΙΟΥ"_s);
  Open();
  EXPECT_EQ(Mode(), u"browse"_s);
  EXPECT_EQ(form_->CurrentRowNum(), u"2"_s);  // first in reading order, not by number

  form_->UpDateCmd_Click();
  EXPECT_EQ(Mode(), u"edit"_s);
  EXPECT_TRUE(form_->SelectionOf(u"Text18_1"_s).has_value());
  TypeValidLine(u"300000000"_s, u"Γκίκας"_s);  // a new register number too, now read last
  form_->OkCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kUpdateDone);
  EXPECT_EQ(Stored(),
            (Lines{{1, u"200000000"_s, u"ΒΑΣΙΛΕΙΟΥ"_s}, {2, u"300000000"_s, u"ΓΚΙΚΑΣ"_s}}));
  EXPECT_EQ(Mode(), u"browse"_s);
  EXPECT_EQ(form_->Text(u"Text21"_s), u"ΓΚΙΚΑΣ"_s);
  EXPECT_EQ(form_->CurrentInsuredId(), u"300000000"_s);

  form_->UpDateCmd_Click();
  TypeValidLine();
  db_.Exec("DELETE FROM QOR_EMPLOYEES");
  form_->OkCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kLineGone);
  EXPECT_EQ(Mode(), u"edit"_s);
  EXPECT_EQ(form_->Text(u"Text21"_s), u"Παπαδάκης"_s);
}

TEST_F(OvtForm2Test, BrowsesInReadingOrderAndSaysWhenAtAnEnd) {
  StoreLine(1, u"300000000"_s, u"Γ"_s);
  StoreLine(2, u"100000000"_s, u"Α"_s, u"02"_s);
  StoreLine(3, u"100000000"_s, u"Α"_s, u"01"_s);
  Open();
  EXPECT_EQ(form_->CurrentRowNum(), u"3"_s);  // month 01 before 02
  // The line shown after each button, and what was told.
  const std::tuple<void (LinesForm::*)(), const char*, QString> steps[] = {
      {&LinesForm::PrevCmd_Click, "3", kNoPrevious}, {&LinesForm::Nextcmd_Click, "2", {}},
      {&LinesForm::LastCmd_Click, "1", {}},          {&LinesForm::Nextcmd_Click, "1", kNoNext},
      {&LinesForm::PrevCmd_Click, "2", {}},          {&LinesForm::FirstCmd_Click, "3", {}}};
  for (const auto& [button, row_num, told] : steps) {
    dialogs_.messages.clear();
    (*form_.*button)();
    EXPECT_EQ(form_->CurrentRowNum(), QString::fromLatin1(row_num));
    EXPECT_EQ(dialogs_.LastMessage(), told);
  }
}

TEST_F(OvtForm2Test, InsertsAfterTheHighestNumberWithTheValuesAsStored) {
  StoreLine(5, u"900000000"_s, u"Ω"_s);
  StoreLine(2, u"100000000"_s, u"Α"_s);
  Open();  // shows line 2
  form_->NewCmd_Click();
  TypeValidLine(u"123456789"_s, u" Καΐρης-Παπαδάκης'; --"_s);
  form_->Type(u"Text34"_s, u"01/02/2002"_s);
  form_->OkCmd_Click();
  form_->OkCmd_Click();  // the same values once more
  EXPECT_EQ(form_->Text(u"Text21"_s), u" Καΐρης-Παπαδάκης'; --"_s);
  EXPECT_EQ(form_->CurrentRowNum(), u"7"_s);
  EXPECT_EQ(form_->CurrentInsuredId(), u"123456789"_s);

  const auto line = SelectLineAt<EmployeeRow>(db_, 3);
  ASSERT_TRUE(line);
  EXPECT_EQ(line->row_num, 6);
  const EmployeeRow& row = line->row;  // "ναι" in small letters is 1
  EXPECT_EQ(
      (std::vector{row.surname, row.full_day, row.all_days, row.sal_to, row.special_insur_code}),
      (std::vector<Text>{u"ΚΑΪΡΗΣ-ΠΑΠΑΔΑΚΗΣ'; --"_s, u"1"_s, u"0"_s, u"28/02/2002"_s, u""_s}));

  form_->CancelCmd_Click();  // shows the line inserted last
  EXPECT_EQ(Mode(), u"browse"_s);
  EXPECT_EQ(form_->CurrentRowNum(), u"7"_s);
  // Every field comes back as stored: names cleaned, flags as choices.
  const std::map<QString, QString> stored_otherwise{{u"Text21"_s, u"ΚΑΪΡΗΣ-ΠΑΠΑΔΑΚΗΣ'; --"_s},
                                                    {u"Text22"_s, u"ΓΙΩΡΓΟΣ"_s},
                                                    {u"Text23"_s, u"ΝΙΚΟΣ"_s},
                                                    {u"Text24"_s, u"ΕΛΕΝΗ"_s},
                                                    {u"Text27"_s, kYes},
                                                    {u"Text34"_s, u"01/02/2002"_s}};
  for (const auto& [name, typed] : ValidCommonLine(u"123456789"_s, u" Καΐρης-Παπαδάκης'; --"_s)) {
    const auto other = stored_otherwise.find(name);
    EXPECT_EQ(form_->Text(name), other == stored_otherwise.end() ? typed : other->second)
        << name.toStdString();
  }
}

// Lines numbered as listed, of the register numbers 1, 2, ... (surnamed
// alike); the one found by its register number is deleted.
TEST_F(OvtForm2Test, DeleteClosesTheGapWithoutMakingTwoLinesOneNumber) {
  const struct {
    std::vector<int> numbers;
    int deleted;
    std::vector<std::pair<int, int>> left;  // row_num, register number
  } cases[] = {
      {{1, 2, 3, 4, 5}, 3, {{1, 1}, {2, 2}, {3, 4}, {4, 5}}},
      {{1, 2}, 2, {{1, 1}}},
      // Numberings made elsewhere: a gap, and a number held twice.
      {{1, 2, 4}, 1, {{1, 2}, {3, 3}}},
      {{1, 2, 2, 3}, 2, {{1, 1}, {2, 3}, {3, 4}}},
  };
  StoreLine(1, u"555555555"_s, u"OTHER"_s, u"01"_s, kId + 1);  // another declaration
  for (const auto& c : cases) {
    SCOPED_TRACE(c.numbers.size());
    db_.Exec("DELETE FROM QOR_EMPLOYEES WHERE insured_id <> '555555555'");
    for (size_t i = 0; i < c.numbers.size(); ++i)
      StoreLine(c.numbers[i], QString::number(i + 1), QString::number(i + 1));
    Open();
    dialogs_.searches.push_back({QString::number(c.deleted), u"AMA"_s});
    form_->SeekCmd_Click();
    dialogs_.answers = {true};
    form_->DeleteCmd_Click();
    Lines left;
    for (const auto& [row_num, id] : c.left)
      left.emplace_back(row_num, QString::number(id), QString::number(id));
    EXPECT_EQ(Stored(), left);
    EXPECT_EQ(Mode(), u"browse"_s);
    EXPECT_EQ(form_->Text(u"Text19"_s), std::get<1>(left.front()));  // first in order
  }
  EXPECT_EQ(dialogs_.questions.back().text, kDeleteQuestion);
  EXPECT_EQ(dialogs_.questions.back().title, kDeleteTitle);
  EXPECT_EQ(dialogs_.last_style, AskStyle::Question);
}

// A delete that fails leaves the declaration as it was; a line deleted
// behind the screen's back cannot be deleted again; No keeps the only line,
// Yes deletes it and leaves the screen waiting for a new one.
TEST_F(OvtForm2Test, DeletesThatFailAndTheLastDelete) {
  StoreLine(1, u"100000000"_s, u"Α"_s);
  StoreLine(2, u"200000000"_s, u"Β"_s);
  Open();
  const Lines before = Stored();
  // The renumbering fails after the line itself is gone.
  db_.Exec(
      "CREATE TRIGGER no_renumbering BEFORE UPDATE OF row_num ON QOR_EMPLOYEES "
      "BEGIN SELECT RAISE(ABORT, 'disk full'); END");
  dialogs_.answers = {true};
  form_->DeleteCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), ErrorMessage(kStoreProblem, 19, texts::kStoreRefused));
  EXPECT_EQ(Stored(), before);
  EXPECT_FALSE(db_.InTransaction());

  db_.Exec("DELETE FROM QOR_EMPLOYEES WHERE row_num = 1");
  dialogs_.answers = {true};
  form_->DeleteCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kCannotDelete);

  Open();
  form_->DeleteCmd_Click();  // answered No
  EXPECT_EQ(Stored().size(), 1u);
  dialogs_.answers = {true};
  form_->DeleteCmd_Click();
  EXPECT_EQ(Stored(), Lines{});
  EXPECT_EQ(Mode(), u"new"_s);
  EXPECT_FALSE(form_->HasLines());
  EXPECT_EQ(form_->Text(u"Text19"_s), u""_s);
  EXPECT_EQ(form_->FocusedField(), u"Text18_1"_s);
}

// A find starts from the first line in reading order; one that finds nothing
// says so and stays on the line shown.
TEST_F(OvtForm2Test, SeekFindsTheFirstLineInReadingOrder) {
  StoreLine(1, u"300000000"_s, u"ΠΑΠΑΣ"_s);
  StoreLine(2, u"200000000"_s, u"ΠΑΠΑΔΑΚΗΣ"_s);
  StoreLine(3, u"400000000"_s, u"100%_ΠΑΠ"_s);
  StoreLine(4, u"100000000"_s, u"ΑΛΦΑ"_s);
  const auto person = [](const QString& text) {
    return kPersonNotFoundStart + text + kPersonNotFoundEnd;
  };
  const QString ama = u"AMA"_s, name = u"NAME"_s;
  // clang-format off
  const struct {
    SearchAnswer answer;
    const char* shown;  // the register number
    QString told;
  } cases[] = {
      {{u"  πάπ"_s, name}, "200000000", {}}, {{u"ΠΑΠΑΣ"_s, name}, "300000000", {}},
      {{u"100%_"_s, name}, "400000000", {}}, {{u"%"_s, name}, "200000000", person(u"%"_s)},
      {{u"ΠΑΠ*"_s, name}, "200000000", person(u"ΠΑΠ*"_s)}, {{u"300000000"_s, ama}, "300000000", {}},
      {{u"30000000"_s, ama}, "200000000", kInsuredIdNotFound}, {{}, "200000000", {}}};
  // clang-format on
  for (const auto& [answer, shown, told] : cases) {
    Open();
    form_->Nextcmd_Click();  // shows 200000000
    dialogs_.messages.clear();
    dialogs_.searches.push_back(answer);
    form_->SeekCmd_Click();
    EXPECT_EQ(form_->Text(u"Text19"_s), QString::fromLatin1(shown)) << answer.text.toStdString();
    EXPECT_EQ(dialogs_.LastMessage(), told);
    if (!told.isEmpty()) {  // still on the line shown before
      form_->Nextcmd_Click();
      EXPECT_EQ(form_->Text(u"Text19"_s), u"300000000"_s);
    }
  }
}

// The screen tells which line it shows among how many, or that a new one is
// being typed; a line is reached by its number, and a number that is none is
// told with the box selected. Clear puts the focus on the first field.
TEST_F(OvtForm2Test, TellsWhereItStandsAndGoesToALineByNumber) {
  StoreLine(1, u"100000001"_s, u"Α"_s);
  StoreLine(2, u"100000002"_s, u"Β"_s);
  StoreLine(3, u"100000003"_s, u"Γ"_s);
  Open();
  const auto position = [this] { return form_->Text(u"PositionLbl"_s); };
  EXPECT_EQ(position(), kPosition.arg(u"1"_s, u"3"_s));
  db_.Exec("DELETE FROM QOR_EMPLOYEES WHERE row_num = 2");  // gone behind the screen
  // clang-format off
  const struct {
    const char* typed;
    QString message;  // none: the line is shown
  } moves[] = {{"3", {}}, {"0", kGotoRange.arg(3)}, {"4", kGotoRange.arg(3)},
               {"x", kGotoRange.arg(3)}, {"2", kGotoMissing.arg(2)}, {" 1 ", {}}};
  // clang-format on
  for (const auto& move : moves) {
    SCOPED_TRACE(move.typed);
    const QString shown = form_->Text(u"Text19"_s);
    const size_t told = dialogs_.messages.size();
    form_->Type(u"GotoTxt"_s, QString::fromLatin1(move.typed));
    form_->GotoCmd_Click();
    if (move.message.isEmpty()) {
      EXPECT_EQ(dialogs_.messages.size(), told);
      const QString row = QString::fromLatin1(move.typed).trimmed();
      EXPECT_EQ(form_->Text(u"Text19"_s), u"10000000"_s + row);
      EXPECT_EQ(position(), kPosition.arg(row, u"3"_s));
    } else {
      EXPECT_EQ(dialogs_.LastMessage(), move.message);
      EXPECT_EQ(form_->Text(u"Text19"_s), shown);
      EXPECT_EQ(form_->FocusedField(), u"GotoTxt"_s);
    }
  }
  StoreLine(2, u"100000002"_s, u"Β"_s);
  form_->NewCmd_Click();
  EXPECT_EQ(position(), kPositionNew.arg(3));
  EXPECT_EQ(Texts({"Text19", "Text46"}), (QStringList{{}, u"0"_s}));  // cleared
  EXPECT_FALSE(form_->At(u"GotoCmd"_s).enabled || form_->At(u"GotoTxt"_s).enabled);
  TypeValidLine();
  form_->OkCmd_Click();
  EXPECT_EQ(position(), kPositionNew.arg(4));
  form_->FocusMovedTo(u"Text39"_s);
  form_->ClearCmd_Click();
  EXPECT_EQ(form_->FocusedField(), u"Text18_1"_s);
  form_->CancelCmd_Click();
  EXPECT_EQ(position(), kPosition.arg(u"4"_s, u"4"_s));
}

// A line wrong in every checked field is reported rule by rule, each field
// put right (or wrong another way) before the next try.
TEST_F(OvtForm4Test, RulesReportInOrderWithTheirMessagesAndFocus) {
  // clang-format off
  const std::vector<RuleStep> rules{
      {"Text21", u"12"_s, Integer(kNameConBranch, 3, true), true, u""_s},
      {"Text22", u"1234"_s, Integer(kNameInsuredId, 9, true), true, u""_s},
      {"Text23", u"123"_s, Integer(kNameAmka, 11, true), true, u"12345678901"_s}, {"Text24", u" "_s, Fixed(kSurnameBlank), false, u"Π2"_s},
      {"Text24", u"Π2"_s, NoDigits(kNameSurname), true, u"Πέτρου"_s}, {"Text25", u""_s, Fixed(kNameBlank), false, u"Ι1"_s},
      {"Text25", u"Ι1"_s, NoDigits(kNameName), true, u"Ιωάννης"_s}, {"Text26", u""_s, Fixed(kFatherBlank), false, u"Κ3"_s},
      {"Text26", u"Κ3"_s, NoDigits(kNameFather), true, u"Κώστας"_s}, {"Text27", u""_s, Fixed(kMotherBlank), false, u"Μ4"_s},
      {"Text27", u"Μ4"_s, NoDigits(kNameMother), true, u"Μαρία"_s}, {"Text28", u"__/__/____"_s, Fixed(kBirthBlank), false, u"31/02/1970"_s},
      {"Text28", u"31/02/1970"_s, Date(kNameBirth), true, u"01/02/1970"_s},
      {"Text29", u"12"_s, Integer(kNameAfm, 9, true), true, u"123456789"_s},
      {"Text31", u""_s, Integer(kNameTriennia, 1, true), true, u"0"_s}, {"Text32", u"a"_s, Integer(kNameSundays, 1, true), true, u"1"_s},
      {"Text33", u""_s, Integer(kNameCategory, 6, false), true, u"7"_s}, {"Text34", u"x"_s, Integer(kNameSpecial, 2, false), true, u""_s},
      {"Text35", u""_s, Integer(kNameCover, 4, false), true, u"1"_s},
      {"Text36", u"32/01/2003"_s, Date(kNameSalFrom), true, u"01/01/2003"_s},
      {"Text37", u"01/13/2003"_s, Date(kNameSalTo), true, u"__/__/____"_s},
      {"Text38", u""_s, Integer(kNameWageCode, 2, false), true, u"1"_s}, {"Text39", u""_s, Integer(kNameWorkDays, 3, false), true, u"5"_s},
      {"Text40", u""_s, Decimal(kNameDailyWage, 8), true, u"1"_s}, {"Text41", u"x"_s, Decimal(kNameSalary, 8), true, u"5"_s},
      {"Text42", u"a"_s, Integer(kNamePhase, 2, false), true, u""_s}, {"Text43", u""_s, Integer(kNameCostingDays, 2, false), true, u"0"_s},
      {"Text44", u""_s, Decimal(kNameInsuredContr, 8), true, u"1"_s}, {"Text45", u""_s, Decimal(kNameEmployerContr, 8), true, u"1"_s},
      {"Text46", u"1234567890"_s, Decimal(kNameTotalContr, 9), true, u"2"_s},
  };
  // clang-format on
  OvtForm4& form = Open();
  form.Type(u"Text30"_s, u"?"_s);  // the marital status is not checked
  ExpectRulesInOrder(
      form, dialogs_, [&form] { return form.CheckLine(); }, rules);
}

// The pointer is back before the insert's message is shown.
TEST_F(OvtForm4Test, StoresEachColumnAndShowsItBack) {
  OvtForm4& form = Open();
  EXPECT_EQ(form.FocusedField(), u"Text21"_s);
  for (const auto& [name, text] : ValidConLine(u"123456789"_s)) form.Type(name, text);
  form.OkCmd_Click();
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_EQ(dialogs_.messages[0].text, kInsertDone);
  EXPECT_FALSE(dialogs_.messages[0].busy);

  ConEmployeeRow expected;
  expected.id = kId;
  expected.row_num = 1;
  int index = 0;
  ForEachText(expected, [&](const char*, Text& value) {
    value = ValidConLine(u"123456789"_s)[static_cast<size_t>(index++)].second;
  });
  expected.surname = u"ΚΑΪΡΗΣ'; --"_s;
  expected.name = u"ΓΙΩΡΓΟΣ"_s;
  expected.father_name = u"ΝΙΚΟΣ"_s;
  expected.mother_name = u"ΕΛΕΝΗ"_s;
  expected.married_status = u"1"_s;  // typed in small letters
  expected.sal_from = u""_s;
  EXPECT_EQ(DumpTable(db_, "QOR_CON_EMPLOYEES"), ValuesOf(std::vector{expected}));

  form.CancelCmd_Click();
  EXPECT_EQ(form.Text(u"Text24"_s), u"ΚΑΪΡΗΣ'; --"_s);
  EXPECT_EQ(form.Text(u"Text36"_s), u"__/__/____"_s);
}

// Lines are read by register number, surname and wage type; a status other
// than "1" shows as unmarried, and one typed otherwise than ΕΓΓΑΜΟΣ stores "0".
TEST_F(OvtForm4Test, BrowsesInReadingOrderShowingTheMaritalStatus) {
  // Register number, surname, wage type and marital status of each line.
  // clang-format off
  const std::tuple<QString, QString, QString, Text> lines[] = {
      {u"2"_s, u"A"_s, u"02"_s, u"1"_s}, {u"1"_s, u"B"_s, u"01"_s, u"0"_s},
      {u"2"_s, u"A"_s, u"01"_s, {}}, {u"3"_s, u"A"_s, u"01"_s, u"x"_s}};
  // clang-format on
  int row_num = 0;
  for (const auto& [id, surname, wage, status] : lines) {
    const auto row = Set(Sample<ConEmployeeRow>(kId, ++row_num), {{"insured_id", id},
                                                                  {"surname", surname},
                                                                  {"wage_code", wage},
                                                                  {"married_status", status}});
    ASSERT_EQ(InsertRow(db_, row), 1);
  }
  OvtForm4& form = Open();
  QStringList seen;
  for (int i = 0; i < 4; ++i) {
    seen << form.Text(u"Text22"_s) + u' ' + form.Text(u"Text38"_s) + u' ' + form.Text(u"Text30"_s);
    form.Nextcmd_Click();
  }
  EXPECT_EQ(seen, (QStringList{u"1 01 "_s + kUnmarried, u"2 01 "_s + kUnmarried,
                               u"2 02 "_s + kMarried, u"3 01 "_s + kUnmarried}));
  EXPECT_EQ(dialogs_.LastMessage(), kNoNext);

  form.UpDateCmd_Click();
  TypeValidLine();
  form.Type(u"Text30"_s, u"Έγγαμος"_s);
  form.OkCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kUpdateDone);
  const auto stored = SelectLineAt<ConEmployeeRow>(db_, 4);
  EXPECT_EQ(stored->row.married_status, u"0"_s);
}

// Clear puts the focus on the first field only where it can be typed into;
// deleting the last line leaves the screen empty with the focus there; a line
// gone behind the screen gets the kind's own message.
TEST_F(OvtForm4Test, ClearAndDeleteMoveTheFocusTheirWay) {
  ASSERT_EQ(InsertRow(db_, Sample<ConEmployeeRow>(kId, 1)), 1);
  ASSERT_EQ(InsertRow(db_, Sample<ConEmployeeRow>(kId, 2)), 1);
  OvtForm4& form = Open();
  form.FocusMovedTo(u"Text40"_s);
  form.ClearCmd_Click();
  EXPECT_EQ(form.FocusedField(), u"Text40"_s);  // browse mode: fields locked
  EXPECT_EQ(form.Text(u"Text43"_s) + form.Text(u"Text46"_s) + form.Text(u"Text30"_s),
            u"00"_s + kMarried);

  db_.Exec("DELETE FROM QOR_CON_EMPLOYEES WHERE row_num = 1");
  dialogs_.answers = {true, true};
  form.DeleteCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kConCannotDelete);
  Open().FocusMovedTo(u"Text40"_s);  // the one line left
  form_->DeleteCmd_Click();
  OvtForm4& empty = *form_;
  EXPECT_EQ(empty.FocusedField(), u"Text21"_s);
  EXPECT_TRUE(empty.NewMode());
  EXPECT_TRUE(DumpTable(db_, "QOR_CON_EMPLOYEES").empty());

  empty.Type(u"Text21"_s, u"x"_s);
  empty.FocusMovedTo(u"Text40"_s);
  empty.ClearCmd_Click();
  EXPECT_EQ(empty.FocusedField(), u"Text21"_s);
  EXPECT_EQ(empty.Text(u"Text21"_s), u""_s);
}

// A character the submission file's code page cannot hold is refused when a
// line is stored: the message names the box by its caption and the character
// with its code, the box is selected, nothing is stored. A character the code
// page holds is stored (the construction header does the same).
TEST_F(OvtForm2Test, CodePageRefusesWhatTheFileCannotHold) {
  Open();
  TypeValidLine();
  // A character, and its code when the code page cannot hold it (the one
  // stored comes last).
  const std::pair<QString, QString> characters[] = {
      {u"Ж"_s, u"0416"_s}, {u"→"_s, u"2192"_s}, {u"😀"_s, u"1F600"_s}, {u"€"_s, {}}};
  for (const auto& [character, code] : characters) {
    SCOPED_TRACE(code.toStdString());
    const QString typed = u"Α"_s + character + u"Β"_s;
    form_->Type(u"Text21"_s, typed);
    form_->OkCmd_Click();
    EXPECT_EQ(Stored().size(), code.isEmpty() ? 1u : 0u) << dialogs_.LastMessage().toStdString();
    if (code.isEmpty()) continue;
    EXPECT_EQ(dialogs_.LastMessage(),
              header_texts::kNotInCodePage.arg(kLbl21.simplified(), character, code));
    EXPECT_EQ(form_->FocusedField(), u"Text21"_s);
    const auto selection = form_->SelectionOf(u"Text21"_s);
    EXPECT_TRUE(selection && selection->length == typed.size());
  }
}

}  // namespace
}  // namespace veroxia::testing
