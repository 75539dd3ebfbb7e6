#pragma once

#include <functional>

#include "shell/ports.h"
#include "shell/vars.h"

namespace veroxia {

// Opens the store beside the program once, holds it, removes what a backup
// or a restore broken off left behind (RemoveLeftovers), starts the check of its
// health and arms the backup before its first change (StoreSession). False,
// after telling the user, when the file is missing, cannot be written (the
// file or its folder), is held by another program, is damaged or cannot be
// opened; the program then ends. `end_program` ends it when the health check
// finds the store damaged later.
bool OpenStore(Vars& vars, Dialogs& dialogs, std::function<void()> end_program = {});
// The same for the store at `path`.
bool OpenStoreAt(Vars& vars, Dialogs& dialogs, const QString& path,
                 std::function<void()> end_program = {});

// What the user is told when the store file at `path` does not open with
// `error`: a file that is no store of ours is named as such; a damaged store
// is told with its backups; anything else is a critical error with its
// number and our description.
QString OpenFailedMessage(const QString& path, const StoreError& error);

// Closes the connection if it stands, after writing its log back into the
// store file (WriteBackStore), and lets go of the store. False when the
// write-back failed; the user has been told.
bool CloseStore(Vars& vars, Dialogs& dialogs);
// Writes the log of `db` back into its store file. A failure is told to the
// user: nothing is lost, the log stays beside the store and is applied when
// it is next opened. False then.
bool WriteBackStore(Database& db, Dialogs& dialogs);

}  // namespace veroxia
