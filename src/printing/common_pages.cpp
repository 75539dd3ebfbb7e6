// The common-business declaration printout: the employer, the period and the
// monthly totals, then a block of 29 labelled values for each employee line.

#include "printing/declaration_layouts.h"
#include "printing/texts.h"
#include "rules/texts.h"

namespace veroxia {

using namespace Qt::StringLiterals;
namespace pt = printing_texts;
using namespace page_values;

namespace {

QString Blanks(int count) { return QString(count, u' '); }

QString From(const EmployerRow& h) { return Stored(h.from_month) + u'/' + Stored(h.from_year); }
QString To(const EmployerRow& h) { return Stored(h.to_month) + u'/' + Stored(h.to_year); }

void Totals(PageText& page, const EmployerRow& h) {
  if (!FieldText(h.saldate2).isEmpty()) {  // three months
    page.Line(pt::kPerMonthPage1, FieldText(h.saldate1), Blanks(10), FieldText(h.saldate2),
              Blanks(10), FieldText(h.saldate3), pt::kTotalsHeading);
    page.Line(pt::kDaysPage1, Days(h.total_days1), Blanks(9), Days(h.total_days2), Blanks(9),
              Days(h.total_days3), Blanks(9), Days(h.total_days));
    page.Line(pt::kSalaries, Amount(h.total_salaries1, 16), u' ', Amount(h.total_salaries2, 16),
              u' ', Amount(h.total_salaries3, 16), u' ', Amount(h.total_salaries, 16));
    page.Line(pt::kPaid, Amount(h.total_contributions1, 16), u' ',
              Amount(h.total_contributions2, 16), u' ', Amount(h.total_contributions3, 16), u' ',
              Amount(h.total_contributions, 16));
  } else {
    page.Line(pt::kPerMonthPage1, FieldText(h.saldate1), Blanks(43), pt::kTotalsWord);
    page.Line(pt::kDaysPage1, Days(h.total_days1), Blanks(41), Days(h.total_days));
    page.Line(pt::kSalaries, Amount(h.total_salaries1, 16), Blanks(33),
              Amount(h.total_salaries, 16));
    page.Line(pt::kPaid, Amount(h.total_contributions1, 16), Blanks(33),
              Amount(h.total_contributions, 16));
  }
  page.Empty();
}

}  // namespace

QString CommonDeclaration::Type(const Header& h) { return FieldText(h.declaration_type); }

void CommonDeclaration::FirstPage(PageText& page, const Header& h, int pages) {
  page.Empty(4);
  page.Line(pt::kPage1, u"1"_s, pt::kOf, QString::number(pages));
  page.Empty();
  page.Line(pt::kType, Type(h), u' ', Stored(h.declaration_descr));
  page.Empty();
  page.Line(pt::kBranch, FieldText(h.orgbra_branch_code), u' ', FieldText(h.orgbra_branch_descr));
  page.Line(pt::kEmployer, EmployerName(h.employer_name, h.emp_first_name, h.emp_father_name));
  page.Empty();
  page.Line(pt::kSumAme, FieldText(h.emp_employer_id), pt::kAddressHeading);
  page.Line(pt::kSumAfm, FieldText(h.taxation_number), u"   "_s, FieldText(h.address_street), u' ',
            FieldText(h.num));
  page.Line(Blanks(21), FieldText(h.zip_code), u' ', FieldText(h.city));
  page.Line(pt::kFromPage1, From(h), pt::kToPage1, To(h));
  page.Empty();
  Totals(page, h);
}

void CommonDeclaration::PageHeader(PageText& page, const Header& h, int number, int pages) {
  page.Empty(4);
  page.Line(pt::kPageN, QString::number(number), pt::kOf, QString::number(pages));
  page.Empty();
  page.Line(pt::kPageAme, FieldText(h.emp_employer_id), pt::kPageAfm, FieldText(h.taxation_number));
  page.Line(pt::kFrom, From(h), pt::kPageTo, To(h));
  page.Empty();
}

void CommonDeclaration::Block(PageText& page, const Line& l) {
  page.Line(pt::kBranchKad, FieldText(l.emp_branch_id), u" / "_s, FieldText(l.kad));
  PersonLines(page, l, pt::kAmka);
  page.Line(pt::kFullDay, YesNo(l.full_day, pt::kFullDay, l.row_num));
  page.Line(pt::kAllDays, YesNo(l.all_days, pt::kAllDays, l.row_num));
  page.Line(pt::kSundays, FieldText(l.sundays_sum));
  page.Line(pt::kCategory, FieldText(l.insur_categ_code));
  page.Line(pt::kSpecial, FieldText(l.special_insur_code));
  page.Line(pt::kCover, FieldText(l.covcod_cover_code));
  page.Line(pt::kPayPeriod, FieldText(l.sal_month), u'/', FieldText(l.sal_year));
  page.Line(pt::kSalFrom, FieldText(l.sal_from));
  page.Line(pt::kSalTo, FieldText(l.sal_to));
  page.Line(pt::kWageCode, FieldText(l.wage_code));
  page.Line(pt::kInsuranceDays, FieldText(l.insurance_days));
  page.Line(pt::kDailyWage, Amount(l.daily_wages));
  page.Line(pt::kSalary, Amount(l.salary));
  ContributionLines(page, l);
  page.Line(pt::kSubsidy, Amount(l.subsidy_amount));
  page.Line(pt::kSubsidyPercent, Amount(l.emp_subsidy_percent));
  page.Line(pt::kSubsidyAmount, Amount(l.emp_subsidy_amount));
  page.Line(pt::kPayedContr, Amount(l.payed_contr));
}

void CommonDeclaration::LastPage(PageText& page, const Header& h, int pages) {
  page.Empty(4);
  page.Line(pt::kLastPage, QString::number(pages), pt::kOf, QString::number(pages));
  page.Empty();
  page.Line(pt::kPageAme, FieldText(h.emp_employer_id), pt::kLastAfm, FieldText(h.taxation_number));
  page.Line(pt::kFrom, From(h), pt::kPageTo, To(h));
  page.Empty(6);
  page.Line(pt::kCessation);
  page.Line(pt::kCessation2);
  page.Empty();
  StopStatement(page, FieldText(h.stop_date));
}

}  // namespace veroxia
