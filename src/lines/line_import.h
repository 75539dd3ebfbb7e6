#pragma once
// Employee lines brought in from a CSV file, and written out to one.
//
// Each row of the file is typed into the fields of a line screen of the
// declaration's kind and goes through that screen's own checks and its own
// cleaning of the values (LinesForm::LineFault, StoredTexts): what the
// screen would refuse, the import refuses with the same message. The rows
// are stored, numbered on from the declaration's last line, in one
// transaction that is kept only when every row passed; otherwise nothing is
// stored and every failing row is reported at once. A row that repeats a
// line (the kind's identity: register number, payroll month and wage type),
// stored or an earlier row of the file, is reported too and stored only when
// the user agrees. The file is read row by row: memory grows with it only by
// the identities of its lines.

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "lines/csv_file.h"
#include "lines/lines_form.h"
#include "shell/ports.h"
#include "shell/report.h"

namespace veroxia {

// One problem of the file: the line it starts on, the column as the file
// names it, the value as read, and what is wrong.
struct ImportFault {
  qint64 line = 0;
  QString column;
  QString value;
  QString message;
};

// What becomes of the lines a declaration has already.
enum class ImportMode {
  kAppend,   // they stay; the file's rows are numbered on from the last
  kReplace,  // they are deleted, in the same transaction as the rows are stored
};

// The answers the caller gives beforehand; what is not given is asked.
struct ImportAnswers {
  std::optional<ImportMode> mode;    // into a declaration that has lines
  std::optional<bool> keep_repeats;  // store the rows that repeat a line
};

class LineIdentities;

class LineImport {
 public:
  // Faults and warnings kept for the report; more are only counted.
  static constexpr int kKept = 10'000;

  // `form` is a line screen of the declaration's kind, over the store and
  // declaration the lines go to; its fields are used for every row.
  LineImport(LinesForm& form, QString path);
  ~LineImport();
  LineImport(const LineImport&) = delete;
  LineImport& operator=(const LineImport&) = delete;

  // Reads how the file is written and its first line, which names the
  // columns. Why nothing can be imported (the declaration has no header, the
  // file cannot be read, is empty or holds no line after the names, the
  // columns are not the screen's fields), or nothing. Throws StoreError.
  QString Open();
  // The first rows of the file under the fields their columns go to.
  Report Preview(int rows = 10);
  // What becomes of the declaration's lines, `existing` of them (Append
  // unless told).
  void SetMode(ImportMode mode, int existing);
  // Reads, checks and stores every row in one transaction, which it leaves
  // open for Commit. `progress` hears how far it got and may stop it.
  void Run(Progress* progress);
  // Keeps what Run stored. Throws StoreError.
  void Commit();

  bool Cancelled() const { return cancelled_; }
  const std::optional<StoreError>& StoreFailure() const { return store_failure_; }
  qint64 Rows() const { return rows_; }
  qint64 FailedRows() const { return failed_rows_; }
  const std::vector<ImportFault>& Faults() const { return faults_; }
  qint64 WarnedRows() const { return warned_rows_; }
  const std::vector<ImportFault>& Warnings() const { return warnings_; }
  qint64 RepeatedRows() const { return repeated_rows_; }
  const std::vector<ImportFault>& Repeats() const { return repeats_; }
  int FirstRowNum() const { return first_row_num_; }
  int LastRowNum() const { return next_row_num_ - 1; }
  // The lines deleted to be replaced (kept only when committed).
  int Replaced() const { return replaced_; }

  // Every failing row, for the user to read or save.
  Report FaultReport() const;
  // Every wrong check digit.
  Report WarningReport() const;
  // Every row that repeats a line, and the line it repeats.
  Report RepeatReport() const;

 private:
  QString MapColumns(const QStringList& names);
  void Take(const CsvRecord& record);
  void Fault(std::vector<ImportFault>& list, const ImportFault& fault);
  QString ColumnOfField(const QString& field) const;
  // Where the line in the fields was met before, told as a message; nothing
  // when it is the first of its identity.
  std::optional<QString> Repeat(qint64 line);
  void MeetStoredLines();

  LinesForm& form_;
  QString path_;
  CsvReader reader_;
  QStringList names_;                 // the columns as the file names them
  std::vector<int> field_of_;         // the layout field of each column
  std::vector<Control*> boxes_;       // the form's control of each column
  std::vector<int> column_of_field_;  // the column of each layout field
  std::vector<CsvRecord> ahead_;      // rows read before Run (the preview)
  ImportMode mode_ = ImportMode::kAppend;
  int existing_ = 0;
  int replaced_ = 0;
  std::vector<size_t> identity_fields_;  // the layout fields of the identity
  QString identity_captions_;            // their captions, for the messages
  std::unique_ptr<LineIdentities> identities_;
  std::vector<QString> parts_;  // the identity of one line, reused
  std::optional<Transaction> transaction_;
  std::optional<StoreError> store_failure_;
  bool cancelled_ = false;
  qint64 rows_ = 0;
  qint64 failed_rows_ = 0;
  qint64 warned_rows_ = 0;
  qint64 warnings_found_ = 0;
  qint64 repeated_rows_ = 0;
  std::vector<ImportFault> repeats_;
  std::vector<ImportFault> faults_;
  std::vector<ImportFault> warnings_;
  int first_row_num_ = 0;
  int next_row_num_ = 0;
};

// The import as the user meets it: the file chooser unless `path` is given,
// the preview, the progress bar, then the report of every failing row, or
// the questions on repeated lines and on wrong check digits, and the
// outcome. A declaration that has lines already is asked about (Append,
// Replace all, Cancel) and the repeated lines are listed with a button to
// store them, unless `answers` gives the answer. Once lines are stored,
// `stored` is given the number of the first before the user is told. True
// when lines were stored.
bool ImportLines(LinesForm& form, Dialogs& dialogs, QString path = {},
                 const std::function<void(int first)>& stored = {}, ImportAnswers answers = {});

// Writes the declaration's lines, in the order of their numbers, to a CSV file
// of the shape the import reads: UTF-8 with its byte-order mark, ";" between
// fields, the store's column names in the first line, each value as the
// screen shows it. Answers the number of lines. Throws StoreError; a file
// that cannot be written throws StoreError with the system's error number.
int ExportLines(Database& db, Kind kind, int id, const QString& path);

// The export of the declaration of `vars` as the user meets it: the file
// chooser unless `path` is given (offering the declaration's own file name),
// then the outcome. True when written.
bool ExportLinesTo(const Vars& vars, Kind kind, Dialogs& dialogs, QString path = {});

}  // namespace veroxia
