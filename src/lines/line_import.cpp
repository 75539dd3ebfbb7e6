#include "lines/line_import.h"

#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>

#include "filing/plain_field.h"
#include "filing/volume_files.h"
#include "filing/volume_writer.h"
#include "header/date_box.h"
#include "lines/import_texts.h"
#include "lines/line_kinds.h"
#include "lines/texts.h"
#include "rules/check_digits.h"
#include "rules/texts.h"
#include "shell/errors.h"
#include "shell/file_names.h"
#include "shell/texts.h"
#include "store/declarations.h"
#include "store/lines.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;
using namespace import_texts;

// How often the progress is told, in rows.
constexpr qint64 kProgressRows = 256;

// The box number a field is known by on the screen: "19" for Text19,
// "18_1" for Text18_1.
QString BoxOf(const LineField& field) { return field.name.mid(4); }

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }

// What a masked date box can hold typed whole: ##/##/####.
bool IsDateShape(const QString& text) {
  if (text.size() != 10) return false;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if ((i == 2 || i == 5) ? text[i] != u'/' : !IsDigit(text[i])) return false;
  }
  return true;
}

// A number written with dots between its thousands, as spreadsheets here
// show amounts: "1.234.567,89", "-12.000". The screen takes the same number
// typed without them.
bool IsGrouped(const QString& text) {
  const qsizetype comma = text.indexOf(u',');
  const QString whole = text.left(comma < 0 ? text.size() : comma);
  const qsizetype from = whole.startsWith(u'-') ? 1 : 0;
  const qsizetype first_dot = whole.indexOf(u'.');
  if (first_dot < 0 || first_dot == from || first_dot - from > 3) return false;
  for (qsizetype i = from; i < whole.size(); ++i) {
    const bool dot_place = i > first_dot && (i - first_dot) % 4 == 0;
    if (i == first_dot || dot_place ? whole[i] != u'.' : !IsDigit(whole[i])) return false;
  }
  if ((whole.size() - first_dot) % 4 != 0) return false;
  for (qsizetype i = comma + 1; comma >= 0 && i < text.size(); ++i) {
    if (!IsDigit(text[i])) return false;
  }
  return true;
}

// The text the field would show for a value of the file, or in `fault` why
// the field could not hold it.
QString FieldTextOf(const LineField& field, const QString& value, QString& fault) {
  if (value.contains(u'\n') || value.contains(u'\r')) {
    fault = kLineBreak;
    return {};
  }
  if (field.store == StoreAs::Date) {
    const QString date = value.trimmed();
    if (date.isEmpty()) return kEmptyDateBox;
    if (!IsDateShape(date)) fault = kDateShape;
    return date;
  }
  QString text = value;
  if (field.store == StoreAs::Text && IsGrouped(text)) text.remove(u'.');
  if (field.max_length > 0 && text.size() > field.max_length) {
    fault = kTooLong.arg(text.size()).arg(field.max_length);
  }
  return text;
}

// A report of the problems of a file: those kept, one a row, and how many
// more were found.
Report ProblemReport(const QString& title, const std::vector<ImportFault>& kept, qint64 found,
                     const QString& verdict) {
  Report report;
  report.title = title;
  report.columns << kReportLine << kReportColumn << kReportValue << kReportMessage;
  for (const ImportFault& problem : kept) {
    report.rows.push_back(
        {{QString::number(problem.line), problem.column, problem.value, problem.message}, false});
  }
  const auto shown = static_cast<qint64>(kept.size());
  if (found > shown) report.notes << kMoreFaults.arg(shown).arg(found - shown);
  report.verdict = verdict;
  return report;
}

// A part of a line's identity as it is compared: without the blanks around
// it, and a number without its leading zeros ("01" and "1" are one wage
// type).
QString Normal(const QString& part) {
  QString text = part.trimmed();
  if (text.isEmpty() || !std::all_of(text.begin(), text.end(), IsDigit)) return text;
  qsizetype zeros = 0;
  while (zeros + 1 < text.size() && text[zeros] == u'0') ++zeros;
  return text.mid(zeros);
}

