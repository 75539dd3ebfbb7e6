#pragma once
// SearchForm, the small modal dialog of the employee screens that asks for the
// insured person to look for: a surname, or a register number of nine digits.
// It searches nothing itself; it hands the key and its kind back.

#include "shell/form.h"
#include "shell/ports.h"

namespace veroxia {

class SearchForm : public Form {
 public:
  // Place on the screen, in twips.
  static constexpr int kLeftTwips = 4000;
  static constexpr int kTopTwips = 2800;

  // app_dir: the program's directory, where the window icon may be.
  SearchForm(const QString& app_dir, Dialogs& dialogs);

  void Load();
  void Activate() { SetFocus(QStringLiteral("Text2")); }
  // The user changed one of the two fields: the other one is emptied.
  void Text1_Change();
  void Text2_Change();
  void Command1_Click();
  void Command2_Click();
  // The window's own close control counts as cancel.
  void QueryClose();

  bool Closed() const { return closed_; }
  // The answer once closed: the key as typed, empty when cancelled.
  SearchAnswer Answer() const { return answer_; }
  QString IconPath() const { return icon_path_; }
  QStringList FocusOrder() const;

 private:
  void Close(const QString& text, const QString& kind);

  QString app_dir_;
  Dialogs& dialogs_;
  bool closed_ = false;
  SearchAnswer answer_;
  QString icon_path_;
};

}  // namespace veroxia
