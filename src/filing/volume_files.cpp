#include "filing/volume_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cerrno>
#include <cstdio>
#include <optional>
#include <utility>
#include <vector>

#include "filing/texts.h"
#include "filing/volume_layout.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kPiece = 1 << 16;
const QString kFolderPrefix = u".veroxia-volumes-"_s;
const QString kJournal = u"journal"_s;
const QString kAside = u".old"_s;  // an older volume moved into the folder
constexpr char kJournalHead[] = "veroxia volumes 1";
constexpr char kJournalEnd[] = "end";

QString Join(const QString& directory, const QString& name) {
  // A directory that ends in its separator (a root) is not given a second one.
  return directory.endsWith(u'/') ? directory + name : directory + u'/' + name;
}

[[noreturn]] void Fail(int code) { throw FileError{code, FileErrorDescription(code)}; }

void Sync(int fd) {
  // Some file systems cannot sync a directory: they keep nothing to sync.
  if (::fsync(fd) != 0 && errno != EINVAL && errno != ENOTSUP) Fail(errno);
}

void SyncDirectory(const QString& path) {
  const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) Fail(errno);
  const int saved = errno;
  Sync(fd);
  ::close(fd);
  errno = saved;
}

void Move(const QString& from, const QString& to) {
  if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) {
    Fail(errno);
  }
}

bool Exists(const QString& path) { return QFileInfo(path).exists(); }

// A name as the writer names a volume of either kind.
bool IsVolumeName(const QString& name) {
  for (const Kind kind : {Kind::Common, Kind::Construction}) {
    const QLatin1StringView prefix(VolumeLayoutOf(kind).prefix);
    if (!name.startsWith(prefix)) continue;
    const QString digits = name.mid(prefix.size());
    bool number = false;
    const int n = digits.toInt(&number);
    return number && n >= 1 && VolumeNumber(n) == digits;
  }
  return false;
}

// What a write puts in place and takes away.
struct Journal {
  QStringList put;
  QStringList removed;
};

QByteArray JournalBytes(const Journal& journal) {
  QByteArray bytes = QByteArray(kJournalHead) + '\n';
  for (const QString& name : journal.put) bytes += "put " + name.toLatin1() + '\n';
  for (const QString& name : journal.removed) bytes += "remove " + name.toLatin1() + '\n';
  return bytes + kJournalEnd + '\n';
}

// The folder's journal; none when there is none, it was cut short, or it is
// not one this program writes (it names nothing but volumes).
std::optional<Journal> ReadJournal(const QString& folder) {
  QFile file(Join(folder, kJournal));
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QList<QByteArray> lines = file.read(1 << 16).split('\n');
  if (lines.size() < 3 || lines.front() != kJournalHead || lines[lines.size() - 2] != kJournalEnd ||
      !lines.back().isEmpty()) {
    return std::nullopt;
  }
  Journal journal;
  for (qsizetype i = 1; i + 2 < lines.size(); ++i) {
    const QByteArray& line = lines[i];
    const qsizetype blank = line.indexOf(' ');
    const QString name = QString::fromLatin1(line.mid(blank + 1));
    if (blank < 0 || !IsVolumeName(name)) return std::nullopt;
    const QByteArray step = line.left(blank);
    if (step == "put") {
      journal.put << name;
    } else if (step == "remove") {
      journal.removed << name;
    } else {
      return std::nullopt;
    }
  }
  return journal;
}

// Takes the journal's steps that are not yet taken, each through `move`:
// the volumes that go are moved aside into the folder, then each new volume
// takes its place, the one it replaces moved aside first.
void Place(const QString& directory, const QString& folder, const Journal& journal,
           const std::function<void(const QString&, const QString&)>& move) {
  for (const QString& name : journal.removed) {
    if (Exists(Join(directory, name))) move(Join(directory, name), Join(folder, name + kAside));
  }
  for (const QString& name : journal.put) {
    if (!Exists(Join(folder, name))) continue;  // in place already
    if (Exists(Join(directory, name))) move(Join(directory, name), Join(folder, name + kAside));
    move(Join(folder, name), Join(directory, name));
  }
}

// The moves made durable, then the folder taken away with what it holds.
void Clear(const QString& directory, const QString& folder) {
  SyncDirectory(directory);
  errno = 0;
  if (!QDir(folder).removeRecursively()) Fail(errno != 0 ? errno : EIO);
}

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

