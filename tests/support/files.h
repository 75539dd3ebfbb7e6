#pragma once
// Reading a file whole, for tests that compare bytes.

#include <QByteArray>
#include <QFile>
#include <QString>

namespace veroxia::testing {

// The file's bytes; empty when it cannot be read.
inline QByteArray FileBytes(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace veroxia::testing
