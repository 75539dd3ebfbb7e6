#pragma once
// The window of an employee-line screen of either kind. Every control of the
// screen's logic is a widget named after it; where each field stands is given
// as a table of rows, the rest (captions, sizes, choice boxes, date masks)
// follows from the screen's layout.

#include <QWidget>
#include <utility>
#include <vector>

#include "lines/lines_form.h"

class QGridLayout;
class QLabel;

namespace veroxia {

class FormBinder;

// Where the fields stand: each row has a left and a right place; a place
// holds one field, or two fields joined by a "/" label, under one caption;
// a field alone on its row may span the whole row.
struct LinesPlace {
  QString caption;
  QStringList fields;  // one, or two joined by the separator label
  QString separator;   // the "/" label between two fields
};
struct LinesRow {
  LinesPlace left;
  LinesPlace right;   // empty caption: nothing on the right
  bool span = false;  // the left field takes the whole width of the row
};

class LinesView : public QWidget {
 public:
  // The window takes its size and place, in twips, from the arguments.
  LinesView(LinesForm& form, const std::vector<LinesRow>& rows, QRect twips);

  FormBinder& Binder() { return *binder_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* BuildFields(const std::vector<LinesRow>& rows);
  void Place(QGridLayout& grid, QWidget* parent, const LinesPlace& place, int row, int column,
             bool whole_row);
  QWidget* Field(const LineField& field, QWidget* parent, bool stretch);
  QLayout* BuildButtons();

  LinesForm& form_;
  FormBinder* binder_;  // owned by this window
};

// The rows of the common-business employee screen.
const std::vector<LinesRow>& CommonLinesRows();
// The rows of the construction-works worker screen.
const std::vector<LinesRow>& ConstructionLinesRows();

}  // namespace veroxia
