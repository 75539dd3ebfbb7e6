#include "gui/app_font.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QFontDatabase>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace veroxia {

namespace {

constexpr int kPointSize = 9;
// The disabled text is moved towards the normal text in this many steps.
constexpr int kSteps = 32;
// What the disabled text aims at: small letters are drawn lighter than their
// colour at the edges of their strokes, so the colour itself stands out more
// than the least that is asked of what is seen.
constexpr double kAimedContrast = 6.0;

// One sRGB channel (0 to 1) made linear.
double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

QColor Mix(const QColor& from, const QColor& to, double share) {
  const auto mix = [share](double a, double b) { return a + (b - a) * share; };
  return QColor::fromRgbF(static_cast<float>(mix(from.redF(), to.redF())),
                          static_cast<float>(mix(from.greenF(), to.greenF())),
                          static_cast<float>(mix(from.blueF(), to.blueF())));
}

}  // namespace

void UseProgramFont() {
  const QString family = QStringLiteral("DejaVu Sans");
  if (!QFontDatabase::families().contains(family)) return;
  QFont font(family, kPointSize);
  font.setStyleHint(QFont::SansSerif);
  QApplication::setFont(font);
}

double RelativeLuminance(const QColor& colour) {
  const QColor rgb = colour.toRgb();
  return 0.2126 * Linear(rgb.redF()) + 0.7152 * Linear(rgb.greenF()) + 0.0722 * Linear(rgb.blueF());
}

double ContrastRatio(const QColor& first, const QColor& second) {
  const double a = RelativeLuminance(first);
  const double b = RelativeLuminance(second);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

void UseReadableDisabledText() {
  QPalette palette = QApplication::palette();
  // A locked text box and an editable list draw on Base; a drop-down list
  // that cannot be typed into draws its text on Button; some styles paint a
  // locked box in the window's colour.
  const QColor backgrounds[] = {palette.color(QPalette::Disabled, QPalette::Base),
                                palette.color(QPalette::Disabled, QPalette::Button),
                                palette.color(QPalette::Disabled, QPalette::Window)};
  const auto least = [&backgrounds](const QColor& text) {
    double ratio = 21.0;
    for (const QColor& background : backgrounds) {
      ratio = std::min(ratio, ContrastRatio(text, background));
    }
    return ratio;
  };
  const QColor grey = palette.color(QPalette::Disabled, QPalette::Text);
  const QColor normal = palette.color(QPalette::Active, QPalette::Text);
  QColor text = grey;
  for (int step = 1; step <= kSteps && least(text) < kAimedContrast; ++step) {
    text = Mix(grey, normal, static_cast<double>(step) / kSteps);
  }
  if (least(text) < kAimedContrast) {
    // Not even the normal text would do: black or white, whichever stands out.
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    text = least(black) >= least(white) ? black : white;
  }
  palette.setColor(QPalette::Disabled, QPalette::Text, text);
  QApplication::setPalette(palette);
}

}  // namespace veroxia
