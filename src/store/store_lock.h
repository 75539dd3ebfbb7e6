#pragma once
// The mark that a program holds the store: a lock file beside it
// ("QorDb.mdb.lock") naming the process that holds it. The lock goes with
// its holder, and a lock left by a process that is gone (a crash) is taken
// over. Neither the store nor SQLite's own locking depend on it: it keeps
// two programs, or a restore and a program, from working on one store.

#include <QLockFile>
#include <QString>

namespace veroxia {

class StoreLock {
 public:
  enum class Outcome { kHeld, kHeldElsewhere, kNoWriting, kNoRoom };

  explicit StoreLock(const QString& store_path);
  // Takes the lock unless another process holds it: kHeld when taken (or
  // held already), kHeldElsewhere when another process has it, kNoRoom
  // when no lock file can be made beside the store for a full disk,
  // kNoWriting when it cannot for any other reason.
  Outcome Take();

 private:
  QLockFile lock_;  // released on destruction
};

}  // namespace veroxia
