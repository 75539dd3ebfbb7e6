#pragma once
// The totals report: the totals typed into a declaration's header against
// the sums of its employee lines, read with the program's own number rules,
// before the declaration is filed. A declaration whose totals do not add up
// is rejected by the institute.

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "shell/ports.h"
#include "shell/report.h"
#include "shell/vars.h"
#include "store/database.h"
#include "store/kind.h"

namespace veroxia {

struct TotalsRow {
  QString label;       // what is compared: the quantity and its month, or the whole
  QString header;      // the header's value: as the lines' sum is shown, or as stored
  QString lines;       // the sum of the lines
  QString difference;  // header less lines; empty when the header's is no number
  bool agrees = false;
};

// A stored value of a line that is not a number: left out of the sums and
// reported instead.
struct UnreadableValue {
  int row_num = 0;
  QString column;
  QString text;
};

struct TotalsReport {
  std::vector<TotalsRow> rows;
  std::vector<UnreadableValue> unreadable;
  // Tax numbers and AMKA whose check digit is wrong: row_num 0 for the
  // header's.
  std::vector<UnreadableValue> check_digits;
  // Every total agrees, every value is a number and every check digit holds.
  bool AllAgree() const;
};

// Compares the totals of the declaration: for the common kind the days,
// wages and paid contributions of each month of the period (a line counts in
// the month of its payroll period) and of the whole; for the construction
// kind the days of work, wages and total contributions. The check digits of
// the tax numbers and AMKA of the header and the lines are checked too.
// Empty when no header is stored. Throws StoreError.
std::optional<TotalsReport> CompareTotals(Database& db, Kind kind, int id);

// What is said when the totals and the lines do not agree.
extern const QString kTotalsDisagree;

// The first line of the message when the totals could not be compared.
inline const QString kTotalsNotCompared =
    QStringLiteral("ΠΡΟΣΟΧΗ!! Ο έλεγχος των συνόλων δεν έγινε.");
// The window's title and the button's caption.
inline const QString kTotalsTitle = QStringLiteral("Έλεγχος συνόλων");

// The comparison as the user reads it: a row per total with the header's
// value, the sum of the lines, the difference and the verdict; the values
// that are no numbers and the wrong check digits as notes.
Report TotalsWindow(const TotalsReport& report);

// "Έλεγχος συνόλων": the report of the declaration being worked on
// (vars.DeclarationId) in its window; a store error is told instead.
void ShowTotals(Vars& vars, Dialogs& dialogs, Kind kind);

}  // namespace veroxia
