// The construction-works declaration printout: the employer, the project and
// the month's totals, then a block of 28 labelled values for each worker line.

#include "printing/declaration_layouts.h"
#include "printing/texts.h"
#include "rules/formats.h"
#include "rules/texts.h"

namespace veroxia {

using namespace Qt::StringLiterals;
namespace pt = printing_texts;
using namespace page_values;

namespace {

QString Month(const ConEmployerRow& h) {
  return FieldText(h.from_month) + u'/' + FieldText(h.from_year);
}

// Lines 7 and 8 of the later pages: the employer's numbers and the month.
void Identity(PageText& page, const ConEmployerRow& h) {
  page.Line(pt::kConPageAme, FieldText(h.ame), pt::kConPageAmoe, FieldText(h.amoe), pt::kConPageAfm,
            FieldText(h.afm));
  page.Line(pt::kConPageMonth, Month(h));
}

}  // namespace

QString ConstructionDeclaration::Type(const Header& h) { return FieldText(h.declare_type); }

void ConstructionDeclaration::FirstPage(PageText& page, const Header& h, int pages) {
  page.Empty(4);
  page.Line(pt::kConPage1, u"1"_s, pt::kOf, QString::number(pages));
  page.Empty();
  page.Line(pt::kType, Type(h), u' ', TypeName(Type(h)));
  page.Empty();
  page.Line(pt::kBranch, ThreeDigits(h.ovt_code), u' ', FieldText(h.ovt_name));
  page.Line(pt::kEmployer, EmployerName(h.emp_name, h.emp_first_name, h.emp_father_name));
  page.Empty();
  page.Line(pt::kConSeat, FieldText(h.emp_address), u' ', FieldText(h.emp_num));
  page.Line(pt::kConSeatEmployer, FieldText(h.emp_zip_code), u' ', FieldText(h.emp_city));
  page.Line(pt::kConWorks, WrapText(FieldText(h.con_descr), true));
  page.Empty();
  page.Line(pt::kConAme, FieldText(h.ame), pt::kConSiteHeading);
  page.Line(pt::kConAmoe, FieldText(h.amoe), u"       "_s, FieldText(h.con_address), u' ',
            FieldText(h.con_num));
  page.Line(pt::kSumAfm, FieldText(h.afm), u"        "_s, FieldText(h.con_zip_code), u' ',
            FieldText(h.con_city));
  page.Line(pt::kConMonth, Month(h));
  page.Empty();
  page.Line(pt::kConTotals);
  page.Line(pt::kSalaries, Amount(h.sum_salaries, 16), pt::kConDays, Days(h.sum_days));
  page.Line(pt::kContributions, Amount(h.sum_contr, 16));
  page.Empty();
}

void ConstructionDeclaration::PageHeader(PageText& page, const Header& h, int number, int pages) {
  page.Empty(4);
  page.Line(pt::kConPageN, QString::number(number), pt::kOf, QString::number(pages));
  page.Empty();
  Identity(page, h);
  page.Empty();
}

void ConstructionDeclaration::Block(PageText& page, const Line& l) {
  page.Line(pt::kConBranch1);
  page.Line(pt::kConBranch2, FieldText(l.ovt_code));
  PersonLines(page, l, pt::kConAmka);
  page.Line(pt::kMarital, FieldText(l.married_status) == u"1" ? pt::kMarried : pt::kUnmarried);
  page.Line(pt::kTriennia, FieldText(l.triennium_num));
  page.Line(pt::kSundays, FieldText(l.sundays_sum));
  page.Line(pt::kCategory, FieldText(l.categ_code));
  page.Line(pt::kSpecial, FieldText(l.special_code));
  page.Line(pt::kCover, FieldText(l.cover_code));
  page.Line(pt::kSalFrom, FieldText(l.sal_from));
  page.Line(pt::kSalTo, FieldText(l.sal_to));
  page.Line(pt::kWageCode, FieldText(l.wage_code));
  page.Line(pt::kWorkDays, FieldText(l.insurance_days));
  page.Line(pt::kDailyWage, Amount(l.daily_wages));
  page.Line(pt::kSalary, Amount(l.salary));
  page.Line(pt::kPhase1);
  page.Line(pt::kPhase2, FieldText(l.phase_code));
  page.Line(pt::kCostingDays, FieldText(l.costing_days));
  ContributionLines(page, l);
}

void ConstructionDeclaration::LastPage(PageText& page, const Header& h, int pages) {
  page.Empty(4);
  page.Line(pt::kLastPage, QString::number(pages), pt::kOf, QString::number(pages));
  page.Empty();
  Identity(page, h);
  page.Empty(5);
  page.Line(pt::kConCessation);
  page.Line(pt::kCessation2);
  page.Empty();
  StopStatement(page, FieldText(h.stop_date));
}

}  // namespace veroxia
