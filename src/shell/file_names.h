#pragma once
// The names under which the files made from a declaration are offered when
// the user saves them: the institute's initials, the kind, the declaration's
// number and its period, so that a folder of them reads as a register.

#include <QString>

#include "store/kind.h"

namespace veroxia {

// "OVT-common-12-2002-04.pdf", "OVT-construction-3-2002-05.csv"; a period of
// more than one month as "OVT-common-12-2002-04_2002-06.txt". The periods are
// month then year ("042002"), as the start screen keeps them; `period_to` is
// empty for a construction declaration. `extension` comes without its dot.
QString DeclarationFileName(Kind kind, int id, const QString& period_from, const QString& period_to,
                            const QString& extension);

}  // namespace veroxia
