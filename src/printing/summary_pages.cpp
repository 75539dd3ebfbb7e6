// The summary forms of both kinds: the employer's identity, the period, the
// declaration's totals and the employer's statement, on one page.

#include "printing/summary_pages.h"

#include "printing/page_text.h"
#include "printing/texts.h"
#include "rules/formats.h"
#include "rules/texts.h"

namespace veroxia {

using namespace Qt::StringLiterals;
namespace pt = printing_texts;
using namespace page_values;

namespace {

const QString kFiveBlanks(5, u' ');
const QString kLeadIn(18, u' ');  // the room of "ΣΥΝΟΛΑ ΑΝΑ ΜΗΝΑ:  "

// One row of the totals table: lead-in, label, days, wages, contributions.
void TotalsRow(PageText& page, const QString& lead_in, const QString& label, const Text& days,
               const Text& salaries, const Text& contributions) {
  page.Line(lead_in, label, kFiveBlanks, Days(days), kFiveBlanks, Amount(salaries, 16), kFiveBlanks,
            Amount(contributions, 16));
}

}  // namespace

QString CommonSummary(const EmployerRow& h) {
  PageText page;
  page.Empty(4);
  page.Line(pt::kSumTitle);
  page.Line(pt::kSumSubtitle);
  page.Empty(2);
  page.Line(pt::kType, Required(h.declaration_type, pt::kType), u' ', Stored(h.declaration_descr));
  page.Empty();
  page.Line(pt::kBranch1);
  page.Line(pt::kBranch2, FieldText(h.orgbra_branch_code), u' ', FieldText(h.orgbra_branch_descr));
  page.Empty();
  page.Line(pt::kEmployer, EmployerName(h.employer_name, h.emp_first_name, h.emp_father_name));
  page.Empty();
  page.Line(pt::kSumAme, Required(h.emp_employer_id, pt::kSumAme));
  page.Line(pt::kSumAfm, Required(h.taxation_number, pt::kSumAfm));
  page.Empty();
  page.Line(pt::kAddress, FieldText(h.address_street), u' ', FieldText(h.num));
  page.Line(QString(27, u' '), FieldText(h.zip_code), u' ', FieldText(h.city));
  page.Empty();
  page.Line(pt::kFrom, Stored(h.from_month), u'/', Stored(h.from_year));
  page.Line(pt::kTo, Stored(h.to_month), u'/', Stored(h.to_year));
  page.Empty();
  page.Line(pt::kSumColumns1);
  page.Line(pt::kSumColumns2);
  page.Empty();
  TotalsRow(page, pt::kPerMonth, FieldText(h.saldate1), h.total_days1, h.total_salaries1,
            h.total_contributions1);
  if (!FieldText(h.saldate2).isEmpty()) {
    TotalsRow(page, kLeadIn, FieldText(h.saldate2), h.total_days2, h.total_salaries2,
              h.total_contributions2);
    TotalsRow(page, kLeadIn, FieldText(h.saldate3), h.total_days3, h.total_salaries3,
              h.total_contributions3);
  } else {
    page.Empty();
  }
  TotalsRow(page, kLeadIn, pt::kTotals, h.total_days, h.total_salaries, h.total_contributions);
  SummaryClosing(page);
  return page.Take();
}

QString ConstructionSummary(const ConEmployerRow& h) {
  PageText page;
  const QString type = FieldText(h.declare_type);
  page.Empty(4);
  page.Line(pt::kConSumTitle);
  page.Line(pt::kConSumSubtitle);
  page.Empty(2);
  page.Line(pt::kType, type, u' ', TypeName(type));
  page.Empty();
  page.Line(pt::kBranch1);
  page.Line(pt::kBranch2, ThreeDigits(h.ovt_code), u' ', FieldText(h.ovt_name));
  page.Empty();
  page.Line(pt::kEmployer, EmployerName(h.emp_name, h.emp_first_name, h.emp_father_name));
  page.Empty();
  page.Line(pt::kSeat, FieldText(h.emp_address), u' ', FieldText(h.emp_num));
  page.Line(pt::kSeatEmployer, FieldText(h.emp_zip_code), u' ', FieldText(h.emp_city));
  page.Empty();
  page.Line(pt::kWorks, WrapText(FieldText(h.con_descr), true));
  page.Empty();
  page.Line(pt::kSumAme, FieldText(h.ame), pt::kSumAmoe, FieldText(h.amoe), pt::kSumAfmAfterAmoe,
            FieldText(h.afm));
  page.Empty();
  page.Line(pt::kSite, FieldText(h.con_address), u' ', FieldText(h.con_num));
  page.Line(QString(27, u' '), FieldText(h.con_zip_code), u' ', FieldText(h.con_city));
  page.Empty();
  page.Line(pt::kSumMonth, FieldText(h.from_month), u'/', FieldText(h.from_year));
  page.Empty();
  page.Line(pt::kSumDays1);
  page.Line(pt::kSumDays2, FieldNumber(h.sum_days));
  page.Empty();
  page.Line(pt::kSumTotal);
  // Both totals are read as texts: a Null prints nothing.
  page.Line(pt::kSalaries, FormatAmount(FieldText(h.sum_salaries)));
  page.Empty();
  page.Line(pt::kSumTotal);
  page.Line(pt::kContributions, FormatAmount(FieldText(h.sum_contr)));
  SummaryClosing(page);
  return page.Take();
}

}  // namespace veroxia
