#include "filing/volume_check.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <map>

#include "filing/texts.h"
#include "filing/volume_files.h"
#include "filing/volume_layout.h"
#include "filing/volume_writer.h"
#include "rules/texts.h"
#include "shell/errors.h"
#include "shell/file_names.h"
#include "shell/texts.h"
#include "store/declarations.h"

namespace veroxia {

using namespace Qt::StringLiterals;

const QString kVolumesBroken =
    u"ΠΡΟΣΟΧΗ!! Οι τόμοι του αρχείου Ξ.Ρ.Φ. δεν είναι σωστοί (δείτε τον έλεγχο τόμων)."_s;

namespace {

constexpr qint64 kPiece = 1 << 18;    // read at a time
constexpr qsizetype kLongest = 4096;  // of a record kept whole: no layout comes near it
constexpr qsizetype kOwnColumn = 3;   // the volume's own number and name start after "1" and
                                      // the number of volumes

// What a byte of a record can be: of the code page, one it leaves undefined
// (the system's converter decodes most of these as control characters, so
// it cannot be the judge), or a CR, which only ends a record.
enum ByteClass : unsigned char { kPlain, kForeign, kCr };

constexpr std::array<ByteClass, 256> ByteClasses() {
  std::array<ByteClass, 256> classes{};
  for (const int byte : {0x81, 0x88, 0x8A, 0x8C, 0x8D, 0x8E, 0x8F, 0x90, 0x98, 0x9A, 0x9C, 0x9D,
                         0x9E, 0x9F, 0xAA, 0xD2, 0xFF}) {
    classes[byte] = kForeign;
  }
  classes['\r'] = kCr;
  return classes;
}
constexpr std::array<ByteClass, 256> kClasses = ByteClasses();

// The place of the first foreign byte of the record (-1: none), and whether
// it holds a CR. Sixteen bytes at a time, in the compiler's vectors: only
// sixteen that may hold one of them are looked at one by one; the last
// sixteen may overlap those before.
struct Scan {
  qsizetype foreign = -1;
  bool cr = false;
};
using Bytes16 = unsigned char __attribute__((vector_size(16)));
Scan ScanBytes(QByteArrayView bytes) {
  const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
  const qsizetype size = bytes.size();
  Scan scan;
  const auto look = [&](qsizetype from, qsizetype to) {
    for (qsizetype i = from; i < to; ++i) {
      const ByteClass c = kClasses[data[i]];
      if (c == kForeign && scan.foreign < 0) scan.foreign = i;
      if (c == kCr) scan.cr = true;
    }
  };
  const auto block = [&](qsizetype at) {
    Bytes16 v;
    std::memcpy(&v, data + at, 16);
    // Every byte the code page leaves undefined is from 0x80 to 0xAF, or
    // 0xD2 or 0xFF: Greek letters pass.
    const auto marked =
        (static_cast<Bytes16>(v - 0x80) < 0x30) | (v == 0xD2) | (v == 0xFF) | (v == '\r');
    std::uint64_t halves[2];
    std::memcpy(halves, &marked, 16);
    if ((halves[0] | halves[1]) != 0) look(at, at + 16);
  };
  if (size < 16) {
    look(0, size);
    return scan;
  }
  qsizetype i = 0;
  for (; i + 16 <= size; i += 16) block(i);
  if (i < size) block(size - 16);
  return scan;
}

VolumeFinding Finding(int volume, int record, VolumeFault fault, qint64 found = 0,
                      qint64 wanted = 0, QString detail = {}) {
  return {volume, record, fault, found, wanted, std::move(detail)};
}

// The part of the bytes from `from`, of `n` bytes or to the end; empty
// where the bytes are shorter.
QByteArrayView Part(QByteArrayView bytes, qsizetype from, qsizetype n = -1) {
  if (from >= bytes.size()) return {};
  const qsizetype rest = bytes.size() - from;
  return bytes.sliced(from, n < 0 || n > rest ? rest : n);
}

// The field of the insured person's register number in a record "2".
const VolumeField& IdField(const VolumeLayout& layout) {
  for (const VolumeField& field : layout.person) {
    if (std::strcmp(field.column, "insured_id") == 0) return field;
  }
  return layout.person.front();
}

// The header fields compared with the stored declaration's: its period, ids
// and totals.
struct Compared {
  const char* column;
  const QString& name;
};
const std::vector<Compared>& ComparedFields(Kind kind) {
  using namespace filing_texts;
  static const std::vector<Compared> common{
      {"declaration_type", kFieldType},   {"orgbra_branch_code", kFieldBranch},
      {"emp_employer_id", kFieldAme},     {"taxation_number", kFieldAfm},
      {"from_month", kFieldFromMonth},    {"from_year", kFieldFromYear},
      {"to_month", kFieldToMonth},        {"to_year", kFieldToYear},
      {"total_days", kFieldDays},         {"total_salaries", kFieldWages},
      {"total_contributions", kFieldPaid}};
  static const std::vector<Compared> construction{
      {"declare_type", kFieldType}, {"ovt_code", kFieldBranch},
      {"ame", kFieldAme},           {"amoe", kFieldAmoe},
      {"afm", kFieldAfm},           {"from_month", kFieldMonth},
      {"from_year", kFieldYear},    {"sum_salaries", kFieldWages},
      {"sum_days", kFieldWorkDays}, {"sum_contr", kFieldContributions}};
  return kind == Kind::Common ? common : construction;
}

QString VolumeName(const VolumeLayout& layout, int number) {
  return QLatin1StringView(layout.prefix) + VolumeNumber(number);
}

// The number of volumes the writer writes into every header for so many
// lines: its estimate, made in floating point as it makes it.
int EstimatedVolumes(const VolumeLayout& layout, int lines) {
  return static_cast<int>(
             (static_cast<double>(lines) * layout.estimate_bytes + layout.header_bytes) /
             kVolumeBytes) +
         1;
}

// Hands each record of the file to `take` as it is read: its bytes before
// the LF (of a record longer than kLongest the first kLongest and the last
// piece's), its full length, and whether an LF ends it. Answers why, in our
// words, when the file cannot be read.
template <class Take>
std::optional<QString> ReadRecords(QFile& file, qint64& size, Take&& take) {
  QByteArray buffer(kLongest + kPiece, Qt::Uninitialized);
  qsizetype kept = 0;  // the record not yet ended, at the front of the buffer
  qint64 dropped = 0;  // bytes of it dropped for its length
  size = 0;
  for (;;) {
    const qint64 got = file.read(buffer.data() + kept, kPiece);
    if (got < 0) return FileErrorDescription(errno);
    if (got == 0) break;
    size += got;
    const char* start = buffer.constData();
    const char* from = start + kept;
    const char* const end = from + got;
    while (const auto* lf = static_cast<const char*>(std::memchr(from, '\n', end - from))) {
      take(QByteArrayView(start, lf), (lf - start) + dropped, true);
      dropped = 0;
      start = from = lf + 1;
    }
    kept = end - start;
    if (kept > kLongest) {
      dropped += kept - kLongest;
      kept = kLongest;
    }
    std::memmove(buffer.data(), start, static_cast<size_t>(kept));
  }
  if (kept > 0 || dropped > 0) {
    take(QByteArrayView(buffer.constData(), kept), kept + dropped, false);
  }
  return std::nullopt;
}

// Reads the volumes of one kind in number order, keeping from one to the
// next only what the next is compared with: the first header, and the
// register number of the last person.
class Checker {
 public:
  Checker(const VolumeLayout& layout, VolumeCheck& check)
      : layout_(layout), check_(check), id_field_(IdField(layout)) {}

