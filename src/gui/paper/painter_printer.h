#pragma once
// The printer drawn with a QPainter on a paged device: a QPrinter (the
// system's printer, its preview) or a QPdfWriter. Qt Gui only, no widgets.
//
// The printouts are pages of plain text laid out for a monospaced font, so
// the font asked for by name ("Courier New Greek") falls back, when the
// machine has no font of that name, to Liberation Mono: the same widths as
// Courier New, with Greek letters.
//
// Each line of text is drawn from the left edge of the device's printable
// area, the first one at its top edge, the next ones a line spacing of the
// font (as measured for the device) further down. Nothing is set on the
// device: its page size, orientation and margins are its own defaults.
//
// Nothing printed is lost:
// - A line wider than the printable area is broken after its last
//   character that fits, and the rest continues on the next line (broken
//   again if need be). Blanks at the end of a line are not drawn and so
//   never make it wider.
// - A line that would reach below the printable area starts a new sheet.

#include <QFont>
#include <QPainter>
#include <QString>
#include <functional>
#include <optional>

#include "printing/printer.h"

class QPagedPaintDevice;

namespace veroxia {

// The family the printouts' font falls back to.
inline constexpr char16_t kPrintoutFamily[] = u"Liberation Mono";

// The font of a printout whose font was set to that size (a text of points;
// one that is not a positive number leaves the first size, 10) and name (an
// empty one leaves the first name, "Courier New Greek").
QFont PrintoutFont(const QString& size, const QString& name);

// Where the lines of printed text lie on the sheets of a paged device, in its
// pixels from the top left corner of its printable area, as described above.
class SheetLines {
 public:
  // For lines in `font` as measured for `device`, on a printable area of
  // that size.
  SheetLines(const QFont& font, const QPaintDevice* device, QSizeF area);
  // Lays out one line: `draw` is called with the start of the baseline and
  // the text of each piece it is broken into, and `new_sheet` before a piece
  // that starts a new sheet.
  void Place(QString line, const std::function<void()>& new_sheet,
             const std::function<void(QPointF, const QString&)>& draw);
  // The next line goes at the top of the (next) sheet.
  void Restart() { top_ = 0; }
  // Where the next line goes, from the top of the printable area.
  qreal Top() const { return top_; }
  void MoveTo(qreal top) { top_ = top; }
  QSizeF Area() const { return area_; }

 private:
  QFont font_;
  const QPaintDevice* device_;
  qreal line_spacing_;
  qreal line_height_;
  qreal ascent_;
  QSizeF area_;
  qreal top_ = 0;  // of the next line
};

class PainterPrinter : public Printer {
 public:
  // Draws on `device`, which must outlive this printer. Painting starts with
  // the first text, sheet or end of the job. `abort`, when given, is called
  // by KillDoc before painting ends (e.g. the QPrinter's abort()).
  explicit PainterPrinter(QPagedPaintDevice& device, std::function<void()> abort = {});
  ~PainterPrinter() override;
  PainterPrinter(const PainterPrinter&) = delete;
  PainterPrinter& operator=(const PainterPrinter&) = delete;

  // A size that is not a positive number of points leaves it as it was.
  void SetFontSize(const QString& size) override;
  void SetFontName(const QString& name) override;
  void Print(const QString& text) override;
  void NewPage() override;
  void EndDoc() override;
  void KillDoc() override;

  // The font later texts are drawn in, as asked for (before Qt resolves it).
  const QFont& Font() const { return font_; }

 private:
  void UseFont(QFont font);
  void NewSheet();
  // Starts painting unless it has started; false once the job has ended.
  bool Begin();

  QPagedPaintDevice& device_;
  std::function<void()> abort_;
  QPainter painter_;
  QFont font_;
  std::optional<SheetLines> lines_;  // while painting
  bool ended_ = false;
};

}  // namespace veroxia
