#pragma once
// The common case of a field, made straight from the stored bytes: a value of
// plain ASCII characters, whose bytes are the same in Windows-1253, written
// without building texts on the way. What it cannot do plainly is left to
// FormatField.

#include <QByteArray>
#include <QString>
#include <optional>
#include <string_view>

#include "filing/volume_layout.h"

namespace veroxia {

// Windows-1253 as a table: the byte of each character of the first blocks of
// Unicode (Latin, Greek) and of the punctuation block, as the code page's
// encoder gives it. Asked once, so that the names of a large payroll are not
// handed to the encoder one by one; a character outside the table is left to
// the encoder.
class CodePage {
 public:
  CodePage();
  // The byte of the character; 0 when the table has none for it.
  unsigned char Byte(char32_t c) const {
    if (c < kBlocks) return bytes_[c];
    if ((c >> 8) == (kPunctuation >> 8)) return bytes_[kBlocks + (c & 0xff)];
    return 0;
  }
  // Appends the text's bytes; false, with `out` as it was, when a character
  // is not in the table.
  bool Append(QByteArray& out, const QString& text) const;

 private:
  static constexpr char32_t kBlocks = 0x400;
  static constexpr char32_t kPunctuation = 0x2000;
  unsigned char bytes_[kBlocks + 0x100] = {};
};

const CodePage& CodePageTable();

// The first character of the text that Windows-1253 cannot hold (a letter
// outside the Basic Multilingual Plane whole); nothing when it holds them all.
std::optional<QString> FirstUnencodable(const QString& text);

// Appends the field made from the stored value (nothing: Null) and answers
// true; or appends nothing and answers false when the value is not plain
// ASCII (or, for a text, characters of the table) or its formatting is not
// the simple kind.
bool AppendPlainField(QByteArray& out, const VolumeField& field,
                      std::optional<std::string_view> value);

}  // namespace veroxia
