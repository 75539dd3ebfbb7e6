#include "filing/volume_writer.h"

#include "filing/plain_field.h"
#include "rules/formats.h"
#include "rules/texts.h"
#include "store/declarations.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

// No insured id is ever equal to this, so the first line opens a group.
const QString kNoPerson = u"&$%^&*()$%"_s;

QStringEncoder MakeEncoder() {
  return QStringEncoder("windows-1253", QStringConverter::Flag::Stateless);
}

}  // namespace

QString VolumeNumber(int volume) {
  return volume < 10 ? u'0' + QString::number(volume) : QString::number(volume);
}

QString FormatField(const VolumeField& field, const Text& value) {
  switch (field.format) {
    case FieldFormat::kDigits:
      return AmountDigits(FieldNumber(value), field.width, true);
    case FieldFormat::kAmount:
      return AmountDigits(FieldNumber(value), field.width, false);
    case FieldFormat::kText:
      return PadText(FieldText(value), field.width, true);
    case FieldFormat::kDate:
      return DateDigits(FieldText(value));
    case FieldFormat::kAmka: {
      const QString text = FieldText(value);
      return text.isEmpty() ? QString(field.width, u' ') : AmountDigits(text, field.width, true);
    }
    case FieldFormat::kMarried:
      return value && *value == u"1" ? u"2"_s : u"1"_s;
  }
  return {};
}

VolumeWriter::VolumeWriter(Database& db, Kind kind, int id)
    : db_(db), layout_(VolumeLayoutOf(kind)), id_(id), encoder_(MakeEncoder()) {
  const int lines = CountLines(db, kind, id);
  // The estimate is made in floating point, as it always was.
  estimated_ = static_cast<int>(
                   (static_cast<double>(lines) * layout_.estimate_bytes + layout_.header_bytes) /
                   kVolumeBytes) +
               1;
  Rows row = HeaderRow(db, kind, id);
  if (!row->Next()) return;
  header_.emplace();
  for (int column = 0; column < row->ColumnCount(); ++column) {
    header_->emplace_back(row->ColumnName(column), row->Value(column));
  }
}

Text VolumeWriter::HeaderValue(const char* column) const {
  if (header_) {
    for (const auto& [name, value] : *header_) {
      if (name == QLatin1StringView(column)) return value;
    }
  }
  return std::nullopt;
}

QString VolumeWriter::SubmissionDate() const { return FieldText(HeaderValue(layout_.date_column)); }

QString VolumeWriter::VolumeName(int volume) const {
  return QLatin1StringView(layout_.prefix) + VolumeNumber(volume);
}

QByteArray VolumeWriter::HeaderRecord(int volume, const QString& name) const {
  return (u'1' + VolumeNumber(estimated_) + VolumeNumber(volume) + name).toLatin1() +
         header_bytes_ + "\r\n";
}

std::vector<VolumeWriter::Bound> VolumeWriter::Bind(const std::vector<VolumeField>& fields,
                                                    const Statement& rows) const {
  std::vector<Bound> bound;
  bound.reserve(fields.size());
  for (const VolumeField& field : fields) {
    bound.push_back({&field, rows.ColumnIndex(QLatin1StringView(field.column))});
  }
  return bound;
}

void VolumeWriter::AppendField(QByteArray& record, const VolumeField& field, const Text& value,
                               const Statement* line) {
  const QString text = FormatField(field, value);
  if (CodePageTable().Append(record, text)) return;
  record += encoder_.encode(text);
  if (!encoder_.hasError()) return;
  // Tell the user where the character stands.
  Unencodable fault;
  fault.field = field.box > 0 ? QString::number(field.box) : QLatin1StringView(field.column);
  fault.character = FirstUnencodable(text).value_or(QString());
  if (line != nullptr) {
    fault.row_num = FieldText(line->Value(line->ColumnIndex(u"row_num"_s)));
    fault.insured_id = FieldText(line->Value(line->ColumnIndex(u"insured_id"_s)));
  }
  throw fault;
}

void VolumeWriter::Append(QByteArray& record, const std::vector<Bound>& fields,
                          const Statement& rows) {
  for (const Bound& bound : fields) {
    const auto utf8 = bound.column < 0 ? std::nullopt : rows.Utf8(bound.column);
    if (!AppendPlainField(record, *bound.field, utf8)) {
      AppendField(record, *bound.field, rows.Value(bound.column), &rows);
    }
  }
}

int VolumeWriter::Write(VolumeSink& sink) {
  header_bytes_ = "   01";
  for (const VolumeField& field : layout_.header) {
    AppendField(header_bytes_, field, HeaderValue(field.column), nullptr);
  }
  header_bytes_.append(layout_.reserved, ' ');
  int volume = 1;
  QString name = VolumeName(volume);
  sink.Begin(name);
  sink.Write(HeaderRecord(volume, name));
  int bytes = layout_.header_bytes;

  Rows rows = LinesInOrder(db_, layout_.kind, id_);
  const std::vector<Bound> person = Bind(layout_.person, *rows);
  const std::vector<Bound> line = Bind(layout_.line, *rows);
  const int insured_id = rows->ColumnIndex(u"insured_id"_s);
  const QByteArray eof = "EOF\r\n";
  QByteArray previous = kNoPerson.toLatin1();
  bool new_volume = false;
  QByteArray record;
  record.reserve(1024);
  while (rows->Next()) {
    if (bytes + layout_.margin > kVolumeBytes) new_volume = true;
    if (new_volume) {
      ++volume;
      name = VolumeName(volume);
      sink.Write(eof);
      sink.Begin(name);
      sink.Write(HeaderRecord(volume, name));
      bytes = layout_.header_bytes;
    }
    record.resize(0);
    // The stored id, untrimmed, against the trimmed id of the line before.
    const std::string_view id = rows->Utf8(insured_id).value_or(std::string_view());
    if (id != std::string_view(previous.constData(), static_cast<size_t>(previous.size())) ||
        new_volume) {
      new_volume = false;
      record += '2';
      Append(record, person, *rows);
      record += "\r\n";
      const QString trimmed =
          TrimBlanks(QString::fromUtf8(id.data(), static_cast<qsizetype>(id.size())));
      previous = (trimmed.isEmpty() ? kNoPerson : trimmed).toUtf8();
      bytes += layout_.person_bytes;
    }
    record += '3';
    Append(record, line, *rows);
    record += "\r\n";
    bytes += layout_.line_bytes;
    sink.Write(record);
  }
  sink.Write(eof);
  sink.Finish();
  return volume;
}

}  // namespace veroxia
