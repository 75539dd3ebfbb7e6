#pragma once
// The window of the common-business header screen. Every control of OvtForm1
// is a widget named after it; the logic decides, the window shows.

#include <QWidget>

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
  // A caption and its field in the grid, at a row and a pair of columns.
  void Pair(QGridLayout& grid, QWidget* parent, const QString& label, const QString& field, int row,
            int column, int span = 1);
  QWidget* Field(const QString& name, QWidget* parent);
  QLabel* Caption(const QString& name, QWidget* parent);

  OvtForm1& form_;
  FormBinder* binder_;  // owned by this window
};

}  // namespace veroxia
