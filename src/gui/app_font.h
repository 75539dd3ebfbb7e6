#pragma once
// The program's font and colours: one font with Greek letters, the same on
// every machine, and values that stay readable in boxes that are locked.

class QColor;

namespace veroxia {

// DejaVu Sans when the machine has it; the toolkit's default otherwise.
void UseProgramFont();

// The least contrast between the text of a locked (disabled) box and the
// box's background, as the ratio of their relative luminances (WCAG 2).
inline constexpr double kReadableContrast = 4.5;

// The relative luminance of a colour (0 black, 1 white) and the contrast
// ratio of two colours, (lighter + 0.05) / (darker + 0.05), 1 to 21.
double RelativeLuminance(const QColor& colour);
double ContrastRatio(const QColor& first, const QColor& second);

// Makes the text of every disabled box, drop-down list and list of the
// program stand out from its background by at least kReadableContrast: the
// style's grey is darkened towards the normal text only as far as needed, so
// a locked box still looks locked. For the whole application, once, before
// the windows are made.
void UseReadableDisabledText();

}  // namespace veroxia
