#pragma once
// Messages of run-time errors: an operation's own first line, then the error's
// number and description.

#include <QString>

#include "store/database.h"

namespace veroxia {

// What the error means to the user, in our words: for the errors a user can
// meet (wrong password or not a store, read-only, in use, disk full, damaged,
// cannot be opened, disk I/O, ...); for any other the error's own description
// when it is ours, a general one with the number when it is SQLite's, which
// is never shown.
QString ErrorDescription(const StoreError& error);

// first_line, CR LF, "Κωδικός λάθους: " number, CR LF, "Περιγραφή λάθους: "
// and the error's description.
QString ErrorMessage(const QString& first_line, const StoreError& error);
// The same for an error of any other source, described already.
QString ErrorMessage(const QString& first_line, int code, const QString& description);

}  // namespace veroxia
