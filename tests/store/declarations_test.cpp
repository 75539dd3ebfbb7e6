// Lines written and read back, and the statements of the registry and the
// carry-over that the screens cannot tell apart.

#include <gtest/gtest.h>

#include "shell/texts.h"
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

class Declarations : public ::testing::Test {
 protected:
  testing::TempStore store_;
  Database& db_ = store_.Open();
};

// Null stays apart from the empty text; quotes and other signs are data.
TEST_F(Declarations, RowsAreReadBackExactly) {
  const Text values[] = {
      std::nullopt,     u""_s,    u"O'BRIEN"_s, u"''"_s,
      u"\"ΝΙΚΟΣ\""_s,   u"50%"_s, u"a;b"_s,     u"x'); DELETE FROM QOR_EMPLOYEES; --"_s,
      texts::kCommand5, u"\\"_s};
  std::vector<EmployeeRow> lines;
  for (const Text& value : values) {
    const int row_num = static_cast<int>(lines.size()) + 1;
    auto line = SampleLine<EmployeeRow>(1, row_num, QString::number(100 + row_num));
    line.surname = line.daily_wages = value;
    ASSERT_EQ(InsertRow(db_, line), 1);
    lines.push_back(line);
  }
  EXPECT_EQ(ValuesOf(LinesOf<EmployeeRow>(db_, 1)), ValuesOf(lines));
}

// Common lines read by register number as text, then surname, pay month and
// wage type; construction lines the same without the pay month.
TEST_F(Declarations, LinesReadInTheirTextOrderNotByRowNumber) {
  // register number, surname, pay month, wage type
  const char16_t* stored[][4] = {
      {u"98765432", u"A", u"01", u"01"}, {u"5", u"B", u"01", u"01"},
      {u"5", u"A", u"02", u"00"},        {u"5", u"A", u"01", u"02"},
      {u"5", u"A", u"01", u"01"},        {u"123456789", u"Z", u"9", u"9"}};
  int row_num = 0;
  for (const auto& s : stored) {
    auto line = SampleLine<EmployeeRow>(3, ++row_num, QString::fromUtf16(s[0]));
    auto con = SampleLine<ConEmployeeRow>(3, row_num, QString::fromUtf16(s[0]));
    con.surname = line.surname = QString::fromUtf16(s[1]);
    line.sal_month = QString::fromUtf16(s[2]);
    con.wage_code = line.wage_code = QString::fromUtf16(s[3]);
    InsertRow(db_, line);
    InsertRow(db_, con);
  }
  InsertRow(db_, SampleLine<EmployeeRow>(4, 1, u"0"_s));
  const auto order = [](const auto& lines) {
    std::vector<int> rows;
    for (const auto& line : lines) rows.push_back(line.row_num);
    return rows;
  };
  EXPECT_EQ(order(LinesOf<EmployeeRow>(db_, 3)), (std::vector<int>{6, 5, 4, 3, 2, 1}));
  EXPECT_EQ(order(LinesOf<ConEmployeeRow>(db_, 3)), (std::vector<int>{6, 3, 5, 4, 2, 1}));
}

// A common period is found by the exact texts of its four fields; a quote in
// them is data.
TEST_F(Declarations, PeriodLookUpComparesExactTexts) {
  const PeriodTexts stored[] = {{u"4"_s, u"2002"_s, u"6"_s, u"2002"_s},
                                {u"04"_s, u"2002"_s, u"06"_s, u"2002"_s},
                                {u"'"_s, u"20'2"_s, u"'"_s, u"2002"_s}};
  for (int id = 1; id <= 3; ++id) {
    InsertRow(db_, testing::SampleHeader<EmployerRow>(id, stored[id - 1]));
    EXPECT_EQ(FindDeclaration(db_, Kind::Common, stored[id - 1]), Text(QString::number(id)));
  }
  const QString injected = u"01' OR '1'='1"_s;
  for (const PeriodTexts& period : {PeriodTexts{u"04"_s, u"2002"_s, u"05"_s, u"2002"_s},
                                    PeriodTexts{injected, injected, injected, injected}}) {
    EXPECT_EQ(FindDeclaration(db_, Kind::Common, period), std::nullopt);
  }
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
  std::vector<EmployeeRow> lines;
  for (const auto& c : cases) {
    lines.push_back(Sample<EmployeeRow>(c.id, static_cast<int>(lines.size())));
    lines.back().daily_wages = c.before;
    InsertRow(db_, lines.back());
  }
  auto con = Sample<ConEmployeeRow>(5, 1);
  con.daily_wages = std::nullopt;
  InsertRow(db_, con);

  EXPECT_EQ(FixDailyWages(db_, 5), 3);
  for (size_t i = 0; i < lines.size(); ++i) lines[i].daily_wages = cases[i].after;
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYEES"), ValuesOf(lines));
  EXPECT_EQ(LinesOf<ConEmployeeRow>(db_, 5)[0].daily_wages, std::nullopt);
}

}  // namespace
}  // namespace veroxia
