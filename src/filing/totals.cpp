#include "filing/totals.h"

#include <algorithm>
#include <array>

#include "rules/check_digits.h"
#include "rules/formats.h"
#include "rules/numbers.h"
#include "rules/texts.h"
#include "shell/errors.h"
#include "shell/file_names.h"
#include "shell/texts.h"
#include "store/declarations.h"

namespace veroxia {

using namespace Qt::StringLiterals;

namespace {

// Our own texts.
const QString kDays = u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ"_s;
const QString kWorkDays = u"ΗΜΕΡΕΣ ΑΠΑΣΧΟΛΗΣΗΣ"_s;
const QString kWages = u"ΑΠΟΔΟΧΕΣ"_s;
const QString kPaid = u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ"_s;
const QString kContributions = u"ΕΙΣΦΟΡΕΣ"_s;
const QString kWhole = u"ΣΥΝΟΛΟ"_s;
const QString kAgrees = u"ΣΥΜΦΩΝΕΙ"_s;
const QString kDiffers = u"ΔΙΑΦΕΡΕΙ"_s;
const QStringList kColumns{u"ΣΤΟΙΧΕΙΟ"_s, u"ΕΠΙΚΕΦΑΛΙΔΑ"_s, u"ΓΡΑΜΜΕΣ"_s, u"ΔΙΑΦΟΡΑ"_s,
                           u"ΕΛΕΓΧΟΣ"_s};
const QString kAllAgree = u"Τα σύνολα της επικεφαλίδας συμφωνούν με τις γραμμές των εργαζομένων."_s;
const QString kUnreadable =
    u"Η γραμμή %1 έχει στο πεδίο '%2' την τιμή '%3', που δεν είναι αριθμός."_s;
const QString kWrongDigit =
    u"Η γραμμή %1 έχει στο πεδίο '%2' τον αριθμό '%3', που δεν έχει σωστό ψηφίο ελέγχου."_s;
const QString kNoHeader = u"Η δήλωση δεν έχει αποθηκευμένη επικεφαλίδα."_s;
const QString kWrongDigitHeader =
    u"Η επικεφαλίδα έχει στο πεδίο '%1' τον αριθμό '%2', που δεν έχει σωστό ψηφίο ελέγχου."_s;
const QString kOutOfPeriod =
    u"Η γραμμή %1 έχει στο πεδίο '%2' τον μήνα '%3', έξω από την περίοδο της δήλωσης (%4)."_s;
const QString kPeriodTo = u"%1 έως %2"_s;

// A number as hundredths, rounded as the amounts are formatted; empty for a
// text that is not a number or too large.
std::optional<qint64> Hundredths(const QString& text) {
  if (!ReadDecimal(text)) return std::nullopt;
  bool ok = false;
  const qint64 value = AmountDigits(text, 0, false).toLongLong(&ok);
  return ok ? std::optional<qint64>(value) : std::nullopt;
}

QString Shown(qint64 hundredths, bool days) {
  if (days && hundredths % 100 == 0) return QString::number(hundredths / 100);
  const qint64 whole = hundredths < 0 ? -hundredths : hundredths;
  return FormatAmount((hundredths < 0 ? u"-"_s : QString()) + QString::number(whole / 100) + u',' +
                      QString::number(whole % 100).rightJustified(2, u'0'));
}

// One quantity compared: the header's column and the lines' column.
struct Quantity {
  QString label;
  const char* header;
  const char* lines;
  bool days;
};

TotalsRow Compare(const QString& label, const Text& header, qint64 sum, bool days) {
  TotalsRow row;
  row.label = label;
  row.header = FieldText(header);
  row.lines = Shown(sum, days);
  if (const auto value = Hundredths(row.header)) {
    row.header = Shown(*value, days);
    row.difference = Shown(*value - sum, days);
    row.agrees = *value == sum;
  }
  return row;
}

// The month of a line's payroll period, as the header's labels write it.
QString MonthOf(const Text& month, const Text& year) {
  bool ok = false;
  const int number = FieldText(month).toInt(&ok);
  return ok ? QString::number(number).rightJustified(2, u'0') + u'/' + FieldText(year) : QString();
}

std::optional<int> MonthNumber(const Text& month, const Text& year) {
  return MonthIndex(FieldText(month), FieldText(year));
}

QString MonthText(const Text& month, const Text& year) {
  const QString text = FieldText(month) + u'/' + FieldText(year);
  return text == u"/" ? QString() : text;
}

}  // namespace

const QString kTotalsDisagree =
    u"ΠΡΟΣΟΧΗ!! Τα σύνολα της επικεφαλίδας δεν συμφωνούν με τις γραμμές των εργαζομένων."_s;

bool TotalsReport::AllAgree() const {
  if (!unreadable.empty() || !check_digits.empty() || !out_of_period.empty()) return false;
  for (const TotalsRow& row : rows) {
    if (!row.agrees) return false;
  }
  return true;
}

std::optional<TotalsReport> CompareTotals(Database& db, Kind kind, int id) {
  const bool common = kind == Kind::Common;
  std::vector<std::pair<QString, Text>> header;
  {
    Rows row = HeaderRow(db, kind, id);
    if (!row->Next()) return std::nullopt;
    for (int column = 0; column < row->ColumnCount(); ++column) {
      header.emplace_back(row->ColumnName(column), row->Value(column));
    }
  }
  TotalsReport report;
  for (const auto& [name, text] : header) {
    if (CheckDigitWarning(name, FieldText(text))) {
      report.check_digits.push_back({0, name, FieldText(text)});
    }
  }
  const auto value = [&](const QString& column) {
    for (const auto& [name, text] : header) {
      if (name == column) return text;
    }
    return Text();
  };
  const std::vector<Quantity> quantities =
      common ? std::vector<Quantity>{{kDays, "total_days", "insurance_days", true},
                                     {kWages, "total_salaries", "salary", false},
                                     {kPaid, "total_contributions", "payed_contr", false}}
             : std::vector<Quantity>{{kWorkDays, "sum_days", "insurance_days", true},
                                     {kWages, "sum_salaries", "salary", false},
                                     {kContributions, "sum_contr", "total_contr", false}};
  // The months of the period, from the header's labels.
  std::vector<QString> months;
  std::optional<int> first;
  std::optional<int> last;
  if (common) {
    for (int m = 1; m <= 3; ++m) months.push_back(FieldText(value(u"saldate%1"_s.arg(m))));
    first = MonthNumber(value(u"from_month"_s), value(u"from_year"_s));
    last = MonthNumber(value(u"to_month"_s), value(u"to_year"_s));
    const QString from = MonthText(value(u"from_month"_s), value(u"from_year"_s));
    const QString to = MonthText(value(u"to_month"_s), value(u"to_year"_s));
    report.period = from == to ? from : kPeriodTo.arg(from, to);
  }
  const bool period_known = first && last;
  std::vector<std::array<qint64, 4>> sums(quantities.size(), {0, 0, 0, 0});  // months, whole

  Rows lines = LinesInOrder(db, kind, id);
  const int row_num = lines->ColumnIndex(u"row_num"_s);
  const int sal_month = lines->ColumnIndex(u"sal_month"_s);
  const int sal_year = lines->ColumnIndex(u"sal_year"_s);
  std::vector<int> columns;
  for (const Quantity& q : quantities)
    columns.push_back(lines->ColumnIndex(QString::fromLatin1(q.lines)));
  const int amka = lines->ColumnIndex(u"amka"_s);
  const int taxation_id = lines->ColumnIndex(u"taxation_id"_s);
  while (lines->Next()) {
    for (const int column : {amka, taxation_id}) {
      const QString number = FieldText(lines->Value(column));
      if (CheckDigitWarning(lines->ColumnName(column), number)) {
        report.check_digits.push_back({lines->Int(row_num), lines->ColumnName(column), number});
      }
    }
    int month = -1;
    if (common) {
      if (period_known) {
        const auto line = MonthNumber(lines->Value(sal_month), lines->Value(sal_year));
        if (!line || *line < *first || *line > *last) {
          report.out_of_period.push_back(
              {lines->Int(row_num), MonthText(lines->Value(sal_month), lines->Value(sal_year))});
        }
      }
      const QString label = MonthOf(lines->Value(sal_month), lines->Value(sal_year));
      for (int m = 0; m < 3; ++m) {
        if (!label.isEmpty() && months[m] == label) month = m;
      }
    }
    for (size_t q = 0; q < quantities.size(); ++q) {
      const Text text = lines->Value(columns[q]);
      const auto number = Hundredths(FieldText(text));
      if (!number) {
        report.unreadable.push_back({lines->Int(row_num), QString::fromLatin1(quantities[q].lines),
                                     text.value_or(QString())});
        continue;
      }
      if (month >= 0) sums[q][month] += *number;
      sums[q][3] += *number;
    }
  }
  for (int m = 0; m < 3 && common; ++m) {
    if (months[m].isEmpty()) continue;
    for (size_t q = 0; q < quantities.size(); ++q) {
      const QString column = QString::fromLatin1(quantities[q].header) + QString::number(m + 1);
      report.rows.push_back(Compare(quantities[q].label + u' ' + months[m], value(column),
                                    sums[q][m], quantities[q].days));
    }
  }
  for (size_t q = 0; q < quantities.size(); ++q) {
    report.rows.push_back(Compare(quantities[q].label + u' ' + kWhole,
                                  value(QString::fromLatin1(quantities[q].header)), sums[q][3],
                                  quantities[q].days));
  }
  return report;
}

Report TotalsWindow(const TotalsReport& report, const BoxCaption& caption) {
  Report shown;
  shown.title = kTotalsTitle;
  shown.columns = kColumns;
  for (const TotalsRow& row : report.rows) {
    shown.rows.push_back(
        {{row.label, row.header, row.lines, row.difference, row.agrees ? kAgrees : kDiffers},
         row.agrees});
  }
  // Within a line the notes follow its boxes: the personal numbers, the
  // payroll month, the amounts.
  std::vector<std::pair<int, QString>> notes;
  for (const UnreadableValue& value : report.check_digits) {
    const bool in_header = value.row_num == 0;
    const QString box = caption(in_header, value.column);
    notes.emplace_back(value.row_num, in_header
                                          ? kWrongDigitHeader.arg(box, value.text)
                                          : kWrongDigit.arg(value.row_num).arg(box, value.text));
  }
  for (const LineOutOfPeriod& line : report.out_of_period) {
    notes.emplace_back(line.row_num,
                       kOutOfPeriod.arg(line.row_num)
                           .arg(caption(false, u"sal_month"_s), line.month, report.period));
  }
  for (const UnreadableValue& value : report.unreadable) {
    notes.emplace_back(
        value.row_num,
        kUnreadable.arg(value.row_num).arg(caption(false, value.column), value.text));
  }
  std::stable_sort(notes.begin(), notes.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  for (const auto& note : notes) shown.notes << note.second;
  shown.verdict = report.AllAgree() ? kAllAgree : kTotalsDisagree;
  return shown;
}

void ShowTotals(Vars& vars, Dialogs& dialogs, Kind kind, const BoxCaption& caption) {
  std::optional<TotalsReport> report;
  std::optional<StoreError> failure;
  {
    BusyPointer busy(dialogs);
    try {
      report = CompareTotals(*vars.StoreConnection, kind, vars.DeclarationId);
    } catch (const StoreError& error) {
      failure = error;
    }
  }
  if (failure) {
    dialogs.Message(ErrorMessage(kTotalsNotCompared, *failure), texts::kAppTitle);
  } else if (!report) {
    dialogs.Message(kTotalsNotCompared + u"\r\n"_s + kNoHeader, texts::kAppTitle);
  } else {
    Report shown = TotalsWindow(*report, caption);
    shown.file_name =
        DeclarationFileName(kind, vars.DeclarationId, vars.PeriodFrom, vars.PeriodTo, u"txt"_s);
    dialogs.ShowReport(shown);
  }
}

}  // namespace veroxia