  void Volume(const QString& path, VolumeSummary& summary);
  void End();
  // The first header read; empty when none.
  const QByteArray& FirstHeader() const { return first_header_; }
  // Keeps the finding, unless kKeptFindings of its volume (or of the set)
  // are kept already.
  void Add(VolumeFinding finding);

 private:
  void Fault(VolumeFault fault, qint64 found = 0, qint64 wanted = 0, QString detail = {}) {
    Add(Finding(summary_->number, record_, fault, found, wanted, std::move(detail)));
  }
  void Record(QByteArrayView bytes, qint64 length, bool ended);
  void Header(QByteArrayView record);

  const VolumeLayout& layout_;
  VolumeCheck& check_;
  const VolumeField& id_field_;
  int set_kept_ = 0;
  QByteArray first_header_;
  int first_header_volume_ = 0;
  int end_volume_ = 0;  // the volume that ends the file, once read
  int lines_to_end_ = 0;
  int previous_volume_ = 0;
  QByteArray last_person_;  // the register number of the last record "2" read
  // The volume being read.
  VolumeSummary* summary_ = nullptr;
  int record_ = 0;
  char type_ = 0;      // of the record before; 'E' for "EOF"
  int person_at_ = 0;  // the record "2" whose lines are read
  int records_2_ = 0;
  bool after_eof_ = false;
};

void Checker::Add(VolumeFinding finding) {
  if (summary_ != nullptr && finding.volume == summary_->number) {
    if (++summary_->faults <= kKeptFindings) check_.findings.push_back(std::move(finding));
  } else if (set_kept_ < kKeptFindings) {
    ++set_kept_;
    check_.findings.push_back(std::move(finding));
  } else {
    ++check_.dropped;
  }
}

void Checker::Volume(const QString& path, VolumeSummary& summary) {
  summary_ = &summary;
  record_ = 0;
  type_ = 0;
  person_at_ = 0;
  records_2_ = 0;
  after_eof_ = false;
  const bool follows = previous_volume_ == summary.number - 1;
  if (!follows) last_person_.clear();
  previous_volume_ = summary.number;

  QFile file(path);
  std::optional<QString> error;
  errno = 0;
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
    error = FileErrorDescription(errno != 0 ? errno : static_cast<int>(file.error()));
  } else {
    error = ReadRecords(
        file, summary.bytes,
        [this](QByteArrayView bytes, qint64 length, bool ended) { Record(bytes, length, ended); });
  }
  record_ = 0;
  if (error) {
    Fault(VolumeFault::kUnreadable, 0, 0, *error);
    return;
  }
  if (summary.bytes == 0) Fault(VolumeFault::kNoHeader);
  if (type_ == '2') Add(Finding(summary.number, person_at_, VolumeFault::kPersonWithoutLines));
  if (!after_eof_) Fault(VolumeFault::kNoEof);
  if (summary.bytes > kVolumeBytes) Fault(VolumeFault::kTooLarge, summary.bytes, kVolumeBytes);
  check_.persons += summary.persons;
  check_.lines += summary.lines;
  if (end_volume_ != 0) {
    Fault(VolumeFault::kExtra, end_volume_);
    return;
  }
  // The writer starts a new volume only when the next line might not fit:
  // a whole volume with room left ends the file.
  const qint64 counted = layout_.header_bytes + qint64{records_2_} * layout_.person_bytes +
                         qint64{summary.lines} * layout_.line_bytes;
  if (summary.faults == 0 && counted + layout_.margin <= kVolumeBytes) {
    end_volume_ = summary.number;
    lines_to_end_ = check_.lines;
  }
}

void Checker::Record(QByteArrayView bytes, qint64 length, bool ended) {
  ++record_;
  if (after_eof_) {
    if (type_ == 'E') Fault(VolumeFault::kAfterEof);
    type_ = 0;
    return;
  }
  QByteArrayView content = bytes;
  if (!ended) {
    Fault(VolumeFault::kCut);
  } else if (content.endsWith('\r')) {
    content.chop(1);
    --length;
  } else {
    Fault(VolumeFault::kBareLf);
  }
  if (const Scan scan = ScanBytes(content); scan.foreign >= 0 || scan.cr) {
    if (scan.cr) Fault(VolumeFault::kBareCr);
    if (scan.foreign >= 0) {
      Fault(VolumeFault::kForeignByte, static_cast<unsigned char>(content[scan.foreign]),
            scan.foreign + 1);
    }
  }
  if (content == "EOF") {
    if (type_ == '2') Add(Finding(summary_->number, person_at_, VolumeFault::kPersonWithoutLines));
    if (record_ == 1) Fault(VolumeFault::kNoHeader);
    after_eof_ = true;
    type_ = 'E';
    return;
  }
  if (!ended) {  // a record cut short is not read further
    type_ = 0;
    return;
  }
  const char type = content.isEmpty() ? char{0} : content.front();
  if (record_ == 1 && type != '1') Fault(VolumeFault::kNoHeader);
  int wanted = 0;
  switch (type) {
    case '1':
      wanted = layout_.header_bytes;
      if (record_ == 1) {
        Header(content);
      } else {
        Fault(VolumeFault::kHeaderElsewhere);
      }
      break;
    case '2': {
      wanted = layout_.person_bytes;
      if (type_ == '2') {
        Add(Finding(summary_->number, person_at_, VolumeFault::kPersonWithoutLines));
      }
      person_at_ = record_;
      ++records_2_;
      // A person whose lines go on from the volume before is named again
      // at the top of this one: counted once.
      const QByteArrayView id = Part(content, id_field_.start - 1, id_field_.width);
      if (record_ != 2 || last_person_.isEmpty() || id != QByteArrayView(last_person_)) {
        ++summary_->persons;
      }
      last_person_.resize(id.size());  // kept in place from one person to the next
      std::memcpy(last_person_.data(), id.data(), static_cast<size_t>(id.size()));
      break;
    }
    case '3':
      wanted = layout_.line_bytes;
      if (type_ != '2' && type_ != '3') Fault(VolumeFault::kLineWithoutPerson);
      ++summary_->lines;
      break;
    default:
      Fault(VolumeFault::kUnknownType, static_cast<unsigned char>(type), length);
      type_ = 0;
      return;
  }
  wanted -= 2;  // the layouts count the line end
  if (length != wanted) Fault(VolumeFault::kLength, length, wanted);
  type_ = type;
}

void Checker::Header(QByteArrayView record) {
  const QByteArray own = (VolumeNumber(summary_->number) + summary_->name).toLatin1();
  const QByteArrayView held = Part(record, kOwnColumn, own.size());
  if (held != own) Fault(VolumeFault::kHeaderNames, 0, 0, QString::fromLatin1(held));
  if (first_header_volume_ == 0) {
    first_header_ = record.toByteArray();
    first_header_volume_ = summary_->number;
    return;
  }
  // The same as the first volume's but for this volume's own number and
  // name: the first column where it is not, and the field there.
  const QByteArrayView first(first_header_);
  const qsizetype first_own =
      (VolumeNumber(first_header_volume_) + VolumeName(layout_, first_header_volume_)).size();
  const auto differs = [](QByteArrayView a, QByteArrayView b) -> qsizetype {
    const qsizetype n = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < n; ++i) {
      if (a[i] != b[i]) return i;
    }
    return a.size() == b.size() ? -1 : n;
  };
  qsizetype at = differs(Part(record, 0, kOwnColumn), Part(first, 0, kOwnColumn));
  if (at < 0) {
    at = differs(Part(record, kOwnColumn + own.size()), Part(first, kOwnColumn + first_own));
    if (at >= 0) at += kOwnColumn + own.size();
  }
  if (at < 0) return;
  const qint64 column = at + 1;
  QString field;
  for (const VolumeField& f : layout_.header) {
    if (column >= f.start && column < f.start + f.width) field = QLatin1StringView(f.column);
  }
  Fault(VolumeFault::kHeaderDiffers, first_header_volume_, column, field);
}

