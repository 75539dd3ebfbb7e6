#include "shell/drives.h"

#include <QDir>
#include <QStorageInfo>
#include <algorithm>

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

bool Contains(const QString& root, const QString& path) {
  if (root == u"/"_s) return path.startsWith(u'/');
  return path == root || path.startsWith(root + u'/');
}

bool Removable(const QString& root) {
  return std::ranges::any_of(QList{u"/media"_s, u"/run/media"_s, u"/mnt"_s},
                             [&root](const QString& place) { return Contains(place, root); });
}

}  // namespace

QList<Drive> DrivesOf(const QList<Volume>& volumes, const QString& home) {
  QList<Volume> removable;
  for (const Volume& volume : volumes) {
    if (Removable(volume.root)) removable << volume;
  }
  std::ranges::sort(removable, {}, &Volume::root);
  const auto label_count = [&removable](const QString& label) {
    return std::ranges::count(removable, label, &Volume::name);
  };

  QList<Drive> drives;
  // A root is offered once.
  const auto add = [&drives](const QString& name, const QString& root) {
    if (std::ranges::count(drives, root, &Drive::root) == 0) drives << Drive{name, root};
  };
  for (const Volume& volume : removable) {
    // Paths name the other drives, so a label that looks like one is not used.
    const bool labelled =
        !volume.name.isEmpty() && !volume.name.startsWith(u'/') && label_count(volume.name) == 1;
    add(labelled ? volume.name : volume.root, volume.root);
  }
  if (!home.isEmpty()) add(QDir::cleanPath(home), QDir::cleanPath(home));
  add(u"/"_s, u"/"_s);
  return drives;
}

QList<Drive> SystemDrives() {
  QList<Volume> volumes;
  for (const QStorageInfo& storage : QStorageInfo::mountedVolumes()) {
    if (storage.isValid()) volumes << Volume{QDir::cleanPath(storage.rootPath()), storage.name()};
  }
  return DrivesOf(volumes, QDir::homePath());
}

qsizetype DriveOf(const QList<Drive>& drives, const QString& path) {
  qsizetype best = -1;
  for (qsizetype i = 0; i < drives.size(); ++i) {
    if (Contains(drives[i].root, path) &&
        (best < 0 || drives[i].root.size() > drives[best].root.size())) {
      best = i;
    }
  }
  return best;
}

}  // namespace veroxia
