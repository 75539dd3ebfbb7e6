#include "lines/ovt_form4.h"

#include "header/header_checks.h"
#include "lines/texts.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;
using namespace lines_texts;

LinesLayout MakeLayout() {
  LinesLayout layout;
  layout.kind = Kind::Construction;
  layout.title = kOvtForm4Title;
  layout.close_title = kHeading;
  layout.cannot_delete = kConCannotDelete;
  // One line per worker and wage type: the month is the declaration's.
  layout.identity = {u"insured_id"_s, u"wage_code"_s};
  layout.busy_until_insert_message = false;
  layout.clear_moves_focus = true;
  layout.captions = {
      {u"HeadingLbl"_s, kHeading}, {u"Text21Lbl"_s, kConLbl21}, {u"Text22Lbl"_s, kConLbl22},
      {u"Text23Lbl"_s, kConLbl23}, {u"Text24Lbl"_s, kConLbl24}, {u"Text25Lbl"_s, kConLbl25},
      {u"Text26Lbl"_s, kConLbl26}, {u"Text27Lbl"_s, kConLbl27}, {u"Text28Lbl"_s, kConLbl28},
      {u"Text29Lbl"_s, kConLbl29}, {u"Text30Lbl"_s, kConLbl30}, {u"Text31Lbl"_s, kConLbl31},
      {u"Text32Lbl"_s, kConLbl32}, {u"Text33Lbl"_s, kConLbl33}, {u"Text34Lbl"_s, kConLbl34},
      {u"Text35Lbl"_s, kConLbl35}, {u"Text36Lbl"_s, kConLbl36}, {u"Text37Lbl"_s, kConLbl37},
      {u"Text38Lbl"_s, kConLbl38}, {u"Text39Lbl"_s, kConLbl39}, {u"Text40Lbl"_s, kConLbl40},
      {u"Text41Lbl"_s, kConLbl41}, {u"Text42Lbl"_s, kConLbl42}, {u"Text43Lbl"_s, kConLbl43},
      {u"Text44Lbl"_s, kConLbl44}, {u"Text45Lbl"_s, kConLbl45}, {u"Text46Lbl"_s, kConLbl46},
  };
  constexpr StoreAs kText = StoreAs::Text;
  constexpr StoreAs kClean = StoreAs::Clean;
  constexpr StoreAs kDate = StoreAs::Date;
  constexpr StoreAs kFlag = StoreAs::Flag;
  const QString zero = u"0"_s;
  // clang-format off
  //  control      column               max  cleared   store  select choices
  layout.fields = {
      {u"Text21"_s, u"ovt_code"_s,        3, {},       kText,  10, {}},
      {u"Text22"_s, u"insured_id"_s,      9, {},       kText,  15, {}},
      {u"Text23"_s, u"amka"_s,           11, {},       kText,  15, {}},
      {u"Text24"_s, u"surname"_s,        50, {},       kClean, 50, {}},
      {u"Text25"_s, u"name"_s,           30, {},       kClean, 50, {}},
      {u"Text26"_s, u"father_name"_s,    30, {},       kClean, 50, {}},
      {u"Text27"_s, u"mother_name"_s,    30, {},       kClean, 50, {}},
      {u"Text28"_s, u"birth_date"_s,     10, {},       kDate,  10, {}},
      {u"Text29"_s, u"taxation_id"_s,     9, {},       kText,  15, {}},
      {u"Text30"_s, u"married_status"_s,  0, kMarried, kFlag,   0, {kMarried, kUnmarried}},
      {u"Text31"_s, u"triennium_num"_s,   1, {},       kText,  15, {}},
      {u"Text32"_s, u"sundays_sum"_s,     1, {},       kText,  15, {}},
      {u"Text33"_s, u"categ_code"_s,      6, {},       kText,  15, {}},
      {u"Text34"_s, u"special_code"_s,    2, {},       kText,  15, {}},
      {u"Text35"_s, u"cover_code"_s,      4, {},       kText,  15, {}},
      {u"Text36"_s, u"sal_from"_s,       10, {},       kDate,  15, {}},
      {u"Text37"_s, u"sal_to"_s,         10, {},       kDate,  15, {}},
      {u"Text38"_s, u"wage_code"_s,       2, {},       kText,  15, {}},
      {u"Text39"_s, u"insurance_days"_s,  2, {},       kText,  15, {}},
      {u"Text40"_s, u"daily_wages"_s,    11, {},       kText,  15, {}},
      {u"Text41"_s, u"salary"_s,         11, {},       kText,  15, {}},
      {u"Text42"_s, u"phase_code"_s,      2, {},       kText,  15, {}},
      {u"Text43"_s, u"costing_days"_s,    2, zero,     kText,  15, {}},
      {u"Text44"_s, u"insured_contr"_s,  11, zero,     kText,  15, {}},
      {u"Text45"_s, u"employer_contr"_s, 11, zero,     kText,  15, {}},
      {u"Text46"_s, u"total_contr"_s,    12, zero,     kText,  15, {}},
  };
  // clang-format on
  return layout;
}

}  // namespace

