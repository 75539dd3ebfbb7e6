#include "filing/volume_writer.h"

#include "rules/formats.h"
#include "rules/texts.h"
#include "store/declarations.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

// No insured id is ever equal to this, so the first line opens a group.
const QString kNoPerson = u"&$%^&*()$%"_s;
const QString kCrLf = u"\r\n"_s;

QStringEncoder MakeEncoder() {
  return QStringEncoder("windows-1253", QStringConverter::Flag::Stateless);
}

// The first character of the text that the code page cannot hold; empty when
// it holds them all.
QString FirstUnencodable(const QString& text) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    const qsizetype length = text[i].isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
    const QString character = text.mid(i, length);
    QStringEncoder encoder = MakeEncoder();
    const QByteArray bytes = encoder.encode(character);  // encodes only when converted
    if (encoder.hasError()) return character;
    i += length - 1;
  }
  return {};
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
  header_text_ = u"   01"_s;
  for (const VolumeField& field : layout_.header) {
    header_text_ += FormatField(field, HeaderValue(field.column));
  }
  header_text_ += QString(layout_.reserved, u' ');
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

QString VolumeWriter::HeaderRecord(int volume, const QString& name) const {
  return u'1' + VolumeNumber(estimated_) + VolumeNumber(volume) + name + header_text_ + kCrLf;
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

void VolumeWriter::Append(QString& record, const std::vector<Bound>& fields,
                          const Statement& rows) const {
  for (const Bound& bound : fields) {
    record += FormatField(*bound.field, bound.column < 0 ? Text() : rows.Value(bound.column));
  }
}

QByteArray VolumeWriter::Encode(const QString& record, const Statement* line) {
  QByteArray bytes = encoder_.encode(record);
  if (!encoder_.hasError()) return bytes;
  // Find the field that holds the character, to tell the user where it is.
  Unencodable fault;
  const auto search = [&](const std::vector<VolumeField>& fields, auto value_of) {
    for (const VolumeField& field : fields) {
      const QString character = FirstUnencodable(FormatField(field, value_of(field)));
      if (character.isEmpty()) continue;
      fault.field = field.box > 0 ? QString::number(field.box) : QLatin1StringView(field.column);
      fault.character = character;
      return true;
    }
    return false;
  };
  if (line == nullptr) {
    search(layout_.header, [&](const VolumeField& field) { return HeaderValue(field.column); });
  } else {
    const auto value_of = [&](const VolumeField& field) -> Text {
      const int column = line->ColumnIndex(QLatin1StringView(field.column));
      return column < 0 ? Text() : line->Value(column);
    };
    if (!search(layout_.person, value_of)) search(layout_.line, value_of);
    fault.row_num = FieldText(line->Value(line->ColumnIndex(u"row_num"_s)));
    fault.insured_id = FieldText(line->Value(line->ColumnIndex(u"insured_id"_s)));
  }
  throw fault;
}

int VolumeWriter::Write(VolumeSink& sink) {
  int volume = 1;
  QString name = VolumeName(volume);
  sink.Begin(name);
  sink.Write(Encode(HeaderRecord(volume, name), nullptr));
  int bytes = layout_.header_bytes;

  Rows rows = LinesInOrder(db_, layout_.kind, id_);
  const std::vector<Bound> person = Bind(layout_.person, *rows);
  const std::vector<Bound> line = Bind(layout_.line, *rows);
  const int insured_id = rows->ColumnIndex(u"insured_id"_s);
  const QByteArray eof = encoder_.encode(u"EOF"_s + kCrLf);
  QString previous = kNoPerson;
  bool new_volume = false;
  QString record;
  while (rows->Next()) {
    if (bytes + layout_.margin > kVolumeBytes) new_volume = true;
    if (new_volume) {
      ++volume;
      name = VolumeName(volume);
      sink.Write(eof);
      sink.Begin(name);
      sink.Write(Encode(HeaderRecord(volume, name), nullptr));
      bytes = layout_.header_bytes;
    }
    record.clear();
    // The stored id, untrimmed, against the trimmed id of the line before.
    const QString id = rows->Value(insured_id).value_or(QString());
    if (id != previous || new_volume) {
      new_volume = false;
      record += u'2';
      Append(record, person, *rows);
      record += kCrLf;
      previous = id.trimmed().isEmpty() ? kNoPerson : id.trimmed();
      bytes += layout_.person_bytes;
    }
    record += u'3';
    Append(record, line, *rows);
    record += kCrLf;
    bytes += layout_.line_bytes;
    sink.Write(Encode(record, &*rows));
  }
  sink.Write(eof);
  sink.Finish();
  return volume;
}

}  // namespace veroxia
