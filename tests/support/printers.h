#pragma once
// Lets GoogleTest print Qt texts readably in its failure messages.

#include <QString>
#include <ostream>

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}
QT_END_NAMESPACE
