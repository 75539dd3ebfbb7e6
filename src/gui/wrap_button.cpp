#include "gui/wrap_button.h"

#include <QStyleOptionButton>
#include <QStylePainter>
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
  return style()->sizeFromContents(QStyle::CT_PushButton, &option, probe, this) - probe;
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
  const int one_line = fontMetrics().horizontalAdvance(text());
  const int width = one_line + padding.width();
  return {width, heightForWidth(width)};
}

QSize WrapButton::minimumSizeHint() const {
  // As narrow as the longest word allows.
  int longest = 0;
  for (const QString& word : text().split(u' ', Qt::SkipEmptyParts)) {
    longest = std::max(longest, fontMetrics().horizontalAdvance(word));
  }
  const int width = longest + Padding().width();
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
