#pragma once
// Copies of the store, kept in a folder "backups" beside it and named by the
// date and time they were made: QorDb-20261123-101500.mdb, then
// QorDb-20261123-101500-2.mdb for a second one in the same second. Only the
// newest are kept. A copy is written under a temporary name and renamed
// when complete, so the folder never holds half a copy under a copy's name.

#include <QDateTime>
#include <QString>
#include <QStringList>

#include "store/database.h"

namespace veroxia {

// How many copies are kept unless told otherwise.
inline constexpr int kBackupsKept = 10;

// The folder of the copies of the store at store_path.
QString BackupFolder(const QString& store_path);

// The copies of the store in its folder, newest first (full paths). Files of
// other names in the folder are none of ours and never listed or removed.
QStringList ListBackups(const QString& store_path);

// The working copy that a restore makes beside the store before it takes
// the store's place.
QString RestoreCopyPath(const QString& store_path);

// Removes what a backup or a restore broken off (a crash, a kill) left
// behind: copies under their temporary name, a copy's log without its copy,
// and the restore's working copy with its companions. Files of other names
// stay. Only for the holder of the store's lock: a backup or a restore under
// way would lose its file.
void RemoveLeftovers(const QString& store_path);

// Copies the store open in `db` (the file at store_path, keyed with
// password) with SQLite's online backup into a new copy named by `when`,
// then removes all but the newest `keep`. Answers the copy's path. Throws
// StoreError when the folder cannot be made or the copy not written; nothing
// is left under the copy's name then.
QString MakeBackup(Database& db, const QString& store_path, const QString& password,
                   const QDateTime& when, int keep = kBackupsKept);

// Keeps the file at store_path as it lies, byte for byte, as a new copy
// named by `when`, with its write-ahead log beside it when there is one: for
// a store that cannot be read any more. The same rules as MakeBackup.
QString KeepFileAsBackup(const QString& store_path, const QDateTime& when, int keep = kBackupsKept);

}  // namespace veroxia
