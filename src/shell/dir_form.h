#pragma once
// DirForm, the modal dialog in which the user chooses the directory the
// submission file is written into: a drive list and a directory list. It
// writes nothing itself; it hands the chosen directory back.
//
// The directory list opens a directory on a double-click (".." goes up); a
// directory merely highlighted is not chosen. What is handed back is always
// the directory opened in the list. A path typed or pasted into PathTxt opens
// with Enter; NewDirCmd makes a folder inside the opened directory and opens
// it. Title and Label1 say what the directory is chosen for.

#include <QString>
#include <functional>
#include <optional>

#include "shell/drives.h"
#include "shell/form.h"
#include "shell/ports.h"

namespace veroxia {

class DirForm : public Form {
 public:
  // Place on the screen, in twips.
  static constexpr int kLeftTwips = 3500;
  static constexpr int kTopTwips = 2200;

  // Asks the user for the name of the folder to make: the name typed, none
  // when the question was cancelled.
  using NameQuestion = std::function<std::optional<QString>()>;

  // app_dir: the program's directory, where the list starts and the window
  // icon may be. drives: where the drive list comes from. purpose: what the
  // directory is chosen for, which the title and Label1 tell.
  DirForm(const QString& app_dir, Dialogs& dialogs, DriveSource drives = SystemDrives,
          DirPurpose purpose = DirPurpose::kWriteVolumes);

  // Where NewDirCmd asks for the folder's name; without one it makes none.
  void AskNamesWith(NameQuestion question) { ask_name_ = std::move(question); }

  void Load();
  // The user chose another drive in Drive1 (its text is the drive's name).
  void Drive1_Change();
  void Command1_Click();
  void Command2_Click();
  // Enter in PathTxt: the list opens the typed directory (a relative path
  // lies under the opened one) and the box empties; one that is missing or
  // cannot be read is told, stays typed and selected, and the list stays.
  void PathTxt_Enter();
  // Typing into PathTxt ends the selection a failed path left.
  void PathTxt_Change() { SetFocus(QStringLiteral("PathTxt")); }
  // Asks for a name and makes that folder in the opened directory, which the
  // list then opens; a name that cannot be made is told.
  void NewDirCmd_Click();
  // The window's own close control counts as cancel.
  void QueryClose();

  // The directory list's own behaviour: a click or an arrow key highlights
  // an entry (a directory or ".."), which changes nothing else; a
  // double-click or Enter opens the highlighted one, which becomes the list's
  // path. One that cannot be read stays closed (false).
  void HighlightDirectory(const QString& path) { highlighted_ = path; }
  bool OpenHighlighted();
  // The directory opened in the list, and the one highlighted in it.
  QString Path() const { return Text(QStringLiteral("Dir1")); }
  QString Highlighted() const { return highlighted_; }

  // The names the drive list offers, in order.
  QStringList DriveNames() const;

  bool Closed() const { return closed_; }
  // The answer once closed: the chosen directory, empty when cancelled.
  QString Answer() const { return answer_; }
  QString IconPath() const { return icon_path_; }
  static QStringList FocusOrder();

 private:
  bool Open(const QString& path);
  // Why a folder of that name cannot be made in the opened directory; empty
  // once it has been made.
  QString MakeFolder(const QString& name);
  // Drive1 shows the drive the list's path lies on.
  void ShowDriveOfPath();
  void Close(const QString& answer);

  QString app_dir_;
  Dialogs& dialogs_;
  DriveSource drive_source_;
  QList<Drive> drives_;
  NameQuestion ask_name_;
  QString highlighted_;  // empty: none
  bool closed_ = false;
  QString answer_;
  QString icon_path_;
};

}  // namespace veroxia
