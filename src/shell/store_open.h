#pragma once

#include <functional>

#include "shell/ports.h"
#include "shell/vars.h"

namespace veroxia {

// Opens the store beside the program once, holds it, starts the check of its
// health and arms the backup before its first change (StoreSession). False,
// after telling the user, when the file is missing, cannot be written (the
// file or its folder), is held by another program, is damaged or cannot be
// opened; the program then ends. `end_program` ends it when the health check
// finds the store damaged later.
bool OpenStore(Vars& vars, Dialogs& dialogs, std::function<void()> end_program = {});
// The same for the store at `path`.
bool OpenStoreAt(Vars& vars, Dialogs& dialogs, const QString& path,
                 std::function<void()> end_program = {});

// Closes the connection if it stands, and lets go of the store.
void CloseStore(Vars& vars);

}  // namespace veroxia
