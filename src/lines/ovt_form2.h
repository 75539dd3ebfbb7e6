#pragma once
// OvtForm2, the employee screen of a common-business declaration: one line
// per employee, payroll month and wage type, stored as rows of QOR_EMPLOYEES.

#include "lines/lines_form.h"

namespace veroxia {

class OvtForm2 : public LinesForm {
 public:
  // Outer size and place on the screen, in twips; the size never changes.
  static constexpr int kLeftTwips = 500;
  static constexpr int kTopTwips = 100;
  static constexpr int kWidthTwips = 10320;
  static constexpr int kHeightTwips = 8175;

  OvtForm2(Vars& vars, Dialogs& dialogs, Screens& screens);

  // The fields, captions and texts of this screen.
  static const LinesLayout& CommonLayout();

  // The 36 rules, in order; the first failure is reported.
  bool CheckLine() override;

 protected:
  std::optional<ColumnValues> ReadLine(qint64 rowid) override;
  void InsertLine(int id, int row_num, const ColumnValues& values) override;
  int UpdateLineRow(const LineAddress& address, const ColumnValues& values) override;
};

}  // namespace veroxia
