#include "lines/csv_file.h"

#include <QStringDecoder>
#include <array>

#include "lines/import_texts.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;
using namespace import_texts;

constexpr qint64 kChunk = 1 << 20;
// A record longer than this is no record of a spreadsheet (a file without
// line ends, or a quote that never closes and has swallowed the rest).
constexpr qsizetype kLongestRecord = 1 << 20;

// Control characters other than tab, CR and LF mark a file that is no text
// (a workbook, a file in UTF-16).
bool IsControl(unsigned char byte) {
  return byte < 0x20 && byte != '\t' && byte != '\r' && byte != '\n';
}

bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// The length of the well-formed UTF-8 sequence at p (1 to 4 bytes), 0 when
// the bytes there are none; -1 when the bytes end before it can be told.
int Utf8Length(const unsigned char* p, const unsigned char* end) {
  const unsigned char lead = *p;
  if (lead < 0x80) return 1;
  int length = 0;
  unsigned char low = 0x80;
  unsigned char high = 0xBF;  // range of the second byte
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    if (lead == 0xE0) low = 0xA0;   // no overlong forms
    if (lead == 0xED) high = 0x9F;  // no surrogates
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    if (lead == 0xF0) low = 0x90;
    if (lead == 0xF4) high = 0x8F;  // nothing above U+10FFFF
  } else {
    return 0;
  }
  for (int i = 1; i < length; ++i) {
    if (p + i >= end) return -1;
    const unsigned char byte = p[i];
    if (i == 1 ? (byte < low || byte > high) : !IsContinuation(byte)) return 0;
  }
  return length;
}

// Windows-1253 as the code page's decoder reads each byte; a byte the code
// page leaves undefined reads as 0.
const std::array<char16_t, 256>& Windows1253() {
  static const std::array<char16_t, 256> table = [] {
    std::array<char16_t, 256> chars{};
    for (int byte = 0; byte < 256; ++byte) {
      QStringDecoder decoder("windows-1253", QStringConverter::Flag::Stateless);
      const char c = static_cast<char>(byte);
      const QString text = decoder.decode(QByteArrayView(&c, 1));
      const char16_t unit = text.size() == 1 ? text[0].unicode() : 0;
      // The decoder stands in C1 controls and private characters for the
      // bytes the code page leaves out.
      const bool undefined = decoder.hasError() || unit == 0xFFFD ||
                             (unit >= 0x80 && unit < 0xA0) || (unit >= 0xE000 && unit < 0xF900);
      chars[static_cast<size_t>(byte)] = undefined ? 0 : unit;
    }
    return chars;
  }();
  return table;
}

QString Hex(const unsigned char* p, int count) {
  QStringList bytes;
  for (int i = 0; i < count; ++i) bytes << u"%1"_s.arg(p[i], 2, 16, QChar(u'0')).toUpper();
  return bytes.join(u' ');
}

}  // namespace

QString CsvEncodingName(CsvEncoding encoding) {
  switch (encoding) {
    case CsvEncoding::kUtf8:
      return u"UTF-8"_s;
    case CsvEncoding::kUtf8Bom:
      return kUtf8WithBom;
    case CsvEncoding::kWindows1253:
      break;
  }
  return u"Windows-1253"_s;
}

CsvReader::CsvReader(QString path) : path_(std::move(path)), file_(path_) {}

