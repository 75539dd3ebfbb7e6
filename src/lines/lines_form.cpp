#include "lines/lines_form.h"

#include "header/date_box.h"
#include "lines/import_texts.h"
#include "lines/line_import.h"
#include "lines/line_kinds.h"
#include "lines/texts.h"
#include "rules/numbers.h"
#include "rules/texts.h"
#include "shell/check_digit_prompt.h"
#include "shell/errors.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;
using namespace lines_texts;

const QString kNew = u"NewCmd"_s;
const QString kUpDate = u"UpDateCmd"_s;
const QString kOk = u"OkCmd"_s;
const QString kCancel = u"CancelCmd"_s;
const QString kClear = u"ClearCmd"_s;
const QString kDelete = u"DeleteCmd"_s;
const QString kSeek = u"SeekCmd"_s;
const QString kBack = u"BackCmd"_s;
const QString kImport = u"ImportCmd"_s;
const QString kExport = u"ExportCmd"_s;
const QString kFirst = u"FirstCmd"_s;
const QString kPrev = u"PrevCmd"_s;
const QString kNext = u"Nextcmd"_s;
const QString kLast = u"LastCmd"_s;
const QString kPositionLbl = u"PositionLbl"_s;
const QString kGoto = u"GotoCmd"_s;
const QString kGotoBox = u"GotoTxt"_s;
// The line numbers a declaration can reach.
constexpr int kGotoDigits = 6;

const QString kInsuredIdColumn = u"insured_id"_s;

bool IsDateBox(const LineField& field) { return field.store == StoreAs::Date; }

std::optional<int> RowNumberOf(const QString& text) {
  bool ok = false;
  const int number = text.toInt(&ok);
  return ok ? std::optional<int>(number) : std::nullopt;
}

}  // namespace

LinesForm::LinesForm(Vars& vars, Dialogs& dialogs, Screens& screens, const LinesLayout& layout)
    : vars_(vars), dialogs_(dialogs), screens_(screens), layout_(layout) {
  SetTitle(layout_.title);
  for (const LineCaption& caption : layout_.captions) Declare(caption.name, caption.text);
  for (const LineField& field : layout_.fields) {
    Declare(field.name, IsDateBox(field) ? kEmptyDateBox : field.cleared, field.max_length);
  }
  Declare(kNew, kNewCmd);
  Declare(kUpDate, kUpDateCmd);
  Declare(kOk, kOkCmd);
  Declare(kCancel, kCancelCmd);
  Declare(kClear, kClearCmd);
  Declare(kDelete, kDeleteCmd);
  Declare(kSeek, kSeekCmd);
  Declare(kBack, kBackCmd);
  Declare(kImport, import_texts::kImportCmd);
  Declare(kExport, import_texts::kExportCmd);
  for (const QString& name : NavigationButtons()) Declare(name);
  Declare(kPositionLbl);
  Declare(kGotoBox, {}, kGotoDigits);
  Declare(kGoto, kGotoCmd);
}

QStringList LinesForm::NavigationButtons() { return {kFirst, kPrev, kNext, kLast}; }

QStringList LinesForm::FocusOrder() const {
  QStringList order;
  for (const LineField& field : layout_.fields) order << field.name;
  order << kOk << kNew << kUpDate << kCancel << kClear << kDelete << kSeek << kBack
        << NavigationButtons() << kGotoBox << kGoto << kImport << kExport;
  return order;
}

void LinesForm::Load() {
  BusyPointer busy(dialogs_);
  going_back_ = false;
  const QString icon = vars_.AppDir + u"/qormain.ico"_s;
  icon_path_ = FileExists(icon) ? icon : QString();
  SetEntryButtons();
  try {
    OpenLines();
  } catch (const StoreError& error) {
    // Nothing can be shown or stored safely: only the return is left.
    EnableLineFields(false);
    for (const QString& name : FocusOrder()) {
      if (name != kBack && !name.startsWith(u"Text"_s)) At(name).enabled = false;
    }
    dialogs_.Message(ErrorMessage(kStoreProblem, error), texts::kAppTitle);
    return;
  }
  if (!line_set_.Empty()) {
    line_set_.MoveFirst();
    ShowLine();
    SetBrowseButtons();
    has_lines_ = true;
    EnableLineFields(false);
  } else {
    edit_mode_ = false;
    new_mode_ = true;
    has_lines_ = false;
    SetEntryButtons();
    EnableLineFields(true);
    GotFocus(FirstField());
  }
  going_back_ = false;
}

