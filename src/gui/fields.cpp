#include "gui/fields.h"

#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>

namespace veroxia {

void FitToCharacters(QLineEdit& edit, int chars) {
  const QFontMetrics metrics = edit.fontMetrics();
  const QMargins margins = edit.textMargins();
  // The digits, half a digit more so the cursor never touches the frame, and
  // the text margins as QLineEdit itself reckons its contents.
  const int digit = metrics.horizontalAdvance(u'0');
  const int text_width = chars * digit + digit / 2 + margins.left() + margins.right() + 2 * 2 + 1;
  const int text_height = metrics.height() + margins.top() + margins.bottom();
  QStyleOptionFrame option;
  option.initFrom(&edit);
  option.lineWidth = edit.hasFrame() ? edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
  const QSize size = edit.style()->sizeFromContents(QStyle::CT_LineEdit, &option,
                                                    QSize(text_width, text_height), &edit);
  edit.setFixedWidth(std::max(size.width(), edit.minimumSizeHint().width()));
}

}  // namespace veroxia