QString CsvReader::Open() {
  if (!file_.exists()) return kNoSuchFile.arg(path_);
  if (!file_.open(QIODevice::ReadOnly)) return kCannotRead.arg(path_);
  size_ = file_.size();
  // The whole file is read once: well-formed UTF-8 sequences against bytes
  // that cannot be UTF-8. Windows-1253 Greek is almost never well-formed
  // UTF-8, and UTF-8 Greek is well-formed throughout; a file of either with a
  // few stray bytes keeps the encoding of the rest, the stray bytes being
  // faults of their records.
  qint64 well_formed = 0;
  qint64 malformed = 0;
  qint64 line = 1;
  QByteArray carry;
  bool first = true;
  while (true) {
    QByteArray chunk = carry + file_.read(kChunk);
    carry.clear();
    const bool last = file_.atEnd();
    if (chunk.isEmpty()) break;
    if (first) {
      first = false;
      if (chunk.startsWith("\xFF\xFE") || chunk.startsWith("\xFE\xFF")) {
        return kNotText.arg(path_, u"UTF-16"_s);
      }
      if (chunk.startsWith("\xEF\xBB\xBF")) encoding_ = CsvEncoding::kUtf8Bom;
    }
    const auto* p = reinterpret_cast<const unsigned char*>(chunk.constData());
    const auto* end = p + chunk.size();
    while (p < end) {
      if (*p < 0x80) {
        if (*p == '\n') ++line;
        if (IsControl(*p)) return kNotText.arg(path_, kControlByte.arg(line).arg(Hex(p, 1)));
        ++p;
        continue;
      }
      const int length = Utf8Length(p, end);
      if (length < 0 && !last) {
        carry = QByteArray(reinterpret_cast<const char*>(p), end - p);
        break;
      }
      if (length > 0) {
        ++well_formed;
        p += length;
      } else {
        ++malformed;
        ++p;
      }
    }
    if (last && carry.isEmpty()) break;
  }
  if (file_.error() != QFileDevice::NoError) return kCannotRead.arg(path_);
  if (encoding_ != CsvEncoding::kUtf8Bom && malformed > 0 && malformed >= well_formed) {
    encoding_ = CsvEncoding::kWindows1253;
  }
  file_.seek(encoding_ == CsvEncoding::kUtf8Bom ? 3 : 0);
  consumed_ = file_.pos();

  // The separator is the one of ";" and "," that parts the names of the
  // first line more often (";" when neither does: one column).
  while (!at_end_ && !buffer_.contains('\n') && buffer_.size() < kLongestRecord) Fill();
  int semicolons = 0;
  int commas = 0;
  bool quoted = false;
  for (const char c : buffer_) {
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    if (c == '\n') break;
    semicolons += c == ';';
    commas += c == ',';
  }
  separator_ = commas > semicolons ? ',' : ';';
  return {};
}

bool CsvReader::Fill() {
  if (at_end_) return false;
  const QByteArray more = file_.read(kChunk);
  if (more.isEmpty()) {
    at_end_ = true;
    return false;
  }
  buffer_ += more;
  return true;
}

bool CsvReader::Next(CsvRecord& record) {
  while (true) {
    switch (ParseRecord(record)) {
      case Parse::kEnd:
        return false;
      case Parse::kNeedMore:
        if (buffer_.size() > kLongestRecord) {
          // Nothing further can be read as records of this file.
          record.fields.clear();
          record.fault = kRecordTooLong;
          record.fault_field = -1;
          consumed_ = size_;
          buffer_.clear();
          at_end_ = true;
          file_.close();
          return true;
        }
        Fill();
        continue;
      case Parse::kRecord:
        break;
    }
    bool empty = record.fault.isEmpty();
    for (const QString& field : record.fields) empty = empty && field.isEmpty();
    if (!empty) return true;
  }
}