void LinesForm::ShowLine() {
  const LineKey* key = line_set_.Current();
  if (key == nullptr) return;
  std::optional<ColumnValues> row;
  try {
    row = ReadLine(key->rowid);
  } catch (const StoreError&) {
    // Shown as a line of empty columns; its key still addresses it.
  }
  const ColumnValues values = row.value_or(ColumnValues());
  current_rowid_ = key->rowid;
  // A line gone behind the screen keeps its register number from the key;
  // its number is then unknown and nothing can be done to it by number.
  const veroxia::Text row_num = ValueOf(values, u"row_num"_s);
  current_row_num_ = row ? FieldText(row_num) : QString();
  current_insured_id_ = FieldText(key->insured_id);
  for (const LineField& field : layout_.fields) {
    const veroxia::Text stored = ValueOf(values, field.column);
    QString& text = At(field.name).text;
    if (!field.choices.isEmpty()) {
      text =
          FieldText(stored).toUpper() == u"1"_s ? field.choices.value(0) : field.choices.value(1);
    } else if (IsDateBox(field)) {
      text = DateBoxText(stored);
    } else {
      text = FieldText(stored);
    }
  }
  ShowPosition();
}

void LinesForm::ClearFields() {
  for (const LineField& field : layout_.fields) {
    At(field.name).text = IsDateBox(field) ? kEmptyDateBox : field.cleared;
  }
  if (layout_.clear_moves_focus && At(FirstField()).enabled) GotFocus(FirstField());
}

void LinesForm::SetEntryButtons() {
  for (const QString& name : NavigationButtons()) At(name).enabled = false;
  At(kDelete).enabled = false;
  At(kSeek).enabled = false;
  for (const QString& name : {kOk, kClear, kCancel}) At(name).visible = true;
  At(kUpDate).visible = false;
  At(kNew).visible = false;
  // Lines come and go by file in new mode, not while one is being corrected.
  At(kImport).enabled = !edit_mode_;
  At(kExport).enabled = !edit_mode_;
  At(kGotoBox).enabled = false;
  At(kGoto).enabled = false;
  ShowPosition();
}

void LinesForm::SetBrowseButtons() {
  for (const QString& name : NavigationButtons()) At(name).enabled = true;
  At(kDelete).enabled = true;
  At(kSeek).enabled = true;
  for (const QString& name : {kOk, kClear, kCancel}) At(name).visible = false;
  At(kUpDate).visible = true;
  At(kNew).visible = true;
  At(kImport).enabled = true;
  At(kExport).enabled = true;
  At(kGotoBox).enabled = true;
  At(kGoto).enabled = true;
  ShowPosition();
}

void LinesForm::EnableLineFields(bool enabled) {
  for (const LineField& field : layout_.fields) At(field.name).enabled = enabled;
}

void LinesForm::FirstCmd_Click() {
  if (line_set_.Bof()) return;
  line_set_.MoveFirst();
  ShowLine();
}

void LinesForm::LastCmd_Click() {
  if (line_set_.Eof()) return;
  line_set_.MoveLast();
  ShowLine();
}

void LinesForm::Nextcmd_Click() {
  line_set_.MoveNext();
  if (line_set_.Eof()) {
    dialogs_.Message(kNoNext, texts::kAppTitle);
    line_set_.MovePrevious();
    return;
  }
  ShowLine();
}

void LinesForm::PrevCmd_Click() {
  line_set_.MovePrevious();
  if (line_set_.Bof()) {
    dialogs_.Message(kNoPrevious, texts::kAppTitle);
    line_set_.MoveNext();
    return;
  }
  ShowLine();
}

void LinesForm::NewCmd_Click() {
  edit_mode_ = false;
  new_mode_ = true;
  ClearFields();
  SetEntryButtons();
  EnableLineFields(true);
  GotFocus(FirstField());
}

void LinesForm::UpDateCmd_Click() {
  edit_mode_ = true;
  new_mode_ = false;
  has_lines_ = true;
  SetEntryButtons();
  EnableLineFields(true);
  GotFocus(FirstField());
}

void LinesForm::OkCmd_Click() {
  if (edit_mode_ && !new_mode_) {
    UpdateLine();
  } else if (!edit_mode_ && new_mode_) {
    InsertData();
  }
}

void LinesForm::CancelCmd_Click() {
  if (!has_lines_) {
    GotFocus(FirstField());
    return;
  }
  SetBrowseButtons();
  ShowRememberedLine();
  if (has_lines_) EnableLineFields(false);
}

void LinesForm::OpenLines() {
  line_set_.Open(Store(), layout_.kind, Id());
  line_count_ = line_set_.Size();
}

