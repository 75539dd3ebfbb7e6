#pragma once
// The masked date boxes of the header screens (mask "##/##/####", "_" as the
// blank). Their text is the full display text: "__/__/____" when nothing is
// typed, "08/05/20__" while half typed.

#include <QString>

#include "store/database.h"

namespace veroxia {

inline const QString kEmptyDateBox = QStringLiteral("__/__/____");

// True when the box holds no typed character: its text without the slashes
// and blanks of the mask, trimmed, is empty.
bool DateBoxIsEmpty(const QString& text);

// What a date box stores: the empty text when nothing is typed, otherwise its
// full text, slashes and any remaining blanks included.
QString DateBoxValue(const QString& text);

// What a date box shows for a stored value: the empty mask for Null or a
// blank value, otherwise the stored text unchanged.
QString DateBoxText(const Text& stored);

}  // namespace veroxia
