#include "store/health.h"

#include <sqlcipher/sqlite3.h>

namespace veroxia {

QStringList QuickCheck(Database& db) {
  QStringList findings;
  Statement& check = db.Prepare("PRAGMA quick_check");
  while (check.Next()) findings << check.Value(0).value_or(QString());
  if (findings == QStringList{QStringLiteral("ok")}) findings.clear();
  return findings;
}

HealthCheck::HealthCheck(const QString& path, const QString& password, std::function<void()> over) {
  findings_ = std::async(std::launch::async, [this, path, password, over = std::move(over)] {
                QStringList findings;
                try {
                  auto db = Database::OpenReadOnly(path, password);
                  db->StopWhen(&stop_);
                  findings = QuickCheck(*db);
                } catch (const StoreError& error) {
                  // Stopped: the program is closing and nobody waits for an
                  // answer. Any other failure to read the store through is
                  // damage.
                  if (error.code != SQLITE_INTERRUPT) findings << error.description;
                }
                if (over) over();
                return findings;
              }).share();
}

HealthCheck::~HealthCheck() {
  stop_ = true;
  findings_.wait();
}

const QStringList& HealthCheck::Findings() { return findings_.get(); }

}  // namespace veroxia