// "A, B και C".
QString Listed(const QStringList& items) {
  if (items.size() < 2) return items.join(QString());
  return items.first(items.size() - 1).join(u", "_s) + kAnd + items.last();
}

}  // namespace

// The identities of the lines met so far, and where each was met: a stored
// line by its number, a row of the file by its line there. An identity whose
// parts are each empty or a number that fits its box is packed into one
// number, so that a payroll of them takes little memory and is looked up at
// once; any other is kept as text.
class LineIdentities {
 public:
  struct Origin {
    bool stored = false;
    qint64 number = 0;
  };

  // The longest number each part's box holds, in digits.
  explicit LineIdentities(const std::vector<int>& digits) {
    long double room = 1;
    for (const int width : digits) {
      quint64 base = 1;
      for (int d = 0; d < width; ++d) base *= 10;
      bases_.push_back(base + 1);  // 0 for an empty part, the number plus 1 otherwise
      limits_.push_back(base);
      room *= static_cast<long double>(base + 1);
    }
    packable_ = room < 18e18L;
  }

  // Notes the identity of the normal parts, met at `origin`, and answers
  // where it was met before, if it was. A line whose first part (the
  // person) is empty has no identity.
  std::optional<Origin> Meet(const std::vector<QString>& parts, Origin origin) {
    if (parts.empty() || parts.front().isEmpty()) return std::nullopt;
    const qint64 where = origin.stored ? -1 - origin.number : origin.number;
    qint64 before = 0;
    if (const std::optional<quint64> key = Packed(parts)) {
      const auto it = packed_.constFind(*key);
      if (it == packed_.constEnd()) {
        packed_.insert(*key, where);
        return std::nullopt;
      }
      before = it.value();
    } else {
      const QString text = QStringList(parts.begin(), parts.end()).join(QChar(0x1F));
      const auto it = spelled_.constFind(text);
      if (it == spelled_.constEnd()) {
        spelled_.insert(text, where);
        return std::nullopt;
      }
      before = it.value();
    }
    return before < 0 ? Origin{true, -1 - before} : Origin{false, before};
  }

 private:
  std::optional<quint64> Packed(const std::vector<QString>& parts) const {
    if (!packable_ || parts.size() != bases_.size()) return std::nullopt;
    quint64 key = 0;
    quint64 place = 1;
    for (size_t i = 0; i < parts.size(); ++i) {
      quint64 value = 0;
      if (!parts[i].isEmpty()) {
        bool number = false;
        value = parts[i].toULongLong(&number);
        if (!number || value >= limits_[i]) return std::nullopt;
        ++value;
      }
      key += value * place;
      place *= bases_[i];
    }
    return key;
  }

  std::vector<quint64> bases_;
  std::vector<quint64> limits_;
  bool packable_ = false;
  QHash<quint64, qint64> packed_;
  QHash<QString, qint64> spelled_;
};

LineImport::LineImport(LinesForm& form, QString path)
    : form_(form), path_(std::move(path)), reader_(path_) {
  const LinesLayout& layout = form_.Layout();
  std::vector<int> digits;
  QStringList captions;
  for (const QString& column : layout.identity) {
    for (size_t f = 0; f < layout.fields.size(); ++f) {
      if (layout.fields[f].column != column) continue;
      identity_fields_.push_back(f);
      digits.push_back(layout.fields[f].max_length);
      // The caption up to the box's number: "ΤΥΠΟΣ ΑΠΟΔΟΧΩΝ (36)".
      QString caption = CaptionOf(form_, layout.fields[f].name);
      if (const qsizetype end = caption.indexOf(u')'); end > 0) caption.truncate(end + 1);
      if (!captions.contains(caption)) captions << caption;
    }
  }
  identity_captions_ = Listed(captions);
  identities_ = std::make_unique<LineIdentities>(digits);
  parts_.resize(identity_fields_.size());
}

LineImport::~LineImport() = default;

