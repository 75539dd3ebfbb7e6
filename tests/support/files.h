#pragma once
// Reading and writing a file whole, for tests that compare bytes.

#include <QByteArray>
#include <QFile>
#include <QString>

namespace veroxia::testing {

// The file's bytes; empty when it cannot be read.
inline QByteArray FileBytes(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Writes the bytes as the whole file; true when written.
inline bool WriteFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

}  // namespace veroxia::testing
