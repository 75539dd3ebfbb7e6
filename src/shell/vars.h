#pragma once
// The process-wide state every screen shares: the store connection and the
// declaration being worked on. One object, owned by the application.

#include <QString>
#include <cstdint>
#include <memory>

#include "shell/store_session.h"
#include "store/database.h"

namespace veroxia {

struct Vars {
  QString AppDir;  // the program's own directory
  // The program's hold on the open store (OpenStore); it outlives the
  // connection, whose first change it backs up.
  std::unique_ptr<StoreSession> Session;
  std::unique_ptr<Database> StoreConnection;
  bool StoreOpen = false;

  std::int16_t DeclarationId = 0;
  std::int16_t PreviousDeclarationId = 0;
  bool CarryOver = false;
  QString PeriodFrom;  // month then year, as typed
  QString PeriodTo;    // month then year, as typed; common kind only
  QString DialogResult;
  QString SearchKind;
};

}  // namespace veroxia
