// The employee screen: its modes, browsing, the insert, correction and delete
// of lines with their numbering, and the find.

#include "header/date_box.h"
#include "lines/ovt_form2_fixture.h"
#include "lines/texts.h"
#include "shell/texts.h"

namespace veroxia::testing {
namespace {

using namespace lines_texts;
using Lines = std::vector<std::tuple<int, QString, QString>>;

// A failed check stores nothing and keeps the mode; so does Cancel without
// lines, keeping what was typed.
TEST_F(OvtForm2Test, OpensInNewModeWithoutLinesAndStaysThere) {
  Open();
  EXPECT_EQ(Mode(), u"new"_s);
  EXPECT_EQ(form_->Text(u"Text39"_s), u"0"_s);
  EXPECT_EQ(form_->Text(u"Text27"_s), kYes);
  EXPECT_EQ(form_->Text(u"Text34"_s), kEmptyDateBox);
  TypeValidLine();
  form_->Type(u"Text19"_s, u"12"_s);
  form_->OkCmd_Click();
  EXPECT_EQ(Stored(), Lines{});
  EXPECT_EQ(Mode(), u"new"_s);
  EXPECT_FALSE(form_->HasLines());
  form_->CancelCmd_Click();
  EXPECT_EQ(Mode(), u"new"_s);
  EXPECT_EQ(form_->FocusedField(), u"Text18_1"_s);
  EXPECT_EQ(form_->Text(u"Text21"_s), u"Παπαδάκης"_s);
}

TEST_F(OvtForm2Test, ModesFollowTheButtons) {
  StoreLine(1, u"200000000"_s, u"ΒΑΣΙΛΕΙΟΥ"_s);
  StoreLine(2, u"100000000"_s, u"ΑΛΕΞΙΟΥ"_s);
  Open();
  EXPECT_EQ(Mode(), u"browse"_s);
  EXPECT_EQ(form_->Text(u"Text19"_s), u"100000000"_s);  // first in reading order, not by number
  EXPECT_EQ(form_->CurrentRowNum(), u"2"_s);

  form_->UpDateCmd_Click();
  EXPECT_EQ(Mode(), u"edit"_s);
  EXPECT_EQ(form_->SelectionOf(u"Text18_1"_s).has_value(), true);
  form_->Type(u"Text21"_s, u"ΑΛΛΟ"_s);
  form_->CancelCmd_Click();
  EXPECT_EQ(Mode(), u"browse"_s);
  EXPECT_EQ(form_->Text(u"Text21"_s), u"ΑΛΕΞΙΟΥ"_s);  // the edit is dropped

  form_->NewCmd_Click();
  EXPECT_EQ(Mode(), u"new"_s);
  EXPECT_EQ(form_->Text(u"Text19"_s), u""_s);
  EXPECT_EQ(form_->Text(u"Text46"_s), u"0"_s);
  form_->Type(u"Text46"_s, u"9"_s);
  form_->ClearCmd_Click();
  EXPECT_EQ(form_->Text(u"Text46"_s), u"0"_s);
  EXPECT_EQ(Mode(), u"new"_s);
}

TEST_F(OvtForm2Test, BrowsesInReadingOrderAndSaysWhenAtAnEnd) {
  StoreLine(1, u"300000000"_s, u"Γ"_s);
  StoreLine(2, u"100000000"_s, u"Α"_s, u"02"_s);
  StoreLine(3, u"100000000"_s, u"Α"_s, u"01"_s);
  Open();
  EXPECT_EQ(form_->CurrentRowNum(), u"3"_s);  // month 01 before 02
  form_->PrevCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kNoPrevious);
  EXPECT_EQ(form_->CurrentRowNum(), u"3"_s);
  form_->Nextcmd_Click();
  EXPECT_EQ(form_->CurrentRowNum(), u"2"_s);
  form_->LastCmd_Click();
  EXPECT_EQ(form_->CurrentRowNum(), u"1"_s);
  form_->Nextcmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kNoNext);
  EXPECT_EQ(form_->Text(u"Text19"_s), u"300000000"_s);
  form_->PrevCmd_Click();
  EXPECT_EQ(form_->CurrentRowNum(), u"2"_s);
  form_->FirstCmd_Click();
  EXPECT_EQ(form_->CurrentRowNum(), u"3"_s);
  EXPECT_EQ(dialogs_.messages.size(), 2u);
}

