#include "lines/ovt_form2.h"

#include "header/header_checks.h"
#include "header/texts.h"
#include "lines/texts.h"
#include "rules/numbers.h"
#include "store/lines.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;
using namespace lines_texts;

LinesLayout MakeLayout() {
  LinesLayout layout;
  layout.kind = Kind::Common;
  layout.title = kOvtForm2Title;
  layout.close_title = kHeading;
  layout.cannot_delete = kCannotDelete;
  // One line per person, payroll month and wage type.
  layout.identity = {u"insured_id"_s, u"sal_month"_s, u"sal_year"_s, u"wage_code"_s};
  layout.captions = {
      {u"HeadingLbl"_s, kHeading}, {u"Text18Lbl"_s, kLbl18}, {u"Text18SepLbl"_s, u"/"_s},
      {u"Text19Lbl"_s, kLbl19},    {u"Text20Lbl"_s, kLbl20}, {u"Text21Lbl"_s, kLbl21},
      {u"Text22Lbl"_s, kLbl22},    {u"Text23Lbl"_s, kLbl23}, {u"Text24Lbl"_s, kLbl24},
      {u"Text25Lbl"_s, kLbl25},    {u"Text26Lbl"_s, kLbl26}, {u"Text27Lbl"_s, kLbl27},
      {u"Text28Lbl"_s, kLbl28},    {u"Text29Lbl"_s, kLbl29}, {u"Text30Lbl"_s, kLbl30},
      {u"Text31Lbl"_s, kLbl31},    {u"Text32Lbl"_s, kLbl32}, {u"Text33Lbl"_s, kLbl33},
      {u"Text33SepLbl"_s, u"/"_s}, {u"Text34Lbl"_s, kLbl34}, {u"Text35Lbl"_s, kLbl35},
      {u"Text36Lbl"_s, kLbl36},    {u"Text37Lbl"_s, kLbl37}, {u"Text38Lbl"_s, kLbl38},
      {u"Text39Lbl"_s, kLbl39},    {u"Text40Lbl"_s, kLbl40}, {u"Text41Lbl"_s, kLbl41},
      {u"Text42Lbl"_s, kLbl42},    {u"Text43Lbl"_s, kLbl43}, {u"Text44Lbl"_s, kLbl44},
      {u"Text45Lbl"_s, kLbl45},    {u"Text46Lbl"_s, kLbl46},
  };
  constexpr StoreAs kText = StoreAs::Text;
  constexpr StoreAs kClean = StoreAs::Clean;
  constexpr StoreAs kDate = StoreAs::Date;
  constexpr StoreAs kFlag = StoreAs::Flag;
  const QString zero = u"0"_s;
  const QStringList yes_no{kYes, kNo};
  // clang-format off
  //  control        column                  max  cleared store  select choices
  layout.fields = {
      {u"Text18_1"_s, u"emp_branch_id"_s,       4, {},   kText,  15, {}},
      {u"Text18_2"_s, u"kad"_s,                 4, {},   kText,  15, {}},
      {u"Text19"_s,   u"insured_id"_s,          9, {},   kText,  15, {}},
      {u"Text20"_s,   u"amka"_s,               11, {},   kText,  15, {}},
      {u"Text21"_s,   u"surname"_s,            50, {},   kClean, 50, {}},
      {u"Text22"_s,   u"name"_s,               30, {},   kClean, 50, {}},
      {u"Text23"_s,   u"father_name"_s,        30, {},   kClean, 50, {}},
      {u"Text24"_s,   u"mother_name"_s,        30, {},   kClean, 50, {}},
      {u"Text25"_s,   u"birth_date"_s,         10, {},   kDate,  15, {}},
      {u"Text26"_s,   u"taxation_id"_s,         9, {},   kText,  15, {}},
      {u"Text27"_s,   u"full_day"_s,            0, kYes, kFlag,   0, yes_no},
      {u"Text28"_s,   u"all_days"_s,            0, kYes, kFlag,   0, yes_no},
      {u"Text29"_s,   u"sundays_sum"_s,         1, {},   kText,  15, {}},
      {u"Text30"_s,   u"insur_categ_code"_s,    6, {},   kText,  15, {}},
      {u"Text31"_s,   u"special_insur_code"_s,  2, {},   kText,  15, {}},
      {u"Text32"_s,   u"covcod_cover_code"_s,   4, {},   kText,  15, {}},
      {u"Text33_1"_s, u"sal_month"_s,           2, {},   kText,  15, {}},
      {u"Text33_2"_s, u"sal_year"_s,            4, {},   kText,  15, {}},
      {u"Text34"_s,   u"sal_from"_s,           10, {},   kDate,  15, {}},
      {u"Text35"_s,   u"sal_to"_s,             10, {},   kDate,  15, {}},
      {u"Text36"_s,   u"wage_code"_s,           2, {},   kText,  15, {}},
      {u"Text37"_s,   u"insurance_days"_s,      3, {},   kText,  15, {}},
      {u"Text38"_s,   u"daily_wages"_s,        11, {},   kText,  15, {}},
      {u"Text39"_s,   u"salary"_s,             11, zero, kText,  15, {}},
      {u"Text40"_s,   u"insured_contr"_s,      11, zero, kText,  15, {}},
      {u"Text41"_s,   u"employer_contr"_s,     11, zero, kText,  15, {}},
      {u"Text42"_s,   u"total_contr"_s,        11, zero, kText,  15, {}},
      {u"Text43"_s,   u"subsidy_amount"_s,     11, zero, kText,  15, {}},
      {u"Text44"_s,   u"emp_subsidy_percent"_s, 6, zero, kText,  15, {}},
      {u"Text45"_s,   u"emp_subsidy_amount"_s, 11, zero, kText,  15, {}},
      {u"Text46"_s,   u"payed_contr"_s,        12, zero, kText,  15, {}},
  };
  // clang-format on
  return layout;
}

