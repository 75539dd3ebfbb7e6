#include "shell/store_open.h"

#include "rules/texts.h"
#include "shell/errors.h"
#include "shell/texts.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace veroxia {

bool OpenStore(Vars& vars, Dialogs& dialogs) {
  if (vars.StoreOpen) return true;
  const QString path = StorePath(vars.AppDir);
  if (!FileExists(path)) {
    vars.StoreOpen = false;
    dialogs.Message(texts::kStoreMissing, texts::kAppTitle);
    return false;
  }
  try {
    auto db = Database::Open(path, StorePassword());
    CheckSchema(*db);
    vars.StoreConnection = std::move(db);
  } catch (const StoreError& error) {
    vars.StoreConnection.reset();
    vars.StoreOpen = false;
    dialogs.Message(texts::kStoreCritical + u'\r' + texts::kErrorCode +
                        QString::number(error.code) + u'\r' + ErrorDescription(error),
                    texts::kAppTitle);
    return false;
  }
  vars.StoreOpen = true;
  return true;
}

void CloseStore(Vars& vars) {
  vars.StoreConnection.reset();
  vars.StoreOpen = false;
}

}  // namespace veroxia
