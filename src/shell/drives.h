#pragma once
// The drives the directory dialog offers. On this system a "drive" is a
// mounted volume: removable media first (mounted under /media, /run/media or
// /mnt), then the user's home directory, then the root of the file system.

#include <QList>
#include <QString>
#include <functional>

namespace veroxia {

struct Drive {
  QString name;  // as the drive list shows it; unique within a list
  QString root;  // the directory the drive opens at
};

// Hands out the drives of the machine, in the order the list shows them.
using DriveSource = std::function<QList<Drive>()>;

// A mounted volume as the system reports it.
struct Volume {
  QString root;
  QString name;  // the volume's label, or empty
};

// The drives made of these volumes and the home directory: the removable
// ones by their label (by their root where they have none, share it with
// another or it starts with "/"), then home and "/" by their path, each root
// once. Other mounts are left out.
QList<Drive> DrivesOf(const QList<Volume>& volumes, const QString& home);

// The mounted volumes of this machine, through QStorageInfo.
QList<Drive> SystemDrives();

// The index of the drive `path` lies on: the one with the longest root that
// contains it; -1 when none does.
qsizetype DriveOf(const QList<Drive>& drives, const QString& path);

}  // namespace veroxia
