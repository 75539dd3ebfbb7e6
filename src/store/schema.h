#pragma once
// The six tables of the store. Each table's columns are listed once, in their
// stored order, and both the typed rows and the statements are made from that
// list. `id` and `row_num` are numbers; every other column is a text that may
// be Null.

#include <QString>
#include <QStringList>

#include "store/database.h"

// clang-format off
#define VEROXIA_EMPLOYER_TEXT_COLUMNS(X) \
  X(declaration_type) \
  X(declaration_descr) \
  X(orgbra_branch_code) \
  X(orgbra_branch_descr) \
  X(employer_name) \
  X(emp_employer_id) \
  X(taxation_number) \
  X(address_street) \
  X(num) \
  X(zip_code) \
  X(city) \
  X(from_month) \
  X(from_year) \
  X(to_month) \
  X(to_year) \
  X(total_days1) \
  X(total_days2) \
  X(total_days3) \
  X(total_days) \
  X(total_salaries1) \
  X(total_salaries2) \
  X(total_salaries3) \
  X(total_salaries) \
  X(total_contributions1) \
  X(total_contributions2) \
  X(total_contributions3) \
  X(total_contributions) \
  X(saldate1) \
  X(saldate2) \
  X(saldate3) \
  X(emp_first_name) \
  X(emp_father_name) \
  X(CreateFlDate) \
  X(stop_date)

#define VEROXIA_CON_EMPLOYER_TEXT_COLUMNS(X) \
  X(declare_type) \
  X(ovt_code) \
  X(ovt_name) \
  X(emp_name) \
  X(emp_address) \
  X(emp_num) \
  X(emp_zip_code) \
  X(emp_city) \
  X(con_descr) \
  X(ame) \
  X(amoe) \
  X(afm) \
  X(con_address) \
  X(con_num) \
  X(con_zip_code) \
  X(con_city) \
  X(from_month) \
  X(from_year) \
  X(sum_salaries) \
  X(sum_days) \
  X(sum_contr) \
  X(emp_first_name) \
  X(emp_father_name) \
  X(createfldate) \
  X(stop_date)

#define VEROXIA_EMPLOYEE_TEXT_COLUMNS(X) \
  X(emp_branch_id) \
  X(kad) \
  X(insured_id) \
  X(amka) \
  X(surname) \
  X(name) \
  X(father_name) \
  X(mother_name) \
  X(birth_date) \
  X(taxation_id) \
  X(full_day) \
  X(all_days) \
  X(sundays_sum) \
  X(insur_categ_code) \
  X(special_insur_code) \
  X(covcod_cover_code) \
  X(sal_month) \
  X(sal_year) \
  X(sal_from) \
  X(sal_to) \
  X(wage_code) \
  X(insurance_days) \
  X(daily_wages) \
  X(salary) \
  X(insured_contr) \
  X(employer_contr) \
  X(total_contr) \
  X(subsidy_amount) \
  X(emp_subsidy_percent) \
  X(emp_subsidy_amount) \
  X(payed_contr)

#define VEROXIA_CON_EMPLOYEE_TEXT_COLUMNS(X) \
  X(ovt_code) \
  X(insured_id) \
  X(amka) \
  X(surname) \
  X(name) \
  X(father_name) \
  X(mother_name) \
  X(birth_date) \
  X(taxation_id) \
  X(married_status) \
  X(triennium_num) \
  X(sundays_sum) \
  X(categ_code) \
  X(special_code) \
  X(cover_code) \
  X(sal_from) \
  X(sal_to) \
  X(wage_code) \
  X(insurance_days) \
  X(daily_wages) \
  X(salary) \
  X(phase_code) \
  X(costing_days) \
  X(insured_contr) \
  X(employer_contr) \
  X(total_contr)
// clang-format on

namespace veroxia {

// Header of a common-business declaration.
struct EmployerRow {
  static constexpr const char* kTable = "QOR_EMPLOYERS";
  int id = 0;
#define VEROXIA_MEMBER(c) Text c;
  VEROXIA_EMPLOYER_TEXT_COLUMNS(VEROXIA_MEMBER)
#undef VEROXIA_MEMBER
};

// Header of a construction-works declaration.
struct ConEmployerRow {
  static constexpr const char* kTable = "QOR_CON_EMPLOYERS";
  int id = 0;
#define VEROXIA_MEMBER(c) Text c;
  VEROXIA_CON_EMPLOYER_TEXT_COLUMNS(VEROXIA_MEMBER)
#undef VEROXIA_MEMBER
};

// One employee line of a common-business declaration (also the row of its
// scratch table).
struct EmployeeRow {
  static constexpr const char* kTable = "QOR_EMPLOYEES";
  int id = 0;
  int row_num = 0;
#define VEROXIA_MEMBER(c) Text c;
  VEROXIA_EMPLOYEE_TEXT_COLUMNS(VEROXIA_MEMBER)
#undef VEROXIA_MEMBER
};

// One worker line of a construction-works declaration (also the row of its
// scratch table).
struct ConEmployeeRow {
  static constexpr const char* kTable = "QOR_CON_EMPLOYEES";
  int id = 0;
  int row_num = 0;
#define VEROXIA_MEMBER(c) Text c;
  VEROXIA_CON_EMPLOYEE_TEXT_COLUMNS(VEROXIA_MEMBER)
#undef VEROXIA_MEMBER
};

// Calls f(name, member) for each text column of a row, in stored order.
#define VEROXIA_VISIT(c) f(#c, row.c);
template <class F>
void ForEachText(EmployerRow& row, F&& f) {
  VEROXIA_EMPLOYER_TEXT_COLUMNS(VEROXIA_VISIT)
}
template <class F>
void ForEachText(ConEmployerRow& row, F&& f) {
  VEROXIA_CON_EMPLOYER_TEXT_COLUMNS(VEROXIA_VISIT)
}
template <class F>
void ForEachText(EmployeeRow& row, F&& f) {
  VEROXIA_EMPLOYEE_TEXT_COLUMNS(VEROXIA_VISIT)
}
template <class F>
void ForEachText(ConEmployeeRow& row, F&& f) {
  VEROXIA_CON_EMPLOYEE_TEXT_COLUMNS(VEROXIA_VISIT)
}
#undef VEROXIA_VISIT

// Every column of a table, numeric ones first, in stored order.
QStringList ColumnsOf(const char* table);

// The statements that make an empty store: the six tables and the indexes
// that serve the look-ups and reading orders.
QStringList SchemaStatements();

// Proves that the six tables stand with their columns; throws StoreError
// (SQLITE_ERROR, naming the table) when the file is some other database.
void CheckSchema(Database& db);

// Opens the store file at path for reading and writing once its key and its
// six tables are proven: a file that is no store of ours is never written
// to and keeps no companion files. Throws StoreError (see Database::Open and
// CheckSchema).
std::unique_ptr<Database> OpenStoreFile(const QString& path, const QString& password);

// Makes an empty store at path, keyed with password. Throws StoreError, also
// when a file of that name exists already.
void CreateStore(const QString& path, const QString& password);

}  // namespace veroxia
