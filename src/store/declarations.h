#pragma once
// The statements that find declarations and carry employee lines over from
// one declaration to the next. One function per statement shape; every value
// is a bound parameter.

#include <QString>
#include <optional>
#include <vector>

#include "store/database.h"
#include "store/kind.h"

namespace veroxia {

// The typed period of a declaration, texts exactly as typed. The construction
// kind uses only the start month and year.
struct PeriodTexts {
  QString from_month;
  QString from_year;
  QString to_month;
  QString to_year;
};

// The id of the first header stored for the period (compared as exact
// texts); nothing when there is none. The id itself may be Null.
std::optional<Text> FindDeclaration(Database& db, Kind kind, const PeriodTexts& period);

// The highest id of the kind's header table; Null when the table is empty.
Text MaxId(Database& db, Kind kind);

// The number of employee lines of a declaration.
int CountLines(Database& db, Kind kind, int id);

// The header row of a declaration with every column, and its employee lines
// with every column in the kind's reading order, ready to be stepped through.
// The statement is reset when the Rows goes.
class Rows {
 public:
  explicit Rows(Statement& statement) : statement_(statement) {}
  ~Rows() { statement_.Reset(); }
  Rows(const Rows&) = delete;
  Rows& operator=(const Rows&) = delete;
  Statement& operator*() const { return statement_; }
  Statement* operator->() const { return &statement_; }

 private:
  Statement& statement_;
};
Rows HeaderRow(Database& db, Kind kind, int id);
Rows LinesInOrder(Database& db, Kind kind, int id);
// The same lines in the order of their numbers (as they were entered).
Rows LinesByNumber(Database& db, Kind kind, int id);
// The register numbers of a declaration's lines alone, in the same order.
Rows InsuredIdsInOrder(Database& db, Kind kind, int id);

// What a list of the stored declarations shows of each.
struct DeclarationSummary {
  Text id;
  PeriodTexts period;  // as stored; the construction kind has no end
  Text type;
  int lines = 0;
};
// Every header of the kind, in id order, with its number of lines.
std::vector<DeclarationSummary> ListDeclarations(Database& db, Kind kind);

// Empties the kind's scratch table.
void ClearScratch(Database& db, Kind kind);

// Sets the daily wage to "0" where it is Null in any common-business line, or
// empty in a line of the given declaration (AND binds tighter than OR).
int FixDailyWages(Database& db, int id);

// Copies the lines of a declaration into the scratch table; answers how many.
int CopyLinesToScratch(Database& db, Kind kind, int id);

// Moves every scratch line to the next declaration id.
int MoveScratchToNextId(Database& db, Kind kind);

// Appends every scratch line to the kind's lines table.
int InsertLinesFromScratch(Database& db, Kind kind);

// A payroll month and year as the common lines store them (Null kept), and
// how many lines of a declaration have exactly these texts.
struct PayrollMonth {
  Text month;
  Text year;
  int lines = 0;
};
// The payroll months of a common declaration's lines, each once.
std::vector<PayrollMonth> PayrollMonths(Database& db, int id);
// Gives the lines of a common declaration whose payroll month and year are
// exactly those of `from` (not Null) the new ones; answers how many changed.
int SetPayrollMonth(Database& db, int id, const PayrollMonth& from, const QString& month,
                    const QString& year);

}  // namespace veroxia
