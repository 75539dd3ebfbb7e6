#include "gui/paper/painter_printer.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <cerrno>

namespace veroxia {

namespace {

constexpr qreal kFirstSize = 10;
constexpr char16_t kFirstName[] = u"Courier New Greek";

// How much of the line from `from` on fits in `width`: all of it, or its
// longest start that does (one character at least, so that it moves on).
qsizetype FittingLength(const QString& line, qsizetype from, const QFontMetricsF& metrics,
                        qreal width) {
  const auto advance = [&](qsizetype length) {
    return metrics.horizontalAdvance(line.sliced(from, length));
  };
  const qsizetype rest = line.size() - from;
  if (advance(rest) <= width) return rest;
  qsizetype fits = 1;
  qsizetype too_long = rest;
  while (too_long - fits > 1) {
    const qsizetype middle = fits + (too_long - fits) / 2;
    (advance(middle) <= width ? fits : too_long) = middle;
  }
  return fits;
}

void ApplySize(QFont& font, const QString& size) {
  bool ok = false;
  const double points = size.trimmed().toDouble(&ok);  // never the machine's locale
  if (ok && points > 0) font.setPointSizeF(points);
}

void ApplyName(QFont& font, const QString& name) {
  const QString fallback = QString::fromUtf16(kPrintoutFamily);
  if (!QFont::substitutes(name).contains(fallback)) QFont::insertSubstitution(name, fallback);
  font.setFamilies({name});
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
}

QFont FirstFont() {
  QFont font;
  font.setPointSizeF(kFirstSize);
  ApplyName(font, QString::fromUtf16(kFirstName));
  return font;
}

}  // namespace

QFont PrintoutFont(const QString& size, const QString& name) {
  QFont font = FirstFont();
  ApplySize(font, size);
  if (!name.isEmpty()) ApplyName(font, name);
  return font;
}

SheetLines::SheetLines(const QFont& font, const QPaintDevice* device, QSizeF area)
    : font_(font), device_(device), area_(area) {
  const QFontMetricsF metrics(font_, device_);
  line_spacing_ = metrics.lineSpacing();
  line_height_ = metrics.height();
  ascent_ = metrics.ascent();
}

void SheetLines::Place(QString line, const std::function<void()>& new_sheet,
                       const std::function<void(QPointF, const QString&)>& draw) {
  qsizetype end = line.size();
  while (end > 0 && line[end - 1] == u' ') --end;
  line.truncate(end);
  const QFontMetricsF metrics(font_, device_);
  qsizetype from = 0;
  do {
    if (top_ > 0 && top_ + line_height_ > area_.height()) {
      top_ = 0;
      new_sheet();
    }
    const qsizetype length = FittingLength(line, from, metrics, area_.width());
    if (length > 0) draw(QPointF(0, top_ + ascent_), line.sliced(from, length));
    top_ += line_spacing_;
    from += length;
  } while (from < line.size());
}

PainterPrinter::PainterPrinter(QPagedPaintDevice& device, std::function<void()> abort)
    : device_(device), abort_(std::move(abort)), font_(FirstFont()) {}

PainterPrinter::~PainterPrinter() = default;

void PainterPrinter::SetFontSize(const QString& size) {
  QFont font = font_;
  ApplySize(font, size);
  UseFont(font);
}

void PainterPrinter::SetFontName(const QString& name) {
  QFont font = font_;
  ApplyName(font, name);
  UseFont(font);
}

void PainterPrinter::UseFont(QFont font) {
  font_ = std::move(font);
  if (!painter_.isActive()) return;
  painter_.setFont(font_);
  // Lines go on from where they are, spaced for the new font.
  std::optional<SheetLines> lines(std::in_place, font_, &device_, lines_->Area());
  lines->MoveTo(lines_->Top());
  lines_ = std::move(lines);
}

bool PainterPrinter::Begin() {
  if (painter_.isActive()) return true;
  if (ended_) return false;
  errno = 0;
  if (!painter_.begin(&device_)) {
    ended_ = true;
    throw SystemPrinterError(errno != 0 ? errno : EIO);
  }
  painter_.setFont(font_);
  lines_.emplace(font_, &device_, QSizeF(device_.width(), device_.height()));
  return true;
}

void PainterPrinter::Print(const QString& text) {
  if (!Begin()) return;
  for (const QStringView line : QStringView(text).tokenize(u"\r\n")) {
    lines_->Place(
        line.toString(), [this] { NewSheet(); },
        [this](QPointF baseline, const QString& piece) { painter_.drawText(baseline, piece); });
  }
}

void PainterPrinter::NewSheet() {
  errno = 0;
  if (!device_.newPage()) throw SystemPrinterError(errno != 0 ? errno : EIO);
}

void PainterPrinter::NewPage() {
  if (!Begin()) return;
  NewSheet();
  lines_->Restart();
}

void PainterPrinter::EndDoc() {
  if (!Begin()) return;
  ended_ = true;
  errno = 0;
  if (!painter_.end()) throw SystemPrinterError(errno != 0 ? errno : EIO);
}

void PainterPrinter::KillDoc() {
  ended_ = true;
  if (!painter_.isActive()) return;
  if (abort_) abort_();
  painter_.end();
}

}  // namespace veroxia
