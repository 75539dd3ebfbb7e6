#pragma once
// The shared checks of typed fields. Each answers the message to show when the
// text is wrong, or nothing when it is right; the screen shows the message and
// moves the focus.

#include <QString>
#include <optional>

namespace veroxia {

using Fault = std::optional<QString>;

Fault CheckDecimal(const QString& text, const QString& fieldName, int maxIntDigits);
Fault CheckInteger(const QString& text, const QString& fieldName, int digits, bool exact);
Fault CheckDate(const QString& text, const QString& fieldName);
Fault CheckNoDigits(const QString& text, const QString& fieldName);

}  // namespace veroxia
