// Copying the previous declaration's lines under the new id: all of them,
// once, and nothing at all when a statement fails.

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include "shell/carry_over.h"
#include "shell/errors.h"
#include "shell/texts.h"
#include "store/declarations.h"
#include "store/rows.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using testing::DumpTable;
using testing::LinesOf;
using testing::Sample;
using testing::SampleLine;
using testing::ValuesOf;

constexpr int kPrevious = 5;
constexpr int kNew = 6;

class CarryOver : public ::testing::Test {
 protected:
  CarryOver() {
    store_.vars.PreviousDeclarationId = kPrevious;
    store_.vars.DeclarationId = kNew;
  }
  // Runs the carry-over, which must succeed silently and leave no scratch.
  void ExpectCopied(Kind kind, int copied) {
    const CarryOverOutcome outcome = CarryOverLines(store_.vars, dialogs_, kind);
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.copied, copied);
    EXPECT_TRUE(dialogs_.messages.empty()) << dialogs_.LastMessage().toStdString();
    EXPECT_TRUE(DumpTable(db_, "QOR_TEMP_EMPLOYEES").empty());
    EXPECT_TRUE(DumpTable(db_, "QOR_CON_TEMP_EMPLOYEES").empty());
  }
  // Three common lines of the previous declaration, stored out of reading
  // order, the second with an empty daily wage. Answers them in reading order.
  std::vector<EmployeeRow> AddCommonLines() {
    std::vector<EmployeeRow> lines{SampleLine<EmployeeRow>(kPrevious, 1, u"300"_s),
                                   SampleLine<EmployeeRow>(kPrevious, 2, u"100"_s),
                                   SampleLine<EmployeeRow>(kPrevious, 3, u"200"_s)};
    lines[1].daily_wages = u""_s;
    for (const auto& line : lines) InsertRow(db_, line);
    return {lines[1], lines[2], lines[0]};
  }

  testing::TempStore store_;
  Database& db_ = store_.Open();
  testing::FakeDialogs dialogs_;
};

// Each kind's lines, every column, under the new id, once; only common lines
// have their daily wages set (the rule is proved with the store).
TEST_F(CarryOver, CopiesTheLinesOfItsKindUnderTheNewIdOnce) {
  auto previous = AddCommonLines();
  std::vector<ConEmployeeRow> con{SampleLine<ConEmployeeRow>(kPrevious, 1, u"2"_s),
                                  SampleLine<ConEmployeeRow>(kPrevious, 2, u"1"_s)};
  for (const auto& line : con) InsertRow(db_, line);
  const auto common = DumpTable(db_, "QOR_EMPLOYEES");

  ExpectCopied(Kind::Construction, 2);
  std::swap(con[0], con[1]);  // reading order
  EXPECT_EQ(ValuesOf(LinesOf<ConEmployeeRow>(db_, kPrevious)), ValuesOf(con));
  for (auto& line : con) line.id = kNew;
  EXPECT_EQ(ValuesOf(LinesOf<ConEmployeeRow>(db_, kNew)), ValuesOf(con));
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYEES"), common);

  ExpectCopied(Kind::Common, 3);
  EXPECT_EQ(dialogs_.busy_calls, (std::vector<bool>{true, false, true, false}));
  previous[0].daily_wages = u"0"_s;  // empty in the previous declaration
  EXPECT_EQ(ValuesOf(LinesOf<EmployeeRow>(db_, kPrevious)), ValuesOf(previous));
  for (auto& line : previous) line.id = kNew;
  EXPECT_EQ(ValuesOf(LinesOf<EmployeeRow>(db_, kNew)), ValuesOf(previous));

  const auto lines = DumpTable(db_, "QOR_EMPLOYEES");
  ExpectCopied(Kind::Common, 0);  // a second run finds them copied
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYEES"), lines);
}

TEST_F(CarryOver, FailureLeavesLinesAndScratchExactlyAsTheyWere) {
  AddCommonLines();
  InsertRow(db_, Sample<EmployeeRow>(40, 1));
  db_.Exec("INSERT INTO QOR_TEMP_EMPLOYEES SELECT * FROM QOR_EMPLOYEES WHERE id = 40");
  db_.Exec(
      "CREATE TRIGGER fail BEFORE INSERT ON QOR_EMPLOYEES WHEN NEW.id = 6 "
      "BEGIN SELECT RAISE(ABORT, 'injected'); END");
  const auto lines = DumpTable(db_, "QOR_EMPLOYEES");
  const auto scratch = DumpTable(db_, "QOR_TEMP_EMPLOYEES");

  const CarryOverOutcome outcome = CarryOverLines(store_.vars, dialogs_, Kind::Common);

  EXPECT_FALSE(outcome.ok);
  EXPECT_EQ(outcome.copied, 0);
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYEES"), lines);
  EXPECT_EQ(DumpTable(db_, "QOR_TEMP_EMPLOYEES"), scratch);
  EXPECT_FALSE(db_.InTransaction());
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_EQ(dialogs_.messages[0].title, texts::kAppTitle);
  EXPECT_EQ(dialogs_.messages[0].text,
            ErrorMessage(texts::kCarryOverFailed, {SQLITE_CONSTRAINT, u"injected"_s}));
  EXPECT_EQ(dialogs_.busy_calls, (std::vector<bool>{true, false}));

  // Nothing half-copied stands in the way of the next save.
  db_.Exec("DROP TRIGGER fail");
  dialogs_.messages.clear();
  ExpectCopied(Kind::Common, 3);
}

}  // namespace
}  // namespace veroxia
