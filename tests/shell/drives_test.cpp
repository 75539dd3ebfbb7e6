// Which mounted volumes the drive list offers, in which order and by which
// name, and the drive a directory lies on.

#include <gtest/gtest.h>

#include "shell/drives.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;

QStringList Shown(const QList<Drive>& drives) {
  QStringList shown;
  for (const Drive& drive : drives) shown << drive.name + u'=' + drive.root;
  return shown;
}

TEST(DrivesOf, RemovableFirstThenHomeThenRoot) {
  const QList<Volume> volumes = {{u"/"_s, {}},
                                 {u"/boot/efi"_s, u"EFI"_s},
                                 {u"/run/media/u/X"_s, u"X"_s},
                                 {u"/media/u/STICK"_s, u"STICK"_s},
                                 {u"/mnt"_s, {}},
                                 {u"/media/u/X2"_s, u"X"_s},
                                 {u"/mediax"_s, u"M"_s}};
  EXPECT_EQ(Shown(DrivesOf(volumes, u"/home/u/"_s)),
            (QStringList{u"STICK=/media/u/STICK"_s, u"/media/u/X2=/media/u/X2"_s, u"/mnt=/mnt"_s,
                         u"/run/media/u/X=/run/media/u/X"_s, u"/home/u=/home/u"_s, u"/=/"_s}));
  EXPECT_EQ(Shown(DrivesOf({{u"/mnt/a"_s, u"/"_s}}, u"/"_s)),
            (QStringList{u"/mnt/a=/mnt/a"_s, u"/=/"_s}));
}

TEST(DriveOf, TheLongestRootThatHoldsThePath) {
  const QList<Drive> drives = {{u"/"_s, u"/"_s}, {u"S"_s, u"/media/S"_s}, {u"H"_s, u"/home/u"_s}};
  const std::pair<QString, qsizetype> cases[] = {{u"/media/S"_s, 1},  {u"/media/S/a"_s, 1},
                                                 {u"/media/S2"_s, 0}, {u"/home/u/app"_s, 2},
                                                 {u"/home/uv"_s, 0},  {u"/"_s, 0}};
  for (const auto& [path, drive] : cases) {
    EXPECT_EQ(DriveOf(drives, path), drive) << path.toStdString();
  }
  EXPECT_EQ(DriveOf(drives.mid(1), u"/opt"_s), -1);
}

}  // namespace
}  // namespace veroxia::testing