TEST_F(OvtForm2Test, ShowsFlagsDatesAndNullColumns) {
  StoreLine(1, u"100000000"_s, u"Α"_s);
  db_.Exec("INSERT INTO QOR_EMPLOYEES (id) VALUES (4)");  // every other column Null
  db_.Exec("UPDATE QOR_EMPLOYEES SET sal_from = '01/01/2002', sal_to = '' WHERE row_num = 1");
  Open();
  EXPECT_EQ(form_->Text(u"Text21"_s), u""_s);  // Null register number sorts first
  EXPECT_EQ(form_->Text(u"Text27"_s), kNo);
  EXPECT_EQ(form_->Text(u"Text25"_s), kEmptyDateBox);
  EXPECT_EQ(form_->Text(u"Text39"_s), u""_s);
  EXPECT_EQ(form_->CurrentRowNum(), u""_s);
  form_->Nextcmd_Click();
  EXPECT_EQ(form_->Text(u"Text27"_s), kYes);
  EXPECT_EQ(form_->Text(u"Text28"_s), kNo);
  EXPECT_EQ(form_->Text(u"Text34"_s), u"01/01/2002"_s);
  EXPECT_EQ(form_->Text(u"Text35"_s), kEmptyDateBox);
}

TEST_F(OvtForm2Test, InsertsAfterTheHighestNumberWithTheValuesAsStored) {
  StoreLine(5, u"900000000"_s, u"Ω"_s);
  StoreLine(2, u"100000000"_s, u"Α"_s);
  Open();  // shows line 2
  form_->NewCmd_Click();
  TypeValidLine(u"123456789"_s, u" Καΐρης-Παπαδάκης'; --"_s);
  form_->Type(u"Text34"_s, u"01/02/2002"_s);
  form_->OkCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kInsertDone);
  form_->OkCmd_Click();  // the same values once more
  EXPECT_EQ(Mode(), u"new"_s);
  EXPECT_EQ(form_->Text(u"Text21"_s), u" Καΐρης-Παπαδάκης'; --"_s);
  EXPECT_EQ(form_->CurrentRowNum(), u"7"_s);
  EXPECT_EQ(form_->CurrentInsuredId(), u"123456789"_s);

  const auto line = SelectLineAt<EmployeeRow>(db_, 3);
  ASSERT_TRUE(line);
  EXPECT_EQ(line->row_num, 6);
  EXPECT_EQ(line->row.surname, u"ΚΑΪΡΗΣ-ΠΑΠΑΔΑΚΗΣ'; --"_s);
  EXPECT_EQ(line->row.full_day, u"1"_s);  // "ναι" in small letters
  EXPECT_EQ(line->row.all_days, u"0"_s);
  EXPECT_EQ(line->row.sal_to, u"28/02/2002"_s);
  EXPECT_EQ(line->row.special_insur_code, u""_s);

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
  for (const auto& [name, typed] : ValidLine(u"123456789"_s, u" Καΐρης-Παπαδάκης'; --"_s)) {
    const auto other = stored_otherwise.find(name);
    EXPECT_EQ(form_->Text(name), other == stored_otherwise.end() ? typed : other->second)
        << name.toStdString();
  }
  EXPECT_FALSE(dialogs_.busy);
}

TEST_F(OvtForm2Test, CorrectsTheLineFoundByItsRememberedKey) {
  StoreLine(1, u"100000000"_s, u"Α"_s);
  StoreLine(2, u"200000000"_s, u"Β"_s);
  Open();
  form_->UpDateCmd_Click();
  TypeValidLine(u"300000000"_s, u"Γκίκας"_s);  // a new register number too
  form_->OkCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kUpdateDone);
  EXPECT_EQ(Stored(), (Lines{{1, u"300000000"_s, u"ΓΚΙΚΑΣ"_s}, {2, u"200000000"_s, u"Β"_s}}));
  EXPECT_EQ(Mode(), u"browse"_s);
  EXPECT_EQ(form_->Text(u"Text21"_s), u"ΓΚΙΚΑΣ"_s);
  EXPECT_EQ(form_->CurrentInsuredId(), u"300000000"_s);
}