void LinesForm::ClearCmd_Click() {
  ClearFields();
  if (At(FirstField()).enabled) GotFocus(FirstField());
}

void LinesForm::ShowPosition() {
  QString& text = At(kPositionLbl).text;
  const QString count = QString::number(line_count_);
  if (!At(kNew).visible && !edit_mode_) {
    text = kPositionNew.arg(count);  // a line being typed, not yet stored
  } else if (current_row_num_.isEmpty()) {
    text = kPositionUnknown.arg(count);
  } else {
    text = kPosition.arg(current_row_num_, count);
  }
}

void LinesForm::GotoCmd_Click() {
  if (!At(kGoto).enabled) return;
  bool number = false;
  const int row_num = Text(kGotoBox).trimmed().toInt(&number);
  const qsizetype shown = line_set_.Position();
  bool found = false;
  if (number && row_num >= 1) {
    try {
      found = line_set_.FindRowNum(row_num);
    } catch (const StoreError& error) {
      line_set_.MoveTo(shown);
      ShowStoreError(error);
      return;
    }
  }
  if (!found) {
    line_set_.MoveTo(shown);
    const bool in_range = number && row_num >= 1 && row_num <= line_count_;
    dialogs_.Message(in_range ? kGotoMissing.arg(row_num) : kGotoRange.arg(line_count_),
                     texts::kAppTitle);
    Select(kGotoBox, static_cast<int>(Text(kGotoBox).size()));
    return;
  }
  ShowLine();
}

void LinesForm::ShowRememberedLine() {
  try {
    OpenLines();
    if (!line_set_.Empty() && !line_set_.FindRowNum(RowNumberOf(current_row_num_))) {
      line_set_.MoveFirst();
    }
  } catch (const StoreError& error) {
    ShowStoreError(error);
    return;
  }
  if (line_set_.Empty()) {
    EnterNewMode();  // every line was deleted behind the screen's back
    return;
  }
  ShowLine();
}

void LinesForm::EnterNewMode() {
  has_lines_ = false;
  edit_mode_ = false;
  new_mode_ = true;
  SetEntryButtons();
  EnableLineFields(true);
  // Where ClearFields moves the focus itself, it is left to it.
  if (!layout_.clear_moves_focus) GotFocus(FirstField());
  ClearFields();
}

void LinesForm::BackCmd_Click() {
  going_back_ = true;
  screens_.ShowHeader(layout_.kind);
}

bool LinesForm::QueryClose() {
  if (going_back_) return true;
  if (!dialogs_.Ask(kCloseQuestion, layout_.close_title, AskStyle::Plain)) return false;
  screens_.Quit(0);
  return true;
}

void LinesForm::GotFocus(const QString& name) {
  for (const LineField& field : layout_.fields) {
    if (field.name != name || field.select_length == 0) continue;
    Select(name, field.select_length);
    return;
  }
  SetFocus(name);
}

LineTexts LinesForm::StoredTexts() const {
  LineTexts texts;
  texts.reserve(layout_.fields.size());
  for (const LineField& field : layout_.fields) {
    texts.emplace_back(StoredText(field.store, Text(field.name), field.choices.value(0)));
  }
  return texts;
}

void LinesForm::ShowStoreError(const StoreError& error) {
  dialogs_.Message(ErrorMessage(kStoreProblem, error), texts::kAppTitle);
}

const std::vector<HeaderCheck>& LinesForm::Checks() {
  if (checks_.empty()) {
    checks_ = LineChecks();
    // Last, what every field stores must fit the submission file.
    checks_.push_back(CodePageCheck(*this, [this] {
      const LineTexts texts = StoredTexts();
      std::vector<StoredBox> boxes;
      boxes.reserve(texts.size());
      for (size_t f = 0; f < texts.size(); ++f) {
        boxes.push_back({layout_.fields[f].name, texts[f].value_or(QString())});
      }
      return boxes;
    }));
  }
  return checks_;
}

bool LinesForm::CheckLine() { return RunHeaderChecks(*this, dialogs_, Checks()); }

int LinesForm::NextRowNum() {
  return static_cast<int>(LeadingValue(FieldNumber(MaxRowNum(Store(), layout_.kind, Id())))) + 1;
}

