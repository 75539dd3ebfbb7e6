#include "store/schema.h"

#include <sqlcipher/sqlite3.h>

#include <QFile>
#include <array>

#include "store/texts.h"

namespace veroxia {

namespace {

struct TableShape {
  const char* name;
  QStringList columns;
};

#define VEROXIA_NAME(c) QStringLiteral(#c),

const std::array<TableShape, 6>& Tables() {
  static const std::array<TableShape, 6> tables = [] {
    const QStringList employer{QStringLiteral("id"), VEROXIA_EMPLOYER_TEXT_COLUMNS(VEROXIA_NAME)};
    const QStringList con_employer{QStringLiteral("id"),
                                   VEROXIA_CON_EMPLOYER_TEXT_COLUMNS(VEROXIA_NAME)};
    const QStringList employee{QStringLiteral("id"), QStringLiteral("row_num"),
                               VEROXIA_EMPLOYEE_TEXT_COLUMNS(VEROXIA_NAME)};
    const QStringList con_employee{QStringLiteral("id"), QStringLiteral("row_num"),
                                   VEROXIA_CON_EMPLOYEE_TEXT_COLUMNS(VEROXIA_NAME)};
    return std::array<TableShape, 6>{{
        {"QOR_EMPLOYERS", employer},
        {"QOR_CON_EMPLOYERS", con_employer},
        {"QOR_EMPLOYEES", employee},
        {"QOR_TEMP_EMPLOYEES", employee},
        {"QOR_CON_EMPLOYEES", con_employee},
        {"QOR_CON_TEMP_EMPLOYEES", con_employee},
    }};
  }();
  return tables;
}

#undef VEROXIA_NAME

}  // namespace

QStringList ColumnsOf(const char* table) {
  for (const auto& shape : Tables()) {
    if (qstrcmp(shape.name, table) == 0) return shape.columns;
  }
  return {};
}

QStringList SchemaStatements() {
  QStringList statements;
  for (const auto& shape : Tables()) {
    QStringList defs;
    for (const QString& column : shape.columns) {
      const bool numeric = column == u"id" || column == u"row_num";
      defs << column + (numeric ? QStringLiteral(" INTEGER") : QStringLiteral(" TEXT"));
    }
    statements << QStringLiteral("CREATE TABLE %1 (%2)")
                      .arg(QString::fromLatin1(shape.name), defs.join(QStringLiteral(", ")));
  }
  statements
      // One header per id; max(id) and the look-up by id read the index.
      << QStringLiteral("CREATE UNIQUE INDEX QOR_EMPLOYERS_id ON QOR_EMPLOYERS (id)")
      << QStringLiteral(
             "CREATE INDEX QOR_EMPLOYERS_period ON QOR_EMPLOYERS "
             "(from_month, from_year, to_month, to_year)")
      << QStringLiteral("CREATE UNIQUE INDEX QOR_CON_EMPLOYERS_id ON QOR_CON_EMPLOYERS (id)")
      << QStringLiteral(
             "CREATE INDEX QOR_CON_EMPLOYERS_period ON QOR_CON_EMPLOYERS (from_month, from_year)")
      // A line is addressed by id and row_num; lines are read in the order of
      // the register number, surname, pay month and wage type.
      << QStringLiteral("CREATE INDEX QOR_EMPLOYEES_row ON QOR_EMPLOYEES (id, row_num)")
      << QStringLiteral(
             "CREATE INDEX QOR_EMPLOYEES_order ON QOR_EMPLOYEES "
             "(id, insured_id, surname, sal_month, wage_code)")
      << QStringLiteral("CREATE INDEX QOR_CON_EMPLOYEES_row ON QOR_CON_EMPLOYEES (id, row_num)")
      << QStringLiteral(
             "CREATE INDEX QOR_CON_EMPLOYEES_order ON QOR_CON_EMPLOYEES "
             "(id, insured_id, surname, wage_code)");
  return statements;
}

void CheckSchema(Database& db) {
  for (const auto& shape : Tables()) {
    const QString probe =
        QStringLiteral("SELECT %1 FROM %2 LIMIT 0")
            .arg(shape.columns.join(QStringLiteral(", ")), QString::fromLatin1(shape.name));
    try {
      db.Prepare(probe.toUtf8());
    } catch (const StoreError& error) {
      if (error.code != SQLITE_ERROR) throw;
      throw StoreError{SQLITE_ERROR,
                       store_file_texts::kTableNotOurs.arg(QString::fromLatin1(shape.name))};
    }
  }
}

std::unique_ptr<Database> OpenStoreFile(const QString& path, const QString& password) {
  return Database::Open(path, password, CheckSchema);
}

void CreateStore(const QString& path, const QString& password) {
  auto db = Database::Create(path, password);
  try {
    Transaction transaction(*db);
    for (const QString& statement : SchemaStatements()) db->Exec(statement.toStdString());
    transaction.Commit();
  } catch (const StoreError&) {
    db.reset();
    QFile::remove(path);  // no half-made store is left behind
    throw;
  }
}

}  // namespace veroxia
