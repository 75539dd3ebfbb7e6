#include "shell/carry_over.h"

#include "shell/errors.h"
#include "shell/texts.h"
#include "store/declarations.h"

namespace veroxia {

CarryOverOutcome CarryOverLines(Vars& vars, Dialogs& dialogs, Kind kind) {
  Database& db = *vars.StoreConnection;
  const int previous = vars.PreviousDeclarationId;
  CarryOverOutcome outcome;
  try {
    BusyPointer busy(dialogs);
    Transaction transaction(db);
    if (CountLines(db, kind, vars.DeclarationId) > 0) return outcome;  // copied before
    ClearScratch(db, kind);
    if (kind == Kind::Common) FixDailyWages(db, previous);
    if (CopyLinesToScratch(db, kind, previous) > 0) {
      MoveScratchToNextId(db, kind);
      outcome.copied = InsertLinesFromScratch(db, kind);
      ClearScratch(db, kind);
    }
    transaction.Commit();
  } catch (const StoreError& error) {
    outcome = CarryOverOutcome{false, 0};
    dialogs.Message(ErrorMessage(texts::kCarryOverFailed, error), texts::kAppTitle);
  }
  return outcome;
}

}  // namespace veroxia