FoundVolumes FindVolumes(const QString& directory) {
  FoundVolumes found;
  const QStringList names = QDir(directory).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  for (const Kind kind : {Kind::Common, Kind::Construction}) {
    const int k = kind == Kind::Common ? 0 : 1;
    const QLatin1StringView prefix(VolumeLayoutOf(kind).prefix);
    for (const QString& name : names) {
      if (!name.startsWith(prefix)) continue;
      found.seen[k] = true;
      if (IsVolumeName(name)) {
        found.named[k][name.mid(prefix.size()).toInt()] = name;
      } else {
        found.misnamed << name;
      }
    }
  }
  return found;
}

QStringList UnfinishedWrites(const QString& directory) {
  const QDir dir(directory);
  QStringList folders;
  for (const QString& name :
       dir.entryList({kFolderPrefix + u'*'}, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
    folders << dir.filePath(name);
  }
  return folders;
}

void FinishUnfinishedWrites(const QString& directory) {
  for (const QString& folder : UnfinishedWrites(directory)) {
    if (const std::optional<Journal> journal = ReadJournal(folder)) {
      Place(directory, folder, *journal, Move);
    }
    Clear(directory, folder);
  }
}

VolumeFiles::VolumeFiles(QString directory, QStringList replaced)
    : directory_(std::move(directory)), replaced_(std::move(replaced)) {}

VolumeFiles::~VolumeFiles() {
  try {
    Abandon();
  } catch (...) {  // nothing more can be done about it here
  }
}

QString VolumeFiles::PathOf(const QString& name) const { return Join(folder_, name); }

void VolumeFiles::Begin(const QString& name) {
  CloseVolume();
  if (folder_.isEmpty()) {
    errno = 0;
    QTemporaryDir folder(Join(directory_, kFolderPrefix + u"XXXXXX"_s));
    if (!folder.isValid()) Fail(errno != 0 ? errno : EIO);
    folder.setAutoRemove(false);
    folder_ = folder.path();
  }
  file_.setFileName(PathOf(name));
  errno = 0;
  if (!file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
    Fail(errno != 0 ? errno : static_cast<int>(file_.error()));
  }
  names_ << name;
}

void VolumeFiles::Write(const QByteArray& bytes) {
  pending_ += bytes;
  if (pending_.size() >= kPiece) Flush();
}

void VolumeFiles::Flush() {
  if (pending_.isEmpty() || !file_.isOpen()) return;
  errno = 0;
  if (file_.write(pending_) != pending_.size()) {
    Fail(errno != 0 ? errno : static_cast<int>(file_.error()));
  }
  pending_.clear();
}

// The volume being written, whole on the disk.
void VolumeFiles::CloseVolume() {
  if (!file_.isOpen()) return;
  Flush();
  errno = 0;
  if (::fdatasync(file_.handle()) != 0) Fail(errno);
  file_.close();
}

void VolumeFiles::Step(int step) {
  if (!before_step) return;
  stopped_ = true;
  before_step(step);
  stopped_ = false;
}

void VolumeFiles::Finish() {
  CloseVolume();
  Journal journal{names_, {}};
  for (const QString& name : replaced_) {
    if (!names_.contains(name)) journal.removed << name;
  }
  Step(0);
  {
    QFile file(PathOf(kJournal));
    const QByteArray bytes = JournalBytes(journal);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        ::fdatasync(file.handle()) != 0) {
      Fail(errno != 0 ? errno : static_cast<int>(file.error()));
    }
  }
  SyncDirectory(folder_);
  state_ = State::kPlacing;
  std::vector<std::pair<QString, QString>> moved;
  int step = 1;
  try {
    Place(directory_, folder_, journal, [&](const QString& from, const QString& to) {
      Step(step++);
      Move(from, to);
      moved.emplace_back(from, to);
    });
  } catch (const FileError&) {
    // Back as it was, if the moves can be undone; else the next write
    // finishes them.
    state_ = State::kOver;
    try {
      for (auto it = moved.rbegin(); it != moved.rend(); ++it) Move(it->second, it->first);
      Clear(directory_, folder_);
    } catch (const FileError&) {
    }
    throw;
  }
  Step(step);
  state_ = State::kOver;
  Clear(directory_, folder_);
}

void VolumeFiles::Abandon() {
  pending_.clear();
  if (stopped_ || state_ != State::kWriting) return;
  state_ = State::kOver;
  file_.close();
  if (!folder_.isEmpty()) QDir(folder_).removeRecursively();
}

}  // namespace veroxia
