#pragma once
// The volumes as files in a directory, written as one set. The whole set is
// first written into a folder of its own inside the directory and made
// durable; then a journal naming the volumes to put in place and the older
// ones to take away is written into that folder, and only then are the
// volumes moved into the directory: each older volume of the same name, and
// every older one the new set leaves out, is first moved aside into the
// folder, which goes last with all it holds. A directory holding such a
// folder holds an unfinished write, whatever volumes it shows: the next write
// into it finishes that one (its journal complete: the steps not yet taken
// are taken) or clears it (no journal: the directory was not yet touched).

#include <QFile>
#include <QString>
#include <QStringList>
#include <functional>
#include <map>

#include "filing/volume_writer.h"

namespace veroxia {

// The files of a directory that are named like volumes, by kind (the common
// kind first): those named as the writer names them, by number, and whether
// any name starts with the kind's prefix at all.
struct FoundVolumes {
  std::map<int, QString> named[2];
  bool seen[2] = {false, false};
  QStringList misnamed;  // starting with a prefix, not named as the writer names a volume
};
FoundVolumes FindVolumes(const QString& directory);

// The folders of unfinished writes in the directory.
QStringList UnfinishedWrites(const QString& directory);

// Finishes or clears every unfinished write in the directory. Throws
// FileError.
void FinishUnfinishedWrites(const QString& directory);

class VolumeFiles : public VolumeSink {
 public:
  // `replaced`: the names of the volumes already in the directory that may
  // go; those the new set does not replace are taken away as it is put in
  // place. Any other file stays.
  explicit VolumeFiles(QString directory, QStringList replaced = {});
  // A set not finished is cleared, unless its putting in place has begun.
  ~VolumeFiles() override;

  void Begin(const QString& name) override;
  void Write(const QByteArray& bytes) override;
  // Puts the set in place. When a step fails the steps taken are undone and
  // the folder cleared; when that fails too, the folder stays for the next
  // write to finish.
  void Finish() override;
  void Abandon() override;

  // Called before each step of putting the set in place: 0 before the
  // journal is written, then before each move, and last before the folder is
  // cleared. A call that throws leaves everything as it stands, as if the
  // program had been ended there.
  std::function<void(int step)> before_step;

 private:
  QString PathOf(const QString& name) const;
  void CloseVolume();
  void Flush();
  void Step(int step);

  QString directory_;
  QStringList replaced_;
  QString folder_;      // of the new set; empty until its first volume
  QStringList names_;   // of the new set, in order
  QFile file_;          // the volume being written
  QByteArray pending_;  // written in large pieces
  enum class State { kWriting, kPlacing, kOver } state_ = State::kWriting;
  bool stopped_ = false;  // a step that threw: nothing more is done
};

// What a file error number means to the user, in our words: for the errors a
// user can meet (no room, no permission, no such directory, disk I/O), and a
// general one with the number for any other. The system's own text is not
// shown: it is English.
QString FileErrorDescription(int code);

}  // namespace veroxia
