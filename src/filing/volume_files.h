#pragma once
// The volumes as files in a directory. Each is written to a temporary file
// beside its final name and renamed only when the run ends: a volume file is
// never seen half-written, and a file of the same name from an earlier run
// stays as it was until its replacement is complete.

#include <QSaveFile>
#include <QString>
#include <memory>
#include <vector>

#include "filing/volume_writer.h"

namespace veroxia {

class VolumeFiles : public VolumeSink {
 public:
  explicit VolumeFiles(QString directory);
  ~VolumeFiles() override;

  void Begin(const QString& name) override;
  void Write(const QByteArray& bytes) override;
  void Finish() override;
  void Abandon(bool keep_completed) override;

  // The full path of a volume of that name in the directory.
  QString PathOf(const QString& name) const;

 private:
  void Flush();
  [[noreturn]] void Fail(const QFileDevice& file, int saved_errno) const;

  QString directory_;
  std::vector<std::unique_ptr<QSaveFile>> files_;
  QByteArray pending_;  // written in large pieces
};

// What a file error number means to the user, in our words: for the errors a
// user can meet (no room, no permission, no such directory, disk I/O), and a
// general one with the number for any other. The system's own text is not
// shown: it is English.
QString FileErrorDescription(int code);

}  // namespace veroxia
