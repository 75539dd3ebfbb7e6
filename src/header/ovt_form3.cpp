#include "header/ovt_form3.h"

#include "header/date_box.h"
#include "header/header_checks.h"
#include "header/texts.h"
#include "rules/formats.h"
#include "rules/texts.h"
#include "shell/texts.h"
#include "store/schema.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;
using namespace header_texts;

const QString kBranchCode = u"Text2"_s;

HeaderLayout MakeLayout() {
  HeaderLayout layout;
  layout.kind = Kind::Construction;
  layout.title = kOvtForm3Title;
  layout.captions = {
      {u"Img"_s, {}},
      {u"HeadingLbl"_s, kHeading},
      {u"Frame1"_s, {}},
      {u"TypeHeadingLbl"_s, kTypeHeading},
      {u"TypeCodeLbl"_s, kText1Lbl},
      {u"Text1Lbl"_s, kText1Lbl, false},
      {u"BranchHeadingLbl"_s, kBranchHeading},
      {u"Text2Lbl"_s, kText2Lbl},
      {u"Text3Lbl"_s, kText3Lbl},
      {u"Text4Lbl"_s, kText4Lbl},
      {u"FirstNmLbl"_s, kFirstNmLbl},
      {u"FatherNmLbl"_s, kFatherNmLbl},
      {u"SeatHeadingLbl"_s, kSeatHeading},
      {u"Text5Lbl"_s, kConText5Lbl},
      {u"Text6Lbl"_s, kConText6Lbl},
      {u"Text7Lbl"_s, kConText7Lbl},
      {u"Text8Lbl"_s, kConText8Lbl},
      {u"Text9Lbl"_s, kConText9Lbl},
      {u"Text10Lbl"_s, kConText10Lbl},
      {u"Text11Lbl"_s, kConText11Lbl},
      {u"Text12Lbl"_s, kConText12Lbl},
      {u"SiteHeadingLbl"_s, kSiteHeading},
      {u"Text13Lbl"_s, kConText13Lbl},
      {u"Text14Lbl"_s, kConText14Lbl},
      {u"Text15Lbl"_s, kConText15Lbl},
      {u"Text16Lbl"_s, kConText16Lbl},
      {u"Text17Lbl"_s, kConText17Lbl},
      {u"Text17SepLbl"_s, kPeriodSeparator},
      {u"FlDateLbl"_s, kFlDateLbl},
      {u"StopDateLbl"_s, kStopDateLbl},
      {u"TotalsHeadingLbl"_s, kConTotalsHeading},
      {u"Text18Lbl"_s, kConText18Lbl},
      {u"Text19Lbl"_s, kConText19Lbl},
      {u"Text20Lbl"_s, kConText20Lbl},
  };

  constexpr StoreAs kText = StoreAs::Text;
  constexpr StoreAs kClean = StoreAs::Clean;
  constexpr StoreAs kUpper = StoreAs::Upper;
  constexpr StoreAs kDate = StoreAs::Date;
  constexpr LoadAs kAlways = LoadAs::Always;
  constexpr LoadAs kOwn = LoadAs::NotTakenOver;
  const QString zero = u"0"_s;
  // The first save (INSERT) cleans the codes, a correction (UPDATE) keeps
  // several of them as typed; the register number is only upper-cased then.
  // clang-format off
  //  control          column               max  initial        insert  update  load     select visible enabled
  layout.fields = {
      {u"Text2"_s,       u"ovt_code"_s,         3, {},            kText,  kText,  kAlways, 15},
      {u"Text3"_s,       u"ovt_name"_s,        50, {},            kClean, kClean, kAlways, 50},
      {u"Text4"_s,       u"emp_name"_s,        80, {},            kClean, kClean, kAlways, 80},
      {u"FirstNmTxt"_s,  u"emp_first_name"_s,  30, {},            kClean, kClean, kAlways, 50},
      {u"FatherNmTxt"_s, u"emp_father_name"_s, 30, {},            kClean, kClean, kAlways, 50},
      {u"Text5"_s,       u"emp_address"_s,     50, {},            kClean, kClean, kAlways, 50},
      {u"Text6"_s,       u"emp_num"_s,         10, {},            kClean, kClean, kAlways, 15},
      {u"Text7"_s,       u"emp_zip_code"_s,     5, {},            kClean, kText,  kAlways, 50},
      {u"Text8"_s,       u"emp_city"_s,        30, {},            kClean, kClean, kAlways, 50},
      {u"Text9"_s,       u"con_descr"_s,      100, {},            kClean, kClean, kAlways, 100},
      {u"Text10"_s,      u"ame"_s,             10, {},            kClean, kUpper, kAlways, 15},
      {u"Text11"_s,      u"amoe"_s,            10, {},            kClean, kText,  kAlways, 15},
      {u"Text12"_s,      u"afm"_s,              9, {},            kClean, kText,  kAlways, 15},
      {u"Text13"_s,      u"con_address"_s,     50, {},            kClean, kClean, kAlways, 50},
      {u"Text14"_s,      u"con_num"_s,         10, {},            kClean, kClean, kAlways, 15},
      {u"Text15"_s,      u"con_zip_code"_s,     5, {},            kClean, kText,  kAlways, 15},
      {u"Text16"_s,      u"con_city"_s,        30, {},            kClean, kClean, kAlways, 50},
      {u"Text17_1"_s,    u"from_month"_s,       2, {},            kText,  kText,  kOwn,    0,  true,  false},
      {u"Text17_2"_s,    u"from_year"_s,        4, {},            kText,  kText,  kOwn,    0,  true,  false},
      {u"FlDateTxt"_s,   u"createfldate"_s,    10, kEmptyDateBox, kDate,  kDate,  kOwn,    10},
      {u"StopDateTxt"_s, u"stop_date"_s,       10, kEmptyDateBox, kDate,  kDate,  kOwn,    10},
      {u"Text18"_s,      u"sum_salaries"_s,    13, zero,          kText,  kText,  kAlways, 15},
      {u"Text19"_s,      u"sum_days"_s,         8, zero,          kText,  kText,  kAlways, 15},
      {u"Text20"_s,      u"sum_contr"_s,       13, zero,          kText,  kText,  kAlways, 15},
      {u"Text1"_s,       u"declare_type"_s,     2, {},            kText,  kText,  kAlways, 0,  false, false},
  };
  // clang-format on

  layout.switched = {
      u"Text2"_s,     u"Text3"_s,      u"Text4"_s,       u"Text5"_s,     u"Text6"_s,
      u"Text7"_s,     u"Text8"_s,      u"Text9"_s,       u"Text10"_s,    u"Text11"_s,
      u"Text12"_s,    u"Text13"_s,     u"Text14"_s,      u"Text15"_s,    u"Text16"_s,
      u"Text18"_s,    u"Text19"_s,     u"Text20"_s,      u"Option1_0"_s, u"Option1_1"_s,
      u"Option1_2"_s, u"FirstNmTxt"_s, u"FatherNmTxt"_s, u"FlDateTxt"_s, u"StopDateTxt"_s};
  // The kind keeps the type as its code only.
  layout.types = {TypeOption{kType01, {}, kType01Caption},
                  TypeOption{kType02, {}, kConType02Caption},
                  TypeOption{kType03, {}, kConType03Caption}};
  layout.type_field = u"Text1"_s;
  layout.from_month_field = u"Text17_1"_s;
  layout.from_year_field = u"Text17_2"_s;
  layout.lines_button = u"QorConInsert"_s;
  layout.exit_caption = kConExitCmd;
  layout.close_title = kConCloseTitle;
  layout.save_title = texts::kAppTitle;
  layout.save_error_first_line = kConSaveErrorFirstLine;
  return layout;
}

}  // namespace