QString LineImport::Open() {
  {
    veroxia::Rows header = HeaderRow(form_.Store(), form_.Layout().kind, form_.Id());
    if (!header->Next()) return kNoHeader.arg(form_.Id());
  }
  if (QString refusal = reader_.Open(); !refusal.isEmpty()) return refusal;
  CsvRecord names;
  if (!reader_.Next(names)) return kEmptyFile.arg(path_);
  if (QString problem = MapColumns(names.fields); !problem.isEmpty()) return problem;
  CsvRecord first;
  if (!reader_.Next(first)) return kHeaderOnly.arg(path_);
  ahead_.push_back(std::move(first));
  return {};
}

QString LineImport::MapColumns(const QStringList& names) {
  const std::vector<LineField>& fields = form_.Layout().fields;
  QStringList unknown;
  QStringList repeated;
  std::vector<bool> seen(fields.size(), false);
  for (const QString& raw : names) {
    const QString name = raw.trimmed();
    names_ << name;
    const QString key = name.toLower();
    int found = -1;
    for (size_t f = 0; f < fields.size(); ++f) {
      if (fields[f].column == key || BoxOf(fields[f]).toLower() == key) found = static_cast<int>(f);
    }
    if (found < 0) {
      unknown << (name.isEmpty() ? u"\"\""_s : name);
    } else if (seen[static_cast<size_t>(found)]) {
      repeated << name;
    }
    if (found >= 0) seen[static_cast<size_t>(found)] = true;
    field_of_.push_back(found);
  }
  QStringList missing;
  for (size_t f = 0; f < fields.size(); ++f) {
    if (!seen[f]) missing << fields[f].column + u" ("_s + BoxOf(fields[f]) + u')';
  }
  if (unknown.isEmpty() && missing.isEmpty() && repeated.isEmpty()) {
    column_of_field_.assign(fields.size(), 0);
    for (size_t c = 0; c < field_of_.size(); ++c) {
      const auto f = static_cast<size_t>(field_of_[c]);
      boxes_.push_back(&form_.At(fields[f].name));
      column_of_field_[f] = static_cast<int>(c);
    }
    return {};
  }
  QStringList message{kColumnsWrong.arg(path_)};
  if (!unknown.isEmpty()) message << kColumnsUnknown.arg(unknown.join(u", "_s));
  if (!missing.isEmpty()) message << kColumnsMissing.arg(missing.join(u", "_s));
  if (!repeated.isEmpty()) message << kColumnsRepeated.arg(repeated.join(u", "_s));
  message << kColumnsHelp;
  return message.join(u"\r\n"_s);
}

Report LineImport::Preview(int rows) {
  const LinesLayout& layout = form_.Layout();
  CsvRecord record;
  while (static_cast<int>(ahead_.size()) < rows && reader_.Next(record)) ahead_.push_back(record);
  Report report;
  report.title = kPreviewTitle;
  report.columns << kPreviewLine;
  for (size_t c = 0; c < field_of_.size(); ++c) {
    const LineField& field = layout.fields[static_cast<size_t>(field_of_[c])];
    report.columns << names_[static_cast<qsizetype>(c)] + u'\n' + CaptionOf(form_, field.name);
  }
  for (const CsvRecord& row : ahead_) {
    ReportRow shown;
    shown.cells << QString::number(row.line);
    shown.cells << row.fields;
    shown.holds = row.fault.isEmpty() && row.fields.size() == names_.size();
    report.rows.push_back(shown);
  }
  const QString separator = reader_.Separator() == ';' ? u"\";\""_s : u"\",\""_s;
  report.about << kPreviewFile.arg(path_).arg(reader_.Size())
               << kPreviewFormat.arg(CsvEncodingName(reader_.Encoding()), separator)
               << kPreviewRows.arg(ahead_.size());
  if (existing_ > 0) {
    report.about
        << (mode_ == ImportMode::kReplace ? kPreviewReplace : kPreviewAppend).arg(existing_);
  }
  report.verdict = kPreviewVerdict;
  return report;
}

