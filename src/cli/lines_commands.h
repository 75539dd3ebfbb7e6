#pragma once
// veroxia-cli import and export-lines: a declaration's employee lines from and
// to a CSV file.

#include <QString>
#include <QStringList>

namespace veroxia::cli {

// Whether `command` is one of the line commands.
bool IsLinesCommand(const QString& command);
// What is wrong with the words of a line command (args[0] is the command);
// empty when they are right.
QString LinesCommandUsage(const QStringList& args);
// Runs `import KIND ID FILE [--append|--replace] [--keep-duplicates]` or
// `export-lines KIND ID FILE` on the store at store_path: 0 when the lines
// were stored or written, 1 when not. The import holds the store and backs
// it up before its change, as the program does; its failing rows go to
// standard error. Into a declaration that has lines it needs --append (after
// the last line) or --replace (instead of them all); rows that repeat a line
// are listed and stored only with --keep-duplicates.
int RunLinesCommand(const QString& store_path, const QStringList& args);

}  // namespace veroxia::cli
