#pragma once
// Copying a file byte for byte, telling the reading of the original apart
// from the writing of the copy, as the user is told different things.

#include <QString>
#include <optional>

namespace veroxia {

struct CopyFailure {
  bool reading;  // the original could not be read; else the copy not written
  int error;     // the system's error number
};

// Copies the file `from` into a new file `to` with its permissions,
// replacing a file there (which keeps its own permissions). Answers
// what failed, if anything; `to` may then be left partly written.
std::optional<CopyFailure> CopyFileBytes(const QString& from, const QString& to);

// Whether the system's error number says that the disk, or the user's share
// of it, is full.
bool IsDiskFull(int error);

}  // namespace veroxia
