// The construction-works worker screen where it differs from the common one:
// its rules in their order, the columns and the marital status as stored and
// shown, the reading order, the focus after Clear and after the last delete,
// the pointer before the insert message and its own delete message.

#include "lines/ovt_form4_fixture.h"
#include "lines/texts.h"
#include "support/rule_chain.h"
#include "support/store_rows.h"

namespace veroxia::testing {
namespace {

using namespace lines_texts;

// A line wrong in every checked field is reported rule by rule, each field
// put right (or wrong another way) before the next try.
TEST_F(OvtForm4Test, RulesReportInOrderWithTheirMessagesAndFocus) {
  // clang-format off
  const std::vector<RuleStep> rules{
      {"Text21", u"12"_s, Integer(kNameConBranch, 3, true), true, u""_s},
      {"Text22", u"1234"_s, Integer(kNameInsuredId, 9, true), true, u""_s},
      {"Text23", u"123"_s, Integer(kNameAmka, 11, true), true, u"12345678901"_s},
      {"Text24", u" "_s, Fixed(kSurnameBlank), false, u"Π2"_s},
      {"Text24", u"Π2"_s, NoDigits(kNameSurname), true, u"Πέτρου"_s},
      {"Text25", u""_s, Fixed(kNameBlank), false, u"Ι1"_s},
      {"Text25", u"Ι1"_s, NoDigits(kNameName), true, u"Ιωάννης"_s},
      {"Text26", u""_s, Fixed(kFatherBlank), false, u"Κ3"_s},
      {"Text26", u"Κ3"_s, NoDigits(kNameFather), true, u"Κώστας"_s},
      {"Text27", u""_s, Fixed(kMotherBlank), false, u"Μ4"_s},
      {"Text27", u"Μ4"_s, NoDigits(kNameMother), true, u"Μαρία"_s},
      {"Text28", u"__/__/____"_s, Fixed(kBirthBlank), false, u"31/02/1970"_s},
      {"Text28", u"31/02/1970"_s, Date(kNameBirth), true, u"01/02/1970"_s},
      {"Text29", u"12"_s, Integer(kNameAfm, 9, true), true, u"123456789"_s},
      {"Text31", u""_s, Integer(kNameTriennia, 1, true), true, u"0"_s},
      {"Text32", u"a"_s, Integer(kNameSundays, 1, true), true, u"1"_s},
      {"Text33", u""_s, Integer(kNameCategory, 6, false), true, u"7"_s},
      {"Text34", u"x"_s, Integer(kNameSpecial, 2, false), true, u""_s},
      {"Text35", u""_s, Integer(kNameCover, 4, false), true, u"1"_s},
      {"Text36", u"32/01/2003"_s, Date(kNameSalFrom), true, u"01/01/2003"_s},
      {"Text37", u"01/13/2003"_s, Date(kNameSalTo), true, u"__/__/____"_s},
      {"Text38", u""_s, Integer(kNameWageCode, 2, false), true, u"1"_s},
      {"Text39", u""_s, Integer(kNameWorkDays, 3, false), true, u"5"_s},
      {"Text40", u""_s, Decimal(kNameDailyWage, 8), true, u"1"_s},
      {"Text41", u"x"_s, Decimal(kNameSalary, 8), true, u"5"_s},
      {"Text42", u"a"_s, Integer(kNamePhase, 2, false), true, u""_s},
      {"Text43", u""_s, Integer(kNameCostingDays, 2, false), true, u"0"_s},
      {"Text44", u""_s, Decimal(kNameInsuredContr, 8), true, u"1"_s},
      {"Text45", u""_s, Decimal(kNameEmployerContr, 8), true, u"1"_s},
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
  EXPECT_EQ(form.Text(u"Text30"_s), kMarried);
  EXPECT_EQ(form.Text(u"Text36"_s), u"__/__/____"_s);
  EXPECT_EQ(form.Text(u"Text46"_s), u"440,5"_s);
}

// Lines are read by register number, surname and wage type; a status other
// than "1" shows as unmarried, and one typed otherwise than ΕΓΓΑΜΟΣ stores "0".
TEST_F(OvtForm4Test, BrowsesInReadingOrderShowingTheMaritalStatus) {
  const struct {
    const char* insured_id;
    const char* surname;
    const char* wage_code;
    std::optional<QString> status;
  } lines[] = {{"2", "A", "02", u"1"_s},
               {"1", "B", "01", u"0"_s},
               {"2", "A", "01", std::nullopt},
               {"3", "A", "01", u"x"_s}};
  int row_num = 0;
  for (const auto& line : lines) {
    ConEmployeeRow row = Sample<ConEmployeeRow>(kId, ++row_num);
    row.insured_id = QString::fromLatin1(line.insured_id);
    row.surname = QString::fromLatin1(line.surname);
    row.wage_code = QString::fromLatin1(line.wage_code);
    row.married_status = line.status;
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
  EXPECT_EQ(empty.Text(u"Text43"_s), u"0"_s);
  EXPECT_TRUE(DumpTable(db_, "QOR_CON_EMPLOYEES").empty());

  empty.Type(u"Text21"_s, u"x"_s);
  empty.FocusMovedTo(u"Text40"_s);
  empty.ClearCmd_Click();
  EXPECT_EQ(empty.FocusedField(), u"Text21"_s);
  EXPECT_EQ(empty.Text(u"Text21"_s), u""_s);
  empty.BackCmd_Click();
  EXPECT_EQ(screens_.shown, QStringList{u"header construction"_s});
}

}  // namespace
}  // namespace veroxia::testing
