#pragma once
// OvtForm4, the worker screen of a construction-works declaration: one line
// per worker and wage type, with the branch where the project is carried out,
// the marital status, the triennia, the phase and the costing days, stored as
// rows of QOR_CON_EMPLOYEES.

#include "lines/lines_form.h"
#include "store/schema.h"

namespace veroxia {

class OvtForm4 : public LinesFormOf<ConEmployeeRow> {
 public:
  OvtForm4(Vars& vars, Dialogs& dialogs, Screens& screens);

  // The fields, captions and texts of this screen.
  static const LinesLayout& ConstructionLayout();

  // The 25 rules, in order.
  std::vector<HeaderCheck> LineChecks() override;
};

}  // namespace veroxia
