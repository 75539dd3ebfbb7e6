#pragma once
// Copies the employee lines of the previous declaration under the new
// declaration's id, all or nothing, when a taken-over header is first saved.

#include "shell/ports.h"
#include "shell/vars.h"
#include "store/kind.h"

namespace veroxia {

struct CarryOverOutcome {
  bool ok = true;  // false: rolled back, and the user was told
  int copied = 0;  // lines added under the new id
};

// Copies the lines of vars.PreviousDeclarationId to vars.DeclarationId (its
// successor). Copies nothing when the new id has lines already, so a repeated
// save never doubles them. For the common kind, daily wages left Null (in any
// declaration) or empty (in the previous one) become "0" first.
CarryOverOutcome CarryOverLines(Vars& vars, Dialogs& dialogs, Kind kind);

// Once the taken-over header is stored: offers, in one question, to move the
// payroll months of the new declaration's lines into its period (the start
// screen's). A line of the k-th month of the previous declaration's period
// takes the k-th month of the new one, or its last when the new period is
// shorter, so a month moves every line to it and a quarter moves January to
// March to April to June. A line whose month lay outside the previous period,
// or is no month, stays as copied: it was put there on purpose, and the
// totals report names it. Asked only when some line would change; Yes moves
// them all in one transaction, and a failure is told and leaves them as they
// were. The construction kind has no payroll month: nothing is offered.
void OfferPayrollMove(Vars& vars, Dialogs& dialogs, Kind kind);

}  // namespace veroxia
