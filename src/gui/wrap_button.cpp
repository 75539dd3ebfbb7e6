#include "gui/wrap_button.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <QWidget>
#include <algorithm>
#include <climits>

namespace veroxia {

namespace {

constexpr int kCaptionFlags = Qt::AlignCenter | Qt::TextWordWrap;

}  // namespace

WrapButton::WrapButton(QWidget* parent) : QPushButton(parent) {
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred, QSizePolicy::PushButton);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

QSize WrapButton::Padding() const {
  // The style adds its margins to a caption of any size; a caption large
  // enough to pass every minimum shows just the margins.
  QStyleOptionButton option;
  initStyleOption(&option);
  const QSize probe(1000, 1000);
  const QSize style_margins =
      style()->sizeFromContents(QStyle::CT_PushButton, &option, probe, this) - probe;
  // Some styles draw their bevel inside those margins: a character more on
  // each side, and a little above and below, keep the caption off it.
  const QFontMetrics metrics = fontMetrics();
  return style_margins + QSize(2 * metrics.averageCharWidth(), metrics.height() / 4);
}

QSize WrapButton::CaptionSize(int width) const {
  const QRect bounds = fontMetrics().boundingRect(QRect(0, 0, std::max(width, 1), INT_MAX / 2),
                                                  kCaptionFlags, text());
  return bounds.size();
}

int WrapButton::heightForWidth(int width) const {
  const QSize padding = Padding();
  return CaptionSize(width - padding.width()).height() + padding.height();
}

QSize WrapButton::sizeHint() const {
  const QSize padding = Padding();
  // The caption on one line, measured as it is laid out (its advance can be
  // a pixel short of that, which would wrap the last word).
  const int one_line = CaptionSize(QWIDGETSIZE_MAX).width();
  const int width = one_line + padding.width();
  return {width, heightForWidth(width)};
}

QSize WrapButton::minimumSizeHint() const {
  // As narrow as the longest word allows, measured as the caption is laid
  // out: wrapped into the narrowest room, each word stands on a line.
  const int width = CaptionSize(1).width() + Padding().width();
  return {width, heightForWidth(width)};
}

QRect WrapButton::CaptionRect() const {
  const QSize padding = Padding();
  const int left = padding.width() / 2;
  const int top = padding.height() / 2;
  return rect().adjusted(left, top, -(padding.width() - left), -(padding.height() - top));
}

bool WrapButton::CaptionFits() const {
  const QRect room = CaptionRect();
  const QSize needed = CaptionSize(room.width());
  return needed.width() <= room.width() && needed.height() <= room.height();
}

void WrapButton::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  painter.drawControl(QStyle::CE_PushButton, option);
  painter.drawItemText(CaptionRect(), kCaptionFlags, palette(), isEnabled(), text(),
                       QPalette::ButtonText);
}

}  // namespace veroxia
