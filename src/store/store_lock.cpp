#include "store/store_lock.h"

#include <QFileInfo>
#include <QStorageInfo>

namespace veroxia {

StoreLock::StoreLock(const QString& store_path) : lock_(store_path + QStringLiteral(".lock")) {
  // A lock is stale only when its process is gone, however long the program
  // has been running.
  lock_.setStaleLockTime(0);
}

StoreLock::Outcome StoreLock::Take() {
  if (lock_.isLocked() || lock_.tryLock(0)) return Outcome::kHeld;
  if (lock_.error() == QLockFile::LockFailedError) return Outcome::kHeldElsewhere;
  const QStorageInfo disk(QFileInfo(lock_.fileName()).absolutePath());
  return disk.isValid() && disk.bytesAvailable() <= 0 ? Outcome::kNoRoom : Outcome::kNoWriting;
}

}  // namespace veroxia
