#pragma once
// Sample rows for the store tests and whole-table snapshots to compare.

#include <QString>
#include <vector>

#include "store/database.h"
#include "store/declarations.h"
#include "store/rows.h"
#include "store/schema.h"
#include "support/printers.h"

namespace veroxia::testing {

// Lines and headers whose every text column holds a value of its own
// ("<column> <id>.<row>"), so that a column lost, shifted or swapped shows.
EmployeeRow SampleEmployee(int id, int row_num, const QString& insured_id);
ConEmployeeRow SampleConEmployee(int id, int row_num, const QString& insured_id);
EmployerRow SampleEmployer(int id, const PeriodTexts& period);
ConEmployerRow SampleConEmployer(int id, const QString& month, const QString& year);

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

// Every column of every row of a table, in the order the rows were stored.
std::vector<std::vector<Text>> DumpTable(Database& db, const char* table);

}  // namespace veroxia::testing
