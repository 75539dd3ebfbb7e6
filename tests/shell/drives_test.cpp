// Which mounted volumes the drive list offers, in which order and by which
// name.

#include <gtest/gtest.h>

#include "shell/drives.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;

QString Shown(const QList<Drive>& drives) {
  QStringList shown;
  for (const Drive& drive : drives) shown << drive.name + u'=' + drive.root;
  return shown.join(u' ');
}

TEST(DrivesOf, RemovableByLabelThenHomeThenRoot) {
  const QList<Volume> volumes = {{u"/"_s, {}},
                                 {u"/boot/efi"_s, u"EFI"_s},
                                 {u"/run/media/u/X"_s, u"X"_s},
                                 {u"/media/u/S"_s, u"S"_s},
                                 {u"/mnt"_s, {}},
                                 {u"/media/u/X2"_s, u"X"_s},
                                 {u"/mediax"_s, u"M"_s},
                                 {u"/mnt/a"_s, u"/"_s}};
  EXPECT_EQ(Shown(DrivesOf(volumes, u"/home/u/"_s)),
            u"S=/media/u/S /media/u/X2=/media/u/X2 /mnt=/mnt /mnt/a=/mnt/a "
            "/run/media/u/X=/run/media/u/X /home/u=/home/u /=/"_s);
  EXPECT_EQ(Shown(DrivesOf({}, u"/"_s)), u"/=/"_s);
}

// The drive shown for a path is the one with the longest root holding it.
TEST(DriveOf, TheLongestRootHoldingThePath) {
  const QList<Drive> drives{{u"/"_s, u"/"_s}, {u"u"_s, u"/home/u"_s}, {u"v"_s, u"/home/v"_s}};
  EXPECT_EQ(DriveOf(drives, u"/home/u/x"_s), 1);
  EXPECT_EQ(DriveOf(drives, u"/home/uv"_s), 0);
  EXPECT_EQ(DriveOf({}, u"/home"_s), -1);
}

}  // namespace
}  // namespace veroxia::testing
