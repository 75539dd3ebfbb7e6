#pragma once
// OvtForm2, the employee screen of a common-business declaration: one line
// per employee, payroll month and wage type, stored as rows of QOR_EMPLOYEES.

#include "lines/lines_form.h"
#include "store/schema.h"

namespace veroxia {

class OvtForm2 : public LinesFormOf<EmployeeRow> {
 public:
  OvtForm2(Vars& vars, Dialogs& dialogs, Screens& screens);

  // The fields, captions and texts of this screen.
  static const LinesLayout& CommonLayout();

  // The 36 rules, in order.
  std::vector<HeaderCheck> LineChecks() override;
};

}  // namespace veroxia
