// Storing the common-business header: INSERT of a new header, UPDATE of a
// stored one, the value of every column, a statement that changes no row,
// and a statement the store refuses.

#include "header/ovt_form1_fixture.h"
#include "header/texts.h"
#include "shell/texts.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using testing::ValuesOf;

class OvtForm1Save : public testing::OvtForm1Test {
 protected:
  // The one message shown, expected to be the success message.
  void ExpectSaved() {
    ASSERT_EQ(dialogs_.messages.size(), 1u) << dialogs_.LastMessage().toStdString();
    EXPECT_EQ(dialogs_.messages[0].text, header_texts::kSaveDone);
    EXPECT_EQ(dialogs_.messages[0].title, header_texts::kSaveTitle);
    dialogs_.messages.clear();
  }
};

TEST_F(OvtForm1Save, NewHeaderIsInsertedThenUpdatedUnderTheSameId) {
  OvtForm1& form = Open();
  TypeValidHeader();
  form.SaveCmd_Click();
  ExpectSaved();
  auto stored = Stored();
  ASSERT_TRUE(stored.has_value());
  EXPECT_EQ(stored->employer_name, u"ΗΛΙΑΣ Α.Ε."_s);
  EXPECT_FALSE(form.IsNewHeader());

  form.UpDateCmd_Click();
  form.Type(u"Text4"_s, u"Νέα Επωνυμία"_s);
  form.Option1_Click(2);
  form.SaveCmd_Click();
  ExpectSaved();
  EXPECT_EQ(HeaderCount(), 1);
  stored = Stored();
  ASSERT_TRUE(stored.has_value());
  EXPECT_EQ(stored->employer_name, u"ΝΕΑ ΕΠΩΝΥΜΙΑ"_s);
  EXPECT_EQ(stored->declaration_type, u"03"_s);
  EXPECT_EQ(stored->declaration_descr, header_texts::kType03Descr);
  EXPECT_EQ(State(), testing::kViewState);
  ExpectBusyBalanced();
}

struct ColumnCase {
  const char* field;
  const char* column;
  QString typed;
  QString stored;
};

// Every column takes the value of its own field: as typed, or cleaned (no
// accents, capitals), dates through their masks.
TEST_F(OvtForm1Save, EveryColumnTakesItsFieldsValue) {
  const ColumnCase columns[] = {
      {"Text1", "declaration_type", u"02"_s, u"02"_s},
      {"KodDescr", "declaration_descr", u" ΕΚΤΑΚΤΗ "_s, u" ΕΚΤΑΚΤΗ "_s},
      {"Text2", "orgbra_branch_code", u" 12"_s, u" 12"_s},
      {"Text3", "orgbra_branch_descr", u" αθηνών "_s, u"ΑΘΗΝΩΝ"_s},
      {"Text4", "employer_name", u"Ηλίας & Υιοί ο.ε."_s, u"ΗΛΙΑΣ & ΥΙΟΙ Ο.Ε."_s},
      {"Text5", "emp_employer_id", u" 012345678"_s, u" 012345678"_s},
      {"Text6", "taxation_number", u"12345678 "_s, u"12345678 "_s},
      {"Text7", "address_street", u"οδός Πατησίων"_s, u"ΟΔΟΣ ΠΑΤΗΣΙΩΝ"_s},
      {"Text8", "num", u"12α "_s, u"12Α"_s},
      {"Text9", "zip_code", u"104 3"_s, u"104 3"_s},
      {"Text10", "city", u"Αθήνα"_s, u"ΑΘΗΝΑ"_s},
      {"Text11_1", "from_month", u"01"_s, u"01"_s},
      {"Text11_2", "from_year", u"2002"_s, u"2002"_s},
      {"Text12_1", "to_month", u"03"_s, u"03"_s},
      {"Text12_2", "to_year", u"2002"_s, u"2002"_s},
      {"Text14_1", "total_days1", u"11"_s, u"11"_s},
      {"Text14_2", "total_days2", u"12"_s, u"12"_s},
      {"Text14_3", "total_days3", u"13"_s, u"13"_s},
      {"Text17_1", "total_days", u" 99"_s, u" 99"_s},
      {"Text15_1", "total_salaries1", u"1,5"_s, u"1,5"_s},
      {"Text15_2", "total_salaries2", u"2,50"_s, u"2,50"_s},
      {"Text15_3", "total_salaries3", u"3"_s, u"3"_s},
      {"Text17_2", "total_salaries", u"1000,99"_s, u"1000,99"_s},
      {"Text16_1", "total_contributions1", u"4"_s, u"4"_s},
      {"Text16_2", "total_contributions2", u"5"_s, u"5"_s},
      {"Text16_3", "total_contributions3", u"6"_s, u"6"_s},
      {"Text17_3", "total_contributions", u"0"_s, u"0"_s},
      {"Text13_1", "saldate1", u"01/2002"_s, u"01/2002"_s},
      {"Text13_2", "saldate2", u"02/2002"_s, u"02/2002"_s},
      {"Text13_3", "saldate3", u"03/2002"_s, u"03/2002"_s},
      {"FirstNmTxt", "emp_first_name", u"Σπύρος"_s, u"ΣΠΥΡΟΣ"_s},
      {"FatherNmTxt", "emp_father_name", u"Ευάγγελος"_s, u"ΕΥΑΓΓΕΛΟΣ"_s},
      {"FlDateTxt", "CreateFlDate", u"08/05/2002"_s, u"08/05/2002"_s},
      {"StopDateTxt", "stop_date", u"__/__/____"_s, u""_s},
  };
  for (const bool update : {false, true}) {
    OvtForm1& form = Open();
    if (update) form.UpDateCmd_Click();
    for (const ColumnCase& column : columns) {
      form.At(QString::fromLatin1(column.field)).text = column.typed;
    }
    form.SaveData();
    ExpectSaved();
    auto stored = Stored();
    ASSERT_TRUE(stored.has_value());
    const ColumnValues values = ColumnValuesOf(*stored);
    for (const ColumnCase& column : columns) {
      EXPECT_EQ(ValueOf(values, QString::fromLatin1(column.column)), column.stored)
          << (update ? "UPDATE " : "INSERT ") << column.column;
    }
    ASSERT_EQ(values.size(), std::size(columns));  // no column left out
  }
  EXPECT_EQ(HeaderCount(), 1);
}

