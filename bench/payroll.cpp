#include "payroll.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include "rules/check_digits.h"
#include "store/rows.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace veroxia::bench {

namespace {

using namespace Qt::StringLiterals;

const QStringList& Surnames() {
  static const QStringList names{
      u"ΠΑΠΑΔΟΠΟΥΛΟΣ"_s, u"ΒΑΣΙΛΕΙΟΥ"_s, u"ΝΙΚΟΛΑΟΥ"_s,     u"ΓΕΩΡΓΙΟΥ"_s,    u"ΠΑΠΠΑΣ"_s,
      u"ΟΙΚΟΝΟΜΟΥ"_s,    u"ΜΑΚΡΗΣ"_s,    u"ΚΩΝΣΤΑΝΤΙΝΟΥ"_s, u"ΙΩΑΝΝΟΥ"_s,     u"ΔΗΜΗΤΡΙΟΥ"_s,
      u"ΑΛΕΞΙΟΥ"_s,      u"ΘΕΟΔΩΡΟΥ"_s,  u"ΚΑΡΑΓΙΑΝΝΗΣ"_s,  u"ΣΤΑΥΡΟΥ"_s,     u"ΧΑΤΖΗΣ"_s,
      u"ΜΙΧΑΗΛΙΔΗΣ"_s,   u"ΑΘΑΝΑΣΙΟΥ"_s, u"ΠΕΤΡΟΥ"_s,       u"ΣΠΥΡΟΠΟΥΛΟΣ"_s, u"ΛΑΜΠΡΟΥ"_s,
  };
  return names;
}

}  // namespace

QString PayrollInsuredId(int person) { return QString::number(100'000'000 + person * 7); }

QString PayrollSurname(int person) {
  const QString letters = u"ΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩ"_s;
  const int n = static_cast<int>(letters.size());
  return Surnames()[person % Surnames().size()] + u' ' + letters[(person / 20) % n] +
         letters[(person / 20 / n) % n];
}

namespace {

// The number made of `prefix` and the one last digit for which the check
// digit holds: the payroll's tax numbers and AMKA are right ones.
QString WithCheckDigit(const QString& prefix, bool (*holds)(const QString&)) {
  for (char digit = '0'; digit <= '9'; ++digit) {
    if (holds(prefix + QLatin1Char(digit))) return prefix + QLatin1Char(digit);
  }
  return prefix + u'0';
}

// The same person's line in a construction-works declaration.
ConEmployeeRow WorkerLine(const EmployeeRow& line) {
  ConEmployeeRow row;
  row.id = line.id;
  row.row_num = line.row_num;
  row.ovt_code = u"051"_s;
  row.insured_id = line.insured_id;
  row.amka = line.amka;
  row.surname = line.surname;
  row.name = line.name;
  row.father_name = line.father_name;
  row.mother_name = line.mother_name;
  row.birth_date = line.birth_date;
  row.taxation_id = line.taxation_id;
  row.married_status = u"1"_s;
  row.triennium_num = u"1"_s;
  row.sundays_sum = line.sundays_sum;
  row.categ_code = u"713000"_s;
  row.special_code = line.special_insur_code;
  row.cover_code = u"2013"_s;
  row.sal_from = u"01/01/2002"_s;
  row.sal_to = u"31/01/2002"_s;
  // One line per worker and wage type: the monthly lines of regular pay
  // become the types 01, 02 and 04 of the month.
  const int month = line.sal_month.value_or(QString()).toInt();
  row.wage_code = line.wage_code == u"03"_s
                      ? line.wage_code
                      : QStringLiteral("%1").arg(month == 3 ? 4 : month, 2, 10, QLatin1Char('0'));
  row.insurance_days = u"20"_s;
  row.daily_wages = line.daily_wages;
  row.salary = line.salary;
  row.phase_code = u"3"_s;
  row.costing_days = u"20"_s;
  row.insured_contr = line.insured_contr;
  row.employer_contr = line.employer_contr;
  row.total_contr = line.total_contr;
  return row;
}

}  // namespace

const QString& PayrollFile() {
  static QTemporaryDir dir;
  static const QString path = [] {
    const QString file = dir.path() + u"/payroll.mdb"_s;
    MakePayrollStore(file);
    return file;
  }();
  return path;
}

void MakePayrollStore(const QString& path, int lines, int persons) {
  CreateStore(path, StorePassword());
  auto db = Database::Open(path, StorePassword());
  Transaction transaction(*db);
  EmployerRow header;
  header.id = kPayrollId;
  header.from_month = u"01"_s;
  header.from_year = u"2002"_s;
  header.to_month = u"03"_s;
  header.to_year = u"2002"_s;
  InsertRow(*db, header);
  // Persons in register-number order, so line numbers follow the reading
  // order; each person's lines stand together.
  int line = 0;
  for (int person = 0; person < persons; ++person) {
    const int own = (lines - line) / (persons - person);
    for (int k = 0; k < own; ++k, ++line) {
      EmployeeRow row;
      row.id = kPayrollId;
      row.row_num = line + 1;
      row.emp_branch_id = u"0001"_s;
      row.kad = u"5510"_s;
      row.insured_id = PayrollInsuredId(person);
      row.amka = WithCheckDigit(QString::number(1'000'000'000LL + person), AmkaCheckDigitHolds);
      row.surname = PayrollSurname(person);
      row.name = u"ΓΕΩΡΓΙΟΣ"_s;
      row.father_name = u"ΝΙΚΟΛΑΟΣ"_s;
      row.mother_name = u"ΜΑΡΙΑ"_s;
      row.birth_date = u"05/03/1970"_s;
      row.taxation_id = WithCheckDigit(QString::number(10'000'000 + person), AfmCheckDigitHolds);
      row.full_day = u"1"_s;
      row.all_days = u"1"_s;
      row.sundays_sum = u"0"_s;
      row.insur_categ_code = u"913000"_s;
      row.special_insur_code = QString();
      row.covcod_cover_code = u"101"_s;
      row.sal_month = QStringLiteral("%1").arg(k % 3 + 1, 2, 10, QLatin1Char('0'));
      row.sal_year = u"2002"_s;
      row.sal_from = QString();
      row.sal_to = QString();
      row.wage_code = k < 3 ? u"01"_s : u"03"_s;
      row.insurance_days = u"25"_s;
      row.daily_wages = u"40,02"_s;
      row.salary = u"1000,50"_s;
      row.insured_contr = u"160"_s;
      row.employer_contr = u"280,5"_s;
      row.total_contr = u"440,5"_s;
      row.subsidy_amount = u"0"_s;
      row.emp_subsidy_percent = u"0"_s;
      row.emp_subsidy_amount = u"0"_s;
      row.payed_contr = u"440,5"_s;
      InsertRow(*db, row);
      InsertRow(*db, WorkerLine(row));
    }
  }
  ConEmployerRow con_header;
  con_header.id = kPayrollId;
  con_header.from_month = u"01"_s;
  con_header.from_year = u"2002"_s;
  InsertRow(*db, con_header);
  transaction.Commit();
}

long ResidentKb() {
  QFile statm(QStringLiteral("/proc/self/statm"));
  if (!statm.open(QIODevice::ReadOnly)) return 0;
  const QList<QByteArray> fields = statm.readAll().split(' ');
  return fields.size() > 1 ? fields[1].toLong() * 4 : 0;
}

}  // namespace veroxia::bench