void Checker::End() {
  summary_ = nullptr;
  record_ = 0;
  if (first_header_volume_ == 0) return;
  // Every header holds the writer's estimate from the number of lines.
  const int lines = end_volume_ != 0 ? lines_to_end_ : check_.lines;
  const QString estimate = VolumeNumber(EstimatedVolumes(layout_, lines));
  const QByteArray held = first_header_.mid(1, kOwnColumn - 1);
  if (held != estimate.toLatin1()) {
    Add(Finding(0, 0, VolumeFault::kVolumeCount, held.toInt(), EstimatedVolumes(layout_, lines)));
  }
}

}  // namespace

std::optional<VolumeCounts> ExpectedCounts(Database& db, Kind kind, int id) {
  const VolumeLayout& layout = VolumeLayoutOf(kind);
  VolumeCounts counts{kind, 0, 0, {}};
  {
    Rows header = HeaderRow(db, kind, id);
    if (!header->Next()) return std::nullopt;
    for (const Compared& compared : ComparedFields(kind)) {
      for (const VolumeField& field : layout.header) {
        if (std::strcmp(field.column, compared.column) != 0) continue;
        const int column = header->ColumnIndex(QLatin1StringView(field.column));
        counts.header.push_back({&field,
                                 compared.name + u" ("_s + QString::number(field.box) + u')',
                                 FormatField(field, column < 0 ? Text() : header->Value(column))});
      }
    }
  }
  const VolumeField& id_field = IdField(layout);
  // The writer's groups: a person opens at every change of the stored
  // register number against the trimmed one of the person before; an empty
  // one opens a group and so does the line after it. Its volumes are
  // followed too: a person that opens at the top of a volume with the same
  // register number as the one it follows cannot be told from one named
  // again there, and the volumes count it once.
  std::optional<QByteArray> open;  // the trimmed register number of the group open
  QString last_id;                 // as the last record "2" holds it
  qint64 bytes = layout.header_bytes;
  Rows rows = InsuredIdsInOrder(db, kind, id);
  while (rows->Next()) {
    const bool top = bytes + layout.margin > kVolumeBytes;
    if (top) bytes = layout.header_bytes;
    const std::string_view stored = rows->Utf8(0).value_or(std::string_view());
    const bool opens =
        !open || stored != std::string_view(open->constData(), static_cast<size_t>(open->size()));
    if (opens || top) {
      const QString text = QString::fromUtf8(stored.data(), static_cast<qsizetype>(stored.size()));
      const QString held = FormatField(id_field, text);
      if (!top || held != last_id) ++counts.persons;
      last_id = held;
      const QString trimmed = TrimBlanks(text);
      open = trimmed.isEmpty() ? std::nullopt : std::optional(trimmed.toUtf8());
      bytes += layout.person_bytes;
    }
    ++counts.lines;
    bytes += layout.line_bytes;
  }
  return counts;
}

