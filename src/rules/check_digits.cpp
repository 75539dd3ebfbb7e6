#include "rules/check_digits.h"

#include <algorithm>

namespace veroxia {

using namespace Qt::StringLiterals;

namespace {

// Our own texts: the number as typed and what to do.
const QString kAfmWarning =
    u"ΠΡΟΣΟΧΗ!! Το Α.Φ.Μ. '%1' δεν έχει σωστό ψηφίο ελέγχου. Θέλετε να καταχωρηθεί όπως είναι;"_s;
const QString kAmkaWarning =
    u"ΠΡΟΣΟΧΗ!! Ο Α.Μ.Κ.Α. '%1' δεν έχει σωστό ψηφίο ελέγχου. Θέλετε να καταχωρηθεί όπως είναι;"_s;

bool AllDigits(const QString& text, qsizetype length) {
  return text.size() == length &&
         std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

int Digit(QChar c) { return c.unicode() - u'0'; }

}  // namespace

bool AfmCheckDigitHolds(const QString& afm) {
  if (!AllDigits(afm, 9) || afm == u"000000000") return false;
  int sum = 0;
  for (int i = 0; i < 8; ++i) sum += Digit(afm[i]) << (8 - i);
  return sum % 11 % 10 == Digit(afm[8]);
}

bool AmkaCheckDigitHolds(const QString& amka) {
  if (!AllDigits(amka, 11)) return false;
  int sum = 0;
  for (int i = 0; i < 11; ++i) {
    int digit = Digit(amka[10 - i]);
    if (i % 2 == 1) {
      digit *= 2;
      if (digit > 9) digit -= 9;
    }
    sum += digit;
  }
  return sum % 10 == 0;
}

std::optional<QString> CheckDigitWarning(const QString& column, const QString& text) {
  const QString number = text.trimmed();
  if (column == u"taxation_number" || column == u"afm" || column == u"taxation_id") {
    if (AllDigits(number, 9) && !AfmCheckDigitHolds(number)) return kAfmWarning.arg(number);
  } else if (column == u"amka") {
    if (AllDigits(number, 11) && !AmkaCheckDigitHolds(number)) return kAmkaWarning.arg(number);
  }
  return std::nullopt;
}

}  // namespace veroxia