TEST_F(OvtForm1Save, CleanColumnsLoseAccentsAndKeepTheDiaeresis) {
  OvtForm1& form = Open();
  TypeValidHeader();
  form.Type(u"Text4"_s, u"  Άγγελος Προϊόντα Ευνοϊκά  "_s);
  form.Type(u"Text7"_s, u"Ώρας Ήλιου"_s);
  form.SaveCmd_Click();
  ExpectSaved();
  const auto stored = Stored();
  ASSERT_TRUE(stored.has_value());
  EXPECT_EQ(stored->employer_name, u"ΑΓΓΕΛΟΣ ΠΡΟΪΟΝΤΑ ΕΥΝΟΪΚΑ"_s);
  EXPECT_EQ(stored->address_street, u"ΩΡΑΣ ΗΛΙΟΥ"_s);
}

TEST_F(OvtForm1Save, QuotesPercentSignsAndSemicolonsAreStoredAsTypedAndTouchNoOtherRow) {
  Store(StoredRow(kId + 1));
  const auto other = Stored(kId + 1);
  OvtForm1& form = Open();
  TypeValidHeader();
  form.Type(u"Text4"_s, u"O'Brien; 100% '' --"_s);
  form.Type(u"Text3"_s, u"x'); DELETE FROM QOR_EMPLOYERS; --"_s);
  form.Type(u"Text15_1"_s, u"12,5"_s);
  form.SaveCmd_Click();
  ExpectSaved();
  const auto stored = Stored();
  ASSERT_TRUE(stored.has_value());
  EXPECT_EQ(stored->employer_name, u"O'BRIEN; 100% '' --"_s);
  EXPECT_EQ(stored->orgbra_branch_descr, u"X'); DELETE FROM QOR_EMPLOYERS; --"_s);
  EXPECT_EQ(HeaderCount(), 2);
  ASSERT_TRUE(other.has_value());
  EXPECT_EQ(ValuesOf(*Stored(kId + 1)), ValuesOf(*other));

  form.UpDateCmd_Click();
  form.Type(u"Text4"_s, u"a' WHERE 1=1; --"_s);
  form.SaveCmd_Click();
  ExpectSaved();
  EXPECT_EQ(Stored()->employer_name, u"A' WHERE 1=1; --"_s);
  EXPECT_EQ(ValuesOf(*Stored(kId + 1)), ValuesOf(*other));
}

TEST_F(OvtForm1Save, DatesAreStoredEmptyOrInFull) {
  OvtForm1& form = Open();
  TypeValidHeader();
  form.Option1_Click(1);
  form.Type(u"FlDateTxt"_s, u"__/__/____"_s);
  form.Type(u"StopDateTxt"_s, u"31/03/2002"_s);
  form.SaveCmd_Click();
  ExpectSaved();
  EXPECT_EQ(Stored()->CreateFlDate, u""_s);
  EXPECT_EQ(Stored()->stop_date, u"31/03/2002"_s);

  form.UpDateCmd_Click();
  form.Option1_Click(0);
  form.Type(u"FlDateTxt"_s, u"08/05/2002"_s);
  form.Type(u"StopDateTxt"_s, u"__/__/____"_s);
  form.SaveCmd_Click();
  ExpectSaved();
  EXPECT_EQ(Stored()->CreateFlDate, u"08/05/2002"_s);
  EXPECT_EQ(Stored()->stop_date, u""_s);
}

