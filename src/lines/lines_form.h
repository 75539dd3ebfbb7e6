#pragma once
// The logic both employee-line screens share: built from the kind's
// LinesLayout, it opens the declaration's lines (browse mode on the first
// line, or new mode when there is none), browses them, switches between the
// browse, new and edit modes, and inserts, corrects, deletes (closing the gap
// in the numbering) and finds lines. A kind adds its check sequence and the
// typed row of its lines table.

#include <QString>
#include <QStringList>
#include <optional>

#include "header/header_checks.h"
#include "header/header_columns.h"
#include "lines/line_set.h"
#include "lines/lines_layout.h"
#include "shell/form.h"
#include "shell/ports.h"
#include "shell/vars.h"

namespace veroxia {

// A stored line as column values, its number under "row_num" (absent when
// Null).
template <class Row>
std::optional<ColumnValues> LineColumnValues(const std::optional<StoredLine<Row>>& line) {
  if (!line) return std::nullopt;
  ColumnValues values = ColumnValuesOf(line->row);
  if (line->row_num) values[QStringLiteral("row_num")] = QString::number(*line->row_num);
  return values;
}

// What a line's fields store, in the order of the layout's fields.
using LineTexts = std::vector<Text>;

class LinesForm : public Form {
 public:
  // Outer size and place of either kind's window, in twips; the size never
  // changes.
  static constexpr int kLeftTwips = 500;
  static constexpr int kTopTwips = 100;
  static constexpr int kWidthTwips = 10320;
  static constexpr int kHeightTwips = 8175;

  LinesForm(Vars& vars, Dialogs& dialogs, Screens& screens, const LinesLayout& layout);

  void Load();
  // Copies the current line of the set into the fields.
  void ShowLine();
  void ClearFields();
  void SetEntryButtons();
  void SetBrowseButtons();
  void EnableLineFields(bool enabled);

  void FirstCmd_Click();
  void PrevCmd_Click();
  void Nextcmd_Click();
  void LastCmd_Click();
  void NewCmd_Click();
  void UpDateCmd_Click();
  void OkCmd_Click();
  // Clears the fields; the focus goes to the first one.
  void ClearCmd_Click();
  void CancelCmd_Click();
  void DeleteCmd_Click() { DeleteLine(); }
  void SeekCmd_Click() { SeekLine(); }
  void BackCmd_Click();
  // Shows the line whose number is typed in GotoTxt (browse mode).
  void GotoCmd_Click();
  // Lines brought in from a CSV file, or written out to one (browse and new
  // modes).
  void ImportCmd_Click();
  void ExportCmd_Click();
  // The window is being closed. True when it may close; unless Back closes
  // it, the user is asked, and Yes ends the program.
  bool QueryClose();
  // A field takes the focus: its content is selected.
  void GotFocus(const QString& name);

  // The kind's check sequence: true when the fields hold a line that may be
  // stored; otherwise the first rule broken is shown and its field selected.
  bool CheckLine();
  // The first rule the line in the fields breaks, nothing when it may be
  // stored. Nothing is shown.
  std::optional<FieldFault> LineFault() { return FirstFault(Checks()); }
  // What each field stores, in the layout's order: names cleaned, flags and
  // dates as the kind stores them.
  LineTexts StoredTexts() const;
  // The number the next line of the declaration takes. Throws StoreError.
  int NextRowNum();
  // Stores the values as line `row_num` of the declaration. Throws StoreError.
  void StoreLine(int row_num, const LineTexts& texts) { InsertLine(Id(), row_num, texts); }
  Database& Store() { return *vars_.StoreConnection; }
  int Id() const { return vars_.DeclarationId; }
  void InsertData();
  void UpdateLine();
  void DeleteLine();
  void SeekLine();

  bool EditMode() const { return edit_mode_; }
  bool NewMode() const { return new_mode_; }
  bool HasLines() const { return has_lines_; }
  bool GoingBack() const { return going_back_; }
  QString CurrentInsuredId() const { return current_insured_id_; }
  QString CurrentRowNum() const { return current_row_num_; }
  const LineSet& Lines() const { return line_set_; }
  const LinesLayout& Layout() const { return layout_; }
  QString IconPath() const { return icon_path_; }
  QString FirstField() const { return layout_.fields.front().name; }
  // The stored lines of the declaration, as far as the screen knows.
  qsizetype LineCount() const { return line_count_; }
  // The order the tab key follows: the fields in box order, then the buttons.
  QStringList FocusOrder() const;
  static QStringList NavigationButtons();

 protected:
  // The kind's rules, in order. They read the fields when they run.
  virtual std::vector<HeaderCheck> LineChecks() = 0;
  // The kind's lines table. All throw StoreError. ReadLine gives the line's
  // number too (LineColumnValues).
  virtual std::optional<ColumnValues> ReadLine(qint64 rowid) = 0;
  virtual void InsertLine(int id, int row_num, const LineTexts& texts) = 0;
  virtual int UpdateLineRow(const LineAddress& address, const LineTexts& texts) = 0;

  Vars& vars_;
  Dialogs& dialogs_;
  Screens& screens_;

 private:
  // The rules, made once.
  const std::vector<HeaderCheck>& Checks();
  void OpenLines();
  // Re-reads the set and shows the line numbered CurrentRowNum, the first
  // line when none is.
  void ShowRememberedLine();
  void ShowStoreError(const StoreError& error);
  void EnterNewMode();
  // The line shown and the number of lines, in PositionLbl.
  void ShowPosition();

  const LinesLayout& layout_;
  std::vector<HeaderCheck> checks_;
  LineSet line_set_;
  bool going_back_ = false;
  bool edit_mode_ = false;
  bool new_mode_ = false;
  bool has_lines_ = false;
  QString current_insured_id_;
  QString current_row_num_;
  qint64 current_rowid_ = 0;
  qsizetype line_count_ = 0;
  QString icon_path_;
};

// A line screen over the lines table whose rows are of type Row.
template <class Row>
class LinesFormOf : public LinesForm {
 public:
  using LinesForm::LinesForm;

 protected:
  std::optional<ColumnValues> ReadLine(qint64 rowid) override {
    return LineColumnValues(SelectLineAt<Row>(*vars_.StoreConnection, rowid));
  }
  void InsertLine(int id, int row_num, const LineTexts& texts) override {
    Row row = RowOfTexts(id, texts);
    row.row_num = row_num;
    InsertRow(*vars_.StoreConnection, row);
  }
  int UpdateLineRow(const LineAddress& address, const LineTexts& texts) override {
    return UpdateLineAt(*vars_.StoreConnection, address, RowOfTexts(address.id, texts));
  }

 private:
  // A row of the declaration whose columns take the fields' texts; a column
  // no field stores is Null.
  Row RowOfTexts(int id, const LineTexts& texts) const {
    // Which field each text column of the row takes, found once.
    static const std::vector<int> fields_of_columns = [this] {
      std::vector<int> fields;
      Row row;
      ForEachText(row, [&](const char* column, veroxia::Text&) {
        int found = -1;
        for (size_t f = 0; f < Layout().fields.size(); ++f) {
          if (Layout().fields[f].column.compare(QLatin1StringView(column), Qt::CaseInsensitive) ==
              0) {
            found = static_cast<int>(f);
          }
        }
        fields.push_back(found);
      });
      return fields;
    }();
    Row row;
    row.id = id;
    size_t column = 0;
    ForEachText(row, [&](const char*, veroxia::Text& value) {
      const int field = fields_of_columns[column++];
      if (field >= 0) value = texts[static_cast<size_t>(field)];
    });
    return row;
  }
};

}  // namespace veroxia
