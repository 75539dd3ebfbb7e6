#include "rules/formats.h"

#include "rules/numbers.h"
#include "rules/texts.h"

namespace veroxia {

namespace {

// Adds one to a string of decimal digits.
QString Increment(QString digits) {
  for (qsizetype i = digits.size() - 1; i >= 0; --i) {
    if (digits[i] != u'9') {
      digits[i] = QChar(digits[i].unicode() + 1);
      return digits;
    }
    digits[i] = u'0';
  }
  return u'1' + digits;
}

}  // namespace

QString FormatAmount(const QString& text) {
  const QString trimmed = TrimBlanks(text);
  const auto decimal = ReadDecimal(trimmed);
  if (!decimal) return trimmed;
  // Scale to hundredths exactly, rounding half away from zero.
  QString digits = decimal->digits;
  const int shift = decimal->exponent + 2;
  if (shift >= 0) {
    if (digits != u"0") digits += QString(shift, u'0');
  } else {
    const qsizetype cut = -shift;
    if (cut > digits.size()) digits = QString(cut - digits.size(), u'0') + digits;
    const bool round_up = digits[digits.size() - cut] >= u'5';
    digits.chop(cut);
    if (digits.isEmpty()) digits = QStringLiteral("0");
    if (round_up) digits = Increment(digits);
  }
  while (digits.size() < 3) digits.prepend(u'0');
  QString whole = digits.left(digits.size() - 2);
  const QString cents = digits.right(2);
  qsizetype lead = 0;
  while (lead + 1 < whole.size() && whole[lead] == u'0') ++lead;
  whole = whole.mid(lead);
  QString grouped;
  for (qsizetype i = 0; i < whole.size(); ++i) {
    if (i > 0 && (whole.size() - i) % 3 == 0) grouped += u'.';
    grouped += whole[i];
  }
  const bool negative = decimal->negative && (whole != u"0" || cents != u"00");
  return (negative ? QStringLiteral("-") : QString()) + grouped + u',' + cents;
}

QString AmountDigits(const QString& text, int width, bool noFormat) {
  QString result = TrimBlanks(text);
  if (!noFormat) result = FormatAmount(result);
  result.remove(u'.').remove(u',');
  if (result.size() < width) result.prepend(QString(width - result.size(), u'0'));
  return result;
}

QString AmountText(const QString& text, int width, bool noPad) {
  QString result = FormatAmount(text);
  if (!noPad && result.size() < width) result.prepend(QString(width - result.size(), u' '));
  return result;
}

QString PadText(const QString& text, int width, bool padRight) {
  QString result = TrimBlanks(text);
  if (result.size() < width) {
    const QString blanks(width - result.size(), u' ');
    result = padRight ? result + blanks : blanks + result;
  }
  return result;
}

QString DateDigits(const QString& text) {
  QString result = TrimBlanks(text);
  if (result.isEmpty()) return QString(8, u' ');
  result.remove(u'/');
  if (result.size() < 8) result.prepend(QString(8 - result.size(), u'0'));
  return result;
}

QString WrapText(const QString& text, bool shortIndent) {
  if (text.size() <= 60) return text;
  // p is the 1-based position of the last blank at or before position 60.
  qsizetype p = text.lastIndexOf(u' ', 59) + 1;
  if (p < 45) p = 45;
  return text.left(p) + QStringLiteral("\r\n") + QString(shortIndent ? 17 : 27, u' ') + text.mid(p);
}

}  // namespace veroxia
