#pragma once
// Conversions of stored values and names.

#include <QString>
#include <optional>

namespace veroxia {

// The text without the blanks (U+0020) at either end; a tab, a line break or
// any other space stays, as another program may have stored it.
QString TrimBlanks(const QString& text);
// Null gives an empty text, anything else the text without its end blanks.
QString FieldText(const std::optional<QString>& value);
// Null gives "0", anything else the text untrimmed.
QString FieldNumber(const std::optional<QString>& value);
// Removes the Greek accents (tonos) of the trimmed text, an accented capital
// becoming the plain small letter; "ΐ" and "ΰ" become "ϊ" and "ϋ", and the
// polytonic letters lose their accents and breathings, so that the upper
// case of the result has no combining marks. Leaves the diaeresis letters
// and everything else alone.
QString GreekUpper(const QString& text);
// True when path names an ordinary, non-hidden file; false on any error.
bool FileExists(const QString& path);

}  // namespace veroxia
