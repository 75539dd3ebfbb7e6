#pragma once
// The captions of the boxes in which the screens of a kind show the stored
// columns, for the reports that name a value by its box.

#include "shell/report.h"
#include "store/kind.h"

namespace veroxia {

// The header screen's caption for a column of the kind's header table, or
// the line screen's for a column of its lines table, its runs of blanks made
// one; the column itself when no box shows it.
BoxCaption BoxCaptionsOf(Kind kind);

}  // namespace veroxia
