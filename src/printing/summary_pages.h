#pragma once
// The one-page summary form of each kind, from its header row.

#include <QString>

#include "store/schema.h"

namespace veroxia {

// Throws StoreError when the type, the employer's register number or the tax
// number is Null: they are printed as stored.
QString CommonSummary(const EmployerRow& header);
QString ConstructionSummary(const ConEmployerRow& header);

}  // namespace veroxia
