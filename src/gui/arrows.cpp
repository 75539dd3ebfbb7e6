#include "gui/arrows.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace veroxia {

namespace {

QPixmap Draw(Arrow arrow, int size, const QColor& color) {
  QPixmap picture(size, size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  const bool left = arrow == Arrow::First || arrow == Arrow::Previous;
  const bool bar = arrow == Arrow::First || arrow == Arrow::Last;
  const qreal margin = size * 0.2;
  const qreal top = margin;
  const qreal bottom = size - margin;
  const qreal bar_width = bar ? size * 0.12 : 0.0;
  const qreal gap = bar ? size * 0.06 : 0.0;
  // The bar stands at the end the arrow points to.
  qreal tip = left ? margin + bar_width + gap : size - margin - bar_width - gap;
  const qreal base = left ? size - margin : margin;
  if (!bar) tip = left ? margin + size * 0.1 : size - margin - size * 0.1;
  QPainterPath triangle;
  triangle.moveTo(tip, size / 2.0);
  triangle.lineTo(base, top);
  triangle.lineTo(base, bottom);
  triangle.closeSubpath();
  painter.drawPath(triangle);
  if (bar) {
    const qreal x = left ? margin : size - margin - bar_width;
    painter.drawRect(QRectF(x, top, bar_width, bottom - top));
  }
  return picture;
}

}  // namespace

QIcon ArrowIcon(Arrow arrow, int size) {
  QIcon icon;
  icon.addPixmap(Draw(arrow, size, QColor(0x20, 0x40, 0x80)), QIcon::Normal);
  icon.addPixmap(Draw(arrow, size, QColor(0xa0, 0xa0, 0xa0)), QIcon::Disabled);
  return icon;
}

}  // namespace veroxia
