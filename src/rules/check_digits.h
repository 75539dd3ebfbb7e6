#pragma once
// The check digits of the two personal numbers a declaration carries. A wrong
// digit is only ever a warning: the field checks decide what may be stored.

#include <QString>
#include <optional>

namespace veroxia {

// A tax number (Α.Φ.Μ.): nine digits, the ninth the check digit. Each of the
// first eight digits is weighted by a power of two, 256 for the first down
// to 2 for the eighth; the sum's remainder by 11, taken modulo 10, is the
// check digit (the rule of the Greek tax administration). Nine zeros are no
// tax number.
bool AfmCheckDigitHolds(const QString& afm);

// A social security number (Α.Μ.Κ.Α.): eleven digits, the first six the
// birth date, the last the check digit of the Luhn rule (ISO/IEC 7812) over
// all eleven: from the right, every second digit doubled (less 9 when over
// 9), the sum a multiple of 10.
bool AmkaCheckDigitHolds(const QString& amka);

// The warning for what is typed into the field of a stored column: for a tax
// number (columns taxation_number, afm, taxation_id) of nine digits or an
// AMKA (column amka) of eleven digits whose check digit is wrong. Nothing for
// any other column or text: an empty or malformed number is for the field
// checks to answer.
std::optional<QString> CheckDigitWarning(const QString& column, const QString& text);

}  // namespace veroxia
