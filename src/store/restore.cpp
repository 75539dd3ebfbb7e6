#include "store/restore.h"

#include <sqlcipher/sqlite3.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cstdio>
#include <set>

#include "store/backups.h"
#include "store/health.h"
#include "store/schema.h"
#include "store/store_lock.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

const QStringList kCompanions{u"-wal"_s, u"-shm"_s, u"-journal"_s};

// A file that the key does not open is an encrypted store of another password
// when it looks like one: whole pages, not SQLite's plain header, and a first
// page of bytes that look random.
bool LooksEncrypted(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const qint64 size = file.size();
  const QByteArray page = file.read(1024);
  if (size < 1024 || size % 512 != 0 || page.startsWith("SQLite format 3")) return false;
  const std::set<char> distinct(page.begin(), page.end());
  return distinct.size() >= 200;
}

// Proves the copy at `path`: it opens with the password, has our tables and
// passes the quick check.
void Prove(const QString& path, const QString& password) {
  try {
    auto db = Database::Open(path, password);
    try {
      CheckSchema(*db);
    } catch (const StoreError& error) {
      if (error.code != SQLITE_ERROR) throw;  // not a table or column missing
      throw RestoreError{RestoreFault::kOtherSchema, error.description};
    }
    const QStringList findings = QuickCheck(*db);
    if (!findings.isEmpty()) throw RestoreError{RestoreFault::kDamaged, findings.first()};
  } catch (const StoreError& error) {
    switch (error.code) {
      case SQLITE_NOTADB:
        throw RestoreError{
            LooksEncrypted(path) ? RestoreFault::kOtherPassword : RestoreFault::kNotAStore,
            error.description};
      case SQLITE_CORRUPT:
        throw RestoreError{RestoreFault::kDamaged, error.description};
      default:
        throw RestoreError{RestoreFault::kFailed, error.description};
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
    throw RestoreError{RestoreFault::kFailed, error.description};
  }
}

void RemoveWithCompanions(const QString& path) {
  QFile::remove(path);
  for (const QString& companion : kCompanions) QFile::remove(path + companion);
}

void RemoveCompanions(const QString& path) {
  for (const QString& companion : kCompanions) {
    if (QFileInfo::exists(path + companion) && !QFile::remove(path + companion)) {
      throw RestoreError{RestoreFault::kFailed, u"cannot remove "_s + path + companion};
    }
  }
}

// Flushes the copy to the disk before it takes the store's place.
void Flush(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || ::fsync(file.handle()) != 0) {
    throw RestoreError{RestoreFault::kFailed, u"cannot flush "_s + path};
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
      throw RestoreError{RestoreFault::kHeld, store_path};
    case StoreLock::Outcome::kNoWriting:
      throw RestoreError{RestoreFault::kFailed, u"cannot write beside "_s + store_path};
  }
  const QFileInfo source_info(file);
  if (!source_info.isFile()) throw RestoreError{RestoreFault::kUnreadable, file};
  // SQLite takes an empty file for an empty database.
  if (source_info.size() == 0) throw RestoreError{RestoreFault::kNotAStore, file};

  const QString part = store_path + u".restore"_s;
  RemoveWithCompanions(part);  // a copy left by a restore that broke off
  struct Cleanup {
    QString path;
    ~Cleanup() {
      if (!path.isEmpty()) RemoveWithCompanions(path);
    }
  } cleanup{part};
  QFile source(file);
  if (!source.copy(part)) throw RestoreError{RestoreFault::kUnreadable, source.errorString()};
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
    throw RestoreError{RestoreFault::kFailed, u"cannot rename "_s + part + u" to "_s + store_path};
  }
  cleanup.path.clear();
  return kept;
}

}  // namespace veroxia
