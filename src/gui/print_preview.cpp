#include "gui/print_preview.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSpinBox>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <cmath>

#include "gui/paper/painter_printer.h"
#include "gui/paper/pdf_printer.h"
#include "gui/qt_dialogs.h"
#include "printing/texts.h"
#include "shell/errors.h"
#include "shell/texts.h"

namespace veroxia {

namespace pt = printing_texts;

namespace {

// Grey around and between the sheets, in screen pixels.
constexpr int kGap = 12;
// The fixed zoom levels the buttons step through.
constexpr std::array<double, 9> kZooms = {0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0};
// Room left on the screen for the frame and title bar of the window.
constexpr int kFrameWidth = 16;
constexpr int kFrameHeight = 40;

}  // namespace

// The sheets of one page on the preview's paper, at a zoom: the page's lines
// lie where the printer puts them, drawn in the printout's font at the
// zoomed size.
class SheetView : public QWidget {
 public:
  SheetView(QPrinter& printer, QWidget* parent) : QWidget(parent), printer_(printer) {
    setObjectName(QStringLiteral("PreviewSheets"));
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

  void SetPage(const QString& text, const QFont& font) {
    font_ = font;
    pieces_.clear();
    sheets_ = 1;
    const int resolution = printer_.resolution();
    paper_ = printer_.pageLayout().fullRectPixels(resolution).size();
    printable_ = printer_.pageLayout().paintRectPixels(resolution).topLeft();
    SheetLines lines(font_, &printer_, QSizeF(printer_.width(), printer_.height()));
    for (const QStringView line : QStringView(text).tokenize(u"\r\n")) {
      lines.Place(
          line.toString(), [this] { ++sheets_; },
          [this](QPointF baseline, const QString& piece) {
            pieces_.push_back({sheets_ - 1, baseline, piece});
          });
    }
    Resize();
  }

  void SetZoom(double zoom) {
    zoom_ = zoom;
    Resize();
  }

  // One sheet of paper at zoom 1, in screen pixels.
  QSizeF SheetSize() const { return QSizeF(paper_) * Scale(1); }
  int Sheets() const { return sheets_; }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Dark));
    const double scale = Scale(zoom_);
    const QSizeF sheet = QSizeF(paper_) * scale;
    QFont font = font_;
    font.setPointSizeF(font_.pointSizeF() * zoom_);
    painter.setFont(font);
    painter.setPen(Qt::black);
    for (int k = 0; k < sheets_; ++k) {
      const QRectF area(QPointF(kGap, kGap + k * (sheet.height() + kGap)), sheet);
      if (!area.intersects(event->rect())) continue;
      painter.fillRect(area, Qt::white);
      painter.drawRect(area.adjusted(-1, -1, 0, 0));
      for (const Piece& piece : pieces_) {
        if (piece.sheet == k) {
          painter.drawText(area.topLeft() + (printable_ + piece.baseline) * scale, piece.text);
        }
      }
    }
  }

 private:
  struct Piece {
    int sheet;
    QPointF baseline;  // in printer pixels, from the printable area's corner
    QString text;
  };
  // Screen pixels for each printer pixel.
  double Scale(double zoom) const {
    return zoom * logicalDpiX() / std::max(1, printer_.resolution());
  }
  void Resize() {
    const QSizeF sheet = QSizeF(paper_) * Scale(zoom_);
    resize(static_cast<int>(std::ceil(sheet.width())) + 2 * kGap,
           static_cast<int>(std::ceil(sheets_ * (sheet.height() + kGap))) + kGap);
    update();
  }

  QPrinter& printer_;
  QFont font_;
  std::vector<Piece> pieces_;
  int sheets_ = 1;
  double zoom_ = 1;
  QSize paper_;
  QPointF printable_;
};