TEST_F(OvtForm2Test, ACorrectionOfALineGoneBehindTheScreenKeepsTheTypedValues) {
  StoreLine(1, u"100000000"_s, u"Α"_s);
  Open();
  form_->UpDateCmd_Click();
  TypeValidLine();
  db_.Exec("DELETE FROM QOR_EMPLOYEES");
  form_->OkCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kLineGone);
  EXPECT_EQ(Mode(), u"edit"_s);
  EXPECT_EQ(form_->Text(u"Text21"_s), u"Παπαδάκης"_s);
}

struct DeleteCase {
  std::vector<std::pair<int, const char*>> lines;  // row_num, register number (surname alike)
  const char* shown;                               // register number of the line deleted
  Lines left;
};

class DeleteLineTest : public OvtForm2Test, public ::testing::WithParamInterface<DeleteCase> {};

TEST_P(DeleteLineTest, ClosesTheGapWithoutMakingTwoLinesOneNumber) {
  for (const auto& [row_num, insured] : GetParam().lines) {
    StoreLine(row_num, QString::fromLatin1(insured), QString::fromLatin1(insured));
  }
  StoreLine(1, u"555555555"_s, u"OTHER"_s, u"01"_s, kId + 1);  // another declaration
  Open();
  dialogs_.searches.push_back({QString::fromLatin1(GetParam().shown), u"AMA"_s});
  form_->SeekCmd_Click();
  dialogs_.answers = {true};
  form_->DeleteCmd_Click();
  EXPECT_EQ(dialogs_.questions.back().text, kDeleteQuestion);
  EXPECT_EQ(dialogs_.questions.back().title, kDeleteTitle);
  EXPECT_EQ(dialogs_.last_style, AskStyle::Question);
  EXPECT_EQ(Stored(), GetParam().left);
  EXPECT_EQ(Mode(), u"browse"_s);
  EXPECT_EQ(form_->Text(u"Text19"_s), std::get<1>(GetParam().left.front()));  // first in order
  EXPECT_FALSE(dialogs_.busy);
}

INSTANTIATE_TEST_SUITE_P(
    Numberings, DeleteLineTest,
    ::testing::Values(
        DeleteCase{
            {{1, "1"}, {2, "2"}, {3, "3"}, {4, "4"}, {5, "5"}},
            "3",
            {{1, u"1"_s, u"1"_s}, {2, u"2"_s, u"2"_s}, {3, u"4"_s, u"4"_s}, {4, u"5"_s, u"5"_s}}},
        DeleteCase{{{1, "1"}, {2, "2"}}, "2", {{1, u"1"_s, u"1"_s}}},
        // Numberings made elsewhere: a gap, and a number held twice.
        DeleteCase{{{1, "1"}, {2, "2"}, {4, "4"}}, "1", {{1, u"2"_s, u"2"_s}, {3, u"4"_s, u"4"_s}}},
        DeleteCase{{{1, "1"}, {2, "2"}, {2, "3"}, {3, "4"}},
                   "2",
                   {{1, u"1"_s, u"1"_s}, {2, u"3"_s, u"3"_s}, {3, u"4"_s, u"4"_s}}}));

TEST_F(OvtForm2Test, DeletingTheOnlyLineGoesToNewModeAndNoKeepsIt) {
  StoreLine(1, u"100000000"_s, u"Α"_s);
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

TEST_F(OvtForm2Test, ADeleteThatFailsLeavesTheDeclarationAsItWas) {
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
  EXPECT_TRUE(dialogs_.LastMessage().startsWith(kStoreProblem + u"\r\n"_s + texts::kErrorCode));
  EXPECT_TRUE(dialogs_.LastMessage().endsWith(u"disk full"_s));
  EXPECT_EQ(Stored(), before);
  EXPECT_FALSE(db_.InTransaction());

  // A line deleted behind the screen's back cannot be deleted again.
  db_.Exec("DELETE FROM QOR_EMPLOYEES WHERE row_num = 1");
  dialogs_.answers = {true};
  form_->DeleteCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kCannotDelete);
  EXPECT_EQ(Stored(), (Lines{{2, u"200000000"_s, u"Β"_s}}));
  EXPECT_FALSE(dialogs_.busy);
}

