#pragma once
// The statements of the employee-line screens: the keys of a declaration's
// lines in reading order, one line by its place in the table, the next line
// number, the insert, the correction, and the delete with the renumbering.
// Both kinds share them; the kind gives the table. Every value is bound.

#include <QByteArray>
#include <QList>
#include <functional>
#include <optional>
#include <vector>

#include "store/database.h"
#include "store/kind.h"
#include "store/rows.h"

namespace veroxia {

// What the line screens keep of each line in memory: where it is stored and
// what the finds look at, all read from the index of the reading order. The
// rest of a line, its number included, is read when it is shown.
struct LineKey {
  qint64 rowid = 0;
  Text insured_id;
  Text surname;
};

// A stored line and its number (Null in a line another program stored so).
template <class Row>
struct StoredLine {
  Row row;
  std::optional<int> row_num;
};

// The line a screen shows, as it was when shown: its place in the table and
// the declaration, line number and register number it had then (Null and
// blanks of the register number count as the empty text).
struct LineAddress {
  qint64 rowid = 0;
  int id = 0;
  std::optional<int> row_num;
  QString insured_id;
};

// The keys of a declaration's lines in the kind's reading order.
std::vector<LineKey> SelectLineKeys(Database& db, Kind kind, int id);

// Where the lines of a declaration with that number are stored (Null: the
// lines without a number).
std::vector<qint64> RowidsOfRowNum(Database& db, Kind kind, int id, std::optional<int> row_num);

// The highest line number of a declaration; Null when it has no lines.
Text MaxRowNum(Database& db, Kind kind, int id);

// Deletes the line at the address if it still has the remembered key;
// answers the rows deleted (0 when it is gone or changed behind our back).
int DeleteLineAt(Database& db, Kind kind, const LineAddress& address);

// Whether some line of the declaration has that number.
bool RowNumInUse(Database& db, Kind kind, int id, int row_num);

// Moves every line after row_num one number down; answers how many moved.
int CloseNumberGap(Database& db, Kind kind, int id, int row_num);

// Deletes every line of a declaration; answers how many went.
int DeleteLinesOf(Database& db, Kind kind, int id);

// Hands `take` the number and the named columns of every line of a
// declaration, in no particular order. The columns are the kind's own names.
void ForEachLineColumns(
    Database& db, Kind kind, int id, const QList<QByteArray>& columns,
    const std::function<void(std::optional<int> row_num, const std::vector<Text>& values)>& take);

namespace detail {
QByteArray LineAddressCondition();  // "rowid = ? AND id = ? AND ..."
int BindLineAddress(Statement& statement, int first, const LineAddress& address);
}  // namespace detail

// The line stored at rowid, if any.
template <class Row>
std::optional<StoredLine<Row>> SelectLineAt(Database& db, qint64 rowid) {
  const QByteArray sql = "SELECT " + detail::ColumnList(Row::kTable) + " FROM " +
                         QByteArray(Row::kTable) + " WHERE rowid = ?";
  Statement& statement = db.Prepare(sql);
  statement.Bind(1, rowid);
  std::optional<StoredLine<Row>> line;
  if (statement.Next()) {
    line = StoredLine<Row>{RowFrom<Row>(statement), std::nullopt};
    if (!statement.IsNull(1)) line->row_num = statement.Int(1);
  }
  statement.Reset();
  return line;
}

// Writes every text column of the line at the address, if it still has the
// remembered key; answers the rows changed.
template <class Row>
int UpdateLineAt(Database& db, const LineAddress& address, Row row) {
  QByteArray assignments;
  ForEachText(row, [&](const char* column, Text&) {
    if (!assignments.isEmpty()) assignments += ", ";
    assignments += QByteArray(column) + " = ?";
  });
  const QByteArray sql = "UPDATE " + QByteArray(Row::kTable) + " SET " + assignments + " WHERE " +
                         detail::LineAddressCondition();
  Statement& statement = db.Prepare(sql);
  int index = 1;
  ForEachText(row, [&](const char*, Text& value) { statement.Bind(index++, value); });
  detail::BindLineAddress(statement, index, address);
  return statement.Run();
}

}  // namespace veroxia
