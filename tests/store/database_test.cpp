// The connection: opening, creating, keying, transactions and the schema
// check.

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include "store/rows.h"
#include "store/schema.h"
#include "store/store_file.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using testing::SampleEmployee;

QByteArray Bytes(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

class StoreFile : public ::testing::Test {
 protected:
  QString Path() const { return StorePath(dir_.path()); }

  // Opens the file and answers the error it fails with; the file must not change.
  StoreError OpenFails(const QString& password) {
    const QByteArray before = Bytes(Path());
    StoreError error;
    try {
      Database::Open(Path(), password);
      ADD_FAILURE() << "the store opened";
    } catch (const StoreError& caught) {
      error = caught;
    }
    EXPECT_EQ(Bytes(Path()), before);
    return error;
  }

  QTemporaryDir dir_;
};

TEST_F(StoreFile, CreatedStoreOpensWithItsPasswordAndPassesTheSchemaCheck) {
  CreateStore(Path(), StorePassword());
  auto db = Database::Open(Path(), StorePassword());
  EXPECT_NO_THROW(CheckSchema(*db));
}

TEST_F(StoreFile, WrongPasswordFailsAsNotADatabaseAndLeavesTheFileAlone) {
  CreateStore(Path(), StorePassword());
  const StoreError error = OpenFails(QStringLiteral("41kase42"));
  EXPECT_EQ(error.code, SQLITE_NOTADB);
  EXPECT_EQ(error.description, QString::fromUtf8(sqlite3_errstr(SQLITE_NOTADB)));
}

TEST_F(StoreFile, RandomBytesFailAsNotADatabaseAndAreLeftAlone) {
  QByteArray noise(8192, '\0');
  for (char& byte : noise) byte = static_cast<char>(QRandomGenerator::global()->bounded(256));
  Write(Path(), noise);
  EXPECT_EQ(OpenFails(StorePassword()).code, SQLITE_NOTADB);
}

TEST_F(StoreFile, MissingFileIsNotCreatedByOpen) {
  EXPECT_EQ(OpenFails(StorePassword()).code, SQLITE_CANTOPEN);
  EXPECT_FALSE(QFile::exists(Path()));
}

TEST_F(StoreFile, CreateRefusesAnExistingFileAndLeavesIt) {
  Write(Path(), "not a store");
  EXPECT_THROW(Database::Create(Path(), StorePassword()), StoreError);
  EXPECT_THROW(CreateStore(Path(), StorePassword()), StoreError);
  EXPECT_EQ(Bytes(Path()), QByteArray("not a store"));
}

TEST_F(StoreFile, SchemaCheckFailsWhenATableOrColumnIsMissing) {
  CreateStore(Path(), StorePassword());
  {
    auto db = Database::Open(Path(), StorePassword());
    db->Exec("DROP TABLE QOR_CON_TEMP_EMPLOYEES");
  }
  {
    auto db = Database::Open(Path(), StorePassword());
    try {
      CheckSchema(*db);
      ADD_FAILURE() << "a store without QOR_CON_TEMP_EMPLOYEES passed";
    } catch (const StoreError& error) {
      EXPECT_EQ(error.code, SQLITE_ERROR);
      EXPECT_TRUE(error.description.contains(QStringLiteral("no such table")))
          << error.description.toStdString();
    }
    db->Exec("CREATE TABLE QOR_CON_TEMP_EMPLOYEES (id INTEGER, row_num INTEGER)");
  }
  auto db = Database::Open(Path(), StorePassword());
  EXPECT_THROW(CheckSchema(*db), StoreError);
}

class Store : public ::testing::Test {
 protected:
  int Count(const char* table) { return static_cast<int>(testing::DumpTable(db_, table).size()); }

  testing::TempStore store_;
  Database& db_ = store_.Open();
};

TEST_F(Store, TransactionRollsBackUnlessCommitted) {
  {
    Transaction transaction(db_);
    InsertRow(db_, SampleEmployee(1, 1, QStringLiteral("1")));
    EXPECT_TRUE(db_.InTransaction());
  }
  EXPECT_FALSE(db_.InTransaction());
  EXPECT_EQ(Count("QOR_EMPLOYEES"), 0);
  try {
    Transaction transaction(db_);
    InsertRow(db_, SampleEmployee(1, 1, QStringLiteral("1")));
    throw StoreError{SQLITE_ERROR, QStringLiteral("later step failed")};
  } catch (const StoreError&) {
  }
  EXPECT_EQ(Count("QOR_EMPLOYEES"), 0);
  {
    Transaction transaction(db_);
    InsertRow(db_, SampleEmployee(1, 1, QStringLiteral("1")));
    transaction.Commit();
  }
  EXPECT_EQ(Count("QOR_EMPLOYEES"), 1);
}

TEST_F(Store, FailingStatementReportsSqliteCodeAndDescription) {
  try {
    db_.Exec("SELECT nothing FROM QOR_EMPLOYERS");
    ADD_FAILURE() << "the statement ran";
  } catch (const StoreError& error) {
    EXPECT_EQ(error.code, SQLITE_ERROR);
    EXPECT_EQ(error.description, QStringLiteral("no such column: nothing"));
  }
}

}  // namespace
}  // namespace veroxia
