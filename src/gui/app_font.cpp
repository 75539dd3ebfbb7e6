#include "gui/app_font.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

namespace veroxia {

namespace {

constexpr int kPointSize = 9;

}  // namespace

void UseProgramFont() {
  const QString family = QStringLiteral("DejaVu Sans");
  if (!QFontDatabase::families().contains(family)) return;
  QFont font(family, kPointSize);
  font.setStyleHint(QFont::SansSerif);
  QApplication::setFont(font);
}

}  // namespace veroxia