VolumeCheck VerifyVolumes(const QString& directory, std::optional<VolumeCounts> expected) {
  VolumeCheck check;
  check.directory = directory;
  check.expected = expected;
  const QDir dir(directory);
  if (directory.isEmpty() || !dir.exists()) {
    check.findings.push_back(Finding(0, 0, VolumeFault::kNoDirectory));
    return check;
  }
  // Whatever volumes a write cut short left, they are not to be trusted.
  if (!UnfinishedWrites(directory).isEmpty()) {
    check.findings.push_back(Finding(0, 0, VolumeFault::kUnfinished));
    return check;
  }
  const FoundVolumes found = FindVolumes(directory);
  const bool* seen = found.seen;
  if (seen[0] == seen[1]) {
    check.findings.push_back(
        Finding(0, 0, seen[0] ? VolumeFault::kBothKinds : VolumeFault::kNoVolumes));
    return check;
  }
  const Kind kind = seen[0] ? Kind::Common : Kind::Construction;
  check.kind = kind;
  const VolumeLayout& layout = VolumeLayoutOf(kind);
  Checker checker(layout, check);
  for (const QString& name : found.misnamed) {
    checker.Add(Finding(0, 0, VolumeFault::kBadName, 0, 0, name));
  }
  const std::map<int, QString>& volumes = found.named[seen[0] ? 0 : 1];
  check.volumes.reserve(volumes.size());  // the checker holds on to the one it reads
  int next = 1;
  for (const auto& [number, name] : volumes) {
    if (number > next) checker.Add(Finding(next, 0, VolumeFault::kMissing, number - 1));
    next = number + 1;
    VolumeSummary& summary = check.volumes.emplace_back();
    summary.name = name;
    summary.number = number;
    checker.Volume(dir.filePath(name), summary);
  }
  checker.End();
  if (expected) {
    if (expected->kind != kind) {
      check.findings.push_back(Finding(0, 0, VolumeFault::kOtherKind));
    } else {
      if (check.lines != expected->lines) {
        check.findings.push_back(
            Finding(0, 0, VolumeFault::kLineCount, check.lines, expected->lines));
      }
      if (check.persons != expected->persons) {
        check.findings.push_back(
            Finding(0, 0, VolumeFault::kPersonCount, check.persons, expected->persons));
      }
      // The header's fields as the first volume holds them.
      QStringDecoder decoder("windows-1253", QStringConverter::Flag::Stateless);
      for (const StoredField& stored : expected->header) {
        const QString held = decoder.decode(
            Part(checker.FirstHeader(), stored.field->start - 1, stored.field->width));
        check.header.push_back({stored.label, held, stored.text});
        if (!check.header.back().Agrees()) {
          check.findings.push_back(Finding(0, 0, VolumeFault::kHeaderField, 0, 0, stored.label));
        }
      }
    }
  }
  return check;
}

