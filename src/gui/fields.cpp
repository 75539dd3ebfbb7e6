#include "gui/fields.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>

namespace veroxia {

namespace {

// Boxes up to this many characters are never narrower than all of them.
constexpr int kAlwaysWhole = 16;

}  // namespace

int WidthForCharacters(const QLineEdit& edit, int chars) {
  const QFontMetrics metrics = edit.fontMetrics();
  const QMargins margins = edit.textMargins();
  // The digits, half a digit more so the cursor never touches the frame, and
  // the text margins as QLineEdit itself reckons its contents.
  const int digits = metrics.horizontalAdvance(QString(chars, u'0'));
  const int half_digit = metrics.horizontalAdvance(u'0') / 2;
  const int text_width = digits + half_digit + margins.left() + margins.right() + 2 * 2 + 1;
  const int text_height = metrics.height() + margins.top() + margins.bottom();
  QStyleOptionFrame option;
  option.initFrom(&edit);
  option.lineWidth = edit.hasFrame() ? edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
  const QSize size = edit.style()->sizeFromContents(QStyle::CT_LineEdit, &option,
                                                    QSize(text_width, text_height), &edit);
  return std::max(size.width(), edit.minimumSizeHint().width());
}

bool TextFits(const QLineEdit& edit) {
  QStyleOptionFrame option;
  option.initFrom(&edit);
  option.lineWidth = edit.hasFrame() ? edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
  const QRect contents = edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
  // QLineEdit keeps two pixels on either side of its text, inside the text
  // margins, and one more for the cursor.
  const QMargins margins = edit.textMargins();
  const int room = contents.width() - margins.left() - margins.right() - 2 * 2 - 1;
  return edit.fontMetrics().horizontalAdvance(edit.displayText()) <= room;
}

void FitToCharacters(QLineEdit& edit, int chars) {
  edit.setFixedWidth(WidthForCharacters(edit, chars));
}

void MakeDateBox(QLineEdit& edit) {
  edit.setInputMask(QStringLiteral("99/99/9999;_"));
  FitToCharacters(edit, 10);
}

void FitToLength(QLineEdit& edit, int max_length, int max_pixels) {
  int full = WidthForCharacters(edit, max_length);
  if (max_pixels > 0) full = std::min(full, max_pixels);
  const int least = std::min(full, WidthForCharacters(edit, std::min(max_length, kAlwaysWhole)));
  edit.setMinimumWidth(least);
  edit.setMaximumWidth(full);
  QSizePolicy policy = edit.sizePolicy();
  policy.setHorizontalPolicy(least == full ? QSizePolicy::Fixed : QSizePolicy::Expanding);
  edit.setSizePolicy(policy);
}

QBoxLayout* CaptionedOption(QAbstractButton& option, QWidget& caption) {
  auto* pair = new QHBoxLayout;  // owned by the layout the caller adds it to
  pair->setContentsMargins(0, 0, 0, 0);
  pair->setSpacing(option.style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing) / 2);
  pair->addWidget(&option);
  pair->addWidget(&caption);
  return pair;
}

}  // namespace veroxia
