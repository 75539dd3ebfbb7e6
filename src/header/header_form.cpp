#include "header/header_form.h"

#include "filing/create_file.h"
#include "filing/totals.h"
#include "filing/volume_check.h"
#include "header/box_captions.h"
#include "header/date_box.h"
#include "header/texts.h"
#include "printing/printout.h"
#include "rules/texts.h"
#include "shell/carry_over.h"
#include "shell/check_digit_prompt.h"
#include "shell/errors.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

const QString kSave = u"SaveCmd"_s;
const QString kUpDate = u"UpDateCmd"_s;
const QString kExit = u"ExitCmd"_s;
const QString kCancel = u"CancelCmd"_s;
const QString kPrint = u"PrintCmd"_s;
const QString kPrintSum = u"PrintSumCmd"_s;
const QString kCreate = u"CreateFile"_s;
const QString kTotals = u"TotalsCmd"_s;
const QString kVolumes = u"VolumesCmd"_s;

QString OptionName(int index) { return u"Option1_"_s + QString::number(index); }
QString OptionCaptionName(int index) { return u"Option1Lbl_"_s + QString::number(index); }

bool IsDateBox(const HeaderField& field) { return field.insert_as == StoreAs::Date; }

}  // namespace

HeaderForm::HeaderForm(Vars& vars, Dialogs& dialogs, Screens& screens, const HeaderLayout& layout)
    : vars_(vars), dialogs_(dialogs), screens_(screens), layout_(layout) {
  SetTitle(layout_.title);
  for (const HeaderCaption& caption : layout_.captions) {
    Declare(caption.name, caption.text).visible = caption.visible;
  }
  for (int i = 0; i < static_cast<int>(layout_.types.size()); ++i) {
    Declare(OptionName(i));
    Declare(OptionCaptionName(i), layout_.types[i].caption);
  }
  for (const HeaderField& field : layout_.fields) {
    Control& control = Declare(field.name, field.initial, field.max_length);
    control.visible = field.visible;
    control.enabled = field.enabled;
  }
  Declare(kSave, header_texts::kSaveCmd);
  Declare(layout_.lines_button, header_texts::kQorInsert).enabled = false;
  Declare(kPrint, header_texts::kPrintCmd).enabled = false;
  Declare(kPrintSum, header_texts::kPrintSumCmd).enabled = false;
  Declare(kCreate, header_texts::kCreateFile).enabled = false;
  Declare(kTotals, kTotalsTitle).enabled = false;
  Declare(kVolumes, kVolumesTitle).enabled = false;
  Declare(kExit, layout_.exit_caption);
  Declare(kUpDate, header_texts::kUpDateCmd).visible = false;
  Declare(kCancel, header_texts::kCancelCmd).visible = false;
}

QStringList HeaderForm::ActionButtons() const {
  return {kPrint, kPrintSum, kCreate, layout_.lines_button, kTotals, kVolumes};
}

QStringList HeaderForm::FocusOrder() const {
  QStringList order;
  for (const HeaderField& field : layout_.fields) order << field.name;
  for (int i = 0; i < static_cast<int>(layout_.types.size()); ++i) order << OptionName(i);
  order << kSave << layout_.lines_button << kPrint << kPrintSum << kCreate << kTotals << kVolumes
        << kExit << kUpDate << kCancel;
  return order;
}

void HeaderForm::Load() {
  BusyPointer busy(dialogs_);
  const QString image = vars_.AppDir + u"/ovt2.gif"_s;
  image_path_ = FileExists(image) ? image : QString();
  const QString icon = vars_.AppDir + u"/qormain.ico"_s;
  icon_path_ = FileExists(icon) ? icon : QString();
  closing_by_command_ = false;
  for (const HeaderField& field : layout_.fields) {
    if (IsDateBox(field)) At(field.name).text = kEmptyDateBox;
  }
  At(kExit).visible = true;
  At(kCancel).visible = false;
  Option1_Click(0);
  if (vars_.CarryOver) {
    PrefillHeader();
  } else {
    LoadHeader();
  }
}

bool HeaderForm::ReadHeader(int id, std::optional<ColumnValues>& row) {
  try {
    row = ReadHeaderRow(id);
    return true;
  } catch (const StoreError& error) {
    dialogs_.Message(ErrorMessage(header_texts::kLoadFailed, error), texts::kAppTitle);
    LockAfterLoadFailure();
    return false;
  }
}