// Reads one record from the start of the buffer. kNeedMore when the buffer
// ends inside it and more of the file is to come.
CsvReader::Parse CsvReader::ParseRecord(CsvRecord& record) {
  const char* const begin = buffer_.constData();
  const char* const end = begin + buffer_.size();
  if (begin == end) return at_end_ ? Parse::kEnd : Parse::kNeedMore;
  record.fields.clear();
  record.fault.clear();
  record.fault_field = -1;
  record.line = line_;
  qint64 lines = 0;
  const char* p = begin;
  QString fault;
  while (true) {
    QString value;
    if (*p == '"') {
      // A quoted field: up to the quote not doubled.
      QByteArray bytes;
      const char* from = ++p;
      while (true) {
        while (p < end && *p != '"') {
          lines += *p == '\n';
          ++p;
        }
        if (p == end || (p + 1 == end && !at_end_)) {
          if (!at_end_) return Parse::kNeedMore;
          if (p == end) {
            record.fault = kUnclosedQuote;
            record.fault_field = static_cast<int>(record.fields.size());
            record.fields << Decode(from, end, fault);
            consumed_ = size_;
            buffer_.clear();
            return Parse::kRecord;
          }
        }
        bytes.append(from, p - from);
        if (p + 1 < end && p[1] == '"') {
          bytes += '"';
          p += 2;
          from = p;
          continue;
        }
        ++p;  // the closing quote
        break;
      }
      value = Decode(bytes.constData(), bytes.constData() + bytes.size(), fault);
      if (p < end && *p != separator_ && *p != '\r' && *p != '\n') {
        // Text after the closing quote: the field is read up to the
        // separator and marked.
        const char* from = p;
        while (p < end && *p != separator_ && *p != '\r' && *p != '\n') ++p;
        if (p == end && !at_end_) return Parse::kNeedMore;
        value += Decode(from, p, fault);
        if (record.fault.isEmpty()) {
          record.fault = kTextAfterQuote;
          record.fault_field = static_cast<int>(record.fields.size());
        }
      }
    } else {
      const char* from = p;
      while (p < end && *p != separator_ && *p != '\r' && *p != '\n') ++p;
      if (p == end && !at_end_) return Parse::kNeedMore;
      value = Decode(from, p, fault);
    }
    if (!fault.isEmpty() && record.fault.isEmpty()) {
      record.fault = fault;
      record.fault_field = static_cast<int>(record.fields.size());
    }
    fault.clear();
    record.fields << value;
    if (p == end) break;  // the last line of the file, without its end
    if (*p == separator_) {
      ++p;
      if (p == end) {
        if (!at_end_) return Parse::kNeedMore;
        record.fields << QString();
        break;
      }
      continue;
    }
    // The end of the line: CR LF, LF, or a CR alone.
    if (*p == '\r') {
      if (p + 1 == end && !at_end_) return Parse::kNeedMore;
      if (p + 1 < end && p[1] == '\n') ++p;
    }
    ++p;
    ++lines;
    break;
  }
  const qsizetype used = p - begin;
  consumed_ += used;
  line_ += lines;
  buffer_.remove(0, used);
  return Parse::kRecord;
}

// The field's text; a byte sequence the file's encoding cannot read is told
// in `fault` (the field then reads as far as it can).
QString CsvReader::Decode(const char* begin, const char* end, QString& fault) const {
  const auto* p = reinterpret_cast<const unsigned char*>(begin);
  const auto* stop = reinterpret_cast<const unsigned char*>(end);
  if (encoding_ == CsvEncoding::kWindows1253) {
    const std::array<char16_t, 256>& table = Windows1253();
    QString text(stop - p, Qt::Uninitialized);
    QChar* out = text.data();
    for (const auto* at = p; at < stop; ++at) {
      const char16_t c = *at < 0x80 ? static_cast<char16_t>(*at) : table[*at];
      if (c == 0 && *at != 0 && fault.isEmpty()) {
        fault = kBadBytes.arg(CsvEncodingName(encoding_), Hex(at, 1));
      }
      *out++ = QChar(c == 0 ? u'\uFFFD' : c);
    }
    return text;
  }
  for (const auto* at = p; at < stop;) {
    if (*at < 0x80) {
      ++at;
      continue;
    }
    const int length = Utf8Length(at, stop);
    if (length <= 0) {
      int count = 1;
      while (at + count < stop && count < 4 && IsContinuation(at[count])) ++count;
      fault = kBadBytes.arg(CsvEncodingName(encoding_), Hex(at, count));
      break;
    }
    // A byte-order mark belongs before the first line of a file only: in a
    // field it is an invisible character, left where files were joined.
    if (length == 3 && at[0] == 0xEF && at[1] == 0xBB && at[2] == 0xBF && fault.isEmpty()) {
      fault = kBomInField;
    }
    at += length;
  }
  return QString::fromUtf8(begin, end - begin);
}

QByteArray CsvLine(const QStringList& fields, char separator) {
  QByteArray line;
  for (qsizetype i = 0; i < fields.size(); ++i) {
    if (i > 0) line += separator;
    const QByteArray value = fields[i].toUtf8();
    const bool quote = value.contains(separator) || value.contains('"') || value.contains('\n') ||
                       value.contains('\r') ||
                       (!value.isEmpty() && (value.front() == ' ' || value.back() == ' '));
    if (!quote) {
      line += value;
      continue;
    }
    line += '"';
    for (const char c : value) {
      if (c == '"') line += '"';
      line += c;
    }
    line += '"';
  }
  line += "\r\n";
  return line;
}

}  // namespace veroxia
