#include "shell/registry.h"

#include <limits>

#include "rules/texts.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

constexpr int kHighestId = std::numeric_limits<std::int16_t>::max();

int NumberOf(const Text& value) { return FieldNumber(value).trimmed().toInt(); }

}  // namespace

RegistryAnswer SettleDeclaration(Database& db, Kind kind, const PeriodTexts& period,
                                 bool carry_over) {
  RegistryAnswer answer;
  if (const auto found = FindDeclaration(db, kind, period)) {
    answer.declaration_id = static_cast<std::int16_t>(NumberOf(*found));
    if (carry_over) answer.message = texts::kDeclarationFound;
    return answer;  // the stored declaration opens unchanged, nothing carried over
  }
  const int highest = NumberOf(MaxId(db, kind));
  if (highest >= kHighestId) {
    answer.refused = true;
    answer.message = texts::kNoIdLeft;
    return answer;
  }
  if (carry_over && highest == 0) {
    answer.message = texts::kNoPreviousDeclaration;
    answer.declaration_id = 1;
    return answer;
  }
  answer.declaration_id = static_cast<std::int16_t>(highest + 1);
  if (carry_over) {
    answer.carry_over = true;
    answer.previous_id = static_cast<std::int16_t>(highest);
  }
  return answer;
}

}  // namespace veroxia
