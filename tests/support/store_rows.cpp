#include "support/store_rows.h"

namespace veroxia::testing {

void AddLines(Database& db, Kind kind, int id, int count, int shared) {
  if (count <= 0) return;
  db.Exec(QStringLiteral(
              "INSERT INTO %1 (id, row_num, insured_id, surname) WITH RECURSIVE n(i) AS "
              "(SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %3) SELECT %2, i, CASE WHEN "
              "%4 > 0 AND i >= %4 THEN '999999999' ELSE CAST(100000000 + i AS TEXT) END, "
              "'S' || i FROM n")
              .arg(QLatin1StringView(TablesOf(kind).lines))
              .arg(id)
              .arg(count)
              .arg(shared)
              .toStdString());
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
