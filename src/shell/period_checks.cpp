#include "shell/period_checks.h"

#include <cmath>

#include "rules/numbers.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

struct MonthTexts {
  const QString& blank;
  const QString& length;
  const QString& wrong;
};

struct YearTexts {
  const QString& blank;
  const QString& numeric;
  const QString& length;
};

bool IsBlank(const QString& text) { return text.trimmed().isEmpty(); }

std::optional<PeriodFault> CheckMonth(const QString& field, const QString& text,
                                      const MonthTexts& says) {
  if (IsBlank(text)) return PeriodFault{field, says.blank, 0};
  if (text.size() < 2) return PeriodFault{field, says.length, 2};
  const double value = LeadingValue(text);
  if (!IsNumeric(text) || value < 1 || value > 12) return PeriodFault{field, says.wrong, 2};
  return std::nullopt;
}

std::optional<PeriodFault> CheckYear(const QString& field, const QString& text,
                                     const YearTexts& says) {
  if (IsBlank(text)) return PeriodFault{field, says.blank, 0};
  if (!IsNumeric(text)) return PeriodFault{field, says.numeric, 4};
  if (text.size() < 4) return PeriodFault{field, says.length, 4};
  return std::nullopt;
}

bool IsQuarterStart(double month) { return month == 1 || month == 4 || month == 7 || month == 10; }

}  // namespace

std::optional<PeriodFault> CheckCommonPeriod(const PeriodTexts& period) {
  using namespace texts;
  if (auto fault = CheckMonth(QStringLiteral("Month1"), period.from_month,
                              {kStartMonthBlank, kStartMonthLength, kStartMonthWrong})) {
    return fault;
  }
  if (auto fault = CheckYear(QStringLiteral("Year1"), period.from_year,
                             {kStartYearBlank, kStartYearNumeric, kStartYearLength})) {
    return fault;
  }
  if (auto fault = CheckMonth(QStringLiteral("Month2"), period.to_month,
                              {kEndMonthBlank, kEndMonthLength, kEndMonthWrong})) {
    return fault;
  }
  if (auto fault = CheckYear(QStringLiteral("Year2"), period.to_year,
                             {kEndYearBlank, kEndYearNumeric, kEndYearLength})) {
    return fault;
  }
  if (LeadingValue(period.to_year) != LeadingValue(period.from_year)) {
    return PeriodFault{QStringLiteral("Year2"), kEndYearDiffers, 4};
  }
  const double from = LeadingValue(period.from_month);
  const double to = LeadingValue(period.to_month);
  if (from != to && !IsQuarterStart(from)) {
    return PeriodFault{QStringLiteral("Month1"), kStartMonthNotQuarter, 2};
  }
  const double span = std::round(to - from);
  if (span != 0 && span != 2) return PeriodFault{QStringLiteral("Month2"), kEndMonthNotQuarter, 2};
  return std::nullopt;
}

std::optional<PeriodFault> CheckConPeriod(const QString& month, const QString& year) {
  using namespace texts;
  if (auto fault = CheckMonth(QStringLiteral("ConMonth"), month,
                              {kStartMonthBlank, kStartMonthLength, kStartMonthWrong})) {
    return fault;
  }
  return CheckYear(QStringLiteral("ConYear"), year,
                   {kConYearBlank, kConYearNumeric, kConYearLength});
}

}  // namespace veroxia
