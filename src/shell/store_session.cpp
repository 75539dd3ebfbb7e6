#include "shell/store_session.h"

#include <sqlcipher/sqlite3.h>

#include <QDateTime>
#include <QFileInfo>

#include "shell/errors.h"
#include "shell/store_texts.h"
#include "shell/texts.h"
#include "store/backups.h"
#include "store/store_file.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

const QString kNewLine = u"\r\n"_s;

}  // namespace

QString DamagedStoreMessage(const QString& store_path) {
  const QString folder = BackupFolder(store_path);
  const QStringList backups = ListBackups(store_path);
  QString text = store_texts::kDamaged.arg(store_path) + kNewLine;
  if (backups.isEmpty()) return text + store_texts::kNoBackups.arg(folder);
  text += store_texts::kBackupsListed.arg(folder);
  for (const QString& backup : backups) text += kNewLine + QFileInfo(backup).fileName();
  return text + kNewLine + store_texts::kRestoreHint;
}

QString BackupFailedMessage(const QString& store_path, const StoreError& error) {
  QString reason;
  switch (error.code & 0xff) {
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_PERM:
      reason = store_texts::kFolderNotWritable;
      break;
    default:
      reason = ErrorDescription(error);
  }
  return store_texts::kBackupFailed.arg(BackupFolder(store_path)) + kNewLine +
         texts::kErrorDescription + reason;
}

StoreSession::StoreSession(QString store_path, Dialogs& dialogs, std::function<void()> end_program)
    : path_(std::move(store_path)),
      dialogs_(dialogs),
      end_program_(std::move(end_program)),
      lock_(path_) {}

StoreSession::~StoreSession() = default;

void StoreSession::Watch(Database& db) {
  check_ = std::make_unique<HealthCheck>(path_, StorePassword(), [this] {
    QMetaObject::invokeMethod(
        &receiver_, [this] { Settle(); }, Qt::QueuedConnection);
  });
  db.BeforeFirstWrite([this, &db] { BeforeFirstWrite(db); });
}

bool StoreSession::Settle() {
  if (!check_ || check_->Findings().isEmpty()) return true;
  if (!damage_told_) {
    damage_told_ = true;
    dialogs_.Message(DamagedStoreMessage(path_), texts::kAppTitle);
    if (end_program_) end_program_();
  }
  return false;
}

// A failed backup is told once and the change goes ahead: losing the user's
// typing would be worse than a session without a copy.
void StoreSession::BeforeFirstWrite(Database& db) {
  if (!Settle()) throw StoreError{SQLITE_CORRUPT, texts::kStoreDamaged};
  try {
    MakeBackup(db, path_, StorePassword(), QDateTime::currentDateTime());
  } catch (const StoreError& error) {
    dialogs_.Message(BackupFailedMessage(path_, error) + kNewLine + store_texts::kChangesGoAhead,
                     texts::kAppTitle);
  }
}

}  // namespace veroxia
