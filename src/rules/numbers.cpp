#include "rules/numbers.h"

#include <cmath>

namespace veroxia {

namespace {

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }
bool IsSign(QChar c) { return c == u'+' || c == u'-'; }

// The parts of a number written with the Greek separators.
struct Parsed {
  bool negative = false;
  QString int_digits;
  QString frac_digits;
  int exponent = 0;
};

std::optional<Parsed> Parse(const QString& text) {
  QString t = text.trimmed();
  if (t.isEmpty()) return std::nullopt;
  Parsed parsed;
  // A sign at the start or at the end, not both.
  if (IsSign(t.front())) {
    parsed.negative = t.front() == u'-';
    t = t.mid(1).trimmed();
  } else if (IsSign(t.back())) {
    parsed.negative = t.back() == u'-';
    t.chop(1);
    t = t.trimmed();
  }
  qsizetype i = 0;
  const qsizetype n = t.size();
  bool any_digit = false;
  while (i < n && (IsDigit(t[i]) || t[i] == u'.')) {
    if (IsDigit(t[i])) {
      parsed.int_digits += t[i];
      any_digit = true;
    }
    ++i;
  }
  if (i < n && t[i] == u',') {
    ++i;
    while (i < n && IsDigit(t[i])) {
      parsed.frac_digits += t[i++];
      any_digit = true;
    }
  }
  if (!any_digit) return std::nullopt;
  if (i < n && (t[i] == u'E' || t[i] == u'e' || t[i] == u'D' || t[i] == u'd')) {
    ++i;
    bool exp_negative = false;
    if (i < n && IsSign(t[i])) exp_negative = t[i++] == u'-';
    QString exp_digits;
    while (i < n && IsDigit(t[i])) exp_digits += t[i++];
    if (exp_digits.isEmpty() || exp_digits.size() > 4) return std::nullopt;
    parsed.exponent = exp_digits.toInt() * (exp_negative ? -1 : 1);
  }
  if (i != n) return std::nullopt;
  return parsed;
}

}  // namespace

bool IsNumeric(const QString& text) { return Parse(text).has_value(); }

std::optional<Decimal> ReadDecimal(const QString& text) {
  const auto parsed = Parse(text);
  if (!parsed) return std::nullopt;
  Decimal decimal;
  QString digits = parsed->int_digits + parsed->frac_digits;
  decimal.exponent = parsed->exponent - static_cast<int>(parsed->frac_digits.size());
  qsizetype lead = 0;
  while (lead + 1 < digits.size() && digits[lead] == u'0') ++lead;
  decimal.digits = digits.mid(lead);
  decimal.negative = parsed->negative && decimal.digits != u"0";
  return decimal;
}

double LeadingValue(const QString& text) {
  QString t;
  for (QChar c : text) {
    if (c != u' ' && c != u'\t' && c != u'\n' && c != u'\r') t += c;
  }
  qsizetype i = 0;
  const qsizetype n = t.size();
  QString number;
  if (i < n && IsSign(t[i])) number += t[i++];
  while (i < n && IsDigit(t[i])) number += t[i++];
  if (i < n && t[i] == u'.') {
    number += t[i++];
    while (i < n && IsDigit(t[i])) number += t[i++];
  }
  if (i < n && (t[i] == u'E' || t[i] == u'e' || t[i] == u'D' || t[i] == u'd')) {
    qsizetype j = i + 1;
    QString exp = QStringLiteral("e");
    if (j < n && IsSign(t[j])) exp += t[j++];
    const qsizetype start = j;
    while (j < n && IsDigit(t[j])) exp += t[j++];
    if (j > start) number += exp;
  }
  bool ok = false;
  const double value = number.toDouble(&ok);  // C locale: "." before decimals
  return ok && std::isfinite(value) ? value : 0;
}

std::optional<int> MonthIndex(const QString& month, const QString& year) {
  bool month_ok = false;
  bool year_ok = false;
  const int m = month.trimmed().toInt(&month_ok, 10);
  const int y = year.trimmed().toInt(&year_ok, 10);
  if (!month_ok || !year_ok || m < 1 || m > 12 || y < 0 || y > 9999) return std::nullopt;
  return y * 12 + m - 1;
}

}  // namespace veroxia
