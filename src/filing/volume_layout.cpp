#include "filing/volume_layout.h"

namespace veroxia {

namespace {

constexpr FieldFormat kDigits = FieldFormat::kDigits;
constexpr FieldFormat kAmount = FieldFormat::kAmount;
constexpr FieldFormat kText = FieldFormat::kText;
constexpr FieldFormat kDate = FieldFormat::kDate;
constexpr FieldFormat kAmka = FieldFormat::kAmka;
constexpr FieldFormat kMarried = FieldFormat::kMarried;

// clang-format off
const VolumeLayout kCommon{
    Kind::Common, "CSL",
    {
      {1, 16, 2, "declaration_type", kDigits},
      {2, 18, 3, "orgbra_branch_code", kDigits},
      {3, 21, 50, "orgbra_branch_descr", kText},
      {4, 71, 80, "employer_name", kText},
      {4, 151, 30, "emp_first_name", kText},
      {4, 181, 30, "emp_father_name", kText},
      {5, 211, 10, "emp_employer_id", kDigits},
      {6, 221, 9, "taxation_number", kDigits},
      {7, 230, 50, "address_street", kText},
      {8, 280, 10, "num", kText},
      {9, 290, 5, "zip_code", kDigits},
      {10, 295, 30, "city", kText},
      {11, 325, 2, "from_month", kDigits},
      {11, 327, 4, "from_year", kDigits},
      {12, 331, 2, "to_month", kDigits},
      {12, 333, 4, "to_year", kDigits},
      {14, 337, 8, "total_days", kDigits},
      {15, 345, 12, "total_salaries", kAmount},
      {16, 357, 12, "total_contributions", kAmount},
      {0, 369, 8, "CreateFlDate", kDate},
      {0, 377, 8, "stop_date", kDate},
    },
    30,
    {
      {19, 2, 9, "insured_id", kDigits},
      {20, 11, 11, "amka", kAmka},
      {21, 22, 50, "surname", kText},
      {22, 72, 30, "name", kText},
      {23, 102, 30, "father_name", kText},
      {24, 132, 30, "mother_name", kText},
      {25, 162, 8, "birth_date", kDate},
      {26, 170, 9, "taxation_id", kDigits},
    },
    {
      {18, 2, 4, "emp_branch_id", kDigits},
      {18, 6, 4, "kad", kDigits},
      {27, 10, 1, "full_day", kText},
      {28, 11, 1, "all_days", kText},
      {29, 12, 1, "sundays_sum", kDigits},
      {30, 13, 6, "insur_categ_code", kDigits},
      {31, 19, 2, "special_insur_code", kDigits},
      {32, 21, 4, "covcod_cover_code", kDigits},
      {33, 25, 2, "sal_month", kDigits},
      {33, 27, 4, "sal_year", kDigits},
      {34, 31, 8, "sal_from", kDate},
      {35, 39, 8, "sal_to", kDate},
      {36, 47, 2, "wage_code", kDigits},
      {37, 49, 3, "insurance_days", kDigits},
      {38, 52, 10, "daily_wages", kAmount},
      {39, 62, 10, "salary", kAmount},
      {40, 72, 10, "insured_contr", kAmount},
      {41, 82, 10, "employer_contr", kAmount},
      {42, 92, 11, "total_contr", kAmount},
      {43, 103, 10, "subsidy_amount", kAmount},
      {44, 113, 5, "emp_subsidy_percent", kAmount},
      {45, 118, 10, "emp_subsidy_amount", kAmount},
      {46, 128, 11, "payed_contr", kAmount},
    },
    416, 180, 140, 315, 400, "CreateFlDate"};

const VolumeLayout kConstruction{
    Kind::Construction, "CSC",
    {
      {1, 16, 2, "declare_type", kDigits},
      {2, 18, 3, "ovt_code", kDigits},
      {3, 21, 50, "ovt_name", kText},
      {4, 71, 80, "emp_name", kText},
      {4, 151, 30, "emp_first_name", kText},
      {4, 181, 30, "emp_father_name", kText},
      {5, 211, 50, "emp_address", kText},
      {6, 261, 10, "emp_num", kText},
      {7, 271, 5, "emp_zip_code", kDigits},
      {8, 276, 30, "emp_city", kText},
      {9, 306, 100, "con_descr", kText},
      {10, 406, 10, "ame", kDigits},
      {11, 416, 10, "amoe", kDigits},
      {12, 426, 9, "afm", kDigits},
      {13, 435, 50, "con_address", kText},
      {14, 485, 10, "con_num", kText},
      {15, 495, 5, "con_zip_code", kDigits},
      {16, 500, 30, "con_city", kText},
      {17, 530, 2, "from_month", kDigits},
      {17, 532, 4, "from_year", kDigits},
      {18, 536, 12, "sum_salaries", kAmount},
      {19, 548, 8, "sum_days", kDigits},
      {20, 556, 12, "sum_contr", kAmount},
      {0, 568, 8, "createfldate", kDate},
      {0, 576, 8, "stop_date", kDate},
    },
    30,
    {
      {22, 2, 9, "insured_id", kDigits},
      {23, 11, 11, "amka", kAmka},
      {24, 22, 50, "surname", kText},
      {25, 72, 30, "name", kText},
      {26, 102, 30, "father_name", kText},
      {27, 132, 30, "mother_name", kText},
      {28, 162, 8, "birth_date", kDate},
      {29, 170, 9, "taxation_id", kDigits},
      {30, 179, 1, "married_status", kMarried},
    },
    {
      {21, 2, 3, "ovt_code", kDigits},
      {31, 5, 1, "triennium_num", kDigits},
      {32, 6, 1, "sundays_sum", kDigits},
      {33, 7, 6, "categ_code", kDigits},
      {34, 13, 2, "special_code", kDigits},
      {35, 15, 4, "cover_code", kDigits},
      {36, 19, 8, "sal_from", kDate},
      {37, 27, 8, "sal_to", kDate},
      {38, 35, 2, "wage_code", kDigits},
      {39, 37, 2, "insurance_days", kDigits},
      {40, 39, 10, "daily_wages", kAmount},
      {41, 49, 10, "salary", kAmount},
      {42, 59, 2, "phase_code", kDigits},
      {43, 61, 2, "costing_days", kDigits},
      {44, 63, 10, "insured_contr", kAmount},
      {45, 73, 10, "employer_contr", kAmount},
      {46, 83, 11, "total_contr", kAmount},
    },
    615, 181, 95, 280, 300, "createfldate"};
// clang-format on

}  // namespace

const VolumeLayout& VolumeLayoutOf(Kind kind) {
  return kind == Kind::Common ? kCommon : kConstruction;
}

}  // namespace veroxia
