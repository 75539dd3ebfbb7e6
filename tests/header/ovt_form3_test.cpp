// The construction-works header where it differs from the common one: its
// rules in their order with their messages, the columns and how the first
// save and a correction store them, the branch code shown with three digits,
// the one month, the takeover, and the store error's message.

#include "header/ovt_form3.h"
#include "header/ovt_form1_fixture.h"
#include "header/texts.h"
#include "shell/errors.h"
#include "support/rule_chain.h"

namespace veroxia::testing {
namespace {

using namespace header_texts;

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
      {"Text2", u"12"_s, Integer(kNameOvtCode, 3, true), true, u"012"_s},
      {"Text3", u" "_s, Fixed(kText3Blank), true, u"Αθηνών"_s},
      {"Text4", u""_s, Fixed(kText4Blank), true, u"Δομική Α.Ε."_s},
      {"FirstNmTxt", u"Νίκος2"_s, NoDigits(kNameFirstNm), true, u""_s},
      {"FatherNmTxt", u"Γ1"_s, NoDigits(kNameFatherNm), true, u"Γιώργος"_s},
      {"Text5", u" "_s, Fixed(kStreetBlank), false, u"Πατησίων"_s},
      {"Text7", u"1043"_s, Integer(kNameTk, 5, true), false, u"10434"_s},
      {"Text8", u""_s, Fixed(kEmpCityBlank), false, u"Αθήνα"_s},
      {"Text9", u"  "_s, Fixed(kConDescrBlank), false, u"Πολυκατοικία"_s},
      {"Text10", u"123"_s, Integer(kNameAme, 10, true), true, u"1234567890"_s},
      {"Text11", u"12345"_s, Integer(kNameAmoe, 10, true), true, u"0987654321"_s},
      {"Text12", u"12345678"_s, Integer(kNameAfm, 9, true), true, u"094014201"_s},
      {"Text13", u""_s, Fixed(kStreetBlank), false, u"Σόλωνος"_s},
      {"Text15", u"abcde"_s, Integer(kNameTk, 5, true), false, u"10672"_s},
      {"Text16", u""_s, Fixed(kCityBlank), false, u"Αθήνα"_s},
      {"Text18", u"1.000"_s, Decimal(kNameSalaries, 10), true, u"1000,5"_s},
      {"Text19", u"1,5"_s, Integer(kNameWorkDays, 8, false), true, u"25"_s},
      {"Text20", u"x"_s, Decimal(kNameConContributions, 10), true, u"0"_s},
      {"FlDateTxt", u"32/01/2003"_s, Date(kNameFlDate), true, kEmptyDateBox},
      {"StopDateTxt", u"15/05/2003"_s, Fixed(kStopDateNotIn01), true, kEmptyDateBox},
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
      {"Text2", "ovt_code", u" 12"_s, u" 12"_s, u" 12"_s},
      {"Text3", "ovt_name", u" αθηνών "_s, u"ΑΘΗΝΩΝ"_s, u"ΑΘΗΝΩΝ"_s},
      {"Text4", "emp_name", u"x'); DROP TABLE x; --"_s, u"X'); DROP TABLE X; --"_s, u"X'); DROP TABLE X; --"_s},
      {"FirstNmTxt", "emp_first_name", u"Ηλίας"_s, u"ΗΛΙΑΣ"_s, u"ΗΛΙΑΣ"_s},
      {"FatherNmTxt", "emp_father_name", u"ΐων"_s, u"ΪΩΝ"_s, u"ΪΩΝ"_s},
      {"Text5", "emp_address", u"Οδός"_s, u"ΟΔΟΣ"_s, u"ΟΔΟΣ"_s},
      {"Text6", "emp_num", u" 2α "_s, u"2Α"_s, u"2Α"_s},
      {"Text7", "emp_zip_code", u" ab "_s, u"AB"_s, u" ab "_s},
      {"Text8", "emp_city", u"Βόλος"_s, u"ΒΟΛΟΣ"_s, u"ΒΟΛΟΣ"_s},
      {"Text9", "con_descr", u"έργο"_s, u"ΕΡΓΟ"_s, u"ΕΡΓΟ"_s},
      {"Text10", "ame", u" άΐb "_s, u"ΑΪB"_s, u" ΆΪB "_s},
      {"Text11", "amoe", u" c "_s, u"C"_s, u" c "_s},
      {"Text12", "afm", u" d "_s, u"D"_s, u" d "_s},
      {"Text13", "con_address", u"site's"_s, u"SITE'S"_s, u"SITE'S"_s},
      {"Text14", "con_num", u"4"_s, u"4"_s, u"4"_s},
      {"Text15", "con_zip_code", u" e "_s, u"E"_s, u" e "_s},
      {"Text16", "con_city", u"Άρτα"_s, u"ΑΡΤΑ"_s, u"ΑΡΤΑ"_s},
      {"Text18", "sum_salaries", u" 1,5"_s, u" 1,5"_s, u" 1,5"_s},
      {"Text19", "sum_days", u"7 "_s, u"7 "_s, u"7 "_s},
      {"Text20", "sum_contr", u"0,1"_s, u"0,1"_s, u"0,1"_s},
      {"FlDateTxt", "createfldate", u"01/06/2003"_s, u"01/06/2003"_s, u"01/06/2003"_s},
      {"StopDateTxt", "stop_date", kEmptyDateBox, u""_s, u""_s},
  };
  // clang-format on
  OvtForm3& form = Open();
  EXPECT_TRUE(form.IsNewHeader());
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
  EXPECT_EQ(DumpTable(db_, "QOR_CON_EMPLOYERS").size(), 1U);

