#pragma once
// The record layouts of the submission file, as data. A volume holds a header
// record ("1"), then for each insured person a record "2" followed by one
// record "3" per employee line, and the line "EOF". Every record ends with
// CR LF. The two kinds of declaration differ only in what these tables say.

#include <QString>
#include <vector>

#include "store/kind.h"

namespace veroxia {

enum class FieldFormat {
  kDigits,   // the trimmed text without "." and ",", zeros on the left to the width
  kAmount,   // "##,##0.00", then as kDigits: two implied decimals
  kText,     // the trimmed text, blanks on the right to the width
  kDate,     // ddmmyyyy: the trimmed date without "/", zeros on the left; 8 blanks when empty
  kAmka,     // blanks when empty, else as kDigits
  kMarried,  // "2" when the stored value is "1" (married), else "1"
};

// One field of a record: the box of the printed form it stands for (0: none),
// its first column (1-based) and width, the stored column it comes from.
struct VolumeField {
  int box;
  int start;
  int width;
  const char* column;
  FieldFormat format;
};

struct VolumeLayout {
  Kind kind;
  const char* prefix;  // of the volume names: prefix, then the volume number
  // Header record: "1", the number of volumes, this volume's number, its
  // name, the constant "   01", these fields, then `reserved` blanks.
  std::vector<VolumeField> header;
  int reserved;
  std::vector<VolumeField> person;  // after "2"
  std::vector<VolumeField> line;    // after "3"
  // Bytes of each record with its CR LF, as the volume size is counted.
  int header_bytes;
  int person_bytes;
  int line_bytes;
  int estimate_bytes;       // per line, in the estimate of the number of volumes
  int margin;               // a line starts a new volume when fewer bytes are left
  const char* date_column;  // the submission date, required before writing
};

inline constexpr int kVolumeBytes = 1'400'000;

const VolumeLayout& VolumeLayoutOf(Kind kind);

}  // namespace veroxia
