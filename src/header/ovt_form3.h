#pragma once
// OvtForm3, the header screen of a construction-works declaration: the type,
// the submitting branch, the employer and the seat, the project with its
// register numbers and site, the one month, the submission and stop dates and
// the month's earnings, days and contributions, stored in one row of
// QOR_CON_EMPLOYERS.

#include "header/header_form.h"
#include "store/schema.h"

namespace veroxia {

class OvtForm3 : public HeaderFormOf<ConEmployerRow> {
 public:
  // Outer size and place on the screen, in twips; the size never changes.
  static constexpr int kLeftTwips = 500;
  static constexpr int kTopTwips = 10;
  static constexpr int kWidthTwips = 9525;
  static constexpr int kHeightTwips = 8415;

  OvtForm3(Vars& vars, Dialogs& dialogs, Screens& screens);

  // The fields, captions and texts of this screen.
  static const HeaderLayout& ConstructionLayout();

  // Opens the worker screen of the same declaration.
  void QorConInsert_Click() { OpenLines(); }

  // The 20 rules, in order; the first failure is reported.
  bool ValidateHeader() override;

 protected:
  // The branch code shows three digits: a stored 5 shows as 005.
  QString Shown(const HeaderField& field, const veroxia::Text& stored) const override;
};

}  // namespace veroxia
