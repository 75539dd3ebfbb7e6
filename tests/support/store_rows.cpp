#include "support/store_rows.h"

namespace veroxia::testing {

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
