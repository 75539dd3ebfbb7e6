// The store file: opening, creating, keying and the schema check.

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>

#include "store/schema.h"
#include "store/store_file.h"
#include "store/texts.h"
#include "support/files.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

// Only a writable store with all its tables opens, with its password only;
// a failed open changes nothing, leaves no companion file, and no store is
// made over an existing file.
TEST(StoreFile, OpensOnlyAWritableWholeStoreWithItsPassword) {
  const auto store = [](const char* sql) {
    return [=](const QString& path) {
      CreateStore(path, StorePassword());
      if (sql != nullptr) Database::Open(path, StorePassword())->Exec(sql);
    };
  };
  const auto read_only = [&](const QString& path) {
    store(nullptr)(path);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup);
  };
  // A database of its own that SQLite would switch to its write-ahead log.
  const auto plain = [](const QString& path) {
    sqlite3* db = nullptr;
    sqlite3_open(path.toUtf8().constData(), &db);
    sqlite3_exec(db, "CREATE TABLE QOR_EMPLOYERS (id INTEGER)", nullptr, nullptr, nullptr);
    sqlite3_close(db);
  };
  const QString password = StorePassword();
  const struct {
    const char* name;
    std::function<void(const QString& path)> make;
    QString password;
    int code;             // SQLITE_OK: it opens and passes the schema check
    QString description;  // how it starts; empty: SQLite's text for the code
  } cases[] = {
      // clang-format off
      {"Created", store(nullptr), password, SQLITE_OK, {}},
      {"WrongPassword", store(nullptr), u"41kase42"_s, SQLITE_NOTADB, {}},
      {"NotAStore", [](const QString& path) { ASSERT_TRUE(testing::WriteFile(path, QByteArray(8192, 'x'))); }, password, SQLITE_NOTADB, {}},
      {"Missing", [](const QString&) {}, password, SQLITE_CANTOPEN, {}},
      {"ReadOnly", read_only, password, SQLITE_READONLY, {}},
      {"Empty", [](const QString& path) { ASSERT_TRUE(testing::WriteFile(path, {})); }, password, SQLITE_NOTADB, {}},
      {"PlainSqlite", plain, password, SQLITE_NOTADB, {}},
      {"OursWithoutTables", store("PRAGMA journal_mode = DELETE; DROP TABLE QOR_EMPLOYEES"), password,
       SQLITE_ERROR, store_file_texts::kTableNotOurs.arg(u"QOR_EMPLOYEES"_s)},
      {"TableMissing", store("DROP TABLE QOR_CON_TEMP_EMPLOYEES"), password, SQLITE_ERROR,
       store_file_texts::kTableNotOurs.arg(u"QOR_CON_TEMP_EMPLOYEES"_s)},
      {"ColumnMissing", store("DROP TABLE QOR_CON_TEMP_EMPLOYEES; "
                              "CREATE TABLE QOR_CON_TEMP_EMPLOYEES (id INTEGER, row_num INTEGER)"),
       password, SQLITE_ERROR, store_file_texts::kTableNotOurs.arg(u"QOR_CON_TEMP_EMPLOYEES"_s)},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    QTemporaryDir dir;
    const QString path = StorePath(dir.path());
    c.make(path);
    const QByteArray before = testing::FileBytes(path);
    int code = SQLITE_OK;
    try {
      OpenStoreFile(path, c.password);
    } catch (const StoreError& error) {
      code = error.code;
      const QString description =
          c.description.isEmpty() ? QString::fromUtf8(sqlite3_errstr(code)) : c.description;
      EXPECT_TRUE(error.description.startsWith(description)) << error.description.toStdString();
    }
    EXPECT_EQ(code, c.code);
    if (QFile::exists(path)) {
      EXPECT_THROW(CreateStore(path, StorePassword()), StoreError);
    }
    EXPECT_EQ(testing::FileBytes(path), before);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files),
              QFile::exists(path) ? QStringList{StoreFileName()} : QStringList{});
  }
}

}  // namespace
}  // namespace veroxia