const HeaderLayout& OvtForm3::ConstructionLayout() {
  static const HeaderLayout layout = MakeLayout();
  return layout;
}

OvtForm3::OvtForm3(Vars& vars, Dialogs& dialogs, Screens& screens)
    : HeaderFormOf(vars, dialogs, screens, ConstructionLayout()) {}

bool OvtForm3::ValidateHeader() {
  constexpr OnFault kSelect = OnFault::Select;
  constexpr OnFault kFocus = OnFault::Focus;
  const Form& form = *this;
  const std::vector<HeaderCheck> checks{
      IntegerCheck(form, kBranchCode, kNameOvtCode, 3, true, kSelect),
      FilledCheck(form, u"Text3"_s, kText3Blank, kSelect),
      FilledCheck(form, u"Text4"_s, kText4Blank, kSelect),
      NamedCheck(form, u"FirstNmTxt"_s, kNameFirstNm),
      NamedCheck(form, u"FatherNmTxt"_s, kNameFatherNm),
      FilledCheck(form, u"Text5"_s, kStreetBlank, kFocus),
      IntegerCheck(form, u"Text7"_s, kNameTk, 5, true, kFocus),
      FilledCheck(form, u"Text8"_s, kEmpCityBlank, kFocus),
      FilledCheck(form, u"Text9"_s, kConDescrBlank, kFocus),
      IntegerCheck(form, u"Text10"_s, kNameAme, 10, true, kSelect),
      IntegerCheck(form, u"Text11"_s, kNameAmoe, 10, true, kSelect),
      IntegerCheck(form, u"Text12"_s, kNameAfm, 9, true, kSelect),
      FilledCheck(form, u"Text13"_s, kStreetBlank, kFocus),
      IntegerCheck(form, u"Text15"_s, kNameTk, 5, true, kFocus),
      FilledCheck(form, u"Text16"_s, kCityBlank, kFocus),
      DecimalCheck(form, u"Text18"_s, kNameSalaries, 10, kSelect),
      IntegerCheck(form, u"Text19"_s, kNameWorkDays, 8, false, kSelect),
      DecimalCheck(form, u"Text20"_s, kNameConContributions, 10, kSelect),
      DateBoxCheck(form, u"FlDateTxt"_s, kNameFlDate),
      StopDateCheck(form, u"StopDateTxt"_s, SelectedType()),
  };
  return RunChecks(checks);
}

QString OvtForm3::Shown(const HeaderField& field, const veroxia::Text& stored) const {
  const QString text = HeaderForm::Shown(field, stored);
  return field.name == kBranchCode ? AmountDigits(text, 3, true) : text;
}

}  // namespace veroxia
