#pragma once
// The employee-line screen of each kind, made by its kind.

#include <memory>

#include "lines/lines_form.h"

namespace veroxia {

// The fields and texts of the kind's line screen.
const LinesLayout& LinesLayoutOf(Kind kind);

// A line screen of the kind: OvtForm2 for the common kind, OvtForm4 for the
// construction kind.
std::unique_ptr<LinesForm> MakeLinesForm(Kind kind, Vars& vars, Dialogs& dialogs, Screens& screens);

}  // namespace veroxia
