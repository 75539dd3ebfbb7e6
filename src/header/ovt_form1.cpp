#include "header/ovt_form1.h"

#include "header/date_box.h"
#include "header/header_checks.h"
#include "header/texts.h"
#include "rules/numbers.h"
#include "store/schema.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;
using namespace header_texts;

HeaderLayout MakeLayout() {
  HeaderLayout layout;
  layout.kind = Kind::Common;
  layout.title = kOvtForm1Title;
  layout.captions = {
      {u"Img"_s, {}},
      {u"HeadingLbl"_s, kHeading},
      {u"Frame1"_s, {}},
      {u"TypeHeadingLbl"_s, kTypeHeading},
      {u"TypeCodeLbl"_s, kText1Lbl},
      {u"Text1Lbl"_s, kText1Lbl, false},
      {u"KodDescrLbl"_s, kKodDescrLbl, false},
      {u"BranchHeadingLbl"_s, kBranchHeading},
      {u"Text2Lbl"_s, kText2Lbl},
      {u"Text3Lbl"_s, kText3Lbl},
      {u"Text4Lbl"_s, kText4Lbl},
      {u"FirstNmLbl"_s, kFirstNmLbl},
      {u"FatherNmLbl"_s, kFatherNmLbl},
      {u"Text5Lbl"_s, kText5Lbl},
      {u"Text6Lbl"_s, kText6Lbl},
      {u"AddressHeadingLbl"_s, kAddressHeading},
      {u"Text7Lbl"_s, kText7Lbl},
      {u"Text8Lbl"_s, kText8Lbl},
      {u"Text9Lbl"_s, kText9Lbl},
      {u"Text10Lbl"_s, kText10Lbl},
      {u"Text11Lbl"_s, kText11Lbl},
      {u"Text11SepLbl"_s, kPeriodSeparator},
      {u"Text12Lbl"_s, kText12Lbl},
      {u"Text12SepLbl"_s, kPeriodSeparator},
      {u"FlDateLbl"_s, kFlDateLbl},
      {u"StopDateLbl"_s, kStopDateLbl},
      {u"Text13Lbl"_s, kMonthsRowLbl},
      {u"Text17Lbl"_s, kTotalsColumnLbl},
      {u"Text14Lbl"_s, kDaysRowLbl},
      {u"Text15Lbl"_s, kSalariesRowLbl},
      {u"Text16Lbl"_s, kContributionsRowLbl},
  };

  constexpr StoreAs kText = StoreAs::Text;
  constexpr StoreAs kClean = StoreAs::Clean;
  constexpr StoreAs kDate = StoreAs::Date;
  constexpr LoadAs kAlways = LoadAs::Always;
  constexpr LoadAs kOwn = LoadAs::NotTakenOver;
  constexpr LoadAs kNever = LoadAs::Never;
  const QString zero = u"0"_s;
  // clang-format off
  //  control          column                  max  initial        insert  update  load     select visible enabled
  layout.fields = {
      {u"KodDescr"_s,    u"declaration_descr"_s,    15, {},            kText,  kText,  kAlways, 0,  false, false},
      {u"Text2"_s,       u"orgbra_branch_code"_s,    3, {},            kText,  kText,  kAlways, 15},
      {u"Text3"_s,       u"orgbra_branch_descr"_s,  50, {},            kClean, kClean, kAlways, 50},
      {u"Text4"_s,       u"employer_name"_s,        80, {},            kClean, kClean, kAlways, 80},
      {u"FirstNmTxt"_s,  u"emp_first_name"_s,       30, {},            kClean, kClean, kAlways, 50},
      {u"FatherNmTxt"_s, u"emp_father_name"_s,      30, {},            kClean, kClean, kAlways, 50},
      {u"Text5"_s,       u"emp_employer_id"_s,      10, {},            kText,  kText,  kAlways, 15},
      {u"Text6"_s,       u"taxation_number"_s,       9, {},            kText,  kText,  kAlways, 15},
      {u"Text7"_s,       u"address_street"_s,       50, {},            kClean, kClean, kAlways, 50},
      {u"Text8"_s,       u"num"_s,                  10, {},            kClean, kClean, kAlways, 50},
      {u"Text9"_s,       u"zip_code"_s,              5, {},            kText,  kText,  kAlways, 10},
      {u"Text10"_s,      u"city"_s,                 30, {},            kClean, kClean, kAlways, 50},
      {u"Text11_1"_s,    u"from_month"_s,            2, {},            kText,  kText,  kOwn,    0,  true,  false},
      {u"Text11_2"_s,    u"from_year"_s,             4, {},            kText,  kText,  kOwn,    0,  true,  false},
      {u"Text12_1"_s,    u"to_month"_s,              2, {},            kText,  kText,  kOwn,    0,  true,  false},
      {u"Text12_2"_s,    u"to_year"_s,               4, {},            kText,  kText,  kOwn,    0,  true,  false},
      {u"FlDateTxt"_s,   u"CreateFlDate"_s,         10, kEmptyDateBox, kDate,  kDate,  kOwn,    10},
      {u"StopDateTxt"_s, u"stop_date"_s,            10, kEmptyDateBox, kDate,  kDate,  kOwn,    10},
      {u"Text14_1"_s,    u"total_days1"_s,           8, zero,          kText,  kText,  kAlways, 0},
      {u"Text15_1"_s,    u"total_salaries1"_s,      13, zero,          kText,  kText,  kAlways, 0},
      {u"Text16_1"_s,    u"total_contributions1"_s, 13, zero,          kText,  kText,  kAlways, 0},
      {u"Text14_2"_s,    u"total_days2"_s,           8, zero,          kText,  kText,  kAlways, 0},
      {u"Text15_2"_s,    u"total_salaries2"_s,      13, zero,          kText,  kText,  kAlways, 0},
      {u"Text16_2"_s,    u"total_contributions2"_s, 13, zero,          kText,  kText,  kAlways, 0},
      {u"Text14_3"_s,    u"total_days3"_s,           8, zero,          kText,  kText,  kAlways, 0},
      {u"Text15_3"_s,    u"total_salaries3"_s,      13, zero,          kText,  kText,  kAlways, 0},
      {u"Text16_3"_s,    u"total_contributions3"_s, 13, zero,          kText,  kText,  kAlways, 0},
      {u"Text17_1"_s,    u"total_days"_s,            8, zero,          kText,  kText,  kAlways, 0},
      {u"Text17_2"_s,    u"total_salaries"_s,       13, zero,          kText,  kText,  kAlways, 0},
      {u"Text17_3"_s,    u"total_contributions"_s,  13, zero,          kText,  kText,  kAlways, 0},
      {u"Text13_1"_s,    u"saldate1"_s,              8, {},            kText,  kText,  kNever,  0,  true,  false},
      {u"Text13_2"_s,    u"saldate2"_s,              8, {},            kText,  kText,  kNever,  0,  true,  false},
      {u"Text13_3"_s,    u"saldate3"_s,              8, {},            kText,  kText,  kNever,  0,  true,  false},
      {u"Text1"_s,       u"declaration_type"_s,      0, {},            kText,  kText,  kAlways, 0,  false, true},
  };
  // clang-format on

  layout.switched = {u"Text2"_s,       u"Text3"_s,      u"Text4"_s,       u"Text5"_s,
                     u"Text6"_s,       u"Text7"_s,      u"Text8"_s,       u"Text9"_s,
                     u"Text10"_s,      u"Text14_1"_s,   u"Text14_2"_s,    u"Text14_3"_s,
                     u"Text17_1"_s,    u"Text15_1"_s,   u"Text15_2"_s,    u"Text15_3"_s,
                     u"Text17_2"_s,    u"Text16_1"_s,   u"Text16_2"_s,    u"Text16_3"_s,
                     u"Text17_3"_s,    u"FirstNmTxt"_s, u"FatherNmTxt"_s, u"FlDateTxt"_s,
                     u"StopDateTxt"_s, u"Option1_0"_s,  u"Option1_1"_s,   u"Option1_2"_s};
  layout.types = {TypeOption{kType01, kType01Descr, kType01Caption},
                  TypeOption{kType02, kType02Descr, kType02Caption},
                  TypeOption{kType03, kType03Descr, kType03Caption}};
  layout.type_field = u"Text1"_s;
  layout.descr_field = u"KodDescr"_s;
  layout.from_month_field = u"Text11_1"_s;
  layout.from_year_field = u"Text11_2"_s;
  layout.to_month_field = u"Text12_1"_s;
  layout.to_year_field = u"Text12_2"_s;
  layout.lines_button = u"QorInsert"_s;
  layout.exit_caption = kExitCmd;
  layout.close_title = kOvtForm1CloseTitle;
  layout.save_title = kSaveTitle;
  return layout;
}

}  // namespace

