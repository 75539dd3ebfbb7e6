#pragma once
// Sizes of text fields that follow from what they hold.

class QLineEdit;

namespace veroxia {

// A fixed width that shows `chars` digits in the field's font, frame and
// margins included.
void FitToCharacters(QLineEdit& edit, int chars);

}  // namespace veroxia
