#pragma once
// Screen sizes and places are given in twips: 1440 to the inch of the screen's
// logical resolution. Every view turns them into pixels here.

#include <QPoint>
#include <QRect>
#include <QSize>

class QString;
class QVBoxLayout;
class QWidget;

namespace veroxia {

// pixels = twips * logical dpi / 1440, rounded to the nearest pixel.
int TwipsToPixels(int twips, double logical_dpi);

// Twips along the width (x) or the height (y) of the screen the widget is on.
int TwipsX(const QWidget& on, int twips);
int TwipsY(const QWidget& on, int twips);
QSize TwipsSize(const QWidget& on, int width, int height);
QPoint TwipsPoint(const QWidget& on, int left, int top);

// Places a top-level window `left`/`top` twips from the screen's edges and
// gives it a fixed outer size, frame included once the window system tells
// the frame's size (before that, and without a frame, the inner area takes the
// whole size). Every later resize is undone.
void FixWindow(QWidget& window, int left, int top, int width, int height);

// Dresses a form's window: its font at `points`, its title and icon (none
// when `icon_path` is empty), and a column layout with margins of
// `margin_twips`, which it returns for the caller to fill.
QVBoxLayout* DressWindow(QWidget& window, double points, const QString& title,
                         const QString& icon_path, int margin_twips);

}  // namespace veroxia
