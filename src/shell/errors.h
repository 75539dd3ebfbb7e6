#pragma once
// Messages of run-time errors: an operation's own first line, then the error's
// number and description.

#include <QString>

#include "store/database.h"

namespace veroxia {

// first_line, CR LF, "Κωδικός λάθους: " number, CR LF, "Περιγραφή λάθους: " text.
QString ErrorMessage(const QString& first_line, const StoreError& error);

}  // namespace veroxia
