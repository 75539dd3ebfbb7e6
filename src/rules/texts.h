#pragma once
// Conversions of stored values and names.

#include <QString>
#include <optional>

namespace veroxia {

// Null gives an empty text, anything else the trimmed text.
QString FieldText(const std::optional<QString>& value);
// Null gives "0", anything else the text untrimmed.
QString FieldNumber(const std::optional<QString>& value);
// Removes the Greek accents (tonos) of the trimmed text; leaves the
// diaeresis letters and the case of everything else alone.
QString GreekUpper(const QString& text);
// True when path names an ordinary, non-hidden file; false on any error.
bool FileExists(const QString& path);

}  // namespace veroxia
