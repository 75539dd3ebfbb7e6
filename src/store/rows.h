#pragma once
// Reading and writing whole typed rows, the columns taken from the table's
// one column list.

#include <QStringList>
#include <optional>
#include <vector>

#include "store/database.h"
#include "store/schema.h"

namespace veroxia {

template <class Row>
concept LineRow = requires(Row row) {
  row.row_num;
};

namespace detail {
// "a, b, c" of the table's columns.
QByteArray ColumnList(const char* table);
// "?, ?, ?" for the table's columns.
QByteArray Placeholders(const char* table);
}  // namespace detail

// Fills a row from the current result row, whose columns are the table's
// columns in stored order.
template <class Row>
Row RowFrom(const Statement& statement) {
  Row row;
  row.id = statement.Int(0);
  int column = 1;
  if constexpr (LineRow<Row>) row.row_num = statement.Int(column++);
  ForEachText(row, [&](const char*, Text& value) { value = statement.Value(column++); });
  return row;
}

// Binds every column of a row, in stored order, from parameter 1 on; answers
// the next free parameter.
template <class Row>
int BindRow(Statement& statement, Row row) {
  int index = 1;
  statement.Bind(index++, row.id);
  if constexpr (LineRow<Row>) statement.Bind(index++, row.row_num);
  ForEachText(row, [&](const char*, Text& value) { statement.Bind(index++, value); });
  return index;
}

// INSERT of one whole row; answers the rows added.
template <class Row>
int InsertRow(Database& db, const Row& row) {
  const QByteArray sql = "INSERT INTO " + QByteArray(Row::kTable) + " (" +
                         detail::ColumnList(Row::kTable) + ") VALUES (" +
                         detail::Placeholders(Row::kTable) + ")";
  Statement& statement = db.Prepare(sql.constData());
  BindRow(statement, row);
  return statement.Run();
}

// UPDATE of every column but id of the header row whose id is the row's id;
// answers the rows changed (0 when no such row is stored).
template <class Row>
int UpdateHeader(Database& db, Row row) {
  QByteArray assignments;
  ForEachText(row, [&](const char* column, Text&) {
    if (!assignments.isEmpty()) assignments += ", ";
    assignments += QByteArray(column) + " = ?";
  });
  const QByteArray sql =
      "UPDATE " + QByteArray(Row::kTable) + " SET " + assignments + " WHERE id = ?";
  Statement& statement = db.Prepare(sql);
  int index = 1;
  ForEachText(row, [&](const char*, Text& value) { statement.Bind(index++, value); });
  statement.Bind(index, row.id);
  return statement.Run();
}

// The header row of a declaration, if stored.
template <class Row>
std::optional<Row> SelectHeader(Database& db, int id) {
  const QByteArray sql = "SELECT " + detail::ColumnList(Row::kTable) + " FROM " +
                         QByteArray(Row::kTable) + " WHERE id = ?";
  Statement& statement = db.Prepare(sql.constData());
  statement.Bind(1, id);
  std::optional<Row> row;
  if (statement.Next()) row = RowFrom<Row>(statement);
  statement.Reset();  // releases the read at once
  return row;
}

// Every row of a lines table for one id, in the kind's reading order.
template <class Row>
std::vector<Row> SelectLines(Database& db, const char* table, const char* order, int id) {
  const QByteArray sql = "SELECT " + detail::ColumnList(table) + " FROM " + QByteArray(table) +
                         " WHERE id = ? ORDER BY " + QByteArray(order);
  Statement& statement = db.Prepare(sql.constData());
  statement.Bind(1, id);
  std::vector<Row> rows;
  while (statement.Next()) rows.push_back(RowFrom<Row>(statement));
  return rows;
}

}  // namespace veroxia
