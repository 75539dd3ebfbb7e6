#include "store/store_lock.h"

namespace veroxia {

StoreLock::StoreLock(const QString& store_path) : lock_(store_path + QStringLiteral(".lock")) {
  // A lock is stale only when its process is gone, however long the program
  // has been running.
  lock_.setStaleLockTime(0);
}

StoreLock::Outcome StoreLock::Take() {
  if (lock_.isLocked() || lock_.tryLock(0)) return Outcome::kHeld;
  return lock_.error() == QLockFile::LockFailedError ? Outcome::kHeldElsewhere
                                                     : Outcome::kNoWriting;
}

}  // namespace veroxia
