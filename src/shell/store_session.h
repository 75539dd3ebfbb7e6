#pragma once
// What the program keeps around the open store while it runs: its hold on
// the file, the check of the file's health, and a backup of the store before
// the first change of the session.
//
// The quick check reads every page of the file: about 0.6 s on a store of
// 100,000 lines of each kind (66 MB), where opening it takes 0.05 s
// (bench/store_health_bench.cpp). Run at open it would add six times the
// 0.1 s a start may grow by, so it runs on a read-only connection of its own
// in a thread of its own while the start screen is shown; OpenStore then
// costs 0.005 s more than the plain open. Nothing is written before the
// check's answer: the first change of the session waits for it. A damaged
// store is told to the user as soon as the answer is in (at the latest at
// that first change), and the program ends without writing to it.

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

#include "shell/ports.h"
#include "store/database.h"
#include "store/health.h"
#include "store/store_lock.h"

namespace veroxia {

class StoreSession {
 public:
  // `end_program` ends the program when the store proves damaged after it
  // was opened.
  StoreSession(QString store_path, Dialogs& dialogs, std::function<void()> end_program);
  ~StoreSession();
  StoreSession(const StoreSession&) = delete;
  StoreSession& operator=(const StoreSession&) = delete;

  // Takes the store's lock for as long as the session lives.
  StoreLock::Outcome Hold() { return lock_.Take(); }
  // Starts the health check and has `db` make a backup before its first
  // change, once the check has found the store sound.
  void Watch(Database& db);
  // Stops the health check, if it still runs, and lets go of its reading.
  void StopCheck() { check_.reset(); }
  // Waits for the health check. False when the store is damaged: the user
  // has been told (once) and the program is ending.
  bool Settle();

 private:
  void BeforeFirstWrite(Database& db);

  QString path_;
  Dialogs& dialogs_;
  std::function<void()> end_program_;
  StoreLock lock_;
  QObject receiver_;  // brings the check's answer to the screens' thread
  std::unique_ptr<HealthCheck> check_;
  bool damage_told_ = false;
};

// The message for a damaged store: the file, then its backups newest first.
QString DamagedStoreMessage(const QString& store_path);
// The first lines of the message for a backup that could not be made: the
// folder, then why.
QString BackupFailedMessage(const QString& store_path, const StoreError& error);

}  // namespace veroxia
