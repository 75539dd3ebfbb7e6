// The program itself, started beside stores it cannot use: it says why in one
// message, ends with status 1 (before showing a window, or as soon as the
// health check has found the store damaged), and leaves the store exactly as
// it found it.

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
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

// The messages of every store the program cannot use are those of opening the
// store; here the program itself: nothing there, no store of ours, another
// program's, damaged.
TEST(Program, EndsWithOneOnAStoreItCannotUseAndLeavesItAlone) {
  std::optional<StoreLock> other_program;
  const QString critical = texts::kStoreCritical + u"\\n"_s + texts::kErrorCode;
  const struct {
    const char* name;
    std::function<void(const QString& path)> make;     // what stands where the store should be
    std::function<QString(const QString& path)> line;  // the message
  } cases[] = {
      // clang-format off
      {"NoStore", [](const QString&) {}, [](const QString&) { return texts::kStoreMissing; }},
      {"OtherPassword", [](const QString& path) { CreateStore(path, u"other"_s); },
       [&](const QString& path) { return critical + u"26\\n"_s + store_texts::kOtherPassword.arg(path); }},
      {"Empty", [](const QString& path) { ASSERT_TRUE(testing::WriteFile(path, {})); },
       [](const QString& path) { return store_texts::kNotOurStore.arg(path); }},
      {"WithoutOurTables", [](const QString& path) {
         CreateStore(path, StorePassword());
         Database::Open(path, StorePassword())->Exec("PRAGMA journal_mode = DELETE; DROP TABLE QOR_EMPLOYEES");
       }, [](const QString& path) { return store_texts::kNotOurStore.arg(path); }},
      {"Held", [&](const QString& path) {
         CreateStore(path, StorePassword());
         ASSERT_EQ(other_program.emplace(path).Take(), StoreLock::Outcome::kHeld);
       }, [](const QString& path) { return store_texts::kHeld.arg(path); }},
      {"Damaged", Damage, [](const QString& path) {
         return store_texts::kDamaged.arg(path) + u"\\n"_s +
                store_texts::kBackupsListed.arg(QFileInfo(path).absolutePath() + u"/backups"_s) +
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
    const QByteArray bytes = testing::FileBytes(store);
    const QDateTime modified = QFileInfo(store).lastModified();
    const QString expected = texts::kAppTitle + u'\t' + c.line(store);

    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, {});
    ASSERT_TRUE(process.waitForFinished(30'000)) << "the program did not end";
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    const QStringList lines =
        QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 1) << lines.join(u'\n').toStdString();
    EXPECT_EQ(lines[0], expected);
    EXPECT_EQ(entries(), entries_before);
    EXPECT_EQ(testing::FileBytes(store), bytes);
    EXPECT_EQ(QFileInfo(store).lastModified(), modified);
    other_program.reset();
  }
}

}  // namespace
}  // namespace veroxia
