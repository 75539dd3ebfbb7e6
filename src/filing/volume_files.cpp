#include "filing/volume_files.h"

#include <cerrno>

#include "filing/texts.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

constexpr qsizetype kPiece = 1 << 16;

}  // namespace

QString FileErrorDescription(int code) {
  switch (code) {
    case ENOSPC:
    case EDQUOT:
      return texts::kStoreDiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return filing_texts::kDirectoryNotWritable;
    case ENOENT:
    case ENOTDIR:
      return filing_texts::kDirectoryMissing;
    case EIO:
      return texts::kStoreIoError;
    default:  // the system's own text is English
      return texts::kFileOtherError.arg(code);
  }
}

VolumeFiles::VolumeFiles(QString directory) : directory_(std::move(directory)) {}

VolumeFiles::~VolumeFiles() {
  for (const auto& file : files_) file->cancelWriting();
}

QString VolumeFiles::PathOf(const QString& name) const {
  // A directory that ends in its separator (a root) is not given a second one.
  return directory_.endsWith(u'/') ? directory_ + name : directory_ + u'/' + name;
}

void VolumeFiles::Begin(const QString& name) {
  Flush();
  auto file = std::make_unique<QSaveFile>(PathOf(name));
  errno = 0;
  if (!file->open(QIODevice::WriteOnly)) Fail(*file, errno);
  files_.push_back(std::move(file));
}

void VolumeFiles::Write(const QByteArray& bytes) {
  pending_ += bytes;
  if (pending_.size() >= kPiece) Flush();
}

void VolumeFiles::Flush() {
  if (pending_.isEmpty() || files_.empty()) return;
  QSaveFile& file = *files_.back();
  errno = 0;
  if (file.write(pending_) != pending_.size() || !file.flush()) Fail(file, errno);
  pending_.clear();
}

void VolumeFiles::Finish() {
  Flush();
  for (const auto& file : files_) {
    errno = 0;
    if (!file->commit()) Fail(*file, errno);
  }
  files_.clear();
}

void VolumeFiles::Abandon(bool keep_completed) {
  pending_.clear();
  if (files_.empty()) return;
  files_.back()->cancelWriting();  // the volume being written when it failed
  files_.pop_back();
  for (const auto& file : files_) {
    if (keep_completed) {
      file->commit();
    } else {
      file->cancelWriting();
    }
  }
  files_.clear();
}

void VolumeFiles::Fail(const QFileDevice& file, int saved_errno) const {
  const int code = saved_errno != 0 ? saved_errno : static_cast<int>(file.error());
  throw FileError{code, FileErrorDescription(code)};
}

}  // namespace veroxia
