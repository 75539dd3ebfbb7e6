#pragma once
// veroxia-cli verify DIRECTORY [--against common|construction ID]: the
// volumes of a submission file as they lie in a directory, read back and
// checked; against the stored declaration's counts when asked.

#include <QString>
#include <QStringList>

namespace veroxia {

// `args` are the command's words after "verify"; `store` the store file, read
// only with --against; `usage` tells a wrong command line and answers its
// exit status. Prints the report on standard output and, when something does
// not hold, a verdict on standard error. Answers 0 when everything holds, 1
// when not, 2 for a wrong command line, a missing directory, a store error or
// a missing declaration.
int VerifyCommand(const QStringList& args, const QString& store, int (*usage)(const QString& why));

}  // namespace veroxia
