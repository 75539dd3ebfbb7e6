#include "shell/store_open.h"

#include <sqlcipher/sqlite3.h>

#include <QFileInfo>

#include "rules/texts.h"
#include "shell/errors.h"
#include "shell/store_texts.h"
#include "shell/texts.h"
#include "store/backups.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

// How long the write-back at close waits for another program's read of the
// store to end.
constexpr int kWriteBackWaitMs = 1000;

// Why the store could not be written, if so: found at once rather than at the
// first save. The owner's write permission is asked for even where the
// system would let the user write anyway (root).
QString WriteProblem(const QString& path) {
  const QFileInfo file(path);
  if (!(file.permissions() & QFileDevice::WriteOwner) || !file.isWritable()) {
    return store_texts::kFileReadOnly.arg(path);
  }
  const QFileInfo folder(file.absolutePath());
  if (!(folder.permissions() & QFileDevice::WriteOwner) || !folder.isWritable()) {
    return store_texts::kFolderReadOnly.arg(folder.filePath());
  }
  return {};
}

QString Critical(const StoreError& error, const QString& description) {
  return texts::kStoreCritical + u'\r' + texts::kErrorCode + QString::number(error.code) + u'\r' +
         description;
}

}  // namespace

QString OpenFailedMessage(const QString& path, const StoreError& error) {
  switch (error.code & 0xff) {
    case SQLITE_CORRUPT:
      return DamagedStoreMessage(path);
    case SQLITE_ERROR:  // a table or a column of ours is missing
      return store_texts::kNotOurStore.arg(path);
    case SQLITE_NOTADB:
      // A file of another password cannot be told from random bytes.
      if (LooksEncrypted(path)) return Critical(error, store_texts::kOtherPassword.arg(path));
      return store_texts::kNotOurStore.arg(path);
    default:
      return Critical(error, ErrorDescription(error));
  }
}

bool OpenStore(Vars& vars, Dialogs& dialogs, std::function<void()> end_program) {
  return OpenStoreAt(vars, dialogs, StorePath(vars.AppDir), std::move(end_program));
}

bool OpenStoreAt(Vars& vars, Dialogs& dialogs, const QString& path,
                 std::function<void()> end_program) {
  if (vars.StoreOpen) return true;
  const auto refuse = [&](const QString& message) {
    vars.StoreConnection.reset();
    vars.Session.reset();
    vars.StoreOpen = false;
    dialogs.Message(message, texts::kAppTitle);
    return false;
  };
  if (!FileExists(path)) return refuse(texts::kStoreMissing);
  if (const QString problem = WriteProblem(path); !problem.isEmpty()) return refuse(problem);
  auto session = std::make_unique<StoreSession>(path, dialogs, std::move(end_program));
  switch (session->Hold()) {
    case StoreLock::Outcome::kHeld:
      break;
    case StoreLock::Outcome::kHeldElsewhere:
      return refuse(store_texts::kHeld.arg(path));
    case StoreLock::Outcome::kNoWriting:
      return refuse(store_texts::kFolderReadOnly.arg(QFileInfo(path).absolutePath()));
    case StoreLock::Outcome::kNoRoom:
      return refuse(store_texts::kNoRoom.arg(QFileInfo(path).absolutePath()));
  }
  RemoveLeftovers(path);
  std::unique_ptr<Database> db;
  try {
    db = OpenStoreFile(path, StorePassword());
  } catch (const StoreError& error) {
    return refuse(OpenFailedMessage(path, error));
  }
  session->Watch(*db);
  vars.Session = std::move(session);
  vars.StoreConnection = std::move(db);
  vars.StoreOpen = true;
  return true;
}

bool WriteBackStore(Database& db, Dialogs& dialogs) {
  try {
    db.WriteBack(kWriteBackWaitMs);
    return true;
  } catch (const StoreError& error) {
    dialogs.Message(store_texts::kWriteBackFailed.arg(db.FileName()) + u"\r\n"_s +
                        texts::kErrorDescription + ErrorDescription(error),
                    texts::kAppTitle);
    return false;
  }
}

bool CloseStore(Vars& vars, Dialogs& dialogs) {
  bool written = true;
  if (vars.StoreConnection) {
    // The health check reads on a connection of its own, which must not
    // hold the log back.
    if (vars.Session) vars.Session->StopCheck();
    written = WriteBackStore(*vars.StoreConnection, dialogs);
  }
  vars.StoreConnection.reset();
  vars.Session.reset();
  vars.StoreOpen = false;
  return written;
}

}  // namespace veroxia
