#include "rules/checks.h"

#include <QDate>

#include "rules/check_texts.h"
#include "rules/numbers.h"

namespace veroxia {

using namespace check_texts;

namespace {

bool HasExponent(const QString& t) {
  return t.contains(u'E', Qt::CaseInsensitive) || t.contains(u'D', Qt::CaseInsensitive);
}

bool IsOperator(QChar c) { return c == u'/' || c == u'*' || c == u'+' || c == u'-'; }

// The two characters at a 0-based position, read as a number; -1 when they
// are not both digits.
int TwoDigits(const QString& t, qsizetype at) {
  if (t.size() < at + 2) return -1;
  const QString part = t.mid(at, 2);
  for (QChar c : part) {
    if (c < u'0' || c > u'9') return -1;
  }
  return part.toInt();
}

// A real calendar date in day/month/year order, as the regional settings
// read one: "/", "-" or "." between the parts, a year of four digits or of
// one or two (1930 to 2029).
bool IsDate(const QString& t) {
  QString normal = t;
  normal.replace(u'-', u'/').replace(u'.', u'/');
  const QStringList parts = normal.split(u'/');
  if (parts.size() != 3) return false;
  int numbers[3] = {0, 0, 0};
  for (int i = 0; i < 3; ++i) {
    const QString part = parts[i].trimmed();
    if (part.isEmpty() || part.size() > 4) return false;
    for (QChar c : part) {
      if (c < u'0' || c > u'9') return false;
    }
    numbers[i] = part.toInt();
  }
  int year = numbers[2];
  const qsizetype year_length = parts[2].trimmed().size();
  if (year_length == 3) return false;
  if (year_length <= 2) year += year < 30 ? 2000 : 1900;
  return QDate(year, numbers[1], numbers[0]).isValid();
}

}  // namespace

Fault CheckDecimal(const QString& text, const QString& fieldName, int maxIntDigits) {
  const QString t = text.trimmed();
  if (t.isEmpty()) return MustBeFilled(fieldName);
  if (!IsNumeric(t) || HasExponent(t)) return NumericTwoBlanks(fieldName);
  if (IsOperator(t.back()) || IsOperator(t.front())) return MustBeNumeric(fieldName);
  if (t.contains(u'.')) return kNoDots;
  const qsizetype p = t.indexOf(u',') + 1;
  const qsizetype n = t.size();
  if (p > 0 && n - p >= 3) return kTwoDecimals;
  if (p > 0 && p > maxIntDigits + 1) return IntegerPartTooLong(maxIntDigits);
  if (p == 0 && n > maxIntDigits) return IntegerPartTooLong(maxIntDigits);
  return std::nullopt;
}

Fault CheckInteger(const QString& text, const QString& fieldName, int digits, bool exact) {
  const QString t = text.trimmed();
  if (t.isEmpty()) return MustBeFilled(fieldName);
  if (!IsNumeric(t)) return NumericOneBlank(fieldName);
  if (HasExponent(t)) return NumericTwoBlanks(fieldName);
  if (IsOperator(t.back()) || IsOperator(t.front())) return MustBeWhole(fieldName);
  if (t.contains(u'.') || t.contains(u',')) return MustBeWhole(fieldName);
  if (exact && t.size() != digits) return MustHaveDigits(fieldName, digits);
  return std::nullopt;
}

Fault CheckDate(const QString& text, const QString& fieldName) {
  const QString t = text.trimmed();
  const int day = TwoDigits(t, 0);
  const int month = TwoDigits(t, 3);
  if (!IsDate(t) || day < 0 || month < 0 || month > 12 || day > 31) return DateWrong(fieldName);
  return std::nullopt;
}

Fault CheckNoDigits(const QString& text, const QString& fieldName) {
  const QString t = text.trimmed();
  for (QChar c : t) {
    if (c >= u'0' && c <= u'9') return HasDigits(fieldName);
  }
  return std::nullopt;
}

}  // namespace veroxia
