// Backups of the store: named by their time, the newest kept, and put back in
// the store's place by a restore that keeps the store it replaces.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "store/backups.h"
#include "store/restore.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

QDateTime At(const char* stamp) {
  return QDateTime::fromString(QString::fromLatin1(stamp), u"yyyyMMdd-HHmmss"_s);
}

QStringList Names(const QStringList& paths) {
  QStringList names;
  for (const QString& path : paths) names << QFileInfo(path).fileName();
  return names;
}

// Each backup gets a name of its own, a second one in the same second
// included; only the newest are kept, whatever order they were made in, and
// files of other names in the folder are left alone.
TEST(Backups, KeepTheNewestUnderNamesOfTheirOwn) {
  testing::TempStore store;
  Database& db = store.Open();
  const QString folder = BackupFolder(store.Path());
  ASSERT_TRUE(QDir().mkpath(folder));
  const QStringList others{u"notes.txt"_s, u"QorDb-old.mdb"_s};
  for (const QString& name : others)
    ASSERT_TRUE(QFile(folder + u'/' + name).open(QIODevice::WriteOnly));
  const struct {
    const char* when;
    QStringList kept;  // newest first
  } steps[] = {
      {"20240101-100000", {u"QorDb-20240101-100000.mdb"_s}},
      {"20240101-100000", {u"QorDb-20240101-100000-2.mdb"_s, u"QorDb-20240101-100000.mdb"_s}},
      {"20231231-235959",
       {u"QorDb-20240101-100000-2.mdb"_s, u"QorDb-20240101-100000.mdb"_s,
        u"QorDb-20231231-235959.mdb"_s}},
      {"20240101-100000",
       {u"QorDb-20240101-100000-3.mdb"_s, u"QorDb-20240101-100000-2.mdb"_s,
        u"QorDb-20240101-100000.mdb"_s}},
      {"20240102-080000",
       {u"QorDb-20240102-080000.mdb"_s, u"QorDb-20240101-100000-3.mdb"_s,
        u"QorDb-20240101-100000-2.mdb"_s}},
  };
  for (const auto& step : steps) {
    SCOPED_TRACE(step.when);
    const QString made = MakeBackup(db, store.Path(), StorePassword(), At(step.when), 3);
    EXPECT_TRUE(step.kept.contains(QFileInfo(made).fileName()));
    EXPECT_EQ(Names(ListBackups(store.Path())), step.kept);
    QStringList all = step.kept + others;
    all.sort();
    EXPECT_EQ(QDir(folder).entryList(QDir::Files, QDir::Name), all);
  }
}

// A restore puts the backup's content back: a change made after the backup
// is gone, and the store it replaced, change included, is kept as a backup.
// Here that store is left as after a crash, its write-ahead log beside it,
// and read-only, so that it is kept byte for byte, log and all: the log must
// never reach the restored store.
TEST(Backups, RestoreBringsBackTheBackupAndKeepsTheReplacedStore) {
  testing::TempStore store;
  Database& db = store.Open();
  testing::AddLines(db, Kind::Common, 1, 5);
  const QString backup = MakeBackup(db, store.Path(), StorePassword(), At("20240101-100000"));
  testing::AddLines(db, Kind::Common, 2, 7);  // the change after the backup
  const QString wal = store.Path() + u"-wal"_s;
  QFile log(wal);
  ASSERT_TRUE(log.open(QIODevice::ReadOnly));
  const QByteArray frames = log.readAll();
  log.close();
  store.vars.StoreConnection.reset();
  ASSERT_TRUE(log.open(QIODevice::WriteOnly) && log.write(frames) == frames.size());
  log.close();
  QFile::setPermissions(store.Path(), QFile::ReadOwner);

  const QString kept = RestoreStore(store.Path(), backup, StorePassword(), At("20240101-110000"));
  EXPECT_EQ(Names(ListBackups(store.Path())),
            (QStringList{u"QorDb-20240101-110000.mdb"_s, u"QorDb-20240101-100000.mdb"_s}));
  EXPECT_EQ(kept, ListBackups(store.Path()).first());
  for (const char* companion : {"-wal", "-shm", ".restore"}) {
    EXPECT_FALSE(QFileInfo::exists(store.Path() + QString::fromLatin1(companion))) << companion;
  }
  EXPECT_EQ(testing::CommonLinesIn(store.Path()), 5u);
  EXPECT_EQ(testing::CommonLinesIn(backup), 5u);
  QFile::setPermissions(kept, QFile::ReadOwner | QFile::WriteOwner);
  EXPECT_EQ(testing::CommonLinesIn(kept), 12u);
}

}  // namespace
}  // namespace veroxia