const LinesLayout& OvtForm4::ConstructionLayout() {
  static const LinesLayout layout = MakeLayout();
  return layout;
}

OvtForm4::OvtForm4(Vars& vars, Dialogs& dialogs, Screens& screens)
    : LinesFormOf(vars, dialogs, screens, ConstructionLayout()) {}

std::vector<HeaderCheck> OvtForm4::LineChecks() {
  constexpr OnFault kSelect = OnFault::Select;
  constexpr OnFault kFocus = OnFault::Focus;
  const Form& form = *this;
  return {
      IntegerCheckIfFilled(form, u"Text21"_s, kNameConBranch, 3, true),
      IntegerCheckIfFilled(form, u"Text22"_s, kNameInsuredId, 9, true),
      IntegerCheckIfFilled(form, u"Text23"_s, kNameAmka, 11, true),
      FilledCheck(form, u"Text24"_s, kSurnameBlank, kFocus),
      NamedCheck(form, u"Text24"_s, kNameSurname),
      FilledCheck(form, u"Text25"_s, kNameBlank, kFocus),
      NamedCheck(form, u"Text25"_s, kNameName),
      FilledCheck(form, u"Text26"_s, kFatherBlank, kFocus),
      NamedCheck(form, u"Text26"_s, kNameFather),
      FilledCheck(form, u"Text27"_s, kMotherBlank, kFocus),
      NamedCheck(form, u"Text27"_s, kNameMother),
      DateFilledCheck(form, u"Text28"_s, kBirthBlank),
      DateBoxCheck(form, u"Text28"_s, kNameBirth),
      IntegerCheck(form, u"Text29"_s, kNameAfm, 9, true, kSelect),
      IntegerCheck(form, u"Text31"_s, kNameTriennia, 1, true, kSelect),
      IntegerCheck(form, u"Text32"_s, kNameSundays, 1, true, kSelect),
      IntegerCheck(form, u"Text33"_s, kNameCategory, 6, false, kSelect),
      IntegerCheckIfFilled(form, u"Text34"_s, kNameSpecial, 2, false),
      IntegerCheck(form, u"Text35"_s, kNameCover, 4, false, kSelect),
      DateBoxCheck(form, u"Text36"_s, kNameSalFrom),
      DateBoxCheck(form, u"Text37"_s, kNameSalTo),
      IntegerCheck(form, u"Text38"_s, kNameWageCode, 2, false, kSelect),
      IntegerCheck(form, u"Text39"_s, kNameWorkDays, 3, false, kSelect),
      DecimalCheck(form, u"Text40"_s, kNameDailyWage, 8, kSelect),
      DecimalCheck(form, u"Text41"_s, kNameSalary, 8, kSelect),
      IntegerCheckIfFilled(form, u"Text42"_s, kNamePhase, 2, false),
      IntegerCheck(form, u"Text43"_s, kNameCostingDays, 2, false, kSelect),
      DecimalCheck(form, u"Text44"_s, kNameInsuredContr, 8, kSelect),
      DecimalCheck(form, u"Text45"_s, kNameEmployerContr, 8, kSelect),
      DecimalCheck(form, u"Text46"_s, kNameTotalContr, 9, kSelect),
  };
}

}  // namespace veroxia
