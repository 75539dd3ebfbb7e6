#pragma once
// The pictures of the four browsing buttons, drawn by the program itself:
// to the first line, back one, on one, to the last line.

#include <QIcon>

namespace veroxia {

enum class Arrow { First, Previous, Next, Last };

QIcon ArrowIcon(Arrow arrow, int size);

}  // namespace veroxia
