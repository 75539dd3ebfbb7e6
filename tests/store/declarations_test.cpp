// The registry's look-ups and the carry-over's statements, one by one.

#include <gtest/gtest.h>

#include "rules/texts.h"
#include "store/declarations.h"
#include "store/rows.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using testing::DumpTable;
using testing::SampleConEmployee;
using testing::SampleConEmployer;
using testing::SampleEmployee;
using testing::SampleEmployer;

class Declarations : public ::testing::Test {
 protected:
  testing::TempStore store_;
  Database& db_ = store_.Open();
};

TEST_F(Declarations, EmptyHeaderTableHasNullHighestIdReadAsZero) {
  for (Kind kind : {Kind::Common, Kind::Construction}) {
    const Text highest = MaxId(db_, kind);
    EXPECT_EQ(highest, std::nullopt);
    EXPECT_EQ(FieldNumber(highest), u"0"_s);
  }
}

TEST_F(Declarations, HighestIdIsNumericAndKeptPerKind) {
  for (int id : {9, 10, 2})
    InsertRow(db_, SampleEmployer(id, {u"01"_s, u"2002"_s, u"01"_s, u"2002"_s}));
  InsertRow(db_, SampleConEmployer(3, u"01"_s, u"2002"_s));
  EXPECT_EQ(MaxId(db_, Kind::Common), u"10"_s);
  EXPECT_EQ(MaxId(db_, Kind::Construction), u"3"_s);
}

TEST_F(Declarations, PeriodLookUpComparesExactTexts) {
  InsertRow(db_, SampleEmployer(1, {u"4"_s, u"2002"_s, u"6"_s, u"2002"_s}));
  InsertRow(db_, SampleEmployer(2, {u"04"_s, u"2002"_s, u"06"_s, u"2002"_s}));
  InsertRow(db_, SampleEmployer(3, {u" 5"_s, u"2002"_s, u" 5"_s, u"2002"_s}));
  InsertRow(db_, SampleConEmployer(7, u"04"_s, u"2002"_s));
  EXPECT_EQ(FindDeclaration(db_, Kind::Common, {u"04"_s, u"2002"_s, u"06"_s, u"2002"_s}),
            Text(u"2"_s));
  EXPECT_EQ(FindDeclaration(db_, Kind::Common, {u"4"_s, u"2002"_s, u"6"_s, u"2002"_s}),
            Text(u"1"_s));
  EXPECT_EQ(FindDeclaration(db_, Kind::Common, {u" 5"_s, u"2002"_s, u" 5"_s, u"2002"_s}),
            Text(u"3"_s));
  EXPECT_EQ(FindDeclaration(db_, Kind::Common, {u"05"_s, u"2002"_s, u"05"_s, u"2002"_s}),
            std::nullopt);
  EXPECT_EQ(FindDeclaration(db_, Kind::Common, {u"04"_s, u"2002"_s, u"05"_s, u"2002"_s}),
            std::nullopt);
  EXPECT_EQ(FindDeclaration(db_, Kind::Construction, {u"04"_s, u"2002"_s, {}, {}}), Text(u"7"_s));
  EXPECT_EQ(FindDeclaration(db_, Kind::Construction, {u"4"_s, u"2002"_s, {}, {}}), std::nullopt);
}

TEST_F(Declarations, QuoteInAPeriodIsDataAndMatchesNothingElse) {
  InsertRow(db_, SampleEmployer(1, {u"01"_s, u"2002"_s, u"01"_s, u"2002"_s}));
  InsertRow(db_, SampleEmployer(2, {u"'"_s, u"20'2"_s, u"'"_s, u"2002"_s}));
  InsertRow(db_, SampleConEmployer(1, u"01"_s, u"2002"_s));
  const QString injected = u"01' OR '1'='1"_s;
  EXPECT_EQ(FindDeclaration(db_, Kind::Common, {injected, injected, injected, injected}),
            std::nullopt);
  EXPECT_EQ(FindDeclaration(db_, Kind::Construction, {injected, u"2002"_s, {}, {}}), std::nullopt);
  EXPECT_EQ(FindDeclaration(db_, Kind::Common, {u"'"_s, u"20'2"_s, u"'"_s, u"2002"_s}),
            Text(u"2"_s));
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYERS").size(), 2u);
}

TEST_F(Declarations, DailyWageFixTakesAndBeforeOr) {
  // id, daily wage before, daily wage after; the previous declaration is 5.
  const struct {
    int id;
    Text before;
    Text after;
  } cases[] = {
      {5, std::nullopt, u"0"_s}, {5, u""_s, u"0"_s}, {5, u"12,50"_s, u"12,50"_s},
      {3, std::nullopt, u"0"_s}, {3, u""_s, u""_s},  {6, u" "_s, u" "_s},
  };
  int row_num = 0;
  for (const auto& c : cases) {
    ++row_num;
    auto line = SampleEmployee(c.id, row_num, QString::number(row_num));
    line.daily_wages = c.before;
    InsertRow(db_, line);
  }
  auto con = SampleConEmployee(5, 1, u"1"_s);
  con.daily_wages = std::nullopt;
  InsertRow(db_, con);

  EXPECT_EQ(FixDailyWages(db_, 5), 3);
  const auto lines = DumpTable(db_, "QOR_EMPLOYEES");
  ASSERT_EQ(lines.size(), std::size(cases));
  for (size_t i = 0; i < lines.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(lines[i][24], cases[i].after);
  }
  EXPECT_EQ(DumpTable(db_, "QOR_CON_EMPLOYEES")[0][21], std::nullopt);
}

TEST_F(Declarations, CopyMoveAndInsertAnswerTheRowsTheyChange) {
  for (int row = 1; row <= 3; ++row) InsertRow(db_, SampleEmployee(5, row, QString::number(row)));
  InsertRow(db_, SampleEmployee(4, 1, u"9"_s));
  EXPECT_EQ(CountLines(db_, Kind::Common, 5), 3);
  EXPECT_EQ(CopyLinesToScratch(db_, Kind::Common, 9), 0);
  EXPECT_EQ(CopyLinesToScratch(db_, Kind::Common, 5), 3);
  EXPECT_EQ(DumpTable(db_, "QOR_TEMP_EMPLOYEES").size(), 3u);
  EXPECT_EQ(MoveScratchToNextId(db_, Kind::Common), 3);
  EXPECT_EQ(InsertLinesFromScratch(db_, Kind::Common), 3);
  EXPECT_EQ(CountLines(db_, Kind::Common, 6), 3);
  ClearScratch(db_, Kind::Common);
  EXPECT_TRUE(DumpTable(db_, "QOR_TEMP_EMPLOYEES").empty());
  EXPECT_EQ(CountLines(db_, Kind::Construction, 5), 0);

  InsertRow(db_, SampleConEmployee(2, 1, u"1"_s));
  EXPECT_EQ(CopyLinesToScratch(db_, Kind::Construction, 2), 1);
  EXPECT_EQ(DumpTable(db_, "QOR_CON_TEMP_EMPLOYEES").size(), 1u);
  EXPECT_TRUE(DumpTable(db_, "QOR_TEMP_EMPLOYEES").empty());
}

}  // namespace
}  // namespace veroxia
