#include "filing/plain_field.h"

#include <QStringEncoder>
#include <memory>

#include "rules/texts.h"

namespace veroxia {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The stored bytes without the blanks at either end, as TrimBlanks takes them
// off a text: a tab or another space stays.
std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

// Appends `count` copies of c before the bytes appended from `from` on.
void PadLeft(QByteArray& out, qsizetype from, int width, char c) {
  const qsizetype written = out.size() - from;
  if (written < width) out.insert(from, width - written, c);
}

void PadRight(QByteArray& out, qsizetype from, int width, char c) {
  const qsizetype written = out.size() - from;
  if (written < width) out.append(width - written, c);
}

void AppendDigits(QByteArray& out, std::string_view text, int width) {
  const qsizetype from = out.size();
  for (const char c : text) {
    if (c != '.' && c != ',') out += c;
  }
  PadLeft(out, from, width, '0');
}

// A plain amount: digits, then at most one comma and two digits. Written as
// "##,##0.00" without its separators: the whole part without leading zeros
// (one "0" when nothing is left) and two decimals.
bool AppendAmount(QByteArray& out, std::string_view text, int width) {
  const size_t comma = text.find(',');
  const std::string_view whole = text.substr(0, comma);
  const std::string_view cents =
      comma == std::string_view::npos ? std::string_view() : text.substr(comma + 1);
  if (whole.empty() || (comma != std::string_view::npos && cents.empty()) || cents.size() > 2) {
    return false;
  }
  for (const std::string_view part : {whole, cents}) {
    for (const char c : part) {
      if (!IsDigit(c)) return false;
    }
  }
  const qsizetype from = out.size();
  const size_t lead = std::min(whole.find_first_not_of('0'), whole.size() - 1);
  out.append(whole.data() + lead, static_cast<qsizetype>(whole.size() - lead));
  out.append(cents.data(), static_cast<qsizetype>(cents.size()));
  out.append(2 - static_cast<qsizetype>(cents.size()), '0');
  PadLeft(out, from, width, '0');
  return true;
}

// Appends a stored text of characters of the table, without its end blanks
// and padded with blanks; false when a character is not in the table.
bool AppendTableText(QByteArray& out, std::string_view text, int width) {
  const qsizetype from = out.size();
  const QString value = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  const QString trimmed = TrimBlanks(value);
  if (!CodePageTable().Append(out, trimmed)) return false;
  PadRight(out, from, width, ' ');
  return true;
}

}  // namespace

CodePage::CodePage() {
  // The encoder keeps its error once it has met a character it cannot hold:
  // a new one is taken after each.
  auto encoder =
      std::make_unique<QStringEncoder>("windows-1253", QStringConverter::Flag::Stateless);
  const auto learn = [&](char16_t c, char32_t at) {
    const QByteArray byte = encoder->encode(QStringView(&c, 1));
    if (encoder->hasError()) {
      encoder = std::make_unique<QStringEncoder>("windows-1253", QStringConverter::Flag::Stateless);
    } else if (byte.size() == 1) {
      bytes_[at] = static_cast<unsigned char>(byte[0]);
    }
  };
  for (char32_t c = 1; c < kBlocks; ++c) learn(static_cast<char16_t>(c), c);
  for (char32_t c = 0; c < 0x100; ++c) learn(static_cast<char16_t>(kPunctuation + c), kBlocks + c);
}

bool CodePage::Append(QByteArray& out, const QString& text) const {
  const qsizetype from = out.size();
  for (const QChar c : text) {
    const unsigned char byte = Byte(c.unicode());
    if (byte == 0) {
      out.truncate(from);
      return false;
    }
    out += static_cast<char>(byte);
  }
  return true;
}

const CodePage& CodePageTable() {
  static const CodePage page;
  return page;
}

std::optional<QString> FirstUnencodable(const QString& text) {
  const CodePage& table = CodePageTable();
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c.unicode() == 0 || table.Byte(c.unicode()) != 0) continue;
    if (c.isSurrogate()) return text.mid(i, c.isHighSurrogate() ? 2 : 1);
    // Outside the table's blocks (the trade mark sign): the encoder decides.
    QStringEncoder encoder("windows-1253", QStringConverter::Flag::Stateless);
    const QByteArray byte = encoder.encode(QStringView(&c, 1));
    if (encoder.hasError() || byte.size() != 1) return QString(c);
  }
  return std::nullopt;
}

bool AppendPlainField(QByteArray& out, const VolumeField& field,
                      std::optional<std::string_view> value) {
  if (value) {
    for (const char c : *value) {
      if (static_cast<unsigned char>(c) < 0x80) continue;
      return field.format == FieldFormat::kText && AppendTableText(out, *value, field.width);
    }
  }
  if (field.format == FieldFormat::kMarried) {
    out += value == std::string_view("1") ? '2' : '1';
    return true;
  }
  // A Null number reads as "0", a Null text as empty.
  const bool number = field.format == FieldFormat::kDigits || field.format == FieldFormat::kAmount;
  const std::string_view text = Trimmed(value.value_or(number ? "0" : ""));
  const qsizetype from = out.size();
  switch (field.format) {
    case FieldFormat::kText:
      out.append(text.data(), static_cast<qsizetype>(text.size()));
      PadRight(out, from, field.width, ' ');
      return true;
    case FieldFormat::kDate:
      if (text.empty()) {
        out.append(8, ' ');
        return true;
      }
      for (const char c : text) {
        if (c != '/') out += c;
      }
      PadLeft(out, from, 8, '0');
      return true;
    case FieldFormat::kAmka:
      if (text.empty()) {
        out.append(field.width, ' ');
        return true;
      }
      AppendDigits(out, text, field.width);
      return true;
    case FieldFormat::kDigits:
      AppendDigits(out, text, field.width);
      return true;
    case FieldFormat::kAmount:
      if (text.empty()) {
        out.append(field.width, '0');
        return true;
      }
      return AppendAmount(out, text, field.width);
    case FieldFormat::kMarried:
      break;
  }
  return false;
}

}  // namespace veroxia
