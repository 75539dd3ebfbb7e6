#include "store/backups.h"

#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "store/file_copy.h"
#include "store/store_file.h"
#include "store/texts.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

// The parts of a copy's name: the store's own name before and after them.
struct Naming {
  QString folder;
  QString base;    // "QorDb"
  QString suffix;  // ".mdb", or empty
};

Naming NamingOf(const QString& store_path) {
  const QFileInfo store(store_path);
  const QString suffix = store.suffix();
  return {BackupFolder(store_path), store.completeBaseName(),
          suffix.isEmpty() ? QString() : u'.' + suffix};
}

QString TwoDigits(int n) { return u"%1"_s.arg(n, 2, 10, QLatin1Char('0')); }

// "20261123-101500", in digits only, whatever the machine's locale.
QString Stamp(const QDateTime& when) {
  const QDate date = when.date();
  const QTime time = when.time();
  return u"%1%2%3-%4%5%6"_s.arg(date.year(), 4, 10, QLatin1Char('0'))
      .arg(TwoDigits(date.month()), TwoDigits(date.day()), TwoDigits(time.hour()),
           TwoDigits(time.minute()), TwoDigits(time.second()));
}

// A copy found in the folder, with what orders it: its stamp, then its
// number within the second (1 for the first, which carries none).
struct Found {
  QString stamp;
  int number;
  QString path;
};

// A copy's name, its stamp and its number within the second captured.
QString CopyPattern(const Naming& naming) {
  return QRegularExpression::escape(naming.base) + u"-(\\d{8}-\\d{6})(?:-(\\d+))?"_s +
         QRegularExpression::escape(naming.suffix);
}

std::vector<Found> Find(const Naming& naming) {
  const QRegularExpression pattern(u'^' + CopyPattern(naming) + u'$');
  std::vector<Found> found;
  const QDir folder(naming.folder);
  for (const QString& name : folder.entryList(QDir::Files)) {
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch()) continue;
    const int number = match.hasCaptured(2) ? match.captured(2).toInt() : 1;
    found.push_back({match.captured(1), number, folder.filePath(name)});
  }
  std::sort(found.begin(), found.end(), [](const Found& a, const Found& b) {
    return std::tie(b.stamp, b.number) < std::tie(a.stamp, a.number);
  });
  return found;
}

void RemoveAllBut(const Naming& naming, int keep) {
  const std::vector<Found> found = Find(naming);
  for (size_t i = static_cast<size_t>(std::max(keep, 0)); i < found.size(); ++i) {
    QFile::remove(found[i].path);
    for (const QString& companion : CompanionSuffixes()) QFile::remove(found[i].path + companion);
  }
}

// Makes the folder if need be and answers a name no copy has yet, with the
// second's next number when the second has one already.
QString NewCopyPath(const Naming& naming, const QDateTime& when) {
  if (!QDir().mkpath(naming.folder)) {
    throw StoreError{SQLITE_CANTOPEN, store_file_texts::kFolderNotMade.arg(naming.folder)};
  }
  const QString stem = QDir(naming.folder).filePath(naming.base + u'-' + Stamp(when));
  for (int number = 1;; ++number) {
    const QString path =
        stem + (number == 1 ? QString() : u'-' + QString::number(number)) + naming.suffix;
    if (!QFileInfo::exists(path) && !QFileInfo::exists(path + u".part"_s)) return path;
  }
}

// Writes a copy under a temporary name beside `path` and renames it to
// `path` once `write` is through; on any failure the temporary file and the
// files named in `also` go.
void Publish(const QString& path, const QStringList& also,
             const std::function<void(const QString& part)>& write) {
  const QString part = path + u".part"_s;
  struct Cleanup {
    QStringList files;
    ~Cleanup() {
      for (const QString& file : files) QFile::remove(file);
    }
  } cleanup{QStringList{part} + also};
  write(part);
  if (!QFile::rename(part, path)) {
    throw StoreError{SQLITE_CANTOPEN, store_file_texts::kNotRenamed.arg(part, path)};
  }
  cleanup.files.clear();
}

void CopyFile(const QString& from, const QString& to) {
  const std::optional<CopyFailure> failure = CopyFileBytes(from, to);
  if (!failure) return;
  if (failure->reading) throw StoreError{SQLITE_IOERR, store_file_texts::kNotRead.arg(from)};
  if (IsDiskFull(failure->error))
    throw StoreError{SQLITE_FULL, store_file_texts::kDiskFull.arg(to)};
  throw StoreError{SQLITE_IOERR, store_file_texts::kNotWritten.arg(to)};
}

}  // namespace

QString BackupFolder(const QString& store_path) {
  return QFileInfo(store_path).absoluteDir().filePath(u"backups"_s);
}

QString RestoreCopyPath(const QString& store_path) { return store_path + u".restore"_s; }

void RemoveLeftovers(const QString& store_path) {
  const Naming naming = NamingOf(store_path);
  const QRegularExpression pattern(u"^("_s + CopyPattern(naming) +
                                   u")(\\.part)?(-wal|-shm|-journal)?$"_s);
  const QDir folder(naming.folder);
  for (const QString& name : folder.entryList(QDir::Files)) {
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch()) continue;
    const bool temporary = match.hasCaptured(4);
    const bool orphan = match.hasCaptured(5) && !folder.exists(match.captured(1));
    if (temporary || orphan) QFile::remove(folder.filePath(name));
  }
  const QString restore_copy = RestoreCopyPath(store_path);
  QFile::remove(restore_copy);
  for (const QString& companion : CompanionSuffixes()) QFile::remove(restore_copy + companion);
}

QStringList ListBackups(const QString& store_path) {
  QStringList paths;
  for (const Found& found : Find(NamingOf(store_path))) paths << found.path;
  return paths;
}

QString MakeBackup(Database& db, const QString& store_path, const QString& password,
                   const QDateTime& when, int keep) {
  const Naming naming = NamingOf(store_path);
  const QString path = NewCopyPath(naming, when);
  Publish(path, {}, [&](const QString& part) { db.CopyTo(part, password); });
  RemoveAllBut(naming, keep);
  return path;
}

QString KeepFileAsBackup(const QString& store_path, const QDateTime& when, int keep) {
  const Naming naming = NamingOf(store_path);
  const QString path = NewCopyPath(naming, when);
  const QString wal = store_path + u"-wal"_s;
  const bool has_wal = QFileInfo::exists(wal);
  Publish(path, has_wal ? QStringList{path + u"-wal"_s} : QStringList{}, [&](const QString& part) {
    CopyFile(store_path, part);
    if (has_wal) CopyFile(wal, path + u"-wal"_s);
  });
  RemoveAllBut(naming, keep);
  return path;
}

}  // namespace veroxia
