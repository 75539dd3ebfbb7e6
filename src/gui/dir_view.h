#pragma once
// The window of the target-directory dialog, modal. Every control of DirForm
// is a widget named after it: Drive1 a drop-down list of the drives, PathTxt
// a box for a path to go to, Dir1 a list of the directories of the path
// opened in it, with ".." to go up. The opened path itself is shown above the
// list (Dir1Path). NewDirCmd asks for the folder's name in a small box of its
// own.

#include <QDialog>
#include <optional>

#include "shell/dir_form.h"

class QFileSystemModel;
class QLabel;
class QLineEdit;
class QListView;

namespace veroxia {

class FormBinder;

class DirView : public QDialog {
 public:
  explicit DirView(DirForm& form, QWidget* parent = nullptr);

  FormBinder& Binder() { return *binder_; }

  // Shows the dialog until it closes; answers what the form handed back.
  QString Ask();

 protected:
  void showEvent(QShowEvent* event) override;
  // Escape and the window's close control: cancel.
  void reject() override;
  // Enter in the directory list opens the highlighted directory, and in the
  // path box goes to the typed path, rather than pressing the default button.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // The list shows the form's path, and no highlight once it has none.
  void ShowPath();
  void Open(const QModelIndex& index);
  void CloseIfDone();
  // The name of a new folder, asked in a box over the dialog.
  std::optional<QString> AskFolderName();

  DirForm& form_;
  FormBinder* binder_;       // owned by this dialog
  QFileSystemModel* model_;  // owned by this dialog
  QListView* list_;          // owned by this dialog
  QLabel* path_;             // owned by this dialog
  QLineEdit* path_box_;      // owned by this dialog
  bool showing_path_ = false;
};

}  // namespace veroxia
