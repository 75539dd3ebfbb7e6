#include "lines/line_kinds.h"

#include "lines/ovt_form2.h"
#include "lines/ovt_form4.h"

namespace veroxia {

const LinesLayout& LinesLayoutOf(Kind kind) {
  return kind == Kind::Common ? OvtForm2::CommonLayout() : OvtForm4::ConstructionLayout();
}

std::unique_ptr<LinesForm> MakeLinesForm(Kind kind, Vars& vars, Dialogs& dialogs,
                                         Screens& screens) {
  if (kind == Kind::Common) return std::make_unique<OvtForm2>(vars, dialogs, screens);
  return std::make_unique<OvtForm4>(vars, dialogs, screens);
}

}  // namespace veroxia
