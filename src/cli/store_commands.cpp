#include "cli/store_commands.h"

#include <QDateTime>
#include <cstdio>

#include "cli/console.h"

#include "shell/errors.h"
#include "shell/store_session.h"
#include "shell/store_texts.h"
#include "shell/texts.h"
#include "store/backups.h"
#include "store/restore.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace veroxia::cli {

namespace {

using namespace Qt::StringLiterals;

constexpr int kFailed = 1;

// backup: a copy of the store now, as the program makes before the first
// change of a session; its path on standard output.
int Backup(const QString& store_path) {
  std::unique_ptr<Database> db;
  try {
    db = Database::Open(store_path, StorePassword());
    CheckSchema(*db);
  } catch (const StoreError& error) {
    Print(stderr, ErrorMessage(texts::kStoreCritical, error));
    return kFailed;
  }
  try {
    Print(stdout, MakeBackup(*db, store_path, StorePassword(), QDateTime::currentDateTime()));
  } catch (const StoreError& error) {
    Print(stderr, BackupFailedMessage(store_path, error));
    return kFailed;
  }
  return 0;
}

QString RestoreFaultLine(RestoreFault fault, const QString& store_path, const QString& file) {
  switch (fault) {
    case RestoreFault::kHeld:
      return store_texts::kRestoreHeld.arg(store_path);
    case RestoreFault::kUnreadable:
      return store_texts::kRestoreUnreadable.arg(file);
    case RestoreFault::kOtherPassword:
      return store_texts::kRestoreOtherPassword.arg(file);
    case RestoreFault::kNotAStore:
      return store_texts::kRestoreNotAStore.arg(file);
    case RestoreFault::kOtherSchema:
      return store_texts::kRestoreOtherSchema.arg(file);
    case RestoreFault::kDamaged:
      return store_texts::kRestoreDamaged.arg(file);
    case RestoreFault::kFailed:
      break;
  }
  return store_texts::kRestoreFailed.arg(file);
}

// restore FILE: the file in the store's place, the replaced store kept.
int Restore(const QString& store_path, const QString& file) {
  try {
    const QString kept =
        RestoreStore(store_path, file, StorePassword(), QDateTime::currentDateTime());
    QString done = store_texts::kRestored.arg(store_path, file);
    if (!kept.isEmpty()) done += u"\r\n"_s + store_texts::kReplacedKept.arg(kept);
    Print(stdout, done);
    return 0;
  } catch (const RestoreError& error) {
    QString text = RestoreFaultLine(error.fault, store_path, file);
    // SQLite's words say more where the file opened: which table is missing,
    // what the check found, what failed.
    const bool opened = error.fault == RestoreFault::kOtherSchema ||
                        error.fault == RestoreFault::kDamaged ||
                        error.fault == RestoreFault::kFailed;
    if (opened && !error.detail.isEmpty()) {
      text += u"\r\n"_s + texts::kErrorDescription + error.detail;
    }
    Print(stderr, text + u"\r\n"_s + store_texts::kNothingChanged);
    return kFailed;
  }
}

}  // namespace

bool IsStoreCommand(const QString& command) {
  return command == u"backup" || command == u"restore";
}

QString StoreCommandUsage(const QStringList& args) {
  if (args.value(0) == u"backup" && args.size() != 1) return u"backup takes no more words"_s;
  if (args.value(0) == u"restore" && args.size() != 2) return u"restore needs one file"_s;
  return {};
}

int RunStoreCommand(const QString& store_path, const QStringList& args) {
  return args[0] == u"backup" ? Backup(store_path) : Restore(store_path, args[1]);
}

}  // namespace veroxia::cli
