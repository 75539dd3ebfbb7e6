#include "shell/dir_form.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "rules/texts.h"
#include "shell/texts.h"

namespace veroxia {

using namespace Qt::StringLiterals;

namespace {

QString FullPath(const QString& path) { return QDir::cleanPath(QDir(path).absolutePath()); }

// A directory the list can show: it is there and its entries can be read.
bool Readable(const QString& path) {
  const QFileInfo info(path);
  return info.isDir() && info.isReadable() && info.isExecutable();
}

}  // namespace

DirForm::DirForm(const QString& app_dir, Dialogs& dialogs, DriveSource drives, DirPurpose purpose)
    : app_dir_(app_dir), dialogs_(dialogs), drive_source_(std::move(drives)) {
  const bool check = purpose == DirPurpose::kCheckVolumes;
  SetTitle(check ? texts::kDirCheckTitle : texts::kDirTitle);
  Declare(u"Label1"_s, check ? texts::kDirCheckLabel1 : texts::kDirLabel1);
  Declare(u"Drive1"_s);
  Declare(u"PathLbl"_s, texts::kDirPathLbl);
  Declare(u"PathTxt"_s);
  Declare(u"Dir1"_s);
  Declare(u"Command1"_s, texts::kOkCmd);
  Declare(u"NewDirCmd"_s, texts::kDirNewFolder);
  Declare(u"Command2"_s, texts::kCancelCmd);
}

QStringList DirForm::FocusOrder() {
  return {u"Dir1"_s, u"Drive1"_s, u"PathTxt"_s, u"Command1"_s, u"NewDirCmd"_s, u"Command2"_s};
}

QStringList DirForm::DriveNames() const {
  QStringList names;
  for (const Drive& drive : drives_) names << drive.name;
  return names;
}

void DirForm::Load() {
  dialogs_.SetBusy(false);
  drives_ = drive_source_();
  At(u"Dir1"_s).text = FullPath(app_dir_);
  At(u"PathTxt"_s).text.clear();
  highlighted_.clear();
  ShowDriveOfPath();
  const QString icon = Path() + u"/qormain.ico"_s;
  icon_path_ = FileExists(icon) ? icon : QString();
}

bool DirForm::OpenHighlighted() { return !highlighted_.isEmpty() && Open(highlighted_); }

bool DirForm::Open(const QString& path) {
  const QString full = FullPath(path);
  if (!Readable(full)) return false;
  At(u"Dir1"_s).text = full;
  highlighted_.clear();
  return true;
}

void DirForm::Drive1_Change() {
  const QString name = Text(u"Drive1"_s);
  const auto drive = std::ranges::find(drives_, name, &Drive::name);
  if (drive != drives_.end() && Open(drive->root)) return;
  dialogs_.Message(texts::kDirDriveUnreadable + name + u"'."_s, texts::kAppTitle);
  ShowDriveOfPath();
}

void DirForm::PathTxt_Enter() {
  const QString typed = Text(u"PathTxt"_s).trimmed();
  if (typed.isEmpty()) return;
  if (!Open(QDir(Path()).filePath(typed))) {
    dialogs_.Message(texts::kDirPathUnreadable.arg(typed), texts::kAppTitle);
    Select(u"PathTxt"_s, static_cast<int>(Text(u"PathTxt"_s).size()));
    return;
  }
  At(u"PathTxt"_s).text.clear();
  ShowDriveOfPath();
  SetFocus(u"Dir1"_s);
}

void DirForm::NewDirCmd_Click() {
  if (!ask_name_) return;
  const std::optional<QString> answer = ask_name_();
  if (!answer) return;
  const QString name = answer->trimmed();
  if (const QString fault = MakeFolder(name); !fault.isEmpty()) {
    dialogs_.Message(fault, texts::kAppTitle);
    return;
  }
  Open(QDir(Path()).filePath(name));
  SetFocus(u"Dir1"_s);
}

QString DirForm::MakeFolder(const QString& name) {
  if (name.isEmpty()) return texts::kDirFolderNoName;
  if (name.contains(u'/') || name.contains(u'\\')) return texts::kDirFolderSeparator.arg(name);
  const QDir here(Path());
  if (name == u"." || name == u".." || QFileInfo::exists(here.filePath(name))) {
    return texts::kDirFolderExists.arg(name);
  }
  return here.mkdir(name) ? QString() : texts::kDirFolderNotMade.arg(name);
}

void DirForm::ShowDriveOfPath() {
  const qsizetype index = DriveOf(drives_, Path());
  At(u"Drive1"_s).text = index < 0 ? QString() : drives_[index].name;
}

void DirForm::Command1_Click() {
  Close(Path());
  // The caller writes the file next and puts the pointer back.
  dialogs_.SetBusy(true);
}

void DirForm::Command2_Click() { Close({}); }

void DirForm::QueryClose() {
  if (!closed_) Close({});
}

void DirForm::Close(const QString& answer) {
  answer_ = answer;
  closed_ = true;
}

}  // namespace veroxia
