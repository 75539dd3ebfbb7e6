#include "gui/print_preview.h"

#include <QPaintEngine>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QGuiApplication>
#include <QPrinter>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "gui/paper/painter_printer.h"
#include "gui/paper/pdf_printer.h"

namespace veroxia {

namespace {

// The preview dialog draws its pages when it is first shown; this one can
// draw them before, so that a printout that fails is never shown.
class PreviewDialog : public QPrintPreviewDialog {
 public:
  using QPrintPreviewDialog::QPrintPreviewDialog;

  void DrawNow() {
    if (auto* preview = findChild<QPrintPreviewWidget*>()) {
      preview->updatePreview();
      drawn_ = true;
    }
  }
  void setVisible(bool visible) override {
    if (drawn_) {
      QDialog::setVisible(visible);  // not drawn a second time
    } else {
      QPrintPreviewDialog::setVisible(visible);
    }
  }

 private:
  bool drawn_ = false;
};

}  // namespace

bool DrawOn(QPrinter& target, const DrawPrintout& draw) {
  const QPaintEngine::Type engine =
      target.paintEngine() != nullptr ? target.paintEngine()->type() : QPaintEngine::User;
  if (engine == QPaintEngine::Pdf && target.outputFormat() == QPrinter::PdfFormat &&
      !target.outputFileName().isEmpty()) {
    PdfPrinter file(target.outputFileName(), PdfPage{target.pageLayout(), target.resolution()});
    return draw(file);
  }
  if (engine == QPaintEngine::Picture) {
    // The preview's pages: not aborted, since Qt's preview keeps the pages
    // an abort deletes.
    PainterPrinter preview(target);
    return draw(preview);
  }
  // Qt cannot take back a job from CUPS (its abort does nothing there): the
  // pages drawn before a failure are printed.
  PainterPrinter paper(target, [&target] { target.abort(); });
  return draw(paper);
}

void ShowPrintPreview(QWidget* parent, const DrawPrintout& draw) {
  QPrinter printer(QPrinter::HighResolution);
  PreviewDialog dialog(&printer, parent);
  bool failed = false;
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* target) {
    failed = !DrawOn(*target, draw);
    if (failed && dialog.isVisible()) {
      QMetaObject::invokeMethod(&dialog, &QDialog::reject, Qt::QueuedConnection);
    }
  });
  dialog.DrawNow();
  if (failed) return;
  // Tall enough to read a whole page at once.
  if (const QScreen* screen =
          parent != nullptr ? parent->screen() : QGuiApplication::primaryScreen()) {
    const QRect area = screen->availableGeometry();
    const int height = area.height() * 9 / 10;
    dialog.resize(std::min(area.width() * 9 / 10, height * 4 / 5), height);
  }
  dialog.exec();
}

}  // namespace veroxia