void HeaderForm::LoadHeader() {
  std::optional<ColumnValues> row;
  if (!ReadHeader(vars_.DeclarationId, row)) return;
  if (!row) {
    SetPeriod();
    is_new_header_ = true;
    ShowEditButtons();
    EnableFields(true);
  } else {
    Fill(*row, false);
    for (const QString& name : ActionButtons()) At(name).enabled = true;
    is_new_header_ = false;
    ShowViewButtons();
    EnableFields(false);
  }
  AfterLoad();
}

void HeaderForm::PrefillHeader() {
  is_new_header_ = true;
  std::optional<ColumnValues> row;
  if (!ReadHeader(vars_.PreviousDeclarationId, row)) return;
  if (row) Fill(*row, true);
  SetPeriod();
  is_new_header_ = true;
  EnableFields(false);
  for (const QString& name : ActionButtons()) At(name).enabled = false;
  At(kSave).visible = true;
  At(kExit).visible = true;
  At(kCancel).visible = false;
  At(kUpDate).visible = false;
  AfterLoad();
}

// The screen cannot tell whether a header is stored: it keeps what it shows,
// locked, and offers only the return.
void HeaderForm::LockAfterLoadFailure() {
  for (const QString& name : layout_.switched) At(name).enabled = false;
  for (const QString& name : ActionButtons()) At(name).enabled = false;
  At(kSave).visible = false;
  At(kUpDate).visible = false;
  At(kCancel).visible = false;
  At(kExit).visible = true;
}

void HeaderForm::Fill(const ColumnValues& row, bool taken_over) {
  const HeaderField* type_field = nullptr;
  for (const HeaderField& field : layout_.fields) {
    if (field.name == layout_.type_field) type_field = &field;
  }
  if (type_field != nullptr) {
    SetTypeCode(Shown(*type_field, ValueOf(row, type_field->column)));
    Option1_Click(TypeIndexOf(Text(layout_.type_field)));
  }
  for (const HeaderField& field : layout_.fields) {
    if (&field == type_field || field.load == LoadAs::Never) continue;
    const veroxia::Text stored = ValueOf(row, field.column);
    if (taken_over && field.load == LoadAs::NotTakenOver) {
      if (IsDateBox(field)) At(field.name).text = kEmptyDateBox;
      continue;
    }
    At(field.name).text = IsDateBox(field) ? DateBoxText(stored) : Shown(field, stored);
  }
}

QString HeaderForm::Shown(const HeaderField&, const veroxia::Text& stored) const {
  return FieldText(stored);
}

void HeaderForm::SetPeriod() {
  const auto set = [this](const QString& field, const QString& text) {
    if (!field.isEmpty()) At(field).text = text;
  };
  set(layout_.from_month_field, vars_.PeriodFrom.left(2));
  set(layout_.from_year_field, vars_.PeriodFrom.right(4));
  set(layout_.to_month_field, vars_.PeriodTo.left(2));
  set(layout_.to_year_field, vars_.PeriodTo.right(4));
}

void HeaderForm::EnableFields(bool enabled) {
  for (const QString& name : layout_.switched) At(name).enabled = enabled;
  for (const QString& name : ActionButtons()) At(name).enabled = !enabled;
}

void HeaderForm::ShowEditButtons() {
  At(kUpDate).visible = false;
  if (!is_new_header_) {
    At(kExit).visible = false;
    At(kCancel).visible = true;
  }
  At(kSave).visible = true;
}

void HeaderForm::ShowViewButtons() {
  At(kUpDate).visible = true;
  if (!is_new_header_) {
    At(kExit).visible = true;
    At(kCancel).visible = false;
  }
  At(kSave).visible = false;
}

void HeaderForm::Option1_Click(int index) {
  selected_type_ = index;
  SelectType(index);
}

void HeaderForm::SelectType(int index) {
  const TypeOption& type = layout_.types.at(static_cast<size_t>(index));
  At(layout_.type_field).text = type.code;
  if (!layout_.descr_field.isEmpty()) At(layout_.descr_field).text = type.descr;
  for (int i = 0; i < static_cast<int>(layout_.types.size()); ++i) {
    At(OptionCaptionName(i)).enabled = i == index;
  }
}

void HeaderForm::SetTypeCode(const QString& code) {
  if (Text(layout_.type_field) == code) return;
  At(layout_.type_field).text = code;
  Text1_Change();
}

void HeaderForm::Text1_Change() {
  if (At(kSave).visible) return;
  SelectType(TypeIndexOf(Text(layout_.type_field)));
}