void LinesForm::InsertData() {
  std::optional<BusyPointer> busy(std::in_place, dialogs_);
  if (!CheckLine() || !ConfirmCheckDigits(*this, dialogs_, layout_.fields)) return;
  const LineTexts texts = StoredTexts();
  int row_num = 0;
  try {
    row_num = NextRowNum();
    InsertLine(Id(), row_num, texts);
  } catch (const StoreError& error) {
    busy.reset();
    ShowStoreError(error);
    return;
  }
  for (const LineField& field : layout_.fields) {
    if (field.column == kInsuredIdColumn) current_insured_id_ = Text(field.name);
  }
  current_row_num_ = QString::number(row_num);
  has_lines_ = true;
  ++line_count_;
  ShowPosition();
  if (!layout_.busy_until_insert_message) busy.reset();
  dialogs_.Message(kInsertDone, texts::kAppTitle);
}

void LinesForm::UpdateLine() {
  std::optional<BusyPointer> busy(std::in_place, dialogs_);
  if (!CheckLine() || !ConfirmCheckDigits(*this, dialogs_, layout_.fields)) return;
  const LineAddress address{current_rowid_, Id(), RowNumberOf(current_row_num_),
                            current_insured_id_};
  int changed = 0;
  try {
    changed = UpdateLineRow(address, StoredTexts());
  } catch (const StoreError& error) {
    busy.reset();
    ShowStoreError(error);
    return;
  }
  busy.reset();
  if (changed == 0) {
    // The line is no longer where it was shown: the fields keep what was typed.
    dialogs_.Message(kLineGone, texts::kAppTitle);
    return;
  }
  SetBrowseButtons();
  ShowRememberedLine();
  if (has_lines_) EnableLineFields(false);
  dialogs_.Message(kUpdateDone, texts::kAppTitle);
}

void LinesForm::DeleteLine() {
  if (!dialogs_.Ask(kDeleteQuestion, kDeleteTitle, AskStyle::Question)) return;
  std::optional<BusyPointer> busy(std::in_place, dialogs_);
  const std::optional<int> row_num = RowNumberOf(current_row_num_);
  try {
    Transaction transaction(Store());
    const LineAddress address{current_rowid_, Id(), row_num, current_insured_id_};
    if (DeleteLineAt(Store(), layout_.kind, address) <= 0) {
      transaction.Rollback();
      busy.reset();
      dialogs_.Message(layout_.cannot_delete, texts::kAppTitle);
      return;
    }
    // A number another line still holds (a numbering made elsewhere) is no
    // gap: moving the later lines down would give two lines one number.
    if (row_num && !RowNumInUse(Store(), layout_.kind, Id(), *row_num)) {
      CloseNumberGap(Store(), layout_.kind, Id(), *row_num);
    }
    transaction.Commit();
    // The set holds no line numbers: only the deleted line's key goes.
    line_set_.Remove(current_rowid_);
    line_count_ = line_set_.Size();
  } catch (const StoreError& error) {
    busy.reset();
    ShowStoreError(error);
    return;
  }
  if (!line_set_.Empty()) {
    line_set_.MoveFirst();
    ShowLine();
    return;
  }
  EnterNewMode();
}

void LinesForm::ImportCmd_Click() {
  // A screen of the same kind reads the file's rows, so that the fields here
  // keep what they show unless lines are stored.
  const std::unique_ptr<LinesForm> reader = MakeLinesForm(layout_.kind, vars_, dialogs_, screens_);
  ImportLines(*reader, dialogs_, {}, [this](int first) {
    // The first line brought in is shown, in browse mode.
    current_row_num_ = QString::number(first);
    has_lines_ = true;
    edit_mode_ = false;
    new_mode_ = false;
    SetBrowseButtons();
    ShowRememberedLine();
    if (has_lines_) EnableLineFields(false);
  });
}

void LinesForm::ExportCmd_Click() { ExportLinesTo(vars_, layout_.kind, dialogs_); }

void LinesForm::SeekLine() {
  const qsizetype shown = line_set_.Position();
  const SearchAnswer answer = dialogs_.AskInsuredPerson();
  vars_.DialogResult = answer.text;
  if (answer.text.isEmpty()) return;
  vars_.SearchKind = answer.kind;
  bool found = false;
  QString not_found;
  if (vars_.SearchKind != u"AMA"_s) {
    found = line_set_.FindSurnamePrefix(StoredText(StoreAs::Clean, vars_.DialogResult));
    not_found = kPersonNotFoundStart + vars_.DialogResult + kPersonNotFoundEnd;
  } else {
    found = line_set_.FindInsuredId(vars_.DialogResult);
    not_found = kInsuredIdNotFound;
  }
  if (!found) {
    dialogs_.Message(not_found, texts::kAppTitle);
    line_set_.MoveTo(shown);  // back to the line shown before the search
  }
  ShowLine();
}

}  // namespace veroxia
