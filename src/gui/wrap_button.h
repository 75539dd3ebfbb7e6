#pragma once
// A push button whose caption wraps onto as many lines as the button's width
// needs, so long captions are never cut. text() stays the caption exactly.

#include <QPushButton>

namespace veroxia {

class WrapButton : public QPushButton {
  Q_OBJECT

 public:
  explicit WrapButton(QWidget* parent = nullptr);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  // Whether the whole caption fits the button's present size.
  bool CaptionFits() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // What the button's bevel and padding take around the caption.
  QSize Padding() const;
  QRect CaptionRect() const;
  QSize CaptionSize(int width) const;
};

}  // namespace veroxia