void LineImport::SetMode(ImportMode mode, int existing) {
  mode_ = mode;
  existing_ = existing;
}

void LineImport::MeetStoredLines() {
  QList<QByteArray> columns;
  for (const size_t f : identity_fields_) columns << form_.Layout().fields[f].column.toLatin1();
  ForEachLineColumns(form_.Store(), form_.Layout().kind, form_.Id(), columns,
                     [this](std::optional<int> row_num, const std::vector<Text>& values) {
                       for (size_t i = 0; i < values.size(); ++i) {
                         parts_[i] = Normal(values[i].value_or(QString()));
                       }
                       identities_->Meet(parts_, {true, row_num.value_or(0)});
                     });
}

std::optional<QString> LineImport::Repeat(qint64 line) {
  for (size_t i = 0; i < identity_fields_.size(); ++i) {
    parts_[i] = Normal(form_.Text(form_.Layout().fields[identity_fields_[i]].name));
  }
  const std::optional<LineIdentities::Origin> before = identities_->Meet(parts_, {false, line});
  if (!before) return std::nullopt;
  return (before->stored ? kDuplicateOfStored : kDuplicateInFile).arg(before->number);
}

void LineImport::Run(Progress* progress) {
  try {
    transaction_.emplace(form_.Store());
    if (mode_ == ImportMode::kReplace) {
      replaced_ = DeleteLinesOf(form_.Store(), form_.Layout().kind, form_.Id());
    } else {
      MeetStoredLines();
    }
    first_row_num_ = next_row_num_ = form_.NextRowNum();
    const auto advance = [&] {
      if (progress != nullptr && rows_ % kProgressRows == 0 &&
          !progress->Advance(reader_.Position(), reader_.Size())) {
        cancelled_ = true;
      }
      return !cancelled_;
    };
    for (const CsvRecord& record : ahead_) {
      Take(record);
      if (!advance()) break;
    }
    ahead_.clear();
    CsvRecord record;
    while (!cancelled_ && reader_.Next(record)) {
      Take(record);
      if (!advance()) break;
    }
    // A stop asked for at the very end still stops: nothing is kept yet.
    if (progress != nullptr && !cancelled_ && !progress->Advance(reader_.Size(), reader_.Size())) {
      cancelled_ = true;
    }
  } catch (const StoreError& error) {
    store_failure_ = error;
  }
  if (cancelled_ || store_failure_ || failed_rows_ > 0) transaction_.reset();
}

void LineImport::Commit() {
  if (!transaction_) return;
  transaction_->Commit();
  transaction_.reset();
}

void LineImport::Fault(std::vector<ImportFault>& list, const ImportFault& fault) {
  if (list.size() < static_cast<size_t>(kKept)) list.push_back(fault);
}

QString LineImport::ColumnOfField(const QString& field) const {
  const std::vector<LineField>& fields = form_.Layout().fields;
  for (size_t f = 0; f < fields.size(); ++f) {
    if (fields[f].name == field) return names_[column_of_field_[f]];
  }
  return {};
}