struct SeekCase {
  SearchAnswer answer;
  QString shown;      // register number shown afterwards
  QString not_found;  // the message, empty when found
};

class SeekLineTest : public OvtForm2Test, public ::testing::WithParamInterface<SeekCase> {};

TEST_P(SeekLineTest, FindsTheFirstLineInReadingOrder) {
  StoreLine(1, u"300000000"_s, u"ΠΑΠΑΣ"_s);
  StoreLine(2, u"200000000"_s, u"ΠΑΠΑΔΑΚΗΣ"_s);
  StoreLine(3, u"400000000"_s, u"100%_ΠΑΠ"_s);
  StoreLine(4, u"100000000"_s, u"ΑΛΦΑ"_s);
  Open();
  form_->Nextcmd_Click();  // shows 200000000
  dialogs_.searches.push_back(GetParam().answer);
  form_->SeekCmd_Click();
  EXPECT_EQ(form_->Text(u"Text19"_s), GetParam().shown);
  EXPECT_EQ(dialogs_.LastMessage(), GetParam().not_found);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, SeekLineTest,
    ::testing::Values(SeekCase{{u"  πάπ"_s, u"NAME"_s}, u"200000000"_s, {}},
                      SeekCase{{u"ΠΑΠΑΣ"_s, u"NAME"_s}, u"300000000"_s, {}},
                      SeekCase{{u"100%_"_s, u"NAME"_s}, u"400000000"_s, {}},
                      SeekCase{{u"%"_s, u"NAME"_s},
                               u"200000000"_s,
                               kPersonNotFoundStart + u"%"_s + kPersonNotFoundEnd},
                      SeekCase{{u"ΠΑΠ*"_s, u"NAME"_s},
                               u"200000000"_s,
                               kPersonNotFoundStart + u"ΠΑΠ*"_s + kPersonNotFoundEnd},
                      SeekCase{{u"300000000"_s, u"AMA"_s}, u"300000000"_s, {}},
                      SeekCase{{u"30000000"_s, u"AMA"_s}, u"200000000"_s, kInsuredIdNotFound},
                      SeekCase{{}, u"200000000"_s, {}}));

TEST_F(OvtForm2Test, BackClosesWithoutAskingAndTheCloseBoxAsks) {
  Open();
  EXPECT_FALSE(form_->QueryClose());  // answered No
  EXPECT_EQ(dialogs_.questions.back().text, kCloseQuestion);
  EXPECT_EQ(dialogs_.questions.back().title, kHeading);
  dialogs_.answers = {true};
  EXPECT_TRUE(form_->QueryClose());
  EXPECT_EQ(screens_.quit_status, 0);
  form_->BackCmd_Click();
  EXPECT_EQ(screens_.shown, QStringList{u"header common"_s});
  EXPECT_TRUE(form_->QueryClose());
  EXPECT_EQ(dialogs_.questions.size(), 2u);
}

// A wrong check digit is a question, not a refusal: No keeps the line out of
// the store with the number selected, Yes stores it as typed.
TEST_F(OvtForm2Test, AWrongCheckDigitIsStoredOnlyWhenTheUserSaysSo) {
  Open();
  TypeValidLine();
  form_->Type(u"Text20"_s, u"12345678901"_s);  // AMKA, Luhn digit wrong
  form_->Type(u"Text26"_s, u"123456789"_s);    // tax number, digit wrong
  form_->OkCmd_Click();
  ASSERT_EQ(dialogs_.questions.size(), 1u);
  EXPECT_TRUE(dialogs_.questions[0].text.contains(u"'12345678901'"_s));
  EXPECT_EQ(dialogs_.last_style, AskStyle::Question);
  EXPECT_EQ(form_->FocusedField(), u"Text20"_s);
  EXPECT_EQ(form_->SelectionOf(u"Text20"_s)->length, 11);
  EXPECT_EQ(Stored(), Lines{});

  dialogs_.answers = {true, true};
  form_->OkCmd_Click();
  EXPECT_EQ(dialogs_.questions.size(), 3u);
  EXPECT_TRUE(dialogs_.questions[2].text.contains(u"'123456789'"_s));
  EXPECT_EQ(dialogs_.LastMessage(), kInsertDone);
  EXPECT_EQ(Stored().size(), 1u);
}

}  // namespace
}  // namespace veroxia::testing
