#include "store/lines.h"

namespace veroxia {

namespace {

QByteArray Sql(const char* pattern, Kind kind) {
  const KindTables tables = TablesOf(kind);
  return QByteArray(pattern).replace("%lines", tables.lines).replace("%order", tables.order);
}

}  // namespace

namespace detail {

QByteArray LineAddressCondition() {
  return "rowid = ? AND id = ? AND row_num IS ? AND ifnull(trim(insured_id), '') = ?";
}

int BindLineAddress(Statement& statement, int first, const LineAddress& address) {
  statement.Bind(first, address.rowid)
      .Bind(first + 1, address.id)
      .Bind(first + 2, address.row_num)
      .Bind(first + 3, address.insured_id.trimmed());
  return first + 4;
}

}  // namespace detail

std::vector<LineKey> SelectLineKeys(Database& db, Kind kind, int id) {
  Statement& statement = db.Prepare(
      Sql("SELECT rowid, insured_id, surname FROM %lines WHERE id = ? ORDER BY %order", kind));
  statement.Bind(1, id);
  std::vector<LineKey> keys;
  while (statement.Next()) {
    keys.push_back(LineKey{statement.Int64(0), statement.Value(1), statement.Value(2)});
  }
  return keys;
}

std::vector<qint64> RowidsOfRowNum(Database& db, Kind kind, int id, std::optional<int> row_num) {
  Statement& statement =
      db.Prepare(Sql("SELECT rowid FROM %lines WHERE id = ? AND row_num IS ?", kind));
  statement.Bind(1, id).Bind(2, row_num);
  std::vector<qint64> rowids;
  while (statement.Next()) rowids.push_back(statement.Int64(0));
  return rowids;
}

Text MaxRowNum(Database& db, Kind kind, int id) {
  Statement& statement =
      db.Prepare(Sql("SELECT max(row_num) AS MaxRow FROM %lines WHERE id = ?", kind));
  statement.Bind(1, id);
  statement.Next();  // an aggregate always gives one row
  const Text highest = statement.Value(0);
  statement.Reset();
  return highest;
}

int DeleteLineAt(Database& db, Kind kind, const LineAddress& address) {
  Statement& statement =
      db.Prepare(Sql("DELETE FROM %lines WHERE ", kind) + detail::LineAddressCondition());
  detail::BindLineAddress(statement, 1, address);
  return statement.Run();
}

bool RowNumInUse(Database& db, Kind kind, int id, int row_num) {
  Statement& statement =
      db.Prepare(Sql("SELECT 1 FROM %lines WHERE id = ? AND row_num = ? LIMIT 1", kind));
  statement.Bind(1, id).Bind(2, row_num);
  const bool found = statement.Next();
  statement.Reset();
  return found;
}

int CloseNumberGap(Database& db, Kind kind, int id, int row_num) {
  return db
      .Prepare(Sql("UPDATE %lines SET row_num = row_num - 1 WHERE id = ? AND row_num > ?", kind))
      .Bind(1, id)
      .Bind(2, row_num)
      .Run();
}

int DeleteLinesOf(Database& db, Kind kind, int id) {
  return db.Prepare(Sql("DELETE FROM %lines WHERE id = ?", kind)).Bind(1, id).Run();
}

void ForEachLineColumns(
    Database& db, Kind kind, int id, const QList<QByteArray>& columns,
    const std::function<void(std::optional<int> row_num, const std::vector<Text>& values)>& take) {
  Statement& statement = db.Prepare(Sql("SELECT row_num, ", kind) + columns.join(", ") +
                                    Sql(" FROM %lines WHERE id = ?", kind));
  statement.Bind(1, id);
  std::vector<Text> values(static_cast<size_t>(columns.size()));
  while (statement.Next()) {
    for (size_t c = 0; c < values.size(); ++c) values[c] = statement.Value(static_cast<int>(c) + 1);
    take(statement.IsNull(0) ? std::nullopt : std::optional<int>(statement.Int(0)), values);
  }
}

}  // namespace veroxia
