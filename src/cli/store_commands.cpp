#include "cli/store_commands.h"

#include <QDateTime>
#include <cstdio>

#include "cli/console.h"
#include "cli/texts.h"

#include "shell/errors.h"
#include "shell/store_open.h"
#include "shell/store_session.h"
#include "shell/store_texts.h"
#include "shell/texts.h"
#include "store/backups.h"
#include "store/restore.h"
#include "store/schema.h"
#include "store/store_file.h"
#include "store/store_lock.h"

namespace veroxia::cli {

namespace {

using namespace Qt::StringLiterals;

constexpr int kFailed = 1;

// backup: a copy of the store now, as the program makes before the first
// change of a session; its path on standard output. While the program runs
// the copy is made all the same, but what a broken backup or restore left
// behind is removed only when no program holds the store.
int Backup(const QString& store_path) {
  StoreLock lock(store_path);
  if (lock.Take() == StoreLock::Outcome::kHeld) RemoveLeftovers(store_path);
  std::unique_ptr<Database> db;
  try {
    db = OpenStoreFile(store_path, StorePassword());
  } catch (const StoreError& error) {
    Print(stderr, OpenFailedMessage(store_path, error));
    return kFailed;
  }
  try {
    Print(stdout, MakeBackup(*db, store_path, StorePassword(), QDateTime::currentDateTime()));
  } catch (const StoreError& error) {
    Print(stderr, BackupFailedMessage(store_path, error));
    return kFailed;
  }
  ConsoleDialogs dialogs;
  return WriteBackStore(*db, dialogs) ? 0 : kFailed;
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
    case RestoreFault::kDiskFull:
      return store_texts::kRestoreDiskFull.arg(file);
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
    // What failed, where the fault line does not say it: which table is
    // missing, which step failed.
    const QString detail = error.code != 0
                               ? ErrorDescription(StoreError{error.code, error.detail, true})
                               : error.detail;
    if (!detail.isEmpty()) {
      text += u"\r\n"_s + texts::kErrorDescription + detail;
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
  if (args.value(0) == u"backup" && args.size() != 1) return cli_texts::kNoMoreWords.arg(args[0]);
  if (args.value(0) == u"restore" && args.size() != 2) return cli_texts::kNeedsOneFile.arg(args[0]);
  return {};
}

int RunStoreCommand(const QString& store_path, const QStringList& args) {
  return args[0] == u"backup" ? Backup(store_path) : Restore(store_path, args[1]);
}

}  // namespace veroxia::cli
