#include "rules/texts.h"

#include <QFileInfo>

namespace veroxia {

QString TrimBlanks(const QString& text) {
  qsizetype first = 0;
  qsizetype end = text.size();
  while (first < end && text[first] == u' ') ++first;
  while (end > first && text[end - 1] == u' ') --end;
  return text.sliced(first, end - first);
}

QString FieldText(const std::optional<QString>& value) {
  return value ? TrimBlanks(*value) : QString();
}

QString FieldNumber(const std::optional<QString>& value) {
  return value ? *value : QStringLiteral("0");
}

namespace {

constexpr char16_t kDiaeresis = u'\u0308';

bool IsGreek(QChar c) {
  const char16_t u = c.unicode();
  return (u >= 0x0370 && u <= 0x03FF) || (u >= 0x1F00 && u <= 0x1FFF);
}

// A letter whose capital is more than one character: the capital would carry
// its accent as a separate mark ("ΐ" gives "Ϊ" and a combining acute).
bool CapitalCarriesMarks(QChar c) { return QString(c).toUpper().size() > 1; }

// The letter without its accents and breathings, keeping a diaeresis.
QString WithoutAccents(QChar c) {
  QString plain;
  for (const QChar part : QString(c).normalized(QString::NormalizationForm_D)) {
    if (part.category() != QChar::Mark_NonSpacing || part == kDiaeresis) plain += part;
  }
  return plain.normalized(QString::NormalizationForm_C);
}

}  // namespace

QString GreekUpper(const QString& text) {
  // Accented vowels, small then capital, and what each becomes. The
  // comparison ignores case, so the small ones already catch the capitals.
  static const QString accented = QStringLiteral("άέόίήύώΆΈΌΊΉΎΏ");
  static const QString plain = QStringLiteral("αεοιηυωαεοιηυω");
  QString result = text.trimmed();
  if (result.isEmpty()) return result;
  for (qsizetype i = 0; i < accented.size(); ++i) {
    result.replace(accented[i], plain[i], Qt::CaseInsensitive);
  }
  // Greek capitals carry no accent: "ΐ" and "ΰ" keep only their diaeresis,
  // as does every other accented letter (the polytonic ones too) whose
  // capital would carry a combining mark or lie outside the Greek code page.
  QString cleaned;
  cleaned.reserve(result.size());
  for (const QChar c : result) {
    const bool polytonic = c.unicode() >= 0x1F00;
    cleaned += IsGreek(c) && (polytonic || CapitalCarriesMarks(c)) ? WithoutAccents(c) : QString(c);
  }
  return cleaned;
}

bool FileExists(const QString& path) {
  if (path.isEmpty()) return false;
  const QFileInfo info(path);
  return info.exists() && info.isFile() && !info.isHidden();
}

}  // namespace veroxia
