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

// A line whose payroll month lies outside the declaration's period. It still
// counts where it counted: in the whole, and in a month of the period whose
// label it matches.
struct LineOutOfPeriod {
  int row_num = 0;
  QString month;  // the line's month and year as stored, "month/year"
};

struct TotalsReport {
  std::vector<TotalsRow> rows;
  std::vector<UnreadableValue> unreadable;
  // Tax numbers and AMKA whose check digit is wrong: row_num 0 for the
  // header's.
  std::vector<UnreadableValue> check_digits;
  // Common kind: the lines outside the period of the header, and that period
  // as the notes name it. Nothing when the header's period is no month.
  std::vector<LineOutOfPeriod> out_of_period;
  QString period;
  // Every total agrees, every value is a number, every check digit holds and
  // every line lies in the period.
  bool AllAgree() const;
};

// Compares the totals of the declaration: for the common kind the days,
// wages and paid contributions of each month of the period (a line counts in
// the month of its payroll period) and of the whole; for the construction
// kind the days of work, wages and total contributions. The check digits of
// the tax numbers and AMKA of the header and the lines are checked too, and
// the payroll months of the common lines against the header's period.
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
// that are no numbers, the wrong check digits and the lines outside the
// period as notes, each naming its box by `caption`, in the order of the
// lines (the header's first).
Report TotalsWindow(const TotalsReport& report, const BoxCaption& caption);

// "Έλεγχος συνόλων": the report of the declaration being worked on
// (vars.DeclarationId) in its window, offered for saving under the
// declaration's name; a store error is told instead.
void ShowTotals(Vars& vars, Dialogs& dialogs, Kind kind, const BoxCaption& caption);

}  // namespace veroxia
