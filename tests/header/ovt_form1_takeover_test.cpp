// The road of a declaration that takes over the previous one: the start
// screen settles the new id and period, the header screen shows the previous
// header locked, and its save copies the lines and stores the new header.

#include "header/ovt_form1_fixture.h"
#include "header/texts.h"
#include "shell/start_form.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using testing::ValuesOf;

class OvtForm1Takeover : public testing::OvtForm1Test {
 protected:
  static constexpr int kPrevious = 3;

  std::vector<EmployeeRow> Lines(int id) {
    return SelectLines<EmployeeRow>(db_, "QOR_EMPLOYEES", TablesOf(Kind::Common).order, id);
  }

  // The start screen, as the user drives it: the common kind with the
  // previous period's data, 04/2002 to 06/2002.
  void StartQuarter() {
    StartForm start(store_.vars, dialogs_, screens_);
    ASSERT_TRUE(start.Load());
    start.Command4_Click();
    start.Type(u"Month1"_s, u"04"_s);
    start.Type(u"Year1"_s, u"2002"_s);
    start.Type(u"Month2"_s, u"06"_s);
    start.Type(u"Year2"_s, u"2002"_s);
    start.OkCmd_Click();
  }
};

TEST_F(OvtForm1Takeover, FromTheStartScreenToTheStoredNewDeclaration) {
  // The previous declaration: an extraordinary quarter with both dates and
  // three lines; its type would fail the checks without a stop date.
  EmployerRow previous = StoredRow(kPrevious);
  previous.stop_date = u"31/03/2002"_s;
  Store(previous);
  for (int row_num = 1; row_num <= 3; ++row_num) {
    InsertRow(db_, testing::SampleEmployee(kPrevious, row_num, QString::number(100 * row_num)));
  }
  const auto previous_lines = Lines(kPrevious);
  ASSERT_EQ(previous_lines.size(), 3u);

  StartQuarter();
  EXPECT_EQ(screens_.shown, QStringList{u"header common"_s});
  EXPECT_TRUE(store_.vars.CarryOver);
  EXPECT_EQ(store_.vars.PreviousDeclarationId, kPrevious);
  EXPECT_EQ(store_.vars.DeclarationId, kPrevious + 1);
  dialogs_.messages.clear();
  dialogs_.busy_calls.clear();  // the start screen's own

  OvtForm1& form = Open();
  EXPECT_EQ(State(), testing::kTakeoverState);
  EXPECT_EQ(form.Text(u"Text4"_s), u"ΚΑΡΑΓΙΑΝΝΗΣ Ο.Ε."_s);
  EXPECT_EQ(form.Text(u"Text17_3"_s), u"330"_s);
  EXPECT_EQ(form.SelectedType(), 1);
  EXPECT_EQ(form.Text(u"Text11_1"_s), u"04"_s);
  EXPECT_EQ(form.Text(u"Text12_1"_s), u"06"_s);
  EXPECT_EQ(form.Text(u"FlDateTxt"_s), u"__/__/____"_s);
  EXPECT_EQ(form.Text(u"StopDateTxt"_s), u"__/__/____"_s);
  EXPECT_EQ(form.Text(u"Text13_2"_s), u"05/2002"_s);

  form.SaveCmd_Click();

  // The lines, copied whole under the new id.
  auto copied = Lines(kPrevious + 1);
  ASSERT_EQ(copied.size(), 3u);
  for (size_t i = 0; i < copied.size(); ++i) {
    EXPECT_EQ(copied[i].row_num, previous_lines[i].row_num);
    copied[i].id = kPrevious;
    EXPECT_EQ(ValuesOf(copied[i]), ValuesOf(previous_lines[i]));
  }
  // The header, stored unchecked with the new period and no dates.
  const auto stored = Stored(kPrevious + 1);
  ASSERT_TRUE(stored.has_value());
  EXPECT_EQ(stored->employer_name, u"ΚΑΡΑΓΙΑΝΝΗΣ Ο.Ε."_s);
  EXPECT_EQ(stored->declaration_type, u"02"_s);
  EXPECT_EQ(stored->from_month, u"04"_s);
  EXPECT_EQ(stored->from_year, u"2002"_s);
  EXPECT_EQ(stored->to_month, u"06"_s);
  EXPECT_EQ(stored->to_year, u"2002"_s);
  EXPECT_EQ(stored->CreateFlDate, u""_s);
  EXPECT_EQ(stored->stop_date, u""_s);
  EXPECT_EQ(stored->saldate1, u"04/2002"_s);
  EXPECT_EQ(stored->saldate3, u"06/2002"_s);
  EXPECT_EQ(ValuesOf(*Stored(kPrevious)), ValuesOf(previous));  // the previous header stays

  EXPECT_FALSE(store_.vars.CarryOver);
  EXPECT_FALSE(form.IsNewHeader());
  EXPECT_EQ(State(), testing::kViewState);
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_EQ(dialogs_.messages[0].text, header_texts::kSaveDone);
  ExpectBusyBalanced();

  // A correction now runs the checks and updates the same row.
  form.UpDateCmd_Click();
  form.Type(u"StopDateTxt"_s, u"30/06/2002"_s);
  form.Type(u"FlDateTxt"_s, u"15/07/2002"_s);
  form.Type(u"Text2"_s, u"051"_s);
  form.SaveCmd_Click();
  EXPECT_EQ(dialogs_.LastMessage(), header_texts::kSaveDone);
  EXPECT_EQ(Stored(kPrevious + 1)->stop_date, u"30/06/2002"_s);
  EXPECT_EQ(Lines(kPrevious + 1).size(), 3u);  // the lines are not copied again
}

}  // namespace
}  // namespace veroxia