const HeaderLayout& OvtForm1::CommonLayout() {
  static const HeaderLayout layout = MakeLayout();
  return layout;
}

OvtForm1::OvtForm1(Vars& vars, Dialogs& dialogs, Screens& screens)
    : HeaderFormOf(vars, dialogs, screens, CommonLayout()) {}

bool OvtForm1::ValidateHeader() {
  constexpr OnFault kSelect = OnFault::Select;
  constexpr OnFault kFocus = OnFault::Focus;
  const Form& form = *this;
  return RunChecks({
      IntegerCheck(form, u"Text2"_s, kNameOvtCode, 3, true, kSelect),
      FilledCheck(form, u"Text3"_s, kText3Blank, kSelect),
      FilledCheck(form, u"Text4"_s, kText4Blank, kSelect),
      NamedCheck(form, u"FirstNmTxt"_s, kNameFirstNm),
      NamedCheck(form, u"FatherNmTxt"_s, kNameFatherNm),
      IntegerCheck(form, u"Text5"_s, kNameAme, 10, true, kSelect),
      IntegerCheck(form, u"Text6"_s, kNameAfm, 9, true, kSelect),
      FilledCheck(form, u"Text7"_s, kStreetBlank, kFocus),
      IntegerCheck(form, u"Text9"_s, kNameTk, 5, true, kFocus),
      FilledCheck(form, u"Text10"_s, kCityBlank, kFocus),
      IntegerCheck(form, u"Text14_1"_s, kNameDays, 8, false, kSelect),
      DecimalCheck(form, u"Text15_1"_s, kNameSalaries, 10, kSelect),
      DecimalCheck(form, u"Text16_1"_s, kNameContributions, 10, kSelect),
      IntegerCheck(form, u"Text17_1"_s, kNameTotalDays, 8, false, kSelect),
      IntegerCheck(form, u"Text14_2"_s, kNameDays, 8, false, kSelect),
      DecimalCheck(form, u"Text15_2"_s, kNameSalaries, 10, kSelect),
      DecimalCheck(form, u"Text16_2"_s, kNameContributions, 10, kSelect),
      DecimalCheck(form, u"Text17_2"_s, kNameTotalSalaries, 10, kSelect),
      IntegerCheck(form, u"Text14_3"_s, kNameDays, 8, false, kSelect),
      DecimalCheck(form, u"Text15_3"_s, kNameSalaries, 10, kSelect),
      DecimalCheck(form, u"Text16_3"_s, kNameContributions, 10, kSelect),
      DecimalCheck(form, u"Text17_3"_s, kNameTotalContributions, 10, kSelect),
      DateBoxCheck(form, u"FlDateTxt"_s, kNameFlDate),
      StopDateCheck(form, u"StopDateTxt"_s, SelectedType()),
  });
}

void OvtForm1::ShowMonthLabels() {
  const QString from_month = Text(u"Text11_1"_s);
  const QString from_year = Text(u"Text11_2"_s);
  const QString to_month = Text(u"Text12_1"_s);
  At(u"Text13_1"_s).text = from_month + u'/' + from_year;
  const int first = static_cast<int>(LeadingValue(from_month));
  if (static_cast<int>(LeadingValue(to_month)) == first) return;
  At(u"Text13_2"_s).text = QString::number(first + 1).rightJustified(2, u'0') + u'/' + from_year;
  At(u"Text13_3"_s).text = to_month + u'/' + Text(u"Text12_2"_s);
}

}  // namespace veroxia
