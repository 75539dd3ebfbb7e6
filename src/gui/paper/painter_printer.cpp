#include "gui/paper/painter_printer.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <cerrno>

#include "filing/volume_files.h"

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

}  // namespace

PrinterError SystemPrinterError(int code) { return {code, FileErrorDescription(code)}; }

PainterPrinter::PainterPrinter(QPagedPaintDevice& device, std::function<void()> abort)
    : device_(device), abort_(std::move(abort)) {
  font_.setPointSizeF(kFirstSize);
  SetFontName(QString::fromUtf16(kFirstName));
}

PainterPrinter::~PainterPrinter() = default;

void PainterPrinter::SetFontSize(const QString& size) {
  bool ok = false;
  const double points = size.trimmed().toDouble(&ok);  // never the machine's locale
  if (!ok || points <= 0) return;
  font_.setPointSizeF(points);
  UseFont();
}

void PainterPrinter::SetFontName(const QString& name) {
  const QString fallback = QString::fromUtf16(kPrintoutFamily);
  if (!QFont::substitutes(name).contains(fallback)) QFont::insertSubstitution(name, fallback);
  font_.setFamilies({name});
  font_.setStyleHint(QFont::TypeWriter);
  font_.setFixedPitch(true);
  UseFont();
}

void PainterPrinter::UseFont() {
  const QFontMetricsF metrics(font_, &device_);
  line_spacing_ = metrics.lineSpacing();
  line_height_ = metrics.height();
  ascent_ = metrics.ascent();
  if (painter_.isActive()) painter_.setFont(font_);
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
  width_ = device_.width();
  height_ = device_.height();
  top_ = 0;
  return true;
}

void PainterPrinter::Print(const QString& text) {
  if (!Begin()) return;
  for (const QStringView line : QStringView(text).tokenize(u"\r\n")) DrawLine(line.toString());
}

void PainterPrinter::DrawLine(QString line) {
  qsizetype end = line.size();
  while (end > 0 && line[end - 1] == u' ') --end;
  line.truncate(end);
  const QFontMetricsF metrics(font_, &device_);
  qsizetype from = 0;
  do {
    if (top_ > 0 && top_ + line_height_ > height_) NewPage();
    const qsizetype length = FittingLength(line, from, metrics, width_);
    if (length > 0) painter_.drawText(QPointF(0, top_ + ascent_), line.sliced(from, length));
    top_ += line_spacing_;
    from += length;
  } while (from < line.size());
}

void PainterPrinter::NewPage() {
  if (!Begin()) return;
  errno = 0;
  if (!device_.newPage()) throw SystemPrinterError(errno != 0 ? errno : EIO);
  top_ = 0;
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