TEST_F(OvtForm1Save, TotalsAndMonthLabelsAreStoredAsShown) {
  OvtForm1& form = Open();
  TypeValidHeader();
  form.Type(u"Text14_1"_s, u"10"_s);
  form.Type(u"Text14_2"_s, u"20"_s);
  form.Type(u"Text14_3"_s, u"30"_s);
  form.Type(u"Text17_1"_s, u"99"_s);  // not the sum of the months
  form.Type(u"Text15_1"_s, u" 100,5 "_s);
  form.SaveCmd_Click();
  ExpectSaved();
  const auto stored = Stored();
  ASSERT_TRUE(stored.has_value());
  EXPECT_EQ(stored->total_days1, u"10"_s);
  EXPECT_EQ(stored->total_days, u"99"_s);
  EXPECT_EQ(stored->total_salaries1, u" 100,5 "_s);
  EXPECT_EQ(stored->saldate1, u"01/2002"_s);
  EXPECT_EQ(stored->saldate2, u"02/2002"_s);
  EXPECT_EQ(stored->saldate3, u"03/2002"_s);
  EXPECT_EQ(stored->from_month, u"01"_s);
  EXPECT_EQ(stored->to_month, u"03"_s);
}

TEST_F(OvtForm1Save, UpdateOfAVanishedRowIsReportedAsAFailure) {
  Store(StoredRow());
  OvtForm1& form = Open();
  form.UpDateCmd_Click();
  db_.Exec("DELETE FROM QOR_EMPLOYERS");
  form.SaveCmd_Click();
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_EQ(dialogs_.messages[0].text, header_texts::kSaveFailed);
  EXPECT_EQ(dialogs_.messages[0].title, header_texts::kSaveTitle);
  EXPECT_EQ(HeaderCount(), 0);
  EXPECT_FALSE(form.IsNewHeader());
  EXPECT_EQ(State(), testing::kViewState);
  ExpectBusyBalanced();
}

TEST_F(OvtForm1Save, FailedSaveKeepsTheTakeoverPending) {
  Store(StoredRow());
  OvtForm1& form = Open();
  db_.Exec("DELETE FROM QOR_EMPLOYERS");
  store_.vars.CarryOver = true;  // still to be carried over
  store_.vars.PreviousDeclarationId = kId - 1;
  form.SaveCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), header_texts::kSaveFailed);
  EXPECT_TRUE(store_.vars.CarryOver);
  EXPECT_FALSE(form.IsNewHeader());
}

TEST_F(OvtForm1Save, StoreErrorShowsItsOwnTextAndChangesNothing) {
  Store(StoredRow());
  const auto before = Stored();
  OvtForm1& form = Open();
  form.UpDateCmd_Click();
  form.Type(u"Text4"_s, u"Άλλη Επωνυμία"_s);
  db_.Exec(
      "CREATE TRIGGER refuse BEFORE UPDATE ON QOR_EMPLOYERS BEGIN SELECT RAISE(ABORT,'boom'); END");
  form.SaveCmd_Click();
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_TRUE(dialogs_.messages[0].text.contains(u"boom"_s))
      << dialogs_.messages[0].text.toStdString();
  EXPECT_FALSE(dialogs_.messages[0].text.contains(texts::kErrorCode));
  EXPECT_EQ(dialogs_.messages[0].title, texts::kAppTitle);
  EXPECT_EQ(State(), testing::kCorrectingState);
  EXPECT_EQ(form.Text(u"Text4"_s), u"Άλλη Επωνυμία"_s);
  EXPECT_FALSE(form.IsNewHeader());
  ASSERT_TRUE(before.has_value());
  EXPECT_EQ(ValuesOf(*Stored()), ValuesOf(*before));
  ExpectBusyBalanced();
}

TEST_F(OvtForm1Save, RefusedInsertLeavesANewHeaderNew) {
  OvtForm1& form = Open();
  TypeValidHeader();
  db_.Exec(
      "CREATE TRIGGER refuse BEFORE INSERT ON QOR_EMPLOYERS BEGIN SELECT RAISE(ABORT,'boom'); END");
  form.SaveCmd_Click();
  EXPECT_TRUE(dialogs_.LastMessage().contains(u"boom"_s));
  EXPECT_TRUE(form.IsNewHeader());
  EXPECT_EQ(State(), testing::kNewState);
  EXPECT_EQ(HeaderCount(), 0);

  db_.Exec("DROP TRIGGER refuse");
  dialogs_.messages.clear();
  form.SaveCmd_Click();  // the next save inserts
  ExpectSaved();
  EXPECT_EQ(HeaderCount(), 1);
}

}  // namespace
}  // namespace veroxia
