#pragma once
// veroxia-cli backup and restore: the store's copies from a script.

#include <QString>
#include <QStringList>

namespace veroxia::cli {

// Whether `command` is one of the store commands below.
bool IsStoreCommand(const QString& command);
// What is wrong with the words of a store command (args[0] is the command);
// empty when they are right.
QString StoreCommandUsage(const QStringList& args);
// Runs `backup` or `restore FILE` on the store at store_path: 0 when done, 1
// when it failed or was refused. Tells the user on standard output (what was
// made) and standard error (why not).
int RunStoreCommand(const QString& store_path, const QStringList& args);

}  // namespace veroxia::cli
