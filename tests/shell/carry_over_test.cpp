// Copying the previous declaration's lines under the new id: all of them,
// once, and nothing at all when a statement fails.

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <algorithm>

#include "shell/carry_over.h"
#include "shell/start_form.h"
#include "shell/texts.h"
#include "store/declarations.h"
#include "store/rows.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using testing::DumpTable;
using testing::ValuesOf;

constexpr int kPrevious = 5;
constexpr int kNew = 6;

class CarryOver : public ::testing::Test {
 protected:
  void SetUp() override {
    store_.vars.PreviousDeclarationId = kPrevious;
    store_.vars.DeclarationId = kNew;
  }
  template <class Row>
  Row Add(Row row) {
    InsertRow(db_, row);
    return row;
  }
  std::vector<EmployeeRow> Lines(int id) {
    return SelectLines<EmployeeRow>(db_, "QOR_EMPLOYEES", TablesOf(Kind::Common).order, id);
  }
  std::vector<ConEmployeeRow> ConLines(int id) {
    return SelectLines<ConEmployeeRow>(db_, "QOR_CON_EMPLOYEES", TablesOf(Kind::Construction).order,
                                       id);
  }
  CarryOverOutcome Run(Kind kind) { return CarryOverLines(store_.vars, dialogs_, kind); }
  void ExpectQuietSuccess(const CarryOverOutcome& outcome, int copied) {
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.copied, copied);
    EXPECT_TRUE(dialogs_.messages.empty()) << dialogs_.LastMessage().toStdString();
    EXPECT_FALSE(dialogs_.busy);
    EXPECT_TRUE(DumpTable(db_, "QOR_TEMP_EMPLOYEES").empty());
    EXPECT_TRUE(DumpTable(db_, "QOR_CON_TEMP_EMPLOYEES").empty());
  }
  // The previous declaration's three lines, stored out of reading order; the
  // second has an empty daily wage.
  std::vector<EmployeeRow> AddPreviousLines() {
    std::vector<EmployeeRow> lines{testing::SampleEmployee(kPrevious, 1, u"300"_s),
                                   testing::SampleEmployee(kPrevious, 2, u"100"_s),
                                   testing::SampleEmployee(kPrevious, 3, u"200"_s)};
    lines[1].daily_wages = u""_s;
    for (const auto& line : lines) Add(line);
    return {lines[1], lines[2], lines[0]};  // reading order
  }

  testing::TempStore store_;
  Database& db_ = store_.Open();
  testing::FakeDialogs dialogs_;
};

TEST_F(CarryOver, CopiesEveryLineWithEveryColumnUnderTheNewId) {
  auto previous = AddPreviousLines();
  auto older_null = testing::SampleEmployee(2, 1, u"400"_s);
  older_null.daily_wages = std::nullopt;
  Add(older_null);
  auto older_empty = testing::SampleEmployee(2, 2, u"500"_s);
  older_empty.daily_wages = u""_s;
  Add(older_empty);

  ExpectQuietSuccess(Run(Kind::Common), 3);

  previous[0].daily_wages = u"0"_s;  // the empty daily wage of the previous declaration
  EXPECT_EQ(ValuesOf(Lines(kPrevious)), ValuesOf(previous));
  auto copied = previous;
  for (auto& line : copied) line.id = kNew;
  EXPECT_EQ(ValuesOf(Lines(kNew)), ValuesOf(copied));
  std::vector<int> rows;
  for (const auto& line : Lines(kNew)) rows.push_back(line.row_num);
  std::sort(rows.begin(), rows.end());
  EXPECT_EQ(rows, (std::vector<int>{1, 2, 3}));

  const auto older = Lines(2);
  ASSERT_EQ(older.size(), 2u);
  EXPECT_EQ(older[0].daily_wages, u"0"_s);  // Null in any declaration
  EXPECT_EQ(older[1].daily_wages, u""_s);   // empty outside the previous declaration
  EXPECT_EQ(dialogs_.busy_calls, (std::vector<bool>{true, false}));
}

TEST_F(CarryOver, FollowsTheRegistrysChoiceOfIds) {
  AddPreviousLines();
  InsertRow(db_, testing::SampleEmployer(kPrevious, {u"01"_s, u"2002"_s, u"03"_s, u"2002"_s}));
  testing::FakeScreens screens;
  StartForm form(store_.vars, dialogs_, screens);
  ASSERT_TRUE(form.Load());
  form.Command4_Click();
  for (const char* field : {"Month1", "Month2"}) form.Type(QString::fromLatin1(field), u"04"_s);
  for (const char* field : {"Year1", "Year2"}) form.Type(QString::fromLatin1(field), u"2002"_s);
  store_.vars.PreviousDeclarationId = 0;
  store_.vars.DeclarationId = 0;
  form.OkCmd_Click();
  ASSERT_TRUE(store_.vars.CarryOver);

  ExpectQuietSuccess(Run(Kind::Common), 3);
  EXPECT_EQ(CountLines(db_, Kind::Common, kNew), 3);
}

