#include "shell/store_open.h"

#include <sqlcipher/sqlite3.h>

#include <QFileInfo>

#include "rules/texts.h"
#include "shell/errors.h"
#include "shell/store_texts.h"
#include "shell/texts.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace veroxia {

namespace {

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

}  // namespace

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
  }
  std::unique_ptr<Database> db;
  try {
    db = Database::Open(path, StorePassword());
    CheckSchema(*db);
  } catch (const StoreError& error) {
    if ((error.code & 0xff) == SQLITE_CORRUPT) return refuse(DamagedStoreMessage(path));
    return refuse(texts::kStoreCritical + u'\r' + texts::kErrorCode + QString::number(error.code) +
                  u'\r' + ErrorDescription(error));
  }
  session->Watch(*db);
  vars.Session = std::move(session);
  vars.StoreConnection = std::move(db);
  vars.StoreOpen = true;
  return true;
}

void CloseStore(Vars& vars) {
  vars.StoreConnection.reset();
  vars.Session.reset();
  vars.StoreOpen = false;
}

}  // namespace veroxia
