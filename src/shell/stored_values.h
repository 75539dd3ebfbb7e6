#pragma once
// How the text of a screen's field becomes the value stored in its column.

#include <QString>

namespace veroxia {

enum class StoreAs {
  Text,   // exactly as typed
  Clean,  // GreekUpper (trimmed, accents removed), then upper case
  Upper,  // upper case only, not trimmed
  Date,   // a masked date box: empty when nothing is typed, else its full text
  Flag,   // a choice box: "1" when its upper-cased text is the first choice, else "0"
};

// The stored value of a field's text; `first_choice` serves StoreAs::Flag.
QString StoredText(StoreAs how, const QString& text, const QString& first_choice = {});

}  // namespace veroxia
