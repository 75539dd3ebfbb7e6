#pragma once
// Putting a copy of the store in the store's place.

#include <QDateTime>
#include <QString>

namespace veroxia {

// What kept a restore from going ahead; the store is then as it was.
enum class RestoreFault {
  kHeld,           // a program holds the store
  kUnreadable,     // the file cannot be read
  kOtherPassword,  // an encrypted file that the store password does not open
  kNotAStore,      // no encrypted store at all
  kOtherSchema,    // a store without the tables and columns of ours
  kDamaged,        // the file's quick check found damage
  kDiskFull,       // the disk is full: the copy or the keeping of the old store failed
  kFailed,         // the copy, the keeping of the old store or the swap failed
};

struct RestoreError {
  RestoreFault fault;
  QString detail;  // what failed, in our words; empty when the fault says it all
  int code = 0;    // set when the store's access failed: SQLite's code, and
                   // detail holds SQLite's words, which are not for the user
};

// Puts the store file `file` in the place of the store at store_path.
// Before anything changes it takes the store's lock and proves a copy of the
// file made beside the store: the password opens it, it has our tables and
// it is sound. The store it replaces is kept as a backup (see backups.h),
// copied with SQLite's backup when it opens, byte for byte with its
// write-ahead log when not; then that store's log and shared-memory files
// are removed, so that they can never be applied to the new store, and the
// copy is renamed over the store in one step. Answers the backup of the
// replaced store (empty when there was no store). Throws RestoreError.
QString RestoreStore(const QString& store_path, const QString& file, const QString& password,
                     const QDateTime& when);

}  // namespace veroxia
