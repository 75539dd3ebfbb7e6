#pragma once
// The window of a header screen of either kind. Every control of the form is
// a widget named after it; the logic decides, the window shows. The window
// has the heading with the logo at the top, then a frame that starts with the
// type row, then the row of buttons; each kind arranges its own fields in the
// frame under the type row.

#include <QRect>
#include <QWidget>
#include <initializer_list>
#include <utility>

#include "header/header_form.h"
#include "header/ovt_form1.h"
#include "header/ovt_form3.h"

class QGridLayout;
class QLabel;
class QVBoxLayout;

namespace veroxia {

class FormBinder;

class HeaderView : public QWidget {
 public:
  FormBinder& Binder() { return *binder_; }

 protected:
  explicit HeaderView(HeaderForm& form);

  // Builds the whole window around the kind's fields (ArrangeFields), wires
  // it and gives it its place and fixed outer size, in twips. The kind's
  // constructor calls it once.
  void Build(QRect twips);

  // Places the kind's fields in the frame under the type row. The grid has
  // the captions in column 0, the boxes in column 1 and `row` as its first
  // free row; `column` is the frame's own column, which holds the grid, for
  // whatever stands under the grid.
  virtual void ArrangeFields(QWidget& frame, QVBoxLayout& column, QGridLayout& grid, int row) = 0;

  // A line of fields at a row of the grid: the first caption in the caption
  // column, each box beside its caption, further pairs after it.
  void Line(QGridLayout& grid, QWidget* parent, int row,
            std::initializer_list<std::pair<const char*, const char*>> pairs);
  // A heading across both columns of the grid.
  void Heading(QGridLayout& grid, QWidget* parent, int row, const QString& name);
  // A month box, the separator label and a year box, close together.
  QLayout* MonthYear(QWidget* parent, const QString& month, const QString& separator,
                     const QString& year);
  QWidget* Field(const QString& name, QWidget* parent);
  QLabel* Caption(const QString& name, QWidget* parent);

  const HeaderForm& Form() const { return form_; }

  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* BuildTop();
  QWidget* BuildFrame();
  QLayout* BuildButtons();
  void Wire();

  HeaderForm& form_;
  FormBinder* binder_;  // owned by this window
};

// The header window of screen F, in F's place and of F's size.
template <class F>
class HeaderViewOf final : public HeaderView {
 public:
  explicit HeaderViewOf(F& form) : HeaderView(form) {
    Build(QRect(F::kLeftTwips, F::kTopTwips, F::kWidthTwips, F::kHeightTwips));
  }

 private:
  void ArrangeFields(QWidget& frame, QVBoxLayout& column, QGridLayout& grid, int row) override;
};

// The two windows; each kind's arrangement stands in its own file.
using OvtForm1View = HeaderViewOf<OvtForm1>;  // ovt_form1_view.cpp
using OvtForm3View = HeaderViewOf<OvtForm3>;  // ovt_form3_view.cpp
// The branch, the employer, the period and the table of months.
template <>
void OvtForm1View::ArrangeFields(QWidget& frame, QVBoxLayout& column, QGridLayout& grid, int row);
// The branch, the employer and the seat, the project with its register
// numbers and site, the month with the two dates, and the totals.
template <>
void OvtForm3View::ArrangeFields(QWidget& frame, QVBoxLayout& column, QGridLayout& grid, int row);

}  // namespace veroxia
