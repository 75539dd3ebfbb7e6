#pragma once
// The checks of the period typed on the start screen. Each answers the first
// fault: the field, its message, and how much of it to select (0: focus only).

#include <QString>
#include <optional>

#include "store/declarations.h"

namespace veroxia {

struct PeriodFault {
  QString field;
  QString message;
  int select_length = 0;
};

// A month and year, or a quarter of one year (January-March ... October-December).
std::optional<PeriodFault> CheckCommonPeriod(const PeriodTexts& period);
// The one month and year of a construction declaration.
std::optional<PeriodFault> CheckConPeriod(const QString& month, const QString& year);

}  // namespace veroxia
