// The construction-works header where it differs from the common one: its
// rules in their order with their messages, the columns and how the first
// save and a correction store them, the branch code shown with three digits,
// the one month, the takeover, and the store error's message.

#include <gtest/gtest.h>

#include <memory>

#include "header/date_box.h"
#include "header/ovt_form3.h"
#include "header/texts.h"
#include "lines/ovt_form4_fixture.h"
#include "lines/texts.h"
#include "shell/errors.h"
#include "shell/start_form.h"
#include "shell/texts.h"
#include "store/declarations.h"
#include "support/fakes.h"
#include "support/rule_chain.h"
#include "support/store_rows.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;
using namespace header_texts;

class OvtForm3Test : public ::testing::Test {
 protected:
  static constexpr int kId = 3;

  OvtForm3Test() {
    vars_.DeclarationId = kId;
    vars_.PreviousDeclarationId = kId - 1;
    vars_.PeriodFrom = u"052003"_s;
    vars_.PeriodTo = u"072003"_s;
  }

  OvtForm3& Open() {
    form_ = std::make_unique<OvtForm3>(vars_, dialogs_, screens_);
    form_->Load();
    return *form_;
  }

  std::optional<ColumnValues> Stored(int id = kId) {
    const auto row = SelectHeader<ConEmployerRow>(db_, id);
    return row ? std::optional(ColumnValuesOf(*row)) : std::nullopt;
  }

  TempStore store_;
  Vars& vars_ = store_.vars;
  Database& db_ = store_.Open();
  FakeDialogs dialogs_;
  FakeScreens screens_;
  std::unique_ptr<OvtForm3> form_;
};

// Every rule, in order, with a text it refuses and the one typed after.
const std::vector<RuleStep>& Rules() {
  // clang-format off
  static const std::vector<RuleStep> rules{
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
  return rules;
}

TEST_F(OvtForm3Test, RulesReportInOrderWithTheirMessagesAndFocus) {
  OvtForm3& form = Open();
  ExpectRulesInOrder(
      form, dialogs_, [&form] { return form.ValidateHeader(); }, Rules());
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
  EXPECT_EQ(dialogs_.LastMessage(), ErrorMessage(kConSaveErrorFirstLine, 19, u"no"_s));
  EXPECT_FALSE(form.At(u"UpDateCmd"_s).visible);  // still correcting
}

// A stored header: the branch code with three digits, the type from its
// code, the month and the dates as stored. A new one takes the month of the
// period's start; a taken-over one the previous header without its month and
// dates, and its save carries the lines over.
TEST_F(OvtForm3Test, ShowsStoredNewAndTakenOverHeaders) {
  ConEmployerRow row = Sample<ConEmployerRow>(kId);
  row.ovt_code = u"5"_s;
  row.declare_type = u"03"_s;
  row.createfldate = u""_s;
  ASSERT_EQ(InsertRow(db_, row), 1);
  OvtForm3& stored = Open();
  EXPECT_EQ(stored.SelectedType(), 2);
  const QStringList names{u"Text2"_s,     u"Text9"_s,       u"Text17_1"_s, u"Text17_2"_s,
                          u"FlDateTxt"_s, u"StopDateTxt"_s, u"Text1"_s};
  QStringList shown;
  for (const QString& name : names) shown << stored.Text(name);
  EXPECT_EQ(shown, (QStringList{u"005"_s, *row.con_descr, *row.from_month, *row.from_year,
                                kEmptyDateBox, *row.stop_date, u"03"_s}));
  EXPECT_TRUE(stored.At(u"QorConInsert"_s).enabled);
  stored.QorConInsert_Click();
  EXPECT_EQ(screens_.shown, QStringList{u"lines construction"_s});
  EXPECT_TRUE(stored.QueryClose());

  vars_.DeclarationId = kId + 1;
  OvtForm3& fresh = Open();
  EXPECT_EQ(fresh.Text(u"Text17_1"_s) + fresh.Text(u"Text17_2"_s), u"052003"_s);
  EXPECT_EQ(fresh.Text(u"Text2"_s), u""_s);
  EXPECT_FALSE(fresh.QueryClose());
  EXPECT_EQ(dialogs_.questions.back().title, kConCloseTitle);

  for (int row_num = 1; row_num <= 2; ++row_num) {
    InsertRow(db_, Sample<ConEmployeeRow>(kId, row_num));
  }
  vars_.PreviousDeclarationId = kId;
  vars_.CarryOver = true;
  OvtForm3& taken = Open();
  EXPECT_EQ(taken.Text(u"Text2"_s), u"005"_s);
  EXPECT_EQ(taken.Text(u"Text17_1"_s) + taken.Text(u"StopDateTxt"_s), u"05"_s + kEmptyDateBox);
  taken.SaveCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), kSaveDone);
  EXPECT_EQ(CountLines(db_, Kind::Construction, kId + 1), 2);
  EXPECT_EQ(ValueOf(*Stored(kId + 1), u"ovt_code"_s), u"005"_s);
  EXPECT_EQ(ValueOf(*Stored(kId + 1), u"from_month"_s), u"05"_s);
}

