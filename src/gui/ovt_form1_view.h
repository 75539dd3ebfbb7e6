#pragma once
// The window of the common-business header screen. Every control of OvtForm1
// is a widget named after it; the logic decides, the window shows.

#include <QWidget>
#include <initializer_list>
#include <utility>

#include "header/ovt_form1.h"

class QGridLayout;
class QLabel;

namespace veroxia {

class FormBinder;

class OvtForm1View : public QWidget {
 public:
  explicit OvtForm1View(OvtForm1& form);

  FormBinder& Binder() { return *binder_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* BuildTop();
  QWidget* BuildFrame();
  QWidget* BuildTotals(QWidget* parent);
  QLayout* BuildButtons();
  // A line of fields at a row of the grid: the first caption in the caption
  // column, each box beside its caption, further pairs after it.
  void Line(QGridLayout& grid, QWidget* parent, int row,
            std::initializer_list<std::pair<const char*, const char*>> pairs);
  QWidget* Field(const QString& name, QWidget* parent);
  QLabel* Caption(const QString& name, QWidget* parent);

  OvtForm1& form_;
  FormBinder* binder_;  // owned by this window
};

}  // namespace veroxia
