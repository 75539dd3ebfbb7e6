#include "store/declarations.h"

#include <QByteArray>

namespace veroxia {

namespace {

QByteArray Sql(const char* pattern, const char* table1, const char* table2 = "") {
  return QByteArray(pattern).replace("%1", table1).replace("%2", table2);
}

}  // namespace

std::optional<Text> FindDeclaration(Database& db, Kind kind, const PeriodTexts& period) {
  Statement* statement = nullptr;
  if (kind == Kind::Common) {
    statement = &db.Prepare(
        "SELECT id FROM QOR_EMPLOYERS WHERE from_month = ? AND from_year = ? AND to_month = ? "
        "AND to_year = ?");
    statement->Bind(3, period.to_month).Bind(4, period.to_year);
  } else {
    statement =
        &db.Prepare("SELECT id FROM QOR_CON_EMPLOYERS WHERE from_month = ? AND from_year = ?");
  }
  statement->Bind(1, period.from_month).Bind(2, period.from_year);
  std::optional<Text> id;
  if (statement->Next()) id = statement->Value(0);
  statement->Reset();  // releases the read at once
  return id;
}

Text MaxId(Database& db, Kind kind) {
  Statement& statement = db.Prepare(Sql("SELECT max(id) AS MaxId FROM %1", TablesOf(kind).header));
  statement.Next();  // an aggregate always gives one row
  const Text highest = statement.Value(0);
  statement.Reset();
  return highest;
}

int CountLines(Database& db, Kind kind, int id) {
  Statement& statement =
      db.Prepare(Sql("SELECT count(*) AS Cnt FROM %1 WHERE id = ?", TablesOf(kind).lines));
  statement.Bind(1, id);
  statement.Next();
  const int count = statement.Int(0);
  statement.Reset();
  return count;
}

Rows HeaderRow(Database& db, Kind kind, int id) {
  Statement& statement = db.Prepare(Sql("SELECT * FROM %1 WHERE id = ?", TablesOf(kind).header));
  statement.Bind(1, id);
  return Rows(statement);
}

Rows LinesInOrder(Database& db, Kind kind, int id) {
  const KindTables tables = TablesOf(kind);
  Statement& statement =
      db.Prepare(Sql("SELECT * FROM %1 WHERE id = ? ORDER BY %2", tables.lines, tables.order));
  statement.Bind(1, id);
  return Rows(statement);
}

Rows LinesByNumber(Database& db, Kind kind, int id) {
  Statement& statement = db.Prepare(
      Sql("SELECT * FROM %1 WHERE id = ? ORDER BY row_num, rowid", TablesOf(kind).lines, ""));
  statement.Bind(1, id);
  return Rows(statement);
}

Rows InsuredIdsInOrder(Database& db, Kind kind, int id) {
  const KindTables tables = TablesOf(kind);
  Statement& statement = db.Prepare(
      Sql("SELECT insured_id FROM %1 WHERE id = ? ORDER BY %2", tables.lines, tables.order));
  statement.Bind(1, id);
  return Rows(statement);
}

std::vector<DeclarationSummary> ListDeclarations(Database& db, Kind kind) {
  const KindTables tables = TablesOf(kind);
  const char* columns = kind == Kind::Common
                            ? "h.id, h.from_month, h.from_year, h.to_month, h.to_year, "
                              "h.declaration_type"
                            : "h.id, h.from_month, h.from_year, NULL, NULL, h.declare_type";
  Statement& statement =
      db.Prepare("SELECT " + QByteArray(columns) + ", (SELECT count(*) FROM " + tables.lines +
                 " AS l WHERE l.id = h.id) FROM " + tables.header + " AS h ORDER BY h.id");
  std::vector<DeclarationSummary> list;
  while (statement.Next()) {
    const auto text = [&](int column) { return statement.Value(column).value_or(QString()); };
    list.push_back({statement.Value(0),
                    {text(1), text(2), text(3), text(4)},
                    statement.Value(5),
                    statement.Int(6)});
  }
  return list;
}

void ClearScratch(Database& db, Kind kind) {
  db.Prepare(Sql("DELETE FROM %1", TablesOf(kind).scratch)).Run();
}

int FixDailyWages(Database& db, int id) {
  return db
      .Prepare(
          "UPDATE QOR_EMPLOYEES SET daily_wages = '0' "
          "WHERE daily_wages IS NULL OR daily_wages = '' AND id = ?")
      .Bind(1, id)
      .Run();
}

int CopyLinesToScratch(Database& db, Kind kind, int id) {
  const KindTables tables = TablesOf(kind);
  return db
      .Prepare(Sql("INSERT INTO %1 SELECT * FROM %2 WHERE id = ?", tables.scratch, tables.lines))
      .Bind(1, id)
      .Run();
}

int MoveScratchToNextId(Database& db, Kind kind) {
  return db.Prepare(Sql("UPDATE %1 SET id = id + 1", TablesOf(kind).scratch)).Run();
}

int InsertLinesFromScratch(Database& db, Kind kind) {
  const KindTables tables = TablesOf(kind);
  return db.Prepare(Sql("INSERT INTO %1 SELECT * FROM %2", tables.lines, tables.scratch)).Run();
}

std::vector<PayrollMonth> PayrollMonths(Database& db, int id) {
  Statement& statement = db.Prepare(
      "SELECT sal_month, sal_year, count(*) FROM QOR_EMPLOYEES WHERE id = ? "
      "GROUP BY sal_month, sal_year");
  statement.Bind(1, id);
  std::vector<PayrollMonth> months;
  while (statement.Next()) {
    months.push_back({statement.Value(0), statement.Value(1), statement.Int(2)});
  }
  return months;
}

int SetPayrollMonth(Database& db, int id, const PayrollMonth& from, const QString& month,
                    const QString& year) {
  return db
      .Prepare(
          "UPDATE QOR_EMPLOYEES SET sal_month = ?, sal_year = ? "
          "WHERE id = ? AND sal_month = ? AND sal_year = ?")
      .Bind(1, month)
      .Bind(2, year)
      .Bind(3, id)
      .Bind(4, from.month)
      .Bind(5, from.year)
      .Run();
}

}  // namespace veroxia