TEST_F(CarryOver, SecondRunCopiesNothing) {
  AddPreviousLines();
  ExpectQuietSuccess(Run(Kind::Common), 3);
  const auto first = DumpTable(db_, "QOR_EMPLOYEES");
  ExpectQuietSuccess(Run(Kind::Common), 0);
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYEES"), first);
}

TEST_F(CarryOver, PreviousDeclarationWithoutLinesOnlyFixesDailyWages) {
  auto older = testing::SampleEmployee(2, 1, u"400"_s);
  older.daily_wages = std::nullopt;
  Add(older);
  Add(testing::SampleEmployee(kNew + 1, 1, u"1"_s));
  ExpectQuietSuccess(Run(Kind::Common), 0);
  EXPECT_TRUE(Lines(kNew).empty());
  EXPECT_EQ(Lines(2)[0].daily_wages, u"0"_s);
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYEES").size(), 2u);
}

TEST_F(CarryOver, FailureLeavesLinesAndScratchExactlyAsTheyWere) {
  AddPreviousLines();
  auto older = testing::SampleEmployee(2, 1, u"400"_s);
  older.daily_wages = std::nullopt;
  Add(older);
  Add(testing::SampleEmployee(40, 1, u"left over"_s));
  db_.Exec("INSERT INTO QOR_TEMP_EMPLOYEES SELECT * FROM QOR_EMPLOYEES WHERE id = 40");
  db_.Exec(
      "CREATE TRIGGER fail BEFORE INSERT ON QOR_EMPLOYEES WHEN NEW.id = 6 "
      "BEGIN SELECT RAISE(ABORT, 'injected'); END");
  const auto lines = DumpTable(db_, "QOR_EMPLOYEES");
  const auto scratch = DumpTable(db_, "QOR_TEMP_EMPLOYEES");
  ASSERT_EQ(scratch.size(), 1u);

  const CarryOverOutcome outcome = Run(Kind::Common);

  EXPECT_FALSE(outcome.ok);
  EXPECT_EQ(outcome.copied, 0);
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYEES"), lines);
  EXPECT_EQ(DumpTable(db_, "QOR_TEMP_EMPLOYEES"), scratch);
  EXPECT_FALSE(db_.InTransaction());
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_EQ(dialogs_.messages[0].title, texts::kAppTitle);
  EXPECT_EQ(dialogs_.messages[0].text, texts::kCarryOverFailed + u"\r\n"_s + texts::kErrorCode +
                                           QString::number(SQLITE_CONSTRAINT) + u"\r\n"_s +
                                           texts::kErrorDescription + u"injected"_s);
  EXPECT_FALSE(dialogs_.busy);
  EXPECT_EQ(dialogs_.busy_calls, (std::vector<bool>{true, false}));

  // Nothing half-copied stands in the way of the next save.
  db_.Exec("DROP TRIGGER fail");
  dialogs_.messages.clear();
  EXPECT_EQ(Run(Kind::Common).copied, 3);
}

TEST_F(CarryOver, ConstructionLinesAreCopiedWithoutTheDailyWageFix) {
  std::vector<ConEmployeeRow> previous{testing::SampleConEmployee(kPrevious, 1, u"2"_s),
                                       testing::SampleConEmployee(kPrevious, 2, u"1"_s)};
  previous[0].daily_wages = u""_s;
  previous[1].daily_wages = std::nullopt;
  for (const auto& line : previous) Add(line);
  auto older = testing::SampleConEmployee(2, 1, u"3"_s);
  older.daily_wages = std::nullopt;
  Add(older);
  auto common = testing::SampleEmployee(2, 1, u"3"_s);
  common.daily_wages = std::nullopt;
  Add(common);
  const auto common_before = DumpTable(db_, "QOR_EMPLOYEES");

  ExpectQuietSuccess(Run(Kind::Construction), 2);

  const std::vector<ConEmployeeRow> expected_previous{previous[1], previous[0]};
  EXPECT_EQ(ValuesOf(ConLines(kPrevious)), ValuesOf(expected_previous));
  auto copied = expected_previous;
  for (auto& line : copied) line.id = kNew;
  EXPECT_EQ(ValuesOf(ConLines(kNew)), ValuesOf(copied));
  EXPECT_EQ(ConLines(2)[0].daily_wages, std::nullopt);
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYEES"), common_before);
}

}  // namespace
}  // namespace veroxia