bool DrawOn(QPrinter& target, const DrawPrintout& draw) {
  const QPaintEngine::Type engine =
      target.paintEngine() != nullptr ? target.paintEngine()->type() : QPaintEngine::User;
  if (engine == QPaintEngine::Pdf && target.outputFormat() == QPrinter::PdfFormat &&
      !target.outputFileName().isEmpty()) {
    PdfPrinter file(target.outputFileName(), PdfPage{target.pageLayout(), target.resolution()});
    return draw(file);
  }
  // Qt cannot take back a job from CUPS (its abort does nothing there): the
  // pages drawn before a failure or a stop are printed.
  PainterPrinter paper(target, [&target] { target.abort(); });
  return draw(paper);
}

void ShowPrintPreview(QWidget* parent, Dialogs& dialogs, const PrintJob& job) {
  PageFile pages;
  bool drawn = false;
  dialogs.RunWithProgress(pt::kComposing,
                          [&](Progress& progress) { drawn = job.draw(pages, progress); });
  if (!drawn) return;
  PrintPreviewWindow window(pages, dialogs, job, parent);
  window.exec();
}

PrintPreviewWindow::PrintPreviewWindow(PageFile& pages, Dialogs& dialogs, PrintJob job,
                                       QWidget* parent)
    : QDialog(parent), pages_(pages), dialogs_(dialogs), job_(std::move(job)) {
  setObjectName(QStringLiteral("PrintPreview"));
  setWindowTitle(pt::kPreviewTitle);
  // The job's name at the printer, and the file's in the print dialog's
  // "print to file".
  printer_.setDocName(QFileInfo(job_.pdf_name).completeBaseName());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  BuildToolbar();
  scroll_ = new QScrollArea(this);
  scroll_->setObjectName(QStringLiteral("PreviewScroll"));
  scroll_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  scroll_->setBackgroundRole(QPalette::Dark);
  view_ = new SheetView(printer_, scroll_);
  scroll_->setWidget(view_);
  scroll_->viewport()->installEventFilter(this);
  layout->addWidget(scroll_, 1);
  ShowPage(0);
  FitScreen();
}

PrintPreviewWindow::~PrintPreviewWindow() = default;

