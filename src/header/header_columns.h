#pragma once
// A header row as column values, so that one screen logic serves the header
// tables of both kinds. Column names are kept in lower case: the screens
// match them without regard to case.

#include <QString>
#include <map>
#include <optional>

#include "store/database.h"
#include "store/rows.h"
#include "store/schema.h"

namespace veroxia {

using ColumnValues = std::map<QString, Text>;

// The value of a column, Null when the column is not among the values.
inline Text ValueOf(const ColumnValues& values, const QString& column) {
  const auto it = values.find(column.toLower());
  return it == values.end() ? Text() : it->second;
}

template <class Row>
ColumnValues ColumnValuesOf(Row row) {
  ColumnValues values;
  ForEachText(row, [&](const char* column, Text& value) {
    values[QString::fromLatin1(column).toLower()] = value;
  });
  return values;
}

// A row of the given id whose text columns take the values; a column missing
// from them is Null.
template <class Row>
Row RowOf(int id, const ColumnValues& values) {
  Row row;
  row.id = id;
  ForEachText(row, [&](const char* column, Text& value) {
    value = ValueOf(values, QString::fromLatin1(column));
  });
  return row;
}

// The stored header row of the declaration, if any. Throws StoreError.
template <class Row>
std::optional<ColumnValues> ReadHeaderColumns(Database& db, int id) {
  const std::optional<Row> row = SelectHeader<Row>(db, id);
  if (!row) return std::nullopt;
  return ColumnValuesOf(*row);
}

// Inserts the header row of the declaration, or updates the stored one;
// answers the rows affected. Throws StoreError.
template <class Row>
int WriteHeaderColumns(Database& db, int id, const ColumnValues& values, bool insert) {
  const Row row = RowOf<Row>(id, values);
  return insert ? InsertRow(db, row) : UpdateHeader(db, row);
}

}  // namespace veroxia
