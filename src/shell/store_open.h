#pragma once

#include "shell/ports.h"
#include "shell/vars.h"

namespace veroxia {

// Opens the store beside the program once. False, after telling the user,
// when the file is missing or cannot be opened; the program then ends.
bool OpenStore(Vars& vars, Dialogs& dialogs);

// Closes the connection if it stands.
void CloseStore(Vars& vars);

}  // namespace veroxia
