#pragma once
// Sizes of text fields that follow from what they hold, and the pairing of an
// option button with its caption.

class QAbstractButton;
class QBoxLayout;
class QLineEdit;
class QWidget;

namespace veroxia {

// A fixed width that shows `chars` digits in the field's font, frame and
// margins included.
void FitToCharacters(QLineEdit& edit, int chars);

// The width of a box that takes at most `max_length` characters: a short box
// (up to 16) gets exactly the width of all of them; a longer one stands at
// least 16 characters wide and grows with the room its layout gives it, up to
// the width of all of them. `max_pixels` (0: none) caps the width, for a box
// that the window cannot hold whole. In a line of a box layout, give a long
// box a stretch factor (1) and the empty end of the line none
// (addStretch(0)): the box then takes the room first.
void FitToLength(QLineEdit& edit, int max_length, int max_pixels = 0);

// A date box: the mask dd/mm/yyyy with "_" in the blanks, and the width of
// its ten characters.
void MakeDateBox(QLineEdit& edit);

// The width FitToCharacters gives a box of `chars` digits.
int WidthForCharacters(const QLineEdit& edit, int chars);

// Whether the box shows the whole of its text at once, nothing scrolled away.
bool TextFits(const QLineEdit& edit);

// An option button with its caption right after it, as one piece of a line:
// the caption is seen to belong to the circle before it. The layout is for
// the caller to place.
QBoxLayout* CaptionedOption(QAbstractButton& option, QWidget& caption);

}  // namespace veroxia
