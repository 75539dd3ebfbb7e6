#pragma once
// OvtForm1, the header screen of a common-business declaration: the type, the
// submitting branch, the employer, the period of one to three months, the
// submission and stop dates, and the monthly and total days, earnings and
// contributions, stored in one row of QOR_EMPLOYERS.

#include "header/header_form.h"
#include "store/schema.h"

namespace veroxia {

class OvtForm1 : public HeaderFormOf<EmployerRow> {
 public:
  // Outer size and place on the screen, in twips; the size never changes.
  static constexpr int kLeftTwips = 500;
  static constexpr int kTopTwips = 100;
  static constexpr int kWidthTwips = 9690;
  static constexpr int kHeightTwips = 8505;

  OvtForm1(Vars& vars, Dialogs& dialogs, Screens& screens);

  // The fields, captions and texts of this screen.
  static const HeaderLayout& CommonLayout();

  // Opens the employee screen of the same declaration.
  void QorInsert_Click() { OpenLines(); }

  // The 24 rules, in order; the first failure is reported.
  bool ValidateHeader() override;

  // The labels of the month columns: the period's first month, and for a
  // period of more than one month the next month and the last one.
  void ShowMonthLabels();

 protected:
  void AfterLoad() override { ShowMonthLabels(); }
};

}  // namespace veroxia
