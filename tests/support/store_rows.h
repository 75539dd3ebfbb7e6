#pragma once
// Sample rows for the store tests and whole-table snapshots to compare.

#include <vector>

#include "store/database.h"
#include "store/declarations.h"
#include "store/rows.h"
#include "store/schema.h"
#include "store/store_file.h"
#include "support/printers.h"

namespace veroxia::testing {

// A row whose every text column holds a value of its own
// ("<column> <id>.<row>"), so that a column lost, shifted or swapped shows.
template <class Row>
Row Sample(int id, int row_num = 0) {
  Row row;
  row.id = id;
  if constexpr (LineRow<Row>) row.row_num = row_num;
  ForEachText(row, [&](const char* column, Text& value) {
    value = QStringLiteral("%1 %2.%3").arg(QString::fromLatin1(column)).arg(id).arg(row_num);
  });
  return row;
}

// The row with the given columns set.
template <class Row>
Row Set(Row row, std::initializer_list<std::pair<const char*, Text>> values) {
  ForEachText(row, [&](const char* column, Text& value) {
    for (const auto& [name, text] : values)
      if (std::string_view(name) == column) value = text;
  });
  return row;
}

// Row `row_num` (0: the header) of declaration 1 with only the given columns set.
template <class Row>
Row Filled(int row_num, std::initializer_list<std::pair<const char*, Text>> values) {
  Row row;
  row.id = 1;
  if constexpr (LineRow<Row>) row.row_num = row_num;
  return Set(row, values);
}

// A line of the given register number.
template <class Row>
Row SampleLine(int id, int row_num, const QString& insured_id) {
  Row row = Sample<Row>(id, row_num);
  row.insured_id = insured_id;
  return row;
}

// A header of the given period; a construction header keeps its start only.
template <class Row>
Row SampleHeader(int id, const PeriodTexts& period) {
  Row row = Sample<Row>(id);
  row.from_month = period.from_month;
  row.from_year = period.from_year;
  if constexpr (requires { row.to_month; }) {
    row.to_month = period.to_month;
    row.to_year = period.to_year;
  }
  return row;
}

// The values of a row in stored order, the numbers as decimal texts.
template <class Row>
std::vector<Text> ValuesOf(Row row) {
  std::vector<Text> values{QString::number(row.id)};
  if constexpr (LineRow<Row>) values.push_back(QString::number(row.row_num));
  ForEachText(row, [&](const char*, const Text& value) { values.push_back(value); });
  return values;
}

template <class Row>
std::vector<std::vector<Text>> ValuesOf(const std::vector<Row>& rows) {
  std::vector<std::vector<Text>> values;
  for (const Row& row : rows) values.push_back(ValuesOf(row));
  return values;
}

// The lines of a declaration of the row's kind, in their reading order.
template <class Row>
std::vector<Row> LinesOf(Database& db, int id) {
  const Kind kind = std::is_same_v<Row, EmployeeRow> ? Kind::Common : Kind::Construction;
  return SelectLines<Row>(db, TablesOf(kind).lines, TablesOf(kind).order, id);
}

// Adds `count` lines to declaration `id` of the kind in one statement: line n
// (from 1) of the person 100000000 + n, or of 999999999 from line `shared` on
// when that is above 0, surnamed "S<n>", every other column Null.
void AddLines(Database& db, Kind kind, int id, int count, int shared = 0);

// Every column of every row of a table, in the order the rows were stored.
std::vector<std::vector<Text>> DumpTable(Database& db, const char* table);

// The common lines of every declaration in the store file.
inline size_t CommonLinesIn(const QString& path) {
  return DumpTable(*Database::Open(path, StorePassword()), "QOR_EMPLOYEES").size();
}

}  // namespace veroxia::testing
