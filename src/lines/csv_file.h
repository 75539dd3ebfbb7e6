#pragma once
// Comma-separated files as spreadsheets here write them: fields parted by ";"
// or ",", quoted or not (a quote inside a quoted field doubled), lines ended
// by CR LF or LF, the text in UTF-8 (with or without its byte-order mark) or
// in Windows-1253. How a file is written is found by reading it, never asked.

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

namespace veroxia {

enum class CsvEncoding { kUtf8, kUtf8Bom, kWindows1253 };

// The encoding's name as the user reads it.
QString CsvEncodingName(CsvEncoding encoding);

// One record of the file: its fields, and the line of the file it starts on
// (the first line is 1). A record that cannot be read as it stands carries
// what is wrong, and the field where (-1: the record as a whole).
struct CsvRecord {
  qint64 line = 0;
  QStringList fields;
  QString fault;
  int fault_field = -1;
};

class CsvReader {
 public:
  explicit CsvReader(QString path);

  // Reads the whole file once, to learn its encoding, and its first line for
  // the separator. Answers why the file cannot be read as a CSV file (it is
  // missing, empty, or neither UTF-8 nor Windows-1253 text), or nothing.
  QString Open();

  CsvEncoding Encoding() const { return encoding_; }
  char Separator() const { return separator_; }
  qint64 Size() const { return size_; }
  // How far into the file the records read so far reach, in bytes.
  qint64 Position() const { return consumed_; }

  // The next record that holds anything (lines with empty fields only are
  // passed over); false at the end of the file. A quoted field that never
  // closes is the last record, with its fault; so is a record longer than
  // 1 MiB. A byte-order mark within a field is a fault of its record.
  bool Next(CsvRecord& record);

 private:
  enum class Parse { kRecord, kNeedMore, kEnd };
  Parse ParseRecord(CsvRecord& record);
  bool Fill();
  QString Decode(const char* begin, const char* end, QString& fault) const;

  QString path_;
  QFile file_;
  qint64 size_ = 0;
  CsvEncoding encoding_ = CsvEncoding::kUtf8;
  char separator_ = ';';
  QByteArray buffer_;    // bytes read and not yet made into records
  qint64 consumed_ = 0;  // bytes of the file made into records
  qint64 line_ = 1;      // the line the next record starts on
  bool at_end_ = false;  // the whole file is in the buffer
};

// One line of a CSV file, CR LF ended: a field is quoted when it holds the
// separator, a quote, a line break or blanks at either end.
QByteArray CsvLine(const QStringList& fields, char separator);

}  // namespace veroxia
