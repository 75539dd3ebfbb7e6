#include "support/store_rows.h"

namespace veroxia::testing {

EmployeeRow SampleEmployee(int id, int row_num, const QString& insured_id) {
  return SampleLine<EmployeeRow>(id, row_num, insured_id);
}

ConEmployeeRow SampleConEmployee(int id, int row_num, const QString& insured_id) {
  return SampleLine<ConEmployeeRow>(id, row_num, insured_id);
}

EmployerRow SampleEmployer(int id, const PeriodTexts& period) {
  return SampleHeader<EmployerRow>(id, period);
}

ConEmployerRow SampleConEmployer(int id, const QString& month, const QString& year) {
  return SampleHeader<ConEmployerRow>(id, {month, year, {}, {}});
}

std::vector<std::vector<Text>> DumpTable(Database& db, const char* table) {
  const qsizetype columns = ColumnsOf(table).size();
  Statement& statement = db.Prepare("SELECT " + detail::ColumnList(table) + " FROM " +
                                    QByteArray(table) + " ORDER BY rowid");
  std::vector<std::vector<Text>> rows;
  while (statement.Next()) {
    std::vector<Text> row;
    for (int column = 0; column < columns; ++column) row.push_back(statement.Value(column));
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace veroxia::testing
