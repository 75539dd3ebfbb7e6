// The store file: opening, creating, keying and the schema check.

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QTemporaryDir>
#include <functional>

#include "store/schema.h"
#include "store/store_file.h"
#include "support/files.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

// Only a writable store with all its tables opens, with its password only;
// a failed open changes nothing, and no store is made over an existing file.
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
      {"TableMissing", store("DROP TABLE QOR_CON_TEMP_EMPLOYEES"), password, SQLITE_ERROR,
       u"no such table: QOR_CON_TEMP_EMPLOYEES"_s},
      {"ColumnMissing", store("DROP TABLE QOR_CON_TEMP_EMPLOYEES; "
                              "CREATE TABLE QOR_CON_TEMP_EMPLOYEES (id INTEGER, row_num INTEGER)"),
       password, SQLITE_ERROR, u"no such column: "_s},
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
      CheckSchema(*Database::Open(path, c.password));
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
  }
}

}  // namespace
}  // namespace veroxia
