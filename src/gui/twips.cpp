#include "gui/twips.h"

#include <QEvent>
#include <QIcon>
#include <QScreen>
#include <QVBoxLayout>
#include <QWidget>
#include <QWindow>
#include <cmath>

namespace veroxia {

int TwipsToPixels(int twips, double logical_dpi) {
  return static_cast<int>(std::lround(twips * logical_dpi / 1440.0));
}

int TwipsX(const QWidget& on, int twips) { return TwipsToPixels(twips, on.logicalDpiX()); }
int TwipsY(const QWidget& on, int twips) { return TwipsToPixels(twips, on.logicalDpiY()); }

QSize TwipsSize(const QWidget& on, int width, int height) {
  return {TwipsX(on, width), TwipsY(on, height)};
}

QPoint TwipsPoint(const QWidget& on, int left, int top) {
  return {TwipsX(on, left), TwipsY(on, top)};
}

namespace {

// Keeps the window's outer size: the inner size is the outer size less the
// frame the window system draws around it, and it cannot be changed.
class FixedOuterSize : public QObject {
 public:
  FixedOuterSize(QWidget& window, QSize outer) : QObject(&window), window_(window), outer_(outer) {
    Apply();
    window.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == &window_) {
      switch (event->type()) {
        case QEvent::Show:
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowStateChange:
          Apply();
          break;
        default:
          break;
      }
    }
    return false;
  }

 private:
  void Apply() {
    // Minimised or maximised windows are left alone; the size returns with
    // the normal state.
    if (window_.windowState() &
        (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen)) {
      return;
    }
    QMargins frame;
    if (const QWindow* handle = window_.windowHandle(); handle != nullptr && handle->isVisible()) {
      frame = handle->frameMargins();
    }
    const QSize inner = outer_.shrunkBy(frame);
    if (inner.isValid() && (window_.minimumSize() != inner || window_.maximumSize() != inner)) {
      window_.setFixedSize(inner);
    }
  }

  QWidget& window_;
  QSize outer_;
};

}  // namespace

void FixWindow(QWidget& window, int left, int top, int width, int height) {
  new FixedOuterSize(window, TwipsSize(window, width, height));  // owned by the window
  const QScreen* screen = window.screen();
  const QPoint origin = screen != nullptr ? screen->geometry().topLeft() : QPoint();
  window.move(origin + TwipsPoint(window, left, top));
}

QVBoxLayout* DressWindow(QWidget& window, double points, const QString& title,
                         const QString& icon_path, int margin_twips) {
  QFont font = window.font();
  font.setPointSizeF(points);
  window.setFont(font);
  window.setWindowTitle(title);
  if (!icon_path.isEmpty()) window.setWindowIcon(QIcon(icon_path));
  auto* layout = new QVBoxLayout(&window);
  const int x = TwipsX(window, margin_twips);
  const int y = TwipsY(window, margin_twips);
  layout->setContentsMargins(x, y, x, y);
  return layout;
}

}  // namespace veroxia
