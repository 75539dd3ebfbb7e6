#include "shell/carry_over.h"

#include <algorithm>
#include <map>

#include "rules/numbers.h"
#include "rules/texts.h"
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

namespace {

using namespace Qt::StringLiterals;

// A period as its first month and its number of months (see MonthIndex).
struct Span {
  int first = 0;
  int months = 1;
};

std::optional<Span> SpanOf(const QString& from_month, const QString& from_year,
                           const QString& to_month, const QString& to_year) {
  const auto first = MonthIndex(from_month, from_year);
  const auto last = MonthIndex(to_month, to_year);
  if (!first || !last || *last < *first) return std::nullopt;
  return Span{*first, *last - *first + 1};
}

QString MonthOf(int index) { return QString::number(index % 12 + 1).rightJustified(2, u'0'); }
QString YearOf(int index) { return QString::number(index / 12).rightJustified(4, u'0'); }
QString MonthText(int index) { return MonthOf(index) + u'/' + YearOf(index); }

QString PeriodText(const Span& span) {
  const QString first = MonthText(span.first);
  return span.months == 1
             ? first
             : texts::kPeriodFromTo.arg(first, MonthText(span.first + span.months - 1));
}

// The stored period of the previous declaration's header.
std::optional<Span> HeaderSpan(Database& db, int id) {
  Rows header = HeaderRow(db, Kind::Common, id);
  if (!header->Next()) return std::nullopt;
  const auto text = [&](const QString& column) {
    return FieldText(header->Value(header->ColumnIndex(column)));
  };
  return SpanOf(text(u"from_month"_s), text(u"from_year"_s), text(u"to_month"_s),
                text(u"to_year"_s));
}

struct Move {
  PayrollMonth from;
  int to = 0;
};

}  // namespace

void OfferPayrollMove(Vars& vars, Dialogs& dialogs, Kind kind) {
  if (kind != Kind::Common) return;
  Database& db = *vars.StoreConnection;
  const std::optional<Span> current = SpanOf(vars.PeriodFrom.left(2), vars.PeriodFrom.right(4),
                                             vars.PeriodTo.left(2), vars.PeriodTo.right(4));
  std::optional<Span> previous;
  std::vector<PayrollMonth> months;
  try {
    BusyPointer busy(dialogs);
    previous = HeaderSpan(db, vars.PreviousDeclarationId);
    if (previous && current) months = PayrollMonths(db, vars.DeclarationId);
  } catch (const StoreError& error) {
    dialogs.Message(ErrorMessage(texts::kPayrollMoveFailed, error), texts::kAppTitle);
    return;
  }
  std::vector<Move> moves;
  std::map<std::pair<int, int>, int> shown;  // lines by month and the month it takes
  int left = 0;
  for (const PayrollMonth& month : months) {
    const auto index = MonthIndex(FieldText(month.month), FieldText(month.year));
    if (!index || *index < previous->first || *index >= previous->first + previous->months) {
      left += month.lines;
      continue;
    }
    const int to = current->first + std::min(*index - previous->first, current->months - 1);
    if (month.month == MonthOf(to) && month.year == YearOf(to)) continue;  // already there
    moves.push_back({month, to});
    shown[{*index, to}] += month.lines;
  }
  if (moves.empty()) return;

  QString question = texts::kPayrollMoveQuestion.arg(PeriodText(*previous), PeriodText(*current));
  question += u"\r\n"_s;
  for (const auto& [from_to, lines] : shown) {
    question += u"\r\n"_s +
                texts::kPayrollMoveMonth.arg(MonthText(from_to.first), MonthText(from_to.second))
                    .arg(lines);
  }
  if (left > 0) question += u"\r\n\r\n"_s + texts::kPayrollMoveLeft.arg(left);
  if (!dialogs.Ask(question, texts::kAppTitle, AskStyle::Question)) return;
  try {
    BusyPointer busy(dialogs);
    Transaction transaction(db);
    for (const Move& move : moves) {
      SetPayrollMonth(db, vars.DeclarationId, move.from, MonthOf(move.to), YearOf(move.to));
    }
    transaction.Commit();
  } catch (const StoreError& error) {
    dialogs.Message(ErrorMessage(texts::kPayrollMoveFailed, error), texts::kAppTitle);
  }
}

}  // namespace veroxia
