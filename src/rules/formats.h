#pragma once
// Fixed-width formatters of the submission files and printouts. They never
// fail: a step that cannot be done is skipped.

#include <QString>

namespace veroxia {

// The "##,##0.00" format with Greek separators: 1234,5 gives "1.234,50".
// A text that is not a number comes back unformatted, without its end
// blanks. The formatters below take off only the blanks at either end too.
QString FormatAmount(const QString& text);
QString AmountDigits(const QString& text, int width, bool noFormat);
QString AmountText(const QString& text, int width, bool noPad);
QString PadText(const QString& text, int width, bool padRight);
QString DateDigits(const QString& text);
QString WrapText(const QString& text, bool shortIndent);

}  // namespace veroxia
