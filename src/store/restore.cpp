#include "store/restore.h"

#include <sqlcipher/sqlite3.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <optional>

#include "store/backups.h"
#include "store/file_copy.h"
#include "store/health.h"
#include "store/schema.h"
#include "store/store_file.h"
#include "store/store_lock.h"
#include "store/texts.h"

namespace veroxia {

namespace {

// Proves the copy at `path`: it opens with the password, has our tables and
// passes the quick check.
void Prove(const QString& path, const QString& password) {
  try {
    auto db = Database::Open(path, password);
    try {
      CheckSchema(*db);
    } catch (const StoreError& error) {
      if (error.code != SQLITE_ERROR) throw;  // not a table or column missing
      throw RestoreError{RestoreFault::kOtherSchema, error.description};  // ours: the table
    }
    const QStringList findings = QuickCheck(*db);
    if (!findings.isEmpty()) throw RestoreError{RestoreFault::kDamaged, {}};
  } catch (const StoreError& error) {
    switch (error.code) {
      case SQLITE_NOTADB:
        throw RestoreError{
            LooksEncrypted(path) ? RestoreFault::kOtherPassword : RestoreFault::kNotAStore, {}};
      case SQLITE_CORRUPT:
        throw RestoreError{RestoreFault::kDamaged, {}};
      case SQLITE_FULL:  // the copy's log
        throw RestoreError{RestoreFault::kDiskFull, {}};
      default:
        throw RestoreError{RestoreFault::kFailed, error.description, error.code};
    }
  }
}

// The store being replaced, kept as a backup.
QString KeepOldStore(const QString& store_path, const QString& password, const QDateTime& when) {
  try {
    auto db = Database::Open(store_path, password);
    return MakeBackup(*db, store_path, password, when);
  } catch (const StoreError&) {
    // A store that does not open or copy any more (damaged, of another
    // password) is kept as it lies.
  }
  try {
    return KeepFileAsBackup(store_path, when);
  } catch (const StoreError& error) {
    // The copy's own failures, described in our words.
    throw RestoreError{error.code == SQLITE_FULL ? RestoreFault::kDiskFull : RestoreFault::kFailed,
                       error.description};
  }
}

void RemoveWithCompanions(const QString& path) {
  QFile::remove(path);
  for (const QString& companion : CompanionSuffixes()) QFile::remove(path + companion);
}

void RemoveCompanions(const QString& path) {
  for (const QString& companion : CompanionSuffixes()) {
    if (QFileInfo::exists(path + companion) && !QFile::remove(path + companion)) {
      throw RestoreError{RestoreFault::kFailed,
                         store_file_texts::kNotRemoved.arg(path + companion)};
    }
  }
}

// Flushes the copy to the disk before it takes the store's place.
void Flush(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    throw RestoreError{RestoreFault::kFailed, store_file_texts::kNotFlushed.arg(path)};
  }
  if (::fsync(file.handle()) != 0) {
    throw RestoreError{IsDiskFull(errno) ? RestoreFault::kDiskFull : RestoreFault::kFailed,
                       store_file_texts::kNotFlushed.arg(path)};
  }
}

}  // namespace

QString RestoreStore(const QString& store_path, const QString& file, const QString& password,
                     const QDateTime& when) {
  StoreLock lock(store_path);
  switch (lock.Take()) {
    case StoreLock::Outcome::kHeld:
      break;
    case StoreLock::Outcome::kHeldElsewhere:
      throw RestoreError{RestoreFault::kHeld, {}};
    case StoreLock::Outcome::kNoWriting:
      throw RestoreError{RestoreFault::kFailed, store_file_texts::kNoWritingBeside.arg(store_path)};
    case StoreLock::Outcome::kNoRoom:
      throw RestoreError{RestoreFault::kDiskFull, {}};
  }
  const QFileInfo source_info(file);
  if (!source_info.isFile()) throw RestoreError{RestoreFault::kUnreadable, {}};
  // SQLite takes an empty file for an empty database.
  if (source_info.size() == 0) throw RestoreError{RestoreFault::kNotAStore, {}};

  RemoveLeftovers(store_path);  // a copy left by a restore that broke off, among others
  const QString part = RestoreCopyPath(store_path);
  struct Cleanup {
    QString path;
    ~Cleanup() {
      if (!path.isEmpty()) RemoveWithCompanions(path);
    }
  } cleanup{part};
  // The reading of the file and the writing of the copy fail for different
  // reasons, told apart: a full disk above all.
  if (const std::optional<CopyFailure> failure = CopyFileBytes(file, part)) {
    if (failure->reading) throw RestoreError{RestoreFault::kUnreadable, {}};
    if (IsDiskFull(failure->error)) throw RestoreError{RestoreFault::kDiskFull, {}};
    throw RestoreError{RestoreFault::kFailed, store_file_texts::kNotWritten.arg(part)};
  }
  // The store keeps the permissions the old one had; its owner writes it.
  const QFileInfo old(store_path);
  QFile::setPermissions(
      part, (old.exists() ? old.permissions() : QFileDevice::ReadGroup | QFileDevice::ReadOther) |
                QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  Prove(part, password);

  const QString kept = old.exists() ? KeepOldStore(store_path, password, when) : QString();
  RemoveCompanions(store_path);
  Flush(part);
  if (std::rename(QFile::encodeName(part).constData(), QFile::encodeName(store_path).constData()) !=
      0) {
    throw RestoreError{RestoreFault::kFailed, store_file_texts::kNotRenamed.arg(part, store_path)};
  }
  cleanup.path.clear();
  return kept;
}

}  // namespace veroxia