// One row: typed into the fields, checked as the screen checks it, cleaned
// as the screen stores it, and stored while no row has failed.
void LineImport::Take(const CsvRecord& record) {
  ++rows_;
  const auto fail = [&](const QString& column, const QString& value, const QString& message) {
    ++failed_rows_;
    Fault(faults_, {record.line, column, value, message});
  };
  if (!record.fault.isEmpty()) {
    const int at = record.fault_field;
    const bool named = at >= 0 && at < names_.size();
    return fail(named ? names_[at] : QString(), at >= 0 ? record.fields.value(at) : QString(),
                record.fault);
  }
  if (record.fields.size() != names_.size()) {
    return fail({}, {}, kFieldCount.arg(record.fields.size()).arg(names_.size()));
  }
  const std::vector<LineField>& fields = form_.Layout().fields;
  for (qsizetype c = 0; c < names_.size(); ++c) {
    const LineField& field = fields[static_cast<size_t>(field_of_[static_cast<size_t>(c)])];
    QString fault;
    QString text = FieldTextOf(field, record.fields[c], fault);
    if (!fault.isEmpty()) return fail(names_[c], record.fields[c], fault);
    boxes_[static_cast<size_t>(c)]->text = std::move(text);
  }
  if (const std::optional<FieldFault> fault = form_.LineFault()) {
    const QString column = ColumnOfField(fault->field);
    const qsizetype at = names_.indexOf(column);
    return fail(column, at >= 0 ? record.fields[at] : QString(), fault->message);
  }
  if (const std::optional<QString> repeat = Repeat(record.line)) {
    const int c = column_of_field_[identity_fields_.front()];
    Fault(repeats_, {record.line, names_[c], record.fields[c], *repeat});
    ++repeated_rows_;
  }
  bool warned = false;
  for (qsizetype c = 0; c < names_.size(); ++c) {
    const LineField& field = fields[static_cast<size_t>(field_of_[static_cast<size_t>(c)])];
    if (const std::optional<QString> warning = CheckDigitWarning(field.column, record.fields[c])) {
      Fault(warnings_, {record.line, names_[c], record.fields[c], *warning});
      ++warnings_found_;
      warned = true;
    }
  }
  warned_rows_ += warned ? 1 : 0;
  if (failed_rows_ == 0) form_.StoreLine(next_row_num_++, form_.StoredTexts());
}

Report LineImport::FaultReport() const {
  return ProblemReport(kReportTitle, faults_, failed_rows_,
                       kRowsFailed.arg(failed_rows_).arg(rows_));
}

Report LineImport::WarningReport() const {
  return ProblemReport(kWarningsTitle, warnings_, warnings_found_,
                       kWarningsVerdict.arg(warned_rows_));
}

Report LineImport::RepeatReport() const {
  Report report = ProblemReport(kRepeatsTitle, repeats_, repeated_rows_,
                                kRepeatsVerdict.arg(repeated_rows_).arg(rows_));
  report.about << kRepeatsAbout.arg(identity_captions_);
  return report;
}

bool ImportLines(LinesForm& form, Dialogs& dialogs, QString path,
                 const std::function<void(int first)>& stored, ImportAnswers answers) {
  const auto tell = [&](const QString& text) { dialogs.Message(text, texts::kAppTitle); };
  const auto store_problem = [&](const StoreError& error) {
    tell(ErrorMessage(lines_texts::kStoreProblem, error) + u"\r\n"_s + kNothingStored);
    return false;
  };
  if (path.isEmpty()) path = dialogs.AskFile({kImportTitle, kCsvFilter, {}, false});
  if (path.isEmpty()) return false;
  LineImport import(form, path);
  int existing = 0;
  try {
    if (const QString refusal = import.Open(); !refusal.isEmpty()) {
      tell(refusal);
      return false;
    }
    existing = CountLines(form.Store(), form.Layout().kind, form.Id());
  } catch (const StoreError& error) {
    return store_problem(error);
  }
  std::optional<ImportMode>& mode = answers.mode;
  if (!mode && existing > 0) {
    const int answer = dialogs.Choose(kExistingLines.arg(form.Id()).arg(existing), kImportTitle,
                                      {kAppendAnswer, kReplaceAnswer, kCancelAnswer});
    if (answer != 0 && answer != 1) return false;  // Άκυρο, or the box closed
    mode = answer == 0 ? ImportMode::kAppend : ImportMode::kReplace;
  }
  import.SetMode(mode.value_or(ImportMode::kAppend), existing);
  if (!dialogs.ConfirmReport(import.Preview(), kPreviewGo)) return false;
  dialogs.RunWithProgress(kProgress.arg(QFileInfo(path).fileName()),
                          [&](Progress& progress) { import.Run(&progress); });
  if (import.StoreFailure()) return store_problem(*import.StoreFailure());
  if (import.Cancelled()) {
    tell(kCancelled);
    return false;
  }
  if (import.FailedRows() > 0) {
    dialogs.ShowReport(import.FaultReport());
    return false;
  }
  // The repeated lines are listed with the choice to store them; nothing is
  // kept until the answer.
  if (import.RepeatedRows() > 0) {
    const Report repeats = import.RepeatReport();
    if (!answers.keep_repeats) {
      if (!dialogs.ConfirmReport(repeats, kRepeatsGo)) {
        tell(kNothingStored);
        return false;
      }
    } else {
      dialogs.ShowReport(repeats);
      if (!*answers.keep_repeats) {
        tell(kRepeatsRefused.arg(import.RepeatedRows()));
        return false;
      }
    }
  }
  if (import.WarnedRows() > 0) {
    dialogs.ShowReport(import.WarningReport());
    if (!dialogs.Ask(kWarningsQuestion.arg(import.WarnedRows()), texts::kAppTitle,
                     AskStyle::Question)) {
      tell(kNothingStored);
      return false;
    }
  }
  try {
    import.Commit();
  } catch (const StoreError& error) {
    return store_problem(error);
  }
  if (stored) stored(import.FirstRowNum());
  QString outcome = kImported.arg(import.Rows()).arg(import.FirstRowNum()).arg(import.LastRowNum());
  if (import.Replaced() > 0) outcome += u' ' + kReplaced.arg(import.Replaced());
  tell(outcome);
  return true;
}

