#pragma once
// Whether a store is damaged: SQLite's quick check reads every page of the
// file (the key proves each one) and the structure of every table and
// index, without comparing the indexes' contents with their tables.

#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>
#include <future>

#include "store/database.h"

namespace veroxia {

// PRAGMA quick_check on an open store: empty when it is sound, otherwise
// SQLite's findings. Throws StoreError when the check itself fails (a page
// that does not decrypt, a stop).
QStringList QuickCheck(Database& db);

// The quick check of the store at `path`, on a read-only connection of its
// own in a thread of its own, so that nobody waits for it while it reads.
class HealthCheck {
 public:
  // Starts the check; `over` runs in the check's thread when it is done.
  HealthCheck(const QString& path, const QString& password, std::function<void()> over = {});
  // A check still running is stopped, and its thread waited for.
  ~HealthCheck();
  HealthCheck(const HealthCheck&) = delete;
  HealthCheck& operator=(const HealthCheck&) = delete;

  // Waits for the check: the findings, empty when the store is sound. A
  // store the check cannot read through at all has that failure as its one
  // finding.
  const QStringList& Findings();

 private:
  std::atomic<bool> stop_{false};
  std::shared_future<QStringList> findings_;
};

}  // namespace veroxia