namespace {

// Our own texts.
const QStringList kColumns{u"ΤΟΜΟΣ"_s, u"ΜΕΓΕΘΟΣ"_s, u"ΑΣΦΑΛΙΣΜΕΝΟΙ"_s, u"ΓΡΑΜΜΕΣ"_s, u"ΕΛΕΓΧΟΣ"_s};
const QString kVolumesWhole = u"Οι τόμοι του αρχείου Ξ.Ρ.Φ. είναι σωστοί."_s;
const QString kTotal = u"ΣΥΝΟΛΟ ΤΟΜΩΝ %1"_s;
const QString kDeclaration = u"ΔΗΛΩΣΗ"_s;
const QString kRight = u"ΣΩΣΤΟ"_s;
const QString kWrong = u"ΛΑΘΟΣ"_s;
const QString kVolume = u"Τόμος %1: "_s;
const QString kVolumeRecord = u"Τόμος %1, εγγραφή %2: "_s;
const QString kMore = u"Τόμος %1: και άλλα %2 λάθη."_s;
const QString kMoreOfTheSet = u"Και άλλα %1 λάθη."_s;

QString FaultText(VolumeFault fault) {
  switch (fault) {
    case VolumeFault::kNoDirectory:
      return filing_texts::kDirectoryMissing;
    case VolumeFault::kUnfinished:
      return filing_texts::kUnfinishedWrite;
    case VolumeFault::kHeaderField:
      return filing_texts::kHeaderFieldDiffers;
    case VolumeFault::kNoVolumes:
      return u"Ο κατάλογος δεν έχει τόμους αρχείου Ξ.Ρ.Φ. (CSL01 ή CSC01 και τους επόμενους)."_s;
    case VolumeFault::kBothKinds:
      return u"Ο κατάλογος έχει τόμους και των δύο ειδών δήλωσης (CSL και CSC)."_s;
    case VolumeFault::kOtherKind:
      return u"Οι τόμοι δεν είναι του είδους της δήλωσης."_s;
    case VolumeFault::kBadName:
      return u"Το αρχείο '%1' δεν έχει όνομα τόμου όπως τα γράφει το πρόγραμμα."_s;
    case VolumeFault::kMissing:
      return u"Λείπει ο τόμος %1."_s;
    case VolumeFault::kExtra:
      return u"περισσεύει, αφού το αρχείο τελειώνει στον τόμο %1."_s;
    case VolumeFault::kVolumeCount:
      return u"Οι επικεφαλίδες γράφουν %1 τόμους, ενώ οι γραμμές των τόμων δίνουν %2."_s;
    case VolumeFault::kLineCount:
      return u"Οι τόμοι έχουν %1 γραμμές εργαζομένων, ενώ η δήλωση έχει %2."_s;
    case VolumeFault::kPersonCount:
      return u"Οι τόμοι έχουν %1 ασφαλισμένους, ενώ η δήλωση έχει %2."_s;
    case VolumeFault::kUnreadable:
      return u"δεν διαβάζεται (%1)."_s;
    case VolumeFault::kTooLarge:
      return u"έχει %1 bytes, περισσότερα από %2."_s;
    case VolumeFault::kNoEof:
      return u"δεν τελειώνει με EOF."_s;
    case VolumeFault::kAfterEof:
      return u"υπάρχουν εγγραφές μετά το EOF."_s;
    case VolumeFault::kLength:
      return u"έχει μήκος %1 αντί για %2 χαρακτήρες."_s;
    case VolumeFault::kUnknownType:
      return u"άγνωστος τύπος εγγραφής '%1'."_s;
    case VolumeFault::kBareLf:
      return u"τελειώνει σε LF χωρίς CR."_s;
    case VolumeFault::kBareCr:
      return u"έχει CR χωρίς LF."_s;
    case VolumeFault::kCut:
      return u"είναι κομμένη: δεν τελειώνει σε CR LF."_s;
    case VolumeFault::kForeignByte:
      return u"το byte 0x%1 στη στήλη %2 δεν ανήκει στην κωδικοσελίδα Windows-1253."_s;
    case VolumeFault::kNoHeader:
      return u"δεν αρχίζει με επικεφαλίδα (εγγραφή τύπου 1)."_s;
    case VolumeFault::kHeaderElsewhere:
      return u"επικεφαλίδα (εγγραφή τύπου 1) μέσα στον τόμο."_s;
    case VolumeFault::kHeaderNames:
      return u"η επικεφαλίδα γράφει '%1' αντί για '%2'."_s;
    case VolumeFault::kHeaderDiffers:
      return u"η επικεφαλίδα διαφέρει από του τόμου %1 στη στήλη %2%3."_s;
    case VolumeFault::kLineWithoutPerson:
      return u"εγγραφή τύπου 3 χωρίς εγγραφή τύπου 2 πριν από αυτήν."_s;
    case VolumeFault::kPersonWithoutLines:
      return u"εγγραφή τύπου 2 χωρίς εγγραφές τύπου 3."_s;
  }
  return {};
}

QString FindingText(const VolumeFinding& f, const VolumeLayout& layout) {
  const QString name = VolumeName(layout, f.volume);
  QString what = FaultText(f.fault);
  switch (f.fault) {
    case VolumeFault::kBadName:
    case VolumeFault::kUnreadable:
    case VolumeFault::kHeaderField:
      what = what.arg(f.detail);
      break;
    case VolumeFault::kMissing:
      what = f.found > f.volume ? u"Λείπουν οι τόμοι %1 έως %2."_s.arg(
                                      name, VolumeName(layout, static_cast<int>(f.found)))
                                : what.arg(name);
      break;
    case VolumeFault::kExtra:
      what = what.arg(VolumeName(layout, static_cast<int>(f.found)));
      break;
    case VolumeFault::kForeignByte:
      what = what.arg(QString::number(f.found, 16).toUpper()).arg(f.wanted);
      break;
    case VolumeFault::kUnknownType:
      // The type as it reads, unless it is no printable character.
      what = f.wanted == 0 ? u"κενή εγγραφή."_s
             : f.found > 0x20 && f.found < 0x7f
                 ? what.arg(QChar(static_cast<char16_t>(f.found)))
                 : what.arg(u"0x"_s + QString::number(f.found, 16).toUpper());
      break;
    case VolumeFault::kHeaderNames:
      what = what.arg(f.detail, VolumeNumber(f.volume) + name);
      break;
    case VolumeFault::kHeaderDiffers:
      what = what.arg(VolumeName(layout, static_cast<int>(f.found)))
                 .arg(f.wanted)
                 .arg(f.detail.isEmpty() ? QString() : u" ("_s + f.detail + u')');
      break;
    case VolumeFault::kVolumeCount:
    case VolumeFault::kLineCount:
    case VolumeFault::kPersonCount:
    case VolumeFault::kTooLarge:
    case VolumeFault::kLength:
      what = what.arg(f.found).arg(f.wanted);
      break;
    default:
      break;
  }
  if (f.volume == 0 || f.fault == VolumeFault::kMissing) return what;
  return (f.record > 0 ? kVolumeRecord.arg(name).arg(f.record) : kVolume.arg(name)) + what;
}

ReportRow Row(const QString& label, const QString& bytes, int persons, int lines, bool right,
              int faults = 0) {
  return {{label, bytes, QString::number(persons), QString::number(lines),
           right ? kRight : kWrong + (faults > 0 ? u": "_s + QString::number(faults) : QString())},
          right};
}

}  // namespace