int ExportLines(Database& db, Kind kind, int id, const QString& path) {
  const LinesLayout& layout = LinesLayoutOf(kind);
  QSaveFile file(path);
  const auto fail = [&] {
    const int code = errno != 0 ? errno : static_cast<int>(file.error());
    throw FileError{code, FileErrorDescription(code)};
  };
  errno = 0;
  if (!file.open(QIODevice::WriteOnly)) fail();
  QStringList names;
  for (const LineField& field : layout.fields) names << field.column;
  QByteArray out = "\xEF\xBB\xBF" + CsvLine(names, ';');
  int count = 0;
  {
    Rows lines = LinesByNumber(db, kind, id);
    std::vector<int> columns;
    for (const LineField& field : layout.fields)
      columns.push_back(lines->ColumnIndex(field.column));
    QStringList values;
    while (lines->Next()) {
      values.clear();
      for (size_t f = 0; f < layout.fields.size(); ++f) {
        const LineField& field = layout.fields[f];
        const QString stored = FieldText(lines->Value(columns[f]));
        if (!field.choices.isEmpty()) {
          values << (stored.toUpper() == u"1"_s ? field.choices.value(0) : field.choices.value(1));
        } else {
          values << stored;
        }
      }
      out += CsvLine(values, ';');
      ++count;
      if (out.size() > (1 << 20)) {
        if (file.write(out) != out.size()) fail();
        out.clear();
      }
    }
  }
  if (file.write(out) != out.size() || !file.commit()) fail();
  return count;
}

bool ExportLinesTo(const Vars& vars, Kind kind, Dialogs& dialogs, QString path) {
  const int id = vars.DeclarationId;
  if (path.isEmpty()) {
    const QString suggested =
        DeclarationFileName(kind, id, vars.PeriodFrom, vars.PeriodTo, u"csv"_s);
    path = dialogs.AskFile({kExportTitle, kCsvFilter, suggested, true});
  }
  if (path.isEmpty()) return false;
  QString outcome;
  int count = -1;
  {
    BusyPointer busy(dialogs);
    try {
      count = ExportLines(*vars.StoreConnection, kind, id, path);
    } catch (const StoreError& error) {
      outcome = ErrorMessage(texts::kFileNotWritten.arg(path), error);
    } catch (const FileError& error) {
      outcome = ErrorMessage(texts::kFileNotWritten.arg(path), error.code, error.description);
    }
  }
  if (count >= 0) outcome = kExported.arg(count).arg(path);
  dialogs.Message(outcome, texts::kAppTitle);
  return count >= 0;
}

}  // namespace veroxia