  // A store error is reported with its number and text, on lines of their own.
  db_.Exec(
      "CREATE TRIGGER refuse BEFORE UPDATE ON QOR_CON_EMPLOYERS BEGIN SELECT RAISE(ABORT, "
      "'no'); END");
  form.SaveData();
  EXPECT_EQ(dialogs_.LastMessage(), ErrorMessage(kConSaveErrorFirstLine, 19, texts::kStoreRefused));
  EXPECT_FALSE(form.At(u"UpDateCmd"_s).visible);  // still correcting
}

// A stored header: the branch code with three digits, the type from its
// code, the month and the dates as stored. A new one takes the month of the
// period's start, and its close box asks (Yes ends the program); a taken-over
// one the previous header without its month and dates, and its save carries
// the lines over.
TEST_F(OvtForm3Test, ShowsStoredNewAndTakenOverHeaders) {
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
  EXPECT_TRUE(stored.At(u"QorConInsert"_s).enabled);
  EXPECT_FALSE(stored.At(u"Text1"_s).visible || stored.At(u"Text1"_s).enabled);  // code kept only
  stored.QorConInsert_Click();
  EXPECT_EQ(screens_.shown, QStringList{u"lines construction"_s});
  EXPECT_TRUE(stored.QueryClose());

  vars_.DeclarationId = kId + 1;
  OvtForm3& fresh = Open();
  EXPECT_EQ(Texts({"Text17_1", "Text17_2", "Text2"}), (QStringList{u"05"_s, u"2003"_s, {}}));
  EXPECT_FALSE(fresh.QueryClose());  // the close box asks; No keeps the screen, Yes ends
  EXPECT_EQ(FakeDialogs::Told(dialogs_.questions), (QStringList{kConCloseTitle, kCloseQuestion}));
  EXPECT_EQ(dialogs_.last_style, AskStyle::Plain);
  dialogs_.answers = {true};
  EXPECT_TRUE(fresh.QueryClose());
  EXPECT_EQ(screens_.quit_status, 0);

  for (int row_num = 1; row_num <= 2; ++row_num) {
    InsertRow(db_, Sample<ConEmployeeRow>(kId, row_num));
  }
  vars_.PreviousDeclarationId = kId;
  vars_.CarryOver = true;
  OvtForm3& taken = Open();
  EXPECT_EQ(Texts({"Text2", "Text17_1", "StopDateTxt"}),
            (QStringList{u"005"_s, u"05"_s, kEmptyDateBox}));
  taken.SaveCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kSaveDone);
  EXPECT_EQ(CountLines(db_, Kind::Construction, kId + 1), 2);
  EXPECT_EQ(ValueOf(*Stored(kId + 1), u"ovt_code"_s), u"005"_s);
  EXPECT_EQ(ValueOf(*Stored(kId + 1), u"from_month"_s), u"05"_s);
}

}  // namespace
}  // namespace veroxia::testing
