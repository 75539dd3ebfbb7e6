// The store as the program opens it: a store it cannot write, or that
// another program holds, is told at once; a damaged one is told with its
// backups and never written to; otherwise the first change of the session
// is preceded by a backup, and a backup that fails is told once while the
// changes go ahead.

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QFileInfo>
#include <QProcess>
#include <functional>
#include <optional>

#include "shell/store_open.h"
#include "shell/store_texts.h"
#include "shell/texts.h"
#include "store/backups.h"
#include "store/restore.h"
#include "support/fakes.h"
#include "support/files.h"
#include "support/store_rows.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;
using namespace store_texts;

TEST(StoreSession, OpenTellsWhatIsWrongAndTheFirstChangeIsBackedUp) {
  using Path = const QString&;  // the store's folder, or the store
  std::optional<StoreLock> other_program;
  const struct {
    const char* name;
    std::function<void(Path dir, Path store)> make;
    std::function<QString(Path dir, Path store)> message;  // empty: none
    bool opens;
    bool writes;  // the two changes go ahead
    int backups;  // backups in the folder afterwards (2 made beforehand when damaged)
  } cases[] = {
      // clang-format off
      {"Sound", [](Path, Path) {}, {}, true, true, 1},
      {"LockLeftByACrash", [](Path, Path store) {
         QProcess gone;  // a process id that no process has any more
         gone.start(u"true"_s, {});
         ASSERT_TRUE(gone.waitForStarted());
         const qint64 pid = gone.processId();
         ASSERT_TRUE(gone.waitForFinished());
         ASSERT_TRUE(WriteFile(store + u".lock"_s, QByteArray::number(pid) + "\nveroxia\n\n"));
       }, {}, true, true, 1},
      {"BackupFolderCannotBeMade", [](Path dir, Path) { ASSERT_TRUE(WriteFile(dir + u"/backups"_s, "x")); },
       [](Path dir, Path) {
         return kBackupFailed.arg(dir + u"/backups"_s) + u"\r\n"_s + texts::kErrorDescription +
                kFolderNotWritable + u"\r\n"_s + kChangesGoAhead;
       }, true, true, 0},
      {"Damaged", [](Path, Path store) {
         auto db = Database::Open(store, StorePassword());
         MakeBackup(*db, store, StorePassword(), QDateTime(QDate(2024, 1, 2), QTime(8, 0)));
         MakeBackup(*db, store, StorePassword(), QDateTime(QDate(2023, 12, 31), QTime(23, 59)));
         db.reset();
         QFile file(store);  // bytes in a page that only a read of the whole store reaches
         ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(file.size() / 2));
         file.write(QByteArray(16, '\0'));
       }, [](Path dir, Path store) {
         return kDamaged.arg(store) + u"\r\n"_s + kBackupsListed.arg(dir + u"/backups"_s) +
                u"\r\nQorDb-20240102-080000.mdb\r\nQorDb-20231231-235900.mdb\r\n"_s + kRestoreHint;
       }, true, false, 2},
      {"ReadOnlyFile", [](Path, Path store) { QFile::setPermissions(store, QFile::ReadOwner); },
       [](Path, Path store) { return kFileReadOnly.arg(store); }, false, false, 0},
      {"ReadOnlyFolder", [](Path dir, Path) { QFile::setPermissions(dir, QFile::ReadOwner | QFile::ExeOwner); },
       [](Path dir, Path) { return kFolderReadOnly.arg(dir); }, false, false, 0},
      {"HeldByAnotherProgram",
       [&](Path, Path store) { ASSERT_EQ(other_program.emplace(store).Take(), StoreLock::Outcome::kHeld); },
       [](Path, Path store) { return kHeld.arg(store); }, false, false, 0},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    TempStore store;
    AddLines(*Database::Open(store.Path(), StorePassword()), Kind::Common, 1, 3000);
    c.make(store.Dir(), store.Path());
    const QByteArray before = FileBytes(store.Path());
    FakeDialogs dialogs;
    int ended = 0;

    EXPECT_EQ(OpenStore(store.vars, dialogs, [&] { ++ended; }), c.opens);
    int written = 0;
    for (int change = 0; change < 2 && store.vars.StoreOpen; ++change) {
      try {
        AddLines(*store.vars.StoreConnection, Kind::Common, 2 + change, 1);
        ++written;
      } catch (const StoreError& error) {
        EXPECT_EQ(error.code, SQLITE_CORRUPT);
      }
    }
    CloseStore(store.vars, dialogs);
    other_program.reset();
    QFile::setPermissions(store.Dir(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile::setPermissions(store.Path(), QFile::ReadOwner | QFile::WriteOwner);

    EXPECT_EQ(written, c.writes ? 2 : 0);
    EXPECT_EQ(FakeDialogs::Told(dialogs.messages),
              (c.message ? QStringList{texts::kAppTitle, c.message(store.Dir(), store.Path())}
                         : QStringList()));
    EXPECT_EQ(ended, c.opens && !c.writes ? 1 : 0);
    const QStringList made = ListBackups(store.Path());
    EXPECT_EQ(made.size(), c.backups);
    // A refused or damaged store is never written to; the backup was made
    // before the first change reached the store.
    EXPECT_TRUE(c.writes || FileBytes(store.Path()) == before);
    EXPECT_TRUE(!c.writes || c.backups != 1 || CommonLinesIn(made.first()) == 3000);
    EXPECT_FALSE(QFileInfo::exists(store.Path() + u".lock"_s));
  }
}

// What a backup or a restore broken off by a kill left behind goes at the
// next start and the next restore, and is never counted among the copies
// kept; files of other names stay.
TEST(StoreSession, LeftoversOfABrokenBackupOrRestoreGoAtTheNextStartOrRestore) {
  const QStringList leftovers{u"backups/QorDb-20240101-100000.mdb.part"_s,
                              u"backups/QorDb-20240101-100000-2.mdb-wal"_s, u"QorDb.mdb.restore"_s,
                              u"QorDb.mdb.restore-wal"_s};
  const QStringList others{u"backups/QorDb-20240101-100000.mdb.part.txt"_s, u"backups/notes.part"_s,
                           u"QorDb.mdb.restored"_s};
  const struct {
    const char* name;
    std::function<void(TempStore& store, const QString& backup)> next;
  } nexts[] = {
      // clang-format off
      {"Start", [](TempStore& store, const QString&) {
         FakeDialogs dialogs;
         EXPECT_TRUE(OpenStore(store.vars, dialogs) && CloseStore(store.vars, dialogs)); }},
      {"Restore", [](TempStore& store, const QString& backup) {
         RestoreStore(store.Path(), backup, StorePassword(), QDateTime::currentDateTime()); }},
      // clang-format on
  };
  for (const auto& next : nexts) {
    SCOPED_TRACE(next.name);
    TempStore store;
    const QString backup = MakeBackup(*Database::Open(store.Path(), StorePassword()), store.Path(),
                                      StorePassword(), QDateTime(QDate(2024, 1, 1), QTime(9, 0)));
    for (const QString& name : leftovers + others) {
      ASSERT_TRUE(WriteFile(store.Dir() + u'/' + name, "x"));
    }
    EXPECT_EQ(ListBackups(store.Path()), QStringList{backup});
    next.next(store, backup);
    for (const QString& name : leftovers + others) {
      EXPECT_EQ(QFileInfo::exists(store.Dir() + u'/' + name), others.contains(name))
          << name.toStdString();
    }
  }
}

// Closing writes the log back into the store and empties it. Where that
// cannot be done (another connection still reads an older state of the
// store) the user is told, and nothing is lost: the log is applied at the
// next open.
TEST(StoreSession, AWriteBackThatFailsAtCloseIsToldAndLosesNothing) {
  for (const bool reader_holds : {false, true}) {
    SCOPED_TRACE(reader_holds);
    TempStore store;
    FakeDialogs dialogs;
    ASSERT_TRUE(OpenStore(store.vars, dialogs));
    AddLines(*store.vars.StoreConnection, Kind::Common, 1, 1);
    auto reader = Database::OpenReadOnly(store.Path(), StorePassword());
    Statement& reading = reader->Prepare("SELECT id FROM QOR_EMPLOYEES");
    ASSERT_TRUE(reading.Next());
    if (!reader_holds) reading.Reset();
    AddLines(*store.vars.StoreConnection, Kind::Common, 2, 5);

    EXPECT_EQ(CloseStore(store.vars, dialogs), !reader_holds);
    const QString failed = kWriteBackFailed.arg(store.Path()) + u"\r\n"_s +
                           texts::kErrorDescription + texts::kStoreInUse;
    EXPECT_EQ(FakeDialogs::Told(dialogs.messages),
              (reader_holds ? QStringList{texts::kAppTitle, failed} : QStringList()));
    EXPECT_TRUE(reader_holds || QFileInfo(store.Path() + u"-wal"_s).size() == 0);
    reader.reset();
    EXPECT_EQ(CommonLinesIn(store.Path()), 6u);
  }
}

}  // namespace
}  // namespace veroxia::testing