Report VolumeCheckWindow(const VolumeCheck& check) {
  const VolumeLayout& layout = VolumeLayoutOf(check.kind.value_or(Kind::Common));
  Report report;
  report.title = kVolumesTitle;
  report.columns = kColumns;
  qint64 bytes = 0;
  for (const VolumeSummary& volume : check.volumes) {
    bytes += volume.bytes;
    report.rows.push_back(Row(volume.name, QString::number(volume.bytes), volume.persons,
                              volume.lines, volume.faults == 0, volume.faults));
    for (const VolumeFinding& f : check.findings) {
      if (f.volume == volume.number && f.fault != VolumeFault::kMissing) {
        report.notes << FindingText(f, layout);
      }
    }
    if (volume.faults > kKeptFindings) {
      report.notes << kMore.arg(volume.name).arg(volume.faults - kKeptFindings);
    }
  }
  report.rows.push_back(Row(kTotal.arg(check.volumes.size()), QString::number(bytes), check.persons,
                            check.lines, check.AllHold()));
  if (check.expected && check.kind == check.expected->kind) {
    report.rows.push_back(
        Row(kDeclaration, QString(), check.expected->persons, check.expected->lines,
            check.expected->persons == check.persons && check.expected->lines == check.lines));
  }
  if (!check.header.empty()) {
    report.rows.push_back({{filing_texts::kHeaderHeading, filing_texts::kInVolumes,
                            filing_texts::kInDeclaration, QString(), QString()},
                           true});
  }
  for (const HeaderComparison& field : check.header) {
    report.rows.push_back(
        {{field.label, field.in_volumes, field.stored, QString(),
          field.Agrees() ? filing_texts::kFieldAgrees : filing_texts::kFieldDiffers},
         field.Agrees()});
  }
  for (const VolumeFinding& f : check.findings) {
    const bool own = std::any_of(check.volumes.begin(), check.volumes.end(),
                                 [&](const VolumeSummary& v) { return v.number == f.volume; });
    if (!own || f.fault == VolumeFault::kMissing) report.notes << FindingText(f, layout);
  }
  if (check.dropped > 0) report.notes << kMoreOfTheSet.arg(check.dropped);
  report.verdict = check.AllHold() ? kVolumesWhole : kVolumesBroken;
  return report;
}

void CheckVolumes(Vars& vars, Dialogs& dialogs, Kind kind) {
  vars.DialogResult.clear();
  vars.DialogResult = dialogs.AskDirectory(DirPurpose::kCheckVolumes);
  if (vars.DialogResult.trimmed().isEmpty()) return;
  std::optional<VolumeCheck> check;
  std::optional<StoreError> failure;
  {
    BusyPointer busy(dialogs);
    try {
      const std::optional<VolumeCounts> expected =
          ExpectedCounts(*vars.StoreConnection, kind, vars.DeclarationId);
      check = VerifyVolumes(vars.DialogResult, expected);
    } catch (const StoreError& error) {
      failure = error;
    }
  }
  if (failure) {
    dialogs.Message(ErrorMessage(kVolumesNotChecked, *failure), texts::kAppTitle);
    return;
  }
  Report report = VolumeCheckWindow(*check);
  if (check->expected) {
    report.file_name =
        DeclarationFileName(kind, vars.DeclarationId, vars.PeriodFrom, vars.PeriodTo, u"txt"_s);
  }
  dialogs.ShowReport(report);
}

}  // namespace veroxia
