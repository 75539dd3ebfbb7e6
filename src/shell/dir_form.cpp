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

DirForm::DirForm(const QString& app_dir, Dialogs& dialogs, DriveSource drives)
    : app_dir_(app_dir), dialogs_(dialogs), drive_source_(std::move(drives)) {
  SetTitle(texts::kDirTitle);
  Declare(u"Label1"_s, texts::kDirLabel1);
  Declare(u"Drive1"_s);
  Declare(u"Dir1"_s);
  Declare(u"Command1"_s, texts::kOkCmd);
  Declare(u"Command2"_s, texts::kCancelCmd);
}

QStringList DirForm::FocusOrder() { return {u"Dir1"_s, u"Drive1"_s, u"Command1"_s, u"Command2"_s}; }

QStringList DirForm::DriveNames() const {
  QStringList names;
  for (const Drive& drive : drives_) names << drive.name;
  return names;
}

void DirForm::Load() {
  dialogs_.SetBusy(false);
  drives_ = drive_source_();
  At(u"Dir1"_s).text = FullPath(app_dir_);
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