void PrintPreviewWindow::BuildToolbar() {
  auto* bar = new QToolBar(this);
  bar->setObjectName(QStringLiteral("PreviewToolbar"));
  bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
  layout()->addWidget(bar);
  const auto button = [&](const QString& name, const QString& text, const QString& tip,
                          auto clicked) {
    auto* b = new QToolButton(bar);
    b->setObjectName(name);
    b->setText(text);
    b->setToolTip(tip);
    bar->addWidget(b);
    connect(b, &QToolButton::clicked, this, clicked);
    return b;
  };
  button(QStringLiteral("PrintCmd"), pt::kPrintCmd, pt::kPrintCmd, [this] { PrintCmd_Click(); });
  button(QStringLiteral("SavePdfCmd"), pt::kSavePdfCmd, pt::kSavePdfCmd,
         [this] { SavePdfCmd_Click(); });
  bar->addSeparator();
  back_ = {button(QStringLiteral("FirstPageCmd"), QStringLiteral("|<"), pt::kFirstPage,
                  [this] { ShowPage(0); }),
           button(QStringLiteral("PreviousPageCmd"), QStringLiteral("<"), pt::kPreviousPage,
                  [this] { ShowPage(page_ - 1); })};
  bar->addWidget(new QLabel(u' ' + pt::kPageLabel + u' ', bar));
  page_box_ = new QSpinBox(bar);
  page_box_->setObjectName(QStringLiteral("PageBox"));
  page_box_->setRange(std::min(1, pages_.Count()), pages_.Count());
  page_box_->setKeyboardTracking(false);
  page_box_->setButtonSymbols(QAbstractSpinBox::NoButtons);
  page_box_->setAlignment(Qt::AlignRight);
  bar->addWidget(page_box_);
  connect(page_box_, &QSpinBox::valueChanged, this, [this](int value) { ShowPage(value - 1); });
  page_count_ = new QLabel(u' ' + pt::kOfPages.arg(pages_.Count()) + u' ', bar);
  page_count_->setObjectName(QStringLiteral("PageCount"));
  bar->addWidget(page_count_);
  forward_ = {button(QStringLiteral("NextPageCmd"), QStringLiteral(">"), pt::kNextPage,
                     [this] { ShowPage(page_ + 1); }),
              button(QStringLiteral("LastPageCmd"), QStringLiteral(">|"), pt::kLastPageCmd,
                     [this] { ShowPage(pages_.Count() - 1); })};
  bar->addSeparator();
  button(QStringLiteral("ZoomOutCmd"), QStringLiteral("-"), pt::kZoomOut, [this] { Step(-1); });
  zoom_box_ = new QComboBox(bar);
  zoom_box_->setObjectName(QStringLiteral("ZoomBox"));
  zoom_box_->addItem(pt::kFitWidth);
  zoom_box_->addItem(pt::kFitPage);
  for (const double zoom : kZooms) {
    zoom_box_->addItem(QString::number(std::lround(zoom * 100)) + u'%', zoom);
  }
  bar->addWidget(zoom_box_);
  connect(zoom_box_, &QComboBox::activated, this, [this](int index) {
    if (index == 0) SetZoom(Fit::kWidth, zoom_);
    if (index == 1) SetZoom(Fit::kPage, zoom_);
    if (index > 1) SetZoom(Fit::kNone, zoom_box_->itemData(index).toDouble());
  });
  button(QStringLiteral("ZoomInCmd"), QStringLiteral("+"), pt::kZoomIn, [this] { Step(1); });
  bar->addSeparator();
  button(QStringLiteral("CloseCmd"), pt::kCloseCmd, pt::kCloseCmd, [this] { reject(); });

  // Page Up and Page Down turn the pages; Ctrl with Home and End go to the
  // first and the last.
  const auto key = [this](QKeySequence sequence, auto go) {
    connect(new QShortcut(sequence, this), &QShortcut::activated, this, go);
  };
  key(QKeySequence(Qt::Key_PageDown), [this] { ShowPage(page_ + 1); });
  key(QKeySequence(Qt::Key_PageUp), [this] { ShowPage(page_ - 1); });
  key(QKeySequence(Qt::CTRL | Qt::Key_Home), [this] { ShowPage(0); });
  key(QKeySequence(Qt::CTRL | Qt::Key_End), [this] { ShowPage(pages_.Count() - 1); });
}

void PrintPreviewWindow::ShowPage(int index) {
  index = std::clamp(index, 0, pages_.Count() - 1);
  if (index < 0 || index == page_) return;
  QString text;
  try {
    text = pages_.Page(index);
  } catch (const PrinterError& error) {
    dialogs_.Message(ErrorMessage(pt::kProblem, error.code, error.description), texts::kAppTitle);
    return;
  }
  page_ = index;
  view_->SetPage(text, PrintoutFont(pages_.FontSize(), pages_.FontName()));
  scroll_->verticalScrollBar()->setValue(0);
  UpdatePageControls();
}

void PrintPreviewWindow::UpdatePageControls() {
  const QSignalBlocker quiet(page_box_);
  page_box_->setValue(page_ + 1);
  for (QToolButton* b : back_) b->setEnabled(page_ > 0);
  for (QToolButton* b : forward_) b->setEnabled(page_ + 1 < pages_.Count());
}

void PrintPreviewWindow::SetZoom(Fit fit, double zoom) {
  fit_ = fit;
  zoom_ = zoom;
  UpdateZoom();
}

void PrintPreviewWindow::Step(int steps) {
  // From the zoom shown, to the next fixed level in that direction.
  auto next = std::upper_bound(kZooms.begin(), kZooms.end(), zoom_ + 1e-3);
  if (steps < 0) {
    next = std::lower_bound(kZooms.begin(), kZooms.end(), zoom_ - 1e-3);
    next = next == kZooms.begin() ? next : std::prev(next);
  } else if (next == kZooms.end()) {
    next = std::prev(kZooms.end());
  }
  SetZoom(Fit::kNone, *next);
}

