#pragma once
// Which declaration a checked period opens: the one stored for it, or a new
// one, which may take over the lines of the previous declaration (the one
// with the highest id of the kind, whatever its period).

#include <QString>
#include <cstdint>

#include "store/database.h"
#include "store/declarations.h"

namespace veroxia {

struct RegistryAnswer {
  std::int16_t declaration_id = 0;
  std::int16_t previous_id = 0;  // set only when carry_over ends true
  bool carry_over = false;
  QString message;               // to show before the hand-over; empty for none
  bool refused = false;          // no new id fits: show the message, hand nothing over
};

// Reads the kind's header table only; writes nothing. Throws StoreError.
RegistryAnswer SettleDeclaration(Database& db, Kind kind, const PeriodTexts& period,
                                 bool carry_over);

}  // namespace veroxia
