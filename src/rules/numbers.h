#pragma once
// Reading of typed numbers with the Greek separators: a comma before the
// decimals and a dot between thousands, whatever the machine's locale.

#include <QString>
#include <optional>

namespace veroxia {

// True when the whole text reads as a number: blanks around it, a sign at
// either end ("-5", "5-"), digits with "." as grouping, one "," before the
// decimals, and an exponent ("1E3", "1D3"). The later rules of the checks
// refuse signs, dots and exponents with messages of their own.
bool IsNumeric(const QString& text);

// The number formed by the leading numeric part of the text, blanks skipped
// ("05" is 5, " 7x" is 7, "x" is 0). A "." starts the fraction here.
double LeadingValue(const QString& text);

// An exact decimal read from a numeric text: sign, digits and the power of
// ten of the last digit, so that amounts are formatted without binary
// rounding. Empty when the text is not numeric.
struct Decimal {
  bool negative = false;
  QString digits;    // no leading zeros except a single "0"
  int exponent = 0;  // value = digits * 10^exponent
};
std::optional<Decimal> ReadDecimal(const QString& text);

// A month of a year as one count of months, so that periods compare and
// move by months (March 2002 and April 2002 are one apart): from the texts of
// a month 1 to 12 and a year, blanks around them allowed; nothing otherwise.
std::optional<int> MonthIndex(const QString& month, const QString& year);

}  // namespace veroxia