void PrintPreviewWindow::UpdateZoom() {
  const QSizeF sheet = view_->SheetSize();
  const QSize room = scroll_->viewport()->size() - QSize(2 * kGap, 2 * kGap);
  const int bar = scroll_->verticalScrollBar()->sizeHint().width();
  if (fit_ == Fit::kWidth && sheet.width() > 0) {
    // The width with the scroll bar that a page taller than the window needs.
    zoom_ = (room.width() - (scroll_->verticalScrollBar()->isVisible() ? 0 : bar)) / sheet.width();
  } else if (fit_ == Fit::kPage && sheet.height() > 0) {
    zoom_ = std::min(room.width() / sheet.width(), room.height() / sheet.height());
  }
  zoom_ = std::clamp(zoom_, kZooms.front(), kZooms.back());
  view_->SetZoom(zoom_);
  const QSignalBlocker quiet(zoom_box_);
  const int fixed = zoom_box_->findData(zoom_);
  zoom_box_->setCurrentIndex(fit_ == Fit::kWidth ? 0 : fit_ == Fit::kPage ? 1 : fixed);
  if (fit_ == Fit::kNone && fixed < 0) zoom_box_->setCurrentIndex(-1);
}

bool PrintPreviewWindow::eventFilter(QObject* watched, QEvent* event) {
  // A page fitted to the window follows the room it is shown in.
  if (watched == scroll_->viewport() && event->type() == QEvent::Resize) UpdateZoom();
  return QDialog::eventFilter(watched, event);
}

void PrintPreviewWindow::FitScreen() {
  const QScreen* screen =
      parentWidget() != nullptr ? parentWidget()->screen() : QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  const QRect area = screen->availableGeometry();
  // A sheet at its own size beside the scroll bar, under the toolbar; at
  // most what the screen holds.
  const QSizeF sheet = view_->SheetSize();
  const QSize toolbar = layout()->itemAt(0)->sizeHint();
  const int bar = scroll_->verticalScrollBar()->sizeHint().width() + 2 * scroll_->frameWidth();
  const int width = std::max(toolbar.width(), static_cast<int>(sheet.width()) + 2 * kGap + bar);
  const int height = toolbar.height() + static_cast<int>(sheet.height()) + 2 * kGap + bar;
  const QSize size(std::min(width, area.width() - kFrameWidth),
                   std::min(height, area.height() - kFrameHeight));
  resize(size);
  move(area.x() + (area.width() - size.width() - kFrameWidth) / 2,
       area.y() + (area.height() - size.height() - kFrameHeight) / 2);
}

void PrintPreviewWindow::Send(const QString& text,
                              const std::function<bool(const DrawPrintout&)>& how) {
  // A failure has been told and a stop needs no word: either way the
  // preview stays, to try again.
  dialogs_.RunWithProgress(text, [&](Progress& progress) {
    how([&](Printer& printer) { return job_.draw(printer, progress); });
  });
}

void PrintPreviewWindow::PrintCmd_Click() {
  QPrintDialog dialog(&printer_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  Send(pt::kSendingToPrinter, [this](const DrawPrintout& draw) { return DrawOn(printer_, draw); });
  // The printer chosen may have other paper.
  const int page = page_;
  page_ = -1;
  ShowPage(page);
  UpdateZoom();
}

void PrintPreviewWindow::SavePdfCmd_Click() {
  const QString path = dialogs_.AskFile({pt::kSavePdfTitle, pt::kPdfFilter, job_.pdf_name, true});
  if (path.isEmpty()) return;
  Send(pt::kSavingPdf, [&path](const DrawPrintout& draw) {
    PdfPrinter file(path);
    return draw(file);
  });
}

}  // namespace veroxia
