#pragma once
// "Δημιουργία αρχείου": the submission file of the declaration being worked
// on, written from the store into a directory the user chooses.

#include "shell/ports.h"
#include "shell/vars.h"
#include "store/kind.h"

namespace veroxia {

enum class FileOutcome {
  kWritten,      // every volume complete; the success message
  kNoDate,       // no submission date; nothing written
  kCancelled,    // no directory chosen, or the volumes there kept; nothing written, no message
  kUnencodable,  // a character the file cannot hold; nothing written
  kFailed,       // a store or file error; the directory's volumes as they were
};

// Reads vars.DeclarationId and the store; asks for the directory through
// dialogs.AskDirectory() (vars.DialogResult holds the answer); finishes a
// write into it that was cut short; names the volumes of an earlier run found
// there in one question before any goes; writes the new set, which takes
// their place as a whole or not at all; tells the outcome in a message box.
// The store is only read.
FileOutcome CreateFile(Vars& vars, Dialogs& dialogs, Kind kind);

}  // namespace veroxia