// The payroll month and year of the line, and the period they must fall in.
std::optional<FieldFault> MonthFault(const QString& month) {
  if (month.trimmed().isEmpty()) return FieldFault{u"Text33_1"_s, kMonthBlank, OnFault::Focus};
  if (month.size() < 2) return FieldFault{u"Text33_1"_s, kMonthLength};
  const double value = LeadingValue(month);
  if (!IsNumeric(month) || value < 1 || value > 12) return FieldFault{u"Text33_1"_s, kMonthWrong};
  return std::nullopt;
}

std::optional<FieldFault> YearFault(const QString& year) {
  if (year.trimmed().isEmpty()) return FieldFault{u"Text33_2"_s, kYearBlank, OnFault::Focus};
  if (!IsNumeric(year)) return FieldFault{u"Text33_2"_s, kYearNumeric};
  if (year.size() < 4) return FieldFault{u"Text33_2"_s, kYearLength};
  return std::nullopt;
}

// A period bound, held as month then year, as the number year*100+month.
// A bound that does not read as a number is an error of the check itself.
double PeriodBound(const QString& held) {
  const QString text = held.right(4) + held.left(2);
  if (!IsNumeric(text)) throw std::runtime_error("period bound is not a number");
  return LeadingValue(text);
}

}  // namespace

const LinesLayout& OvtForm2::CommonLayout() {
  static const LinesLayout layout = MakeLayout();
  return layout;
}

OvtForm2::OvtForm2(Vars& vars, Dialogs& dialogs, Screens& screens)
    : LinesFormOf(vars, dialogs, screens, CommonLayout()) {}

std::vector<HeaderCheck> OvtForm2::LineChecks() {
  constexpr OnFault kSelect = OnFault::Select;
  constexpr OnFault kFocus = OnFault::Focus;
  const Form& form = *this;
  const QStringList yes_no{kYes, kNo};
  const auto period = [this]() -> std::optional<FieldFault> {
    const double line = LeadingValue(Text(u"Text33_2"_s) + Text(u"Text33_1"_s));
    if (line < PeriodBound(vars_.PeriodFrom) || line > PeriodBound(vars_.PeriodTo)) {
      return FieldFault{u"Text33_1"_s, kPeriodWrong, OnFault::Focus};
    }
    return std::nullopt;
  };
  return {
      IntegerCheck(form, u"Text18_1"_s, kNameBranch, 4, true, kSelect),
      IntegerCheck(form, u"Text18_2"_s, kNameKad, 4, true, kSelect),
      IntegerCheckIfFilled(form, u"Text19"_s, kNameInsuredId, 9, true),
      IntegerCheckIfFilled(form, u"Text20"_s, kNameAmka, 11, true),
      FilledCheck(form, u"Text21"_s, kSurnameBlank, kFocus),
      NamedCheck(form, u"Text21"_s, kNameSurname),
      FilledCheck(form, u"Text22"_s, kNameBlank, kFocus),
      NamedCheck(form, u"Text22"_s, kNameName),
      FilledCheck(form, u"Text23"_s, kFatherBlank, kFocus),
      NamedCheck(form, u"Text23"_s, kNameFather),
      FilledCheck(form, u"Text24"_s, kMotherBlank, kFocus),
      NamedCheck(form, u"Text24"_s, kNameMother),
      DateFilledCheck(form, u"Text25"_s, kBirthBlank),
      DateBoxCheck(form, u"Text25"_s, kNameBirth),
      IntegerCheck(form, u"Text26"_s, kNameAfm, 9, true, kSelect),
      ChoiceCheck(form, u"Text27"_s, kFullDayBlank, kFullDayYesNo, yes_no),
      ChoiceCheck(form, u"Text28"_s, kAllDaysBlank, kAllDaysYesNo, yes_no),
      IntegerCheck(form, u"Text29"_s, kNameSundays, 1, true, kSelect),
      IntegerCheck(form, u"Text30"_s, kNameCategory, 6, false, kSelect),
      IntegerCheckIfFilled(form, u"Text31"_s, kNameSpecial, 2, false),
      IntegerCheck(form, u"Text32"_s, kNameCover, 4, false, kSelect),
      [this] { return MonthFault(Text(u"Text33_1"_s)); },
      [this] { return YearFault(Text(u"Text33_2"_s)); },
      period,
      DateBoxCheck(form, u"Text34"_s, kNameSalFrom),
      DateBoxCheck(form, u"Text35"_s, kNameSalTo),
      IntegerCheck(form, u"Text36"_s, kNameWageCode, 2, false, kSelect),
      IntegerCheck(form, u"Text37"_s, kNameDays, 3, false, kSelect),
      IfFilled(form, u"Text38"_s, DecimalCheck(form, u"Text38"_s, kNameDailyWage, 8, kSelect)),
      DecimalCheck(form, u"Text39"_s, kNameSalary, 8, kSelect),
      DecimalCheck(form, u"Text40"_s, kNameInsuredContr, 8, kSelect),
      DecimalCheck(form, u"Text41"_s, kNameEmployerContr, 8, kSelect),
      DecimalCheck(form, u"Text42"_s, kNameTotalContr, 9, kSelect),
      DecimalCheck(form, u"Text43"_s, kNameSubsidy, 8, kSelect),
      DecimalCheck(form, u"Text44"_s, kNameSubsidyPercent, 3, kSelect),
      DecimalCheck(form, u"Text45"_s, kNameEmpSubsidy, 8, kSelect),
      DecimalCheck(form, u"Text46"_s, kNamePayed, 9, kSelect),
  };
}

}  // namespace veroxia
