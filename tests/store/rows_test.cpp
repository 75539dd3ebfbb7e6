// Whole rows written and read back: Null kept apart from the empty text,
// awkward characters stored exactly, lines read in their text order.

#include <gtest/gtest.h>

#include <algorithm>

#include "shell/texts.h"
#include "store/rows.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using testing::SampleConEmployee;
using testing::SampleEmployee;
using testing::ValuesOf;

class Rows : public ::testing::Test {
 protected:
  std::vector<EmployeeRow> Lines(int id) {
    return SelectLines<EmployeeRow>(db_, "QOR_EMPLOYEES", TablesOf(Kind::Common).order, id);
  }
  std::vector<ConEmployeeRow> ConLines(int id) {
    return SelectLines<ConEmployeeRow>(db_, "QOR_CON_EMPLOYEES", TablesOf(Kind::Construction).order,
                                       id);
  }

  testing::TempStore store_;
  Database& db_ = store_.Open();
};

TEST_F(Rows, NullAndEmptyTextStayApart) {
  auto line = SampleEmployee(1, 1, u"123"_s);
  line.surname = std::nullopt;
  line.name = u""_s;
  ASSERT_EQ(InsertRow(db_, line), 1);
  const auto read = Lines(1);
  ASSERT_EQ(read.size(), 1u);
  EXPECT_EQ(read[0].surname, std::nullopt);
  ASSERT_TRUE(read[0].name.has_value());
  EXPECT_TRUE(read[0].name->isEmpty());
  EXPECT_EQ(ValuesOf(read[0]), ValuesOf(line));

  auto header = testing::SampleEmployer(4, {u"01"_s, u"2002"_s, u"01"_s, u"2002"_s});
  header.stop_date = u""_s;
  header.CreateFlDate = std::nullopt;
  InsertRow(db_, header);
  const auto stored = SelectHeader<EmployerRow>(db_, 4);
  ASSERT_TRUE(stored.has_value());
  EXPECT_EQ(ValuesOf(*stored), ValuesOf(header));
  EXPECT_EQ(SelectHeader<EmployerRow>(db_, 5), std::nullopt);
}

TEST_F(Rows, QuotesAndOtherSignsAreStoredExactlyAndTouchNoOtherRow) {
  const auto first = SampleEmployee(1, 1, u"111"_s);
  InsertRow(db_, first);
  const QString awkward[] = {
      u"O'BRIEN"_s,     u"'"_s,   u"''"_s,  u"\"ΝΙΚΟΣ\""_s,
      u"50%"_s,         u"a;b"_s, u"_*?"_s, u"x'); DELETE FROM QOR_EMPLOYEES; --"_s,
      texts::kCommand5, u"\\"_s,
  };
  int row_num = 2;
  for (const QString& value : awkward) {
    SCOPED_TRACE(value.toStdString());
    auto line = SampleEmployee(1, row_num++, u"222"_s);
    line.surname = value;
    line.name = value;
    line.daily_wages = value;
    ASSERT_EQ(InsertRow(db_, line), 1);
    const auto read = Lines(1);
    ASSERT_EQ(read.size(), static_cast<size_t>(row_num - 1));
    EXPECT_EQ(ValuesOf(read.front()), ValuesOf(first));  // "111" reads first
    const auto stored = std::find_if(read.begin(), read.end(),
                                     [&](const auto& r) { return r.row_num == line.row_num; });
    ASSERT_NE(stored, read.end());
    EXPECT_EQ(ValuesOf(*stored), ValuesOf(line));
  }
}

TEST_F(Rows, LinesReadInTextOrderOfRegisterNumberNotByRowNumber) {
  InsertRow(db_, SampleEmployee(1, 1, u"98765432"_s));
  InsertRow(db_, SampleEmployee(1, 2, u"123456789"_s));
  InsertRow(db_, SampleEmployee(2, 1, u"000000001"_s));
  const auto lines = Lines(1);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].insured_id, u"123456789"_s);
  EXPECT_EQ(lines[0].row_num, 2);
  EXPECT_EQ(lines[1].insured_id, u"98765432"_s);

  InsertRow(db_, SampleConEmployee(1, 1, u"98765432"_s));
  InsertRow(db_, SampleConEmployee(1, 2, u"123456789"_s));
  const auto con = ConLines(1);
  ASSERT_EQ(con.size(), 2u);
  EXPECT_EQ(con[0].insured_id, u"123456789"_s);
}

TEST_F(Rows, SameRegisterNumberOrderedBySurnameThenPayMonthThenWageType) {
  // row_num, surname, sal_month, wage_code; stored in the reverse of the reading order.
  const struct {
    int row_num;
    const char16_t* surname;
    const char16_t* month;
    const char16_t* wage;
  } stored[] = {{1, u"B", u"01", u"01"},
                {2, u"A", u"02", u"01"},
                {3, u"A", u"01", u"02"},
                {4, u"A", u"01", u"01"}};
  for (const auto& s : stored) {
    auto line = SampleEmployee(3, s.row_num, u"5"_s);
    line.surname = QString::fromUtf16(s.surname);
    line.sal_month = QString::fromUtf16(s.month);
    line.wage_code = QString::fromUtf16(s.wage);
    InsertRow(db_, line);
  }
  std::vector<int> order;
  for (const auto& line : Lines(3)) order.push_back(line.row_num);
  EXPECT_EQ(order, (std::vector<int>{4, 3, 2, 1}));
}

}  // namespace
}  // namespace veroxia