// The whole road: the start screen opens the header of a new month, the
// saved header opens the worker screen, lines are inserted, browsed and one
// deleted, and Back returns to the header, now stored.
TEST(ConstructionRoad, FromTheStartScreenToTheLinesAndBack) {
  TempStore store;
  FakeDialogs dialogs;
  FakeScreens screens;
  StartForm start(store.vars, dialogs, screens);
  ASSERT_TRUE(start.Load());
  start.Command2_Click();
  start.Type(u"ConMonth"_s, u"05"_s);
  start.Type(u"ConYear"_s, u"2003"_s);
  start.OkCmd_Click();
  ASSERT_EQ(screens.shown, QStringList{u"header construction"_s});

  OvtForm3 header(store.vars, dialogs, screens);
  header.Load();
  for (const RuleStep& rule : Rules()) header.Type(QString::fromLatin1(rule.field), rule.next);
  header.SaveCmd_Click();
  EXPECT_EQ(dialogs.LastMessage(), kSaveDone);
  header.QorConInsert_Click();
  ASSERT_EQ(screens.shown.back(), u"lines construction"_s);

  OvtForm4 lines(store.vars, dialogs, screens);
  lines.Load();
  for (const QString& insured_id : {u"200000000"_s, u"100000000"_s}) {
    lines.NewCmd_Click();
    for (const auto& [name, text] : ValidConLine(insured_id)) lines.Type(name, text);
    lines.OkCmd_Click();
    EXPECT_EQ(dialogs.LastMessage(), lines_texts::kInsertDone);
  }
  lines.CancelCmd_Click();
  lines.FirstCmd_Click();
  EXPECT_EQ(lines.Text(u"Text22"_s), u"100000000"_s);
  lines.Nextcmd_Click();
  EXPECT_EQ(lines.CurrentRowNum(), u"1"_s);
  dialogs.answers = {true};
  lines.DeleteCmd_Click();
  const auto left = DumpTable(*store.vars.StoreConnection, "QOR_CON_EMPLOYEES");
  ASSERT_EQ(left.size(), 1U);
  EXPECT_EQ(left[0][1], u"1"_s);  // renumbered
  EXPECT_EQ(left[0][3], u"100000000"_s);
  lines.BackCmd_Click();
  EXPECT_EQ(screens.shown.back(), u"header construction"_s);

  OvtForm3 again(store.vars, dialogs, screens);
  again.Load();
  EXPECT_FALSE(again.IsNewHeader());
  EXPECT_EQ(again.Text(u"Text2"_s) + again.Text(u"Text17_1"_s), u"01205"_s);
}

}  // namespace
}  // namespace veroxia::testing
