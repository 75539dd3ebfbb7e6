#pragma once
// The logic both header screens share: built from the kind's HeaderLayout, it
// opens the screen (a stored header in the view state, a new one in the edit
// state, a taken-over one locked), runs the type selection, the states and
// the buttons, and stores the header with an INSERT or an UPDATE. A kind adds
// its check sequence and the typed row of its header table.

#include <QString>
#include <QStringList>
#include <optional>

#include "header/header_checks.h"
#include "header/header_columns.h"
#include "header/header_layout.h"
#include "shell/form.h"
#include "shell/ports.h"
#include "shell/vars.h"

namespace veroxia {

class HeaderForm : public Form {
 public:
  HeaderForm(Vars& vars, Dialogs& dialogs, Screens& screens, const HeaderLayout& layout);

  // The opening sequence: pictures, date masks, type 01, then the stored
  // header (LoadHeader) or the previous one taken over (PrefillHeader).
  void Load();
  // Reads the header of DeclarationId: shown locked when stored, else a new
  // header in the edit state with the period of the start screen.
  void LoadHeader();
  // Fills a new header from the header of PreviousDeclarationId, without its
  // period and dates, and locks it: only the save and the return act.
  void PrefillHeader();
  // The editable fields and type options to `enabled`, the action buttons to
  // the opposite.
  void EnableFields(bool enabled);
  void ShowEditButtons();
  void ShowViewButtons();

  // A click on a type option: selects it and runs the type selection.
  void Option1_Click(int index);
  // The type selection: the hidden type code and description, and the
  // caption of the chosen type enabled, the other two greyed.
  void SelectType(int index);
  // The hidden type code changed: in the view state the type selection runs
  // again from the code; the option buttons are left as they are.
  void Text1_Change();
  // A field takes the focus: its content is selected.
  void GotFocus(const QString& name);

  void SaveCmd_Click();
  void UpDateCmd_Click();
  void CancelCmd_Click();
  void ExitCmd_Click();
  void PrintCmd_Click();
  void PrintSumCmd_Click();
  void CreateFile_Click();
  // The checks before filing: the totals against the lines, and the volumes
  // on the medium against the declaration.
  void TotalsCmd_Click();
  void VolumesCmd_Click();
  // The kind's employee button: opens the employee screen of the kind; no
  // question on closing.
  void OpenLines();
  // The window is being closed. True when it may close; unless a button
  // closes it, the user is asked, and Yes ends the program.
  bool QueryClose();

  // The kind's check sequence; true when the header may be stored.
  virtual bool ValidateHeader() = 0;
  // Stores the header: INSERT when it is new, else UPDATE of DeclarationId.
  void SaveData();

  bool IsNewHeader() const { return is_new_header_; }
  bool ClosingByCommand() const { return closing_by_command_; }
  // The selected type option: 0 (01), 1 (02) or 2 (03).
  int SelectedType() const { return selected_type_; }
  // Picture and icon found beside the program at load; empty if none.
  QString ImagePath() const { return image_path_; }
  QString IconPath() const { return icon_path_; }
  const HeaderLayout& Layout() const { return layout_; }
  // The order the tab key follows: fields, type options, buttons.
  QStringList FocusOrder() const;
  // The file, printout and employee buttons, usable only in the view state.
  QStringList ActionButtons() const;

 protected:
  // Work of the kind once the fields are loaded or taken over.
  virtual void AfterLoad() {}
  // Runs the kind's rules, then the rule that every value the save would
  // store fits the code page of the submission file; true when all pass.
  bool RunChecks(std::vector<HeaderCheck> checks);
  // The text a field shows for a stored value; by default the trimmed text.
  virtual QString Shown(const HeaderField& field, const veroxia::Text& stored) const;
  // The kind's header table. Both throw StoreError.
  virtual std::optional<ColumnValues> ReadHeaderRow(int id) = 0;
  virtual int WriteHeaderRow(int id, const ColumnValues& values, bool insert) = 0;

  Vars& vars_;
  Dialogs& dialogs_;
  Screens& screens_;

 private:
  // Reads a header row into `row`; false, after telling the user and locking
  // the screen, when the store cannot be read.
  bool ReadHeader(int id, std::optional<ColumnValues>& row);
  void Fill(const ColumnValues& row, bool taken_over);
  void SetTypeCode(const QString& code);
  int TypeIndexOf(const QString& code) const;
  void SetPeriod();
  ColumnValues StoredValues() const;
  void ShowSaveError(const StoreError& error);
  void LockAfterLoadFailure();

  const HeaderLayout& layout_;
  bool is_new_header_ = false;
  bool closing_by_command_ = false;
  int selected_type_ = 0;
  QString image_path_;
  QString icon_path_;
};

// A header screen over the header table whose rows are of type Row.
template <class Row>
class HeaderFormOf : public HeaderForm {
 public:
  using HeaderForm::HeaderForm;

 protected:
  std::optional<ColumnValues> ReadHeaderRow(int id) override {
    return ReadHeaderColumns<Row>(*vars_.StoreConnection, id);
  }
  int WriteHeaderRow(int id, const ColumnValues& values, bool insert) override {
    return WriteHeaderColumns<Row>(*vars_.StoreConnection, id, values, insert);
  }
};

}  // namespace veroxia