int HeaderForm::TypeIndexOf(const QString& code) const {
  for (int i = 1; i < static_cast<int>(layout_.types.size()); ++i) {
    if (code == layout_.types[i].code) return i;
  }
  return 0;
}

void HeaderForm::GotFocus(const QString& name) {
  for (const HeaderField& field : layout_.fields) {
    if (field.name != name) continue;
    Select(name,
           field.select_length > 0 ? field.select_length : static_cast<int>(Text(name).size()));
    return;
  }
  SetFocus(name);
}

void HeaderForm::UpDateCmd_Click() {
  ShowEditButtons();
  EnableFields(true);
  // The focus arrives as it would by a click or the tab key: selected.
  GotFocus(u"Text2"_s);
}

void HeaderForm::CancelCmd_Click() {
  ShowViewButtons();
  EnableFields(false);
  BusyPointer busy(dialogs_);
  LoadHeader();
}

void HeaderForm::ExitCmd_Click() {
  closing_by_command_ = true;
  screens_.ShowStart();
}

void HeaderForm::OpenLines() {
  closing_by_command_ = true;
  screens_.ShowLines(layout_.kind);
}

void HeaderForm::PrintCmd_Click() { PrintDeclaration(vars_, dialogs_, layout_.kind); }

void HeaderForm::PrintSumCmd_Click() { PrintSummary(vars_, dialogs_, layout_.kind); }

void HeaderForm::CreateFile_Click() { CreateFile(vars_, dialogs_, layout_.kind); }

void HeaderForm::TotalsCmd_Click() {
  ShowTotals(vars_, dialogs_, layout_.kind, BoxCaptionsOf(layout_.kind));
}

void HeaderForm::VolumesCmd_Click() { CheckVolumes(vars_, dialogs_, layout_.kind); }

bool HeaderForm::QueryClose() {
  if (closing_by_command_) return true;
  if (!dialogs_.Ask(header_texts::kCloseQuestion, layout_.close_title, AskStyle::Plain)) {
    return false;
  }
  screens_.Quit(0);
  return true;
}

void HeaderForm::SaveCmd_Click() {
  if (vars_.CarryOver) {
    CarryOverLines(vars_, dialogs_, layout_.kind);
    // Taken over from the previous declaration and locked: stored unchecked.
    SaveData();
    // Stored and shown in the view state: the copied lines may now take the
    // new period.
    if (!vars_.CarryOver) OfferPayrollMove(vars_, dialogs_, layout_.kind);
  } else if (ValidateHeader() && ConfirmCheckDigits(*this, dialogs_, layout_.fields)) {
    SaveData();
  }
}

ColumnValues HeaderForm::StoredValues() const {
  ColumnValues values;
  for (const HeaderField& field : layout_.fields) {
    const StoreAs how = is_new_header_ ? field.insert_as : field.update_as;
    values[field.column.toLower()] = StoredText(how, Text(field.name));
  }
  return values;
}

void HeaderForm::SaveData() {
  const ColumnValues values = StoredValues();
  int affected = 0;
  try {
    BusyPointer busy(dialogs_);
    affected = WriteHeaderRow(vars_.DeclarationId, values, is_new_header_);
  } catch (const StoreError& error) {
    ShowSaveError(error);
    return;
  }
  if (affected == 0) {
    dialogs_.Message(header_texts::kSaveFailed, layout_.save_title);
    ShowViewButtons();
    EnableFields(false);
    return;
  }
  is_new_header_ = false;
  ShowViewButtons();
  EnableFields(false);
  vars_.CarryOver = false;
  dialogs_.Message(header_texts::kSaveDone, layout_.save_title);
}

void HeaderForm::ShowSaveError(const StoreError& error) {
  const QString text = layout_.save_error_first_line.isEmpty()
                           ? ErrorDescription(error)
                           : ErrorMessage(layout_.save_error_first_line, error);
  dialogs_.Message(text, texts::kAppTitle);
}

bool HeaderForm::RunChecks(std::vector<HeaderCheck> checks) {
  checks.push_back(CodePageCheck(*this, [this] {
    std::vector<StoredBox> boxes;
    for (const HeaderField& field : layout_.fields) {
      const StoreAs how = is_new_header_ ? field.insert_as : field.update_as;
      boxes.push_back({field.name, StoredText(how, Text(field.name))});
    }
    return boxes;
  }));
  return RunHeaderChecks(*this, dialogs_, checks);
}

}  // namespace veroxia
