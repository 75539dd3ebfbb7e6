#pragma once
// The volumes of a submission file read back from a directory (a diskette, a
// CD, a USB stick) before they are sent: every record in its place, of its
// length and type, every byte in the code page, the headers alike, the groups
// whole, each volume within its size, and the counts of persons and lines,
// against the stored declaration when asked. Each volume is read in large
// pieces, one at a time; nothing of a volume is kept but its counts and the
// first of its faults.

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "filing/volume_layout.h"
#include "shell/ports.h"
#include "shell/report.h"
#include "shell/vars.h"
#include "store/database.h"
#include "store/kind.h"

namespace veroxia {

// A field of the header record and the stored declaration's value of it, as
// the writer writes it.
struct StoredField {
  const VolumeField* field = nullptr;
  QString label;  // what it is, and its box
  QString text;
};

// What the volumes of a declaration must hold: its lines (records "3") and
// its persons (records "2", a person named again at the top of a volume
// counted once), and in their header its period, ids and totals.
struct VolumeCounts {
  Kind kind = Kind::Common;
  int persons = 0;
  int lines = 0;
  std::vector<StoredField> header;
};

// The counts and header fields of a stored declaration, its persons grouped
// as the writer groups them; none when the declaration has no header. Throws
// StoreError.
std::optional<VolumeCounts> ExpectedCounts(Database& db, Kind kind, int id);

enum class VolumeFault {
  // The directory and the set of volumes.
  kNoDirectory,
  kUnfinished,  // a write cut short: nothing else is checked
  kNoVolumes,
  kBothKinds,
  kOtherKind,    // the volumes are not of the declaration's kind
  kBadName,      // detail: a file named like a volume, not as the writer names them
  kMissing,      // found: the last volume missing from `volume` on
  kExtra,        // after the volume that ends the file; found: that volume
  kVolumeCount,  // found: the headers' number of volumes; wanted: the one the lines give
  kLineCount,    // found: in the volumes; wanted: stored
  kPersonCount,  // found: in the volumes; wanted: stored
  kHeaderField,  // the header differs from the declaration's; detail: the field
  // One volume.
  kUnreadable,  // detail: the system's words
  kTooLarge,    // found: bytes
  kNoEof,
  kAfterEof,
  // One record.
  kLength,       // found, wanted: characters without the line end
  kUnknownType,  // found: the first byte; wanted: the length (0: an empty record)
  kBareLf,
  kBareCr,
  kCut,          // the last record has no line end
  kForeignByte,  // found: the byte; wanted: its column
  kNoHeader,     // the first record is not a header
  kHeaderElsewhere,
  kHeaderNames,    // detail: the volume number and name the header holds
  kHeaderDiffers,  // from the first volume's; wanted: the column; detail: the field
  kLineWithoutPerson,
  kPersonWithoutLines,
};

struct VolumeFinding {
  int volume = 0;  // 0: the set as a whole
  int record = 0;  // from 1; 0: the volume as a whole
  VolumeFault fault = VolumeFault::kNoVolumes;
  qint64 found = 0;
  qint64 wanted = 0;
  QString detail;
};

struct VolumeSummary {
  QString name;
  int number = 0;
  qint64 bytes = 0;
  int persons = 0;  // records "2", less a person named again at the top
  int lines = 0;    // records "3"
  int faults = 0;   // all found; the first kKeptFindings are in the findings
};

// A field of the first volume's header against the stored declaration's.
struct HeaderComparison {
  QString label;
  QString in_volumes;
  QString stored;
  bool Agrees() const { return in_volumes == stored; }
};

struct VolumeCheck {
  QString directory;
  std::optional<Kind> kind;            // none when no volume, or both kinds, were found
  std::vector<VolumeSummary> volumes;  // those found, in number order
  std::vector<VolumeFinding> findings;
  int dropped = 0;  // findings of the set as a whole beyond the kept ones
  int persons = 0;
  int lines = 0;
  std::optional<VolumeCounts> expected;
  std::vector<HeaderComparison> header;  // with the expected counts of the same kind
  bool AllHold() const { return findings.empty(); }
};

// Findings kept of each volume, and of the set as a whole.
inline constexpr int kKeptFindings = 20;

// Reads and checks the volumes of either kind in the directory, unless it
// holds a write cut short; compares them with the expected counts and header
// fields when given. As the writer writes them, every volume ends with "EOF",
// and a volume is followed by another only when its next line might not have
// fitted: the first whole volume with room left ends the file, and any volume
// after it is extra. The headers are compared with the first volume's.
VolumeCheck VerifyVolumes(const QString& directory,
                          std::optional<VolumeCounts> expected = std::nullopt);

// The report as the user reads it: a row for each volume, the totals, the
// declaration's counts and its header fields; the findings of each volume,
// then those of the set as a whole, as notes.
Report VolumeCheckWindow(const VolumeCheck& check);

// The window's title and the button's caption.
inline const QString kVolumesTitle = QStringLiteral("Έλεγχος τόμων");
// The first line of the message when the declaration's counts could not be
// read.
inline const QString kVolumesNotChecked =
    QStringLiteral("ΠΡΟΣΟΧΗ!! Ο έλεγχος των τόμων δεν έγινε.");

// "Έλεγχος τόμων": the volumes in a directory the user chooses, against the
// declaration being worked on (vars.DeclarationId), in the report's window,
// offered to be saved under the declaration's name. Nothing happens when no
// directory is chosen.
void CheckVolumes(Vars& vars, Dialogs& dialogs, Kind kind);

// What is said when the volumes do not hold.
extern const QString kVolumesBroken;

}  // namespace veroxia
