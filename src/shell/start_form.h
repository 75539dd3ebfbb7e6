#pragma once
// The start screen: opens the store, offers the two kinds of declaration
// (empty, or taking over the previous declaration's lines), takes the period,
// checks it, settles the declaration id and hands over to the header screen.

#include <QString>
#include <QStringList>
#include <optional>

#include "shell/form.h"
#include "shell/period_checks.h"
#include "shell/ports.h"
#include "shell/vars.h"
#include "store/kind.h"

namespace veroxia {

class StartForm : public Form {
 public:
  // Outer size and place on the screen, in twips.
  static constexpr int kWidthTwips = 5505;
  static constexpr int kHeightTwips = 4740;
  static constexpr int kTopTwips = 2000;
  static constexpr int kLeftTwips = 3400;

  StartForm(Vars& vars, Dialogs& dialogs, Screens& screens);

  // Start-up. False when the store could not be opened: the program ends and
  // the screen is never shown.
  bool Load();

  void Command1_Click();  // common business, empty
  void Command4_Click();  // common business, taking over the previous lines
  void Command2_Click();  // construction works, empty
  void Command5_Click();  // construction works, taking over the previous lines
  void Command3_Click();  // exit
  void OkCmd_Click();
  void CancelCmd_Click();

  bool ValidatePeriod();
  bool ValidateCon();
  void StartDeclaration();
  void StartCarryOverDeclaration();
  void OpenHeaderScreen();

  // A control takes the focus: a period field has its whole content
  // selected, so that typing replaces it.
  void GotFocus(const QString& name);

  void ShowKindButtons(bool visible);
  void EnterPeriodEntry();
  void LeavePeriodEntry();

  QString HeaderTable() const { return header_table_; }
  // Picture and icon files found beside the program at load; empty if none.
  QString ImagePath() const { return image_path_; }
  QString IconPath() const { return icon_path_; }

  // The order the tab key follows; hidden controls and those out of the focus
  // order are skipped.
  static const QStringList& FocusOrder();

 private:
  void ChooseKind(const char* table, bool carry_over);
  std::optional<Kind> ChosenKind() const;
  bool Report(const std::optional<PeriodFault>& fault);
  void Settle(bool carry_over);
  void SetTabStops(const QStringList& names, bool tab_stop);

  Vars& vars_;
  Dialogs& dialogs_;
  Screens& screens_;
  QString header_table_;
  QString image_path_;
  QString icon_path_;
};

}  // namespace veroxia
