// The common-business header and its row: a new header with the period of
// the start screen, every field stored in its column by INSERT and UPDATE and
// shown from it again, and a header taken over from the previous declaration.

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "header/ovt_form1_fixture.h"
#include "header/texts.h"
#include "shell/texts.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using namespace header_texts;
using namespace testing;

using OvtForm1Store = OvtForm1Test;

// A new header, taken over or not, opens with the period of the start screen
// and its months, and the pictures found beside the program; a header taken
// over from none keeps the opening values.
TEST_F(OvtForm1Store, NewHeaderShowsThePeriodOfTheStartScreenAndItsMonths) {
  // The period boxes, then the three month labels.
  const std::pair<bool, QStringList> periods[] = {
      {false, {"05", "2003", "05", "2003", "05/2003", "", ""}},
      {true, {"01", "2002", "03", "2002", "01/2002", "02/2002", "03/2002"}},
      {false, {"09", "2002", "11", "2002", "09/2002", "10/2002", "11/2002"}},
  };
  const QDir dir(store_.Dir());
  for (const char* name : {"ovt2.gif", "qormain.ico"}) {
    ASSERT_TRUE(QFile(dir.filePath(QString::fromLatin1(name))).open(QIODevice::WriteOnly));
  }
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
  const char* field;
  const char* column;
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
    {"Text13_1", "saldate1", u"stale 1", nullptr, u"02/2003"},
    {"Text13_2", "saldate2", u"stale 2", nullptr, u""},
    {"Text13_3", "saldate3", u"stale 3", nullptr, u""},
    {"FirstNmTxt", "emp_first_name", u"Σπύρος", u"ΣΠΥΡΟΣ"},
    {"FatherNmTxt", "emp_father_name", u"Ευάγγελος", u"ΕΥΑΓΓΕΛΟΣ"},
    {"FlDateTxt", "CreateFlDate", u"08/05/20__"},
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
    for (const ColumnCase& c : kColumns) {
      form.At(QString::fromLatin1(c.field)).text = QString::fromUtf16(c.typed);
    }
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
    EXPECT_EQ(form_->SelectedType(), 1);
  }
  EXPECT_EQ(HeaderCount(), 2);
  EXPECT_EQ(ValuesOf(*Stored(kId + 1)), ValuesOf(*neighbour));
}

TEST_F(OvtForm1Store, UnknownOrMissingTypeShowsTheRegularTypeAndNullsShowEmpty) {
  for (const Text& code : {Text(u"07"_s), Text(u""_s), Text()}) {
    SCOPED_TRACE(code.value_or(u"Null"_s).toStdString());
    db_.Exec("DELETE FROM QOR_EMPLOYERS");
    EmployerRow row;  // every other column Null
    row.id = kId;
    row.declaration_type = code;
    Store(row);
    OvtForm1& form = Open();
    EXPECT_EQ(form.SelectedType(), 0);
    EXPECT_EQ(Texts({"Text1", "KodDescr", "Text4", "Text14_1", "FlDateTxt", "StopDateTxt"}),
              (QStringList{u"01"_s, {}, {}, {}, kEmptyDateBox, kEmptyDateBox}));
    EXPECT_EQ(State(), kViewState);
  }
}

// Stored unchecked, with the period of the start screen, no dates and the
// previous lines under the new id; a refused INSERT leaves it pending.
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
  db_.Exec(
      "CREATE TRIGGER refuse BEFORE INSERT ON QOR_EMPLOYERS BEGIN SELECT RAISE(ABORT, 'x'); END");
  form.SaveCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), texts::kStoreRefused);
  EXPECT_TRUE(vars_.CarryOver && form.IsNewHeader());
  EXPECT_FALSE(Stored().has_value());
  db_.Exec("DROP TRIGGER refuse");

  form.SaveCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kSaveDone);
  EXPECT_FALSE(vars_.CarryOver || form.IsNewHeader());
  ExpectBusyBalanced();
  EXPECT_EQ(CountLines(db_, Kind::Common, kId), 3);
  const EmployerRow stored = Stored().value_or(EmployerRow());
  EXPECT_EQ((std::vector<Text>{stored.declaration_type, stored.total_salaries, stored.from_month,
                               stored.to_month, stored.CreateFlDate, stored.stop_date}),
            (std::vector<Text>{u"02"_s, previous.total_salaries, u"01"_s, u"03"_s, u""_s, u""_s}));
  EXPECT_EQ(ValuesOf(*Stored(kId - 1)), ValuesOf(previous));
  EXPECT_EQ(HeaderCount(), 2);
}

// A tax number with a wrong check digit is stored only when the user says so.
TEST_F(OvtForm1Store, AWrongCheckDigitIsAQuestion) {
  OvtForm1& form = Open();
  TypeValidHeader();
  form.Type(u"Text6"_s, u"123456789"_s);
  for (const bool yes : {false, true}) {
    dialogs_.answers = {yes};
    form.SaveCmd_Click();
    ASSERT_EQ(dialogs_.questions.size(), yes ? 2u : 1u);
    EXPECT_TRUE(dialogs_.questions.back().text.contains(u"'123456789'"_s));
    EXPECT_EQ(form.FocusedField(), u"Text6"_s);
    EXPECT_EQ(Stored().value_or(EmployerRow()).taxation_number,
              yes ? Text(u"123456789"_s) : Text());
  }
}

}  // namespace
}  // namespace veroxia
