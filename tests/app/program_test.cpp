// The program itself, started beside stores it cannot use: it says why in one
// message, ends with status 1 (before showing a window, or as soon as the
// health check has found the store damaged), and leaves the store exactly as
// it found it.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>
#include <optional>

#include "shell/store_texts.h"
#include "shell/texts.h"
#include "store/backups.h"
#include "store/schema.h"
#include "store/store_file.h"
#include "store/store_lock.h"
#include "support/files.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

// Overwrites bytes in the middle of a store of many lines, where only a read
// of the whole file finds them; one backup was made before.
void Damage(const QString& path) {
  CreateStore(path, StorePassword());
  auto db = Database::Open(path, StorePassword());
  db->Exec(
      "INSERT INTO QOR_EMPLOYEES (id, row_num, surname) WITH RECURSIVE n(i) AS (SELECT 1 UNION "
      "ALL SELECT i + 1 FROM n WHERE i < 3000) SELECT 1, i, 'S' || i FROM n");
  MakeBackup(*db, path, StorePassword(), QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9)));
  db.reset();
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(file.size() / 2));
  file.write(QByteArray(16, '\0'));
}

TEST(Program, EndsWithOneOnAStoreItCannotUseAndLeavesItAlone) {
  const auto read_only = [](const QString& path) {
    CreateStore(path, StorePassword());
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
  };
  const auto dir_of = [](const QString& path) { return QFileInfo(path).absolutePath(); };
  std::optional<StoreLock> other_program;
  const QString critical = texts::kStoreCritical + u"\\n"_s + texts::kErrorCode;
  const struct {
    const char* name;
    std::function<void(const QString& path)> make;     // what stands where the store should be
    std::function<QString(const QString& path)> line;  // the message
  } cases[] = {
      // clang-format off
      {"NoStore", [](const QString&) {}, [](const QString&) { return texts::kStoreMissing; }},
      {"Directory", [](const QString& path) { ASSERT_TRUE(QDir().mkpath(path)); },
       [](const QString&) { return texts::kStoreMissing; }},
      {"OtherPassword", [](const QString& path) { CreateStore(path, u"other"_s); },
       [&](const QString& path) { return critical + u"26\\n"_s + store_texts::kOtherPassword.arg(path); }},
      {"Empty", [](const QString& path) { ASSERT_TRUE(testing::WriteFile(path, {})); },
       [](const QString& path) { return store_texts::kNotOurStore.arg(path); }},
      {"WithoutOurTables", [](const QString& path) {
         CreateStore(path, StorePassword());
         Database::Open(path, StorePassword())->Exec("PRAGMA journal_mode = DELETE; DROP TABLE QOR_EMPLOYEES");
       }, [](const QString& path) { return store_texts::kNotOurStore.arg(path); }},
      {"ReadOnly", read_only, [](const QString& path) { return store_texts::kFileReadOnly.arg(path); }},
      {"ReadOnlyFolder", [&](const QString& path) {
         CreateStore(path, StorePassword());
         QFile::setPermissions(dir_of(path), QFile::ReadOwner | QFile::ExeOwner);
       }, [&](const QString& path) { return store_texts::kFolderReadOnly.arg(dir_of(path)); }},
      {"Held", [&](const QString& path) {
         CreateStore(path, StorePassword());
         ASSERT_EQ(other_program.emplace(path).Take(), StoreLock::Outcome::kHeld);
       }, [](const QString& path) { return store_texts::kHeld.arg(path); }},
      {"Damaged", Damage, [&](const QString& path) {
         return store_texts::kDamaged.arg(path) + u"\\n"_s +
                store_texts::kBackupsListed.arg(dir_of(path) + u"/backups"_s) +
                u"\\nQorDb-20240506-070809.mdb\\n"_s + store_texts::kRestoreHint;
       }},
      // clang-format on
  };
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
  environment.insert(u"VEROXIA_UNATTENDED"_s, u"1"_s);
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    QTemporaryDir dir;
    const QString program = dir.filePath(u"veroxia"_s), store = StorePath(dir.path());
    ASSERT_TRUE(QFile::copy(QStringLiteral(VEROXIA_BINARY), program));
    c.make(store);
    const auto entries = [&dir] {
      return QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    };
    const QStringList entries_before = entries();
    const QFileInfo before(store);
    const QByteArray bytes = testing::FileBytes(store);
    const QString expected = texts::kAppTitle + u'\t' + c.line(store);

    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, {});
    const bool ended = process.waitForFinished(30'000);
    QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (!ended) {
      process.kill();
      process.waitForFinished();
      FAIL() << "the program did not end";
    }
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    const QStringList lines =
        QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 1) << lines.join(u'\n').toStdString();
    EXPECT_EQ(lines[0], expected);
    EXPECT_EQ(entries(), entries_before);
    const QFileInfo after(store);
    EXPECT_EQ(after.isDir(), before.isDir());
    EXPECT_EQ(after.permissions(), before.permissions());
    EXPECT_EQ(after.lastModified(), before.lastModified());
    EXPECT_EQ(testing::FileBytes(store), bytes);
    other_program.reset();
  }
}

}  // namespace
}  // namespace veroxia
