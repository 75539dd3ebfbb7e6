#pragma once
// Copies the employee lines of the previous declaration under the new
// declaration's id, all or nothing, when a taken-over header is first saved.

#include "shell/ports.h"
#include "shell/vars.h"
#include "store/kind.h"

namespace veroxia {

struct CarryOverOutcome {
  bool ok = true;    // false: rolled back, and the user was told
  int copied = 0;    // lines added under the new id
};

// Copies the lines of vars.PreviousDeclarationId to vars.DeclarationId (its
// successor). Copies nothing when the new id has lines already, so a repeated
// save never doubles them. For the common kind, daily wages left Null (in any
// declaration) or empty (in the previous one) become "0" first.
CarryOverOutcome CarryOverLines(Vars& vars, Dialogs& dialogs, Kind kind);

}  // namespace veroxia
