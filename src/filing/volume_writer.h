#pragma once
// Writes a declaration's submission file from the store: one or more volumes
// of fixed-width records in Windows-1253, each at most 1,400,000 bytes. The
// rows are read once, in the kind's reading order, and every record goes to
// the sink as soon as it is made.

#include <QByteArray>
#include <QString>
#include <QStringEncoder>
#include <optional>
#include <vector>

#include "filing/volume_layout.h"
#include "store/database.h"

namespace veroxia {

// Where the volumes go: a directory of files, or memory in tests.
class VolumeSink {
 public:
  virtual ~VolumeSink() = default;
  // Starts the volume of that name; the one before is complete.
  virtual void Begin(const QString& name) = 0;
  virtual void Write(const QByteArray& bytes) = 0;
  // Every volume is complete.
  virtual void Finish() = 0;
  // The run failed: nothing of it is kept.
  virtual void Abandon() = 0;
};

// A failed file operation: the system's error number and what it means.
struct FileError {
  int code = 0;
  QString description;
};

// A stored text holds a character the code page cannot hold. `row_num` and
// `insured_id` are empty for the header.
struct Unencodable {
  QString row_num;
  QString insured_id;
  QString field;  // the box of the form, or the column where there is none
  QString character;
};

class VolumeWriter {
 public:
  // Counts the declaration's lines and reads its header row. Throws
  // StoreError.
  VolumeWriter(Database& db, Kind kind, int id);

  bool HasHeader() const { return header_.has_value(); }
  // The submission date as stored, trimmed.
  QString SubmissionDate() const;
  // The number of volumes written into every header: an estimate from the
  // number of lines, whatever the run really produces.
  int EstimatedVolumes() const { return estimated_; }

  // Writes every volume into the sink and finishes it; answers the number of
  // volumes. The header row must exist. Throws StoreError, FileError or
  // Unencodable; the sink is then left for the caller to abandon.
  int Write(VolumeSink& sink);

 private:
  struct Bound {
    const VolumeField* field;
    int column;  // in the query's result; -1: not there (Null)
  };
  std::vector<Bound> Bind(const std::vector<VolumeField>& fields, const Statement& rows) const;
  // Appends the fields of a record made from the line the rows stand on.
  void Append(QByteArray& record, const std::vector<Bound>& fields, const Statement& rows);
  // Appends one field through the code page; throws Unencodable naming the
  // line (none: the header) when a character has no place in it.
  void AppendField(QByteArray& record, const VolumeField& field, const Text& value,
                   const Statement* line);
  Text HeaderValue(const char* column) const;
  QByteArray HeaderRecord(int volume, const QString& name) const;
  QString VolumeName(int volume) const;

  Database& db_;
  const VolumeLayout& layout_;
  int id_;
  int estimated_ = 1;
  // The header row's values, by column name; none when the row is missing.
  std::optional<std::vector<std::pair<QString, Text>>> header_;
  QByteArray header_bytes_;  // the fields after the volume's own, built once
  QStringEncoder encoder_;
};

// The volume number as it stands in names and headers: two digits below 10
// ("01"), plain decimal from 10 on.
QString VolumeNumber(int volume);

// The text of one field as the submission file holds it. Never cut: a longer
// value is written whole.
QString FormatField(const VolumeField& field, const Text& value);

}  // namespace veroxia
