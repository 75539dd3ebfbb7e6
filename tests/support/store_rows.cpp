#include "support/store_rows.h"

#include "store/rows.h"

namespace veroxia::testing {

namespace {

template <class Row>
Row Sample(int id, int row_num) {
  Row row;
  row.id = id;
  if constexpr (LineRow<Row>) row.row_num = row_num;
  ForEachText(row, [&](const char* column, Text& value) {
    value = QStringLiteral("%1 %2.%3").arg(QString::fromLatin1(column)).arg(id).arg(row_num);
  });
  return row;
}

}  // namespace

EmployeeRow SampleEmployee(int id, int row_num, const QString& insured_id) {
  auto row = Sample<EmployeeRow>(id, row_num);
  row.insured_id = insured_id;
  return row;
}

ConEmployeeRow SampleConEmployee(int id, int row_num, const QString& insured_id) {
  auto row = Sample<ConEmployeeRow>(id, row_num);
  row.insured_id = insured_id;
  return row;
}

EmployerRow SampleEmployer(int id, const PeriodTexts& period) {
  auto row = Sample<EmployerRow>(id, 0);
  row.from_month = period.from_month;
  row.from_year = period.from_year;
  row.to_month = period.to_month;
  row.to_year = period.to_year;
  return row;
}

ConEmployerRow SampleConEmployer(int id, const QString& month, const QString& year) {
  auto row = Sample<ConEmployerRow>(id, 0);
  row.from_month = month;
  row.from_year = year;
  return row;
}

std::vector<std::vector<Text>> DumpTable(Database& db, const char* table) {
  const QStringList columns = ColumnsOf(table);
  const QByteArray sql =
      "SELECT " + detail::ColumnList(table) + " FROM " + QByteArray(table) + " ORDER BY rowid";
  Statement& statement = db.Prepare(sql);
  std::vector<std::vector<Text>> rows;
  while (statement.Next()) {
    std::vector<Text> row;
    for (int column = 0; column < columns.size(); ++column) row.push_back(statement.Value(column));
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace veroxia::testing
