#include "printing/pages.h"

#include <gtest/gtest.h>

#include "printing/printout.h"
#include "printing/texts.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
namespace pt = printing_texts;
using testing::CapturePrinter;
using testing::FakeDialogs;
using testing::TempStore;

QString B(int count) { return QString(count, u' '); }

// Only the given columns set, every other one Null.
template <class Row>
Row With(int row_num, std::initializer_list<std::pair<const char*, QString>> values) {
  Row row;
  row.id = 1;
  if constexpr (LineRow<Row>) row.row_num = row_num;
  ForEachText(row, [&](const char* column, Text& value) {
    for (const auto& [name, text] : values) {
      if (std::string_view(name) == column) value = text;
    }
  });
  return row;
}

QStringList Closing() {
  return {u""_s, u""_s, pt::kStatement1, pt::kStatement2, u""_s, pt::kSigners,
          u""_s, u""_s, u""_s,           u""_s,           u""_s, pt::kSubmitted};
}

QStringList Stop(const QString& date) {
  return {pt::kStopStatement1 + date + u","_s,
          pt::kStopStatement2,
          pt::kStopStatement3,
          pt::kStopStatement4,
          u""_s,
          u""_s,
          pt::kDates1,
          pt::kDates2,
          u""_s,
          pt::kSigners2,
          u""_s,
          u""_s,
          u""_s,
          u""_s,
          u""_s,
          u""_s,
          pt::kStamps};
}

class PagesTest : public ::testing::Test {
 protected:
  PagesTest() { store_.vars.DeclarationId = 1; }
  // The pages as the printer received them, split into lines.
  std::vector<QStringList> Print(Kind kind, Printout printout) {
    CapturePrinter printer;
    EXPECT_TRUE(RunPrintout(store_.vars, dialogs_, kind, printout, printer))
        << dialogs_.LastMessage().toStdString();
    std::vector<QStringList> pages;
    for (const QString& page : printer.pages) pages.push_back(page.split(u"\r\n"_s));
    return pages;
  }
  void AddCommonLines(int count, const QString& type) {
    InsertRow(db_, With<EmployerRow>(0, {{"declaration_type", type},
                                         {"emp_employer_id", "1"},
                                         {"taxation_number", "2"},
                                         {"stop_date", "31/03/2026"}}));
    for (int n = 1; n <= count; ++n) {
      InsertRow(db_,
                With<EmployeeRow>(
                    n, {{"insured_id", QString::number(n)}, {"full_day", "0"}, {"all_days", "1"}}));
    }
  }

  TempStore store_;
  Database& db_ = store_.Open();
  FakeDialogs dialogs_;
};

TEST_F(PagesTest, CommonSummaryOfOneMonth) {
  InsertRow(db_, With<EmployerRow>(0, {
                                          // clang-format off
      {"declaration_type", "01"}, {"declaration_descr", "ΚΑΝΟΝΙΚΗ "},
      {"orgbra_branch_code", " 12 "}, {"orgbra_branch_descr", "ΑΘΗΝΩΝ"}, {"employer_name", QString(50, u'Ω')},
      {"emp_first_name", "ΒΗΤΑΣ"}, {"emp_father_name", "ΓΑΜΑ"}, {"emp_employer_id", "0123456 "},
      {"taxation_number", "094000000"}, {"address_street", "ΣΤΑΔΙΟΥ"}, {"num", "5"},
      {"zip_code", "10562"}, {"city", "ΑΘΗΝΑ"}, {"from_month", "01"}, {"from_year", "2026"},
      {"to_month", "01"}, {"to_year", "2026"}, {"saldate1", "01/2026"}, {"saldate2", " "},
      {"total_days1", "25"}, {"total_salaries1", "1234,5"}, {"total_days", "25"},
      {"total_salaries", "1234567,891"}, {"total_contributions", "-3"}
                                          // clang-format on
                                      }));
  const QStringList expected =
      QStringList{
          // clang-format off
      u""_s, u""_s, u""_s, u""_s, pt::kSumTitle, pt::kSumSubtitle, u""_s, u""_s,
      pt::kType + u"01 ΚΑΝΟΝΙΚΗ "_s, u""_s, pt::kBranch1, pt::kBranch2 + u"12 ΑΘΗΝΩΝ"_s, u""_s,
      pt::kEmployer + QString(50, u'Ω') + u" ΒΗΤΑΣ "_s, B(27) + u"ΓΑΜΑ"_s, u""_s, pt::kSumAme + u"0123456 "_s,
      pt::kSumAfm + u"094000000"_s, u""_s, pt::kAddress + u"ΣΤΑΔΙΟΥ 5"_s, B(27) + u"10562 ΑΘΗΝΑ"_s,
      u""_s, pt::kFrom + u"01/2026"_s, pt::kTo + u"01/2026"_s, u""_s, pt::kSumColumns1,
      pt::kSumColumns2, u""_s,
      pt::kPerMonth + u"01/2026"_s + B(11) + u"25"_s + B(13) + u"1.234,50"_s + B(17) + u"0,00"_s,
      u""_s,
      B(18) + pt::kTotals + B(11) + u"25"_s + B(9) + u"1.234.567,89"_s + B(16) + u"-3,00"_s
          // clang-format on
      } +
      Closing();
  EXPECT_EQ(Print(Kind::Common, Printout::kSummary), std::vector{expected});
}

TEST_F(PagesTest, ConstructionSummary) {
  const QString works = QString(51, u'Ε') + u' ' + QString(18, u'Ζ');
  InsertRow(db_, With<ConEmployerRow>(0, {
                                             // clang-format off
      {"declare_type", "03"}, {"ovt_code", "7"}, {"ovt_name", "ΠΕΙΡΑΙΑ"}, {"emp_name", "ΑΛΦΑ"},
      {"emp_address", "ΟΔΟΣ"}, {"emp_num", "1"}, {"emp_zip_code", "18535"},
      {"emp_city", "ΠΕΙΡΑΙΑΣ"}, {"con_descr", works}, {"ame", "11"}, {"amoe", "22"}, {"afm", "33"},
      {"con_address", "ΛΙΜΑΝΙ"}, {"con_zip_code", "18536"}, {"from_month", "05"},
      {"from_year", "2026"}, {"sum_days", " 40"}, {"sum_salaries", "1234,5"}
                                             // clang-format on
                                         }));
  const QStringList expected =
      QStringList{
          // clang-format off
      u""_s, u""_s, u""_s, u""_s, pt::kConSumTitle, pt::kConSumSubtitle, u""_s, u""_s,
      pt::kType + u"03 "_s + pt::kResubmission, u""_s, pt::kBranch1,
      pt::kBranch2 + u"007 ΠΕΙΡΑΙΑ"_s, u""_s, pt::kEmployer + u"ΑΛΦΑ"_s + B(2), u""_s,
      pt::kSeat + u"ΟΔΟΣ 1"_s, pt::kSeatEmployer + u"18535 ΠΕΙΡΑΙΑΣ"_s, u""_s,
      pt::kWorks + QString(51, u'Ε') + u' ', B(17) + QString(18, u'Ζ'), u""_s,
      pt::kSumAme + u"11"_s + pt::kSumAmoe + u"22"_s + pt::kSumAfmAfterAmoe + u"33"_s, u""_s,
      pt::kSite + u"ΛΙΜΑΝΙ "_s, B(27) + u"18536 "_s, u""_s, pt::kSumMonth + u"05/2026"_s, u""_s,
      pt::kSumDays1, pt::kSumDays2 + u" 40"_s, u""_s, pt::kSumTotal, pt::kSalaries + u"1.234,50"_s,
      u""_s, pt::kSumTotal, pt::kContributions + u"0,00"_s
          // clang-format on
      } +
      Closing();
  EXPECT_EQ(Print(Kind::Construction, Printout::kSummary), std::vector{expected});
}

// The value a sample row holds in that column ("<column> <id>.<row>").
QString V(const char* column, const char* row = "1.1") {
  return QString::fromLatin1(column) + u' ' + QString::fromLatin1(row);
}

QStringList Labelled(const std::vector<std::pair<QString, QString>>& rows) {
  QStringList lines;
  for (const auto& [label, value] : rows) lines << label + value;
  return lines;
}

QStringList FourEmpty() { return {u""_s, u""_s, u""_s, u""_s}; }

TEST_F(PagesTest, CommonDeclarationOfAQuarterWithItsStatementPage) {
  EmployerRow header = testing::Sample<EmployerRow>(1);
  header.declaration_type = u"02"_s;
  header.declaration_descr = u"ΕΚΤΑΚΤΗ "_s;
  header.from_month = u"01 "_s;
  header.saldate1 = u"01/2026"_s;
  header.saldate2 = u"02/2026"_s;
  header.saldate3 = u"03/2026"_s;
  header.total_days1 = u"1"_s;
  header.total_days2 = std::nullopt;
  header.total_days3 = u"22"_s;
  header.total_days = u"1234"_s;
  header.total_salaries1 = std::nullopt;
  header.total_salaries2 = u"1234,5"_s;
  header.total_salaries3 = u"0"_s;
  header.total_salaries = u"12345678901234,5"_s;  // longer than its room: written whole
  header.total_contributions1 = header.total_contributions2 = header.total_contributions3 = u"7"_s;
  header.total_contributions = u"21"_s;
  InsertRow(db_, header);
  EmployeeRow line = testing::Sample<EmployeeRow>(1, 1);
  line.full_day = u"1,0"_s;
  line.all_days = u"2"_s;
  line.daily_wages = u"1234,5"_s;
  line.payed_contr = std::nullopt;
  InsertRow(db_, line);
  for (const char* id : {"x", "y"}) {
    EmployeeRow next = testing::SampleLine<EmployeeRow>(1, 2, QString::fromLatin1(id));
    next.full_day = next.all_days = u"0"_s;
    InsertRow(db_, next);
  }

  const std::vector<QStringList> pages = Print(Kind::Common, Printout::kDeclaration);
  ASSERT_EQ(pages.size(), 3u);
  const QString from = u"01 /"_s + V("from_year", "1.0");
  const QString to = V("to_month", "1.0") + u'/' + V("to_year", "1.0");
  const QString ame = V("emp_employer_id", "1.0"), afm = V("taxation_number", "1.0");
  const QStringList page1 =
      FourEmpty() +
      QStringList{
          // clang-format off
      pt::kPage1 + u"1"_s + pt::kOf + u"3"_s, u""_s, pt::kType + u"02 ΕΚΤΑΚΤΗ "_s, u""_s,
      pt::kBranch + V("orgbra_branch_code", "1.0") + u' ' + V("orgbra_branch_descr", "1.0"),
      pt::kEmployer + V("employer_name", "1.0") + u' ' + V("emp_first_name", "1.0") + u' ' + V("emp_father_name", "1.0"),
      u""_s, pt::kSumAme + ame + pt::kAddressHeading,
      pt::kSumAfm + afm + B(3) + V("address_street", "1.0") + u' ' + V("num", "1.0"),
      B(21) + V("zip_code", "1.0") + u' ' + V("city", "1.0"),
      pt::kFromPage1 + from + pt::kToPage1 + to, u""_s,
      pt::kPerMonthPage1 + u"01/2026"_s + B(10) + u"02/2026"_s + B(10) + u"03/2026"_s + pt::kTotalsHeading,
      pt::kDaysPage1 + B(7) + u"1"_s + B(9) + B(7) + u"0"_s + B(9) + B(6) + u"22"_s + B(9) + B(4) + u"1234"_s,
      pt::kSalaries + B(12) + u"0,00 "_s + B(8) + u"1.234,50 "_s + B(12) + u"0,00 "_s + u"12.345.678.901.234,50"_s,
      pt::kPaid + B(12) + u"7,00 "_s + B(12) + u"7,00 "_s + B(12) + u"7,00 "_s + B(11) + u"21,00"_s,
      u""_s
          // clang-format on
      } +
      Labelled({
          // clang-format off
      {pt::kBranchKad, V("emp_branch_id") + u" / "_s + V("kad")},
      {pt::kInsuredId, V("insured_id")}, {pt::kAmka, V("amka")}, {pt::kSurname, V("surname")},
      {pt::kName, V("name")}, {pt::kFather, V("father_name")}, {pt::kMother, V("mother_name")},
      {pt::kBirth, V("birth_date")}, {pt::kAfm, V("taxation_id")}, {pt::kFullDay, pt::kYes},
      {pt::kAllDays, pt::kNo}, {pt::kSundays, V("sundays_sum")},
      {pt::kCategory, V("insur_categ_code")}, {pt::kSpecial, V("special_insur_code")},
      {pt::kCover, V("covcod_cover_code")},
      {pt::kPayPeriod, V("sal_month") + u'/' + V("sal_year")}, {pt::kSalFrom, V("sal_from")},
      {pt::kSalTo, V("sal_to")}, {pt::kWageCode, V("wage_code")},
      {pt::kInsuranceDays, V("insurance_days")}, {pt::kDailyWage, u"1.234,50"_s},
      {pt::kSalary, V("salary")}, {pt::kInsuredContr, V("insured_contr")},
      {pt::kEmployerContr, V("employer_contr")}, {pt::kTotalContr, V("total_contr")},
      {pt::kSubsidy, V("subsidy_amount")}, {pt::kSubsidyPercent, V("emp_subsidy_percent")},
      {pt::kSubsidyAmount, V("emp_subsidy_amount")}, {pt::kPayedContr, u"0,00"_s}
          // clang-format on
      });
  EXPECT_EQ(pages[0], page1);
  const QStringList header2 =
      FourEmpty() + QStringList{pt::kPageN + u"2"_s + pt::kOf + u"3"_s, u""_s,
                                pt::kPageAme + ame + pt::kPageAfm + afm,
                                pt::kFrom + from + pt::kPageTo + to, u""_s};
  EXPECT_EQ(pages[1].mid(0, 9), header2);
  const QStringList last = FourEmpty() +
                           QStringList{
                               // clang-format off
      pt::kLastPage + u"3"_s + pt::kOf + u"3"_s, u""_s, pt::kPageAme + ame + pt::kLastAfm + afm,
      pt::kFrom + from + pt::kPageTo + to, u""_s, u""_s, u""_s, u""_s, u""_s, u""_s,
      pt::kCessation, pt::kCessation2, u""_s
                               // clang-format on
                           } +
                           Stop(V("stop_date", "1.0"));
  EXPECT_EQ(pages[2], last);
}

TEST_F(PagesTest, ConstructionDeclarationWithItsStatementPage) {
  ConEmployerRow header = testing::Sample<ConEmployerRow>(1);
  header.declare_type = u" 02"_s;
  header.ovt_code = u"45"_s;
  header.sum_salaries = u"1234,5"_s;
  header.sum_days = u"31"_s;
  header.sum_contr = std::nullopt;
  InsertRow(db_, header);
  ConEmployeeRow line = testing::Sample<ConEmployeeRow>(1, 1);
  line.married_status = u"1"_s;
  line.daily_wages = u"1234,5"_s;
  InsertRow(db_, line);

  const std::vector<QStringList> pages = Print(Kind::Construction, Printout::kDeclaration);
  ASSERT_EQ(pages.size(), 2u);
  const QString month = V("from_month", "1.0") + u'/' + V("from_year", "1.0");
  const QString identity = pt::kConPageAme + V("ame", "1.0") + pt::kConPageAmoe + V("amoe", "1.0") +
                           pt::kConPageAfm + V("afm", "1.0");
  const QStringList page1 =
      FourEmpty() +
      QStringList{
          // clang-format off
      pt::kConPage1 + u"1"_s + pt::kOf + u"2"_s, u""_s, pt::kType + u"02 "_s + pt::kExtraordinary,
      u""_s, pt::kBranch + u"045 "_s + V("ovt_name", "1.0"),
      pt::kEmployer + V("emp_name", "1.0") + u' ' + V("emp_first_name", "1.0") + u' ' + V("emp_father_name", "1.0"),
      u""_s, pt::kConSeat + V("emp_address", "1.0") + u' ' + V("emp_num", "1.0"),
      pt::kConSeatEmployer + V("emp_zip_code", "1.0") + u' ' + V("emp_city", "1.0"),
      pt::kConWorks + V("con_descr", "1.0"), u""_s,
      pt::kConAme + V("ame", "1.0") + pt::kConSiteHeading,
      pt::kConAmoe + V("amoe", "1.0") + B(7) + V("con_address", "1.0") + u' ' + V("con_num", "1.0"),
      pt::kSumAfm + V("afm", "1.0") + B(8) + V("con_zip_code", "1.0") + u' ' + V("con_city", "1.0"),
      pt::kConMonth + month, u""_s, pt::kConTotals,
      pt::kSalaries + B(8) + u"1.234,50"_s + pt::kConDays + B(6) + u"31"_s,
      pt::kContributions + B(12) + u"0,00"_s, u""_s
          // clang-format on
      } +
      Labelled({
          // clang-format off
      {pt::kConBranch1, u""_s}, {pt::kConBranch2, V("ovt_code")},
      {pt::kInsuredId, V("insured_id")}, {pt::kConAmka, V("amka")}, {pt::kSurname, V("surname")},
      {pt::kName, V("name")}, {pt::kFather, V("father_name")}, {pt::kMother, V("mother_name")},
      {pt::kBirth, V("birth_date")}, {pt::kAfm, V("taxation_id")}, {pt::kMarital, pt::kMarried},
      {pt::kTriennia, V("triennium_num")}, {pt::kSundays, V("sundays_sum")},
      {pt::kCategory, V("categ_code")}, {pt::kSpecial, V("special_code")},
      {pt::kCover, V("cover_code")}, {pt::kSalFrom, V("sal_from")}, {pt::kSalTo, V("sal_to")},
      {pt::kWageCode, V("wage_code")}, {pt::kWorkDays, V("insurance_days")},
      {pt::kDailyWage, u"1.234,50"_s}, {pt::kSalary, V("salary")}, {pt::kPhase1, u""_s},
      {pt::kPhase2, V("phase_code")}, {pt::kCostingDays, V("costing_days")},
      {pt::kInsuredContr, V("insured_contr")}, {pt::kEmployerContr, V("employer_contr")},
      {pt::kTotalContr, V("total_contr")}
          // clang-format on
      }) +
      QStringList{u""_s};
  EXPECT_EQ(pages[0], page1);
  const QStringList last = FourEmpty() +
                           QStringList{
                               // clang-format off
      pt::kLastPage + u"2"_s + pt::kOf + u"2"_s, u""_s, identity, pt::kConPageMonth + month, u""_s,
      u""_s, u""_s, u""_s, u""_s, pt::kConCessation, pt::kCessation2, u""_s
                               // clang-format on
                           } +
                           Stop(V("stop_date", "1.0"));
  EXPECT_EQ(pages[1], last);
}

struct Paging {
  Kind kind;
  int lines;
  const char* type;
  std::vector<int> blocks;  // on each page; -1 for the statement page
};

class PagingTest : public PagesTest, public ::testing::WithParamInterface<Paging> {};

TEST_P(PagingTest, TwoBlocksToAPageAfterTheFirst) {
  const Paging& p = GetParam();
  const bool common = p.kind == Kind::Common;
  if (common) {
    InsertRow(db_, With<EmployerRow>(0, {{"declaration_type", p.type}}));
  } else {
    InsertRow(db_, With<ConEmployerRow>(0, {{"declare_type", p.type}}));
  }
  for (int n = p.lines; n >= 1; --n) {  // stored against the reading order
    const QString id = QString::number(100 + n);
    if (common) {
      InsertRow(db_,
                With<EmployeeRow>(n, {{"insured_id", id}, {"full_day", "0"}, {"all_days", "0"}}));
    } else {
      InsertRow(db_, With<ConEmployeeRow>(n, {{"insured_id", id}}));
    }
  }
  const std::vector<QStringList> pages = Print(p.kind, Printout::kDeclaration);
  ASSERT_EQ(pages.size(), p.blocks.size());
  const QString count = pt::kOf + QString::number(pages.size());
  const int first = common ? 21 : 24, later = 9, block = common ? 31 : 29;
  QStringList ids;
  for (size_t k = 0; k < pages.size(); ++k) {
    SCOPED_TRACE(k + 1);
    const QStringList& page = pages[k];
    EXPECT_TRUE(page[4].endsWith(QString::number(k + 1) + count)) << page[4].toStdString();
    if (p.blocks[k] < 0) {
      EXPECT_EQ(page.size(), common ? 34 : 33);
      EXPECT_EQ(page.filter(pt::kStopStatement1).size(), 1);
      continue;
    }
    int blocks = 0;
    for (const QString& line : page) {
      if (line.startsWith(pt::kInsuredId)) {
        ++blocks;
        ids << line.mid(pt::kInsuredId.size());
      }
    }
    EXPECT_EQ(blocks, p.blocks[k]);
    // Page 1 of the common kind ends with its block, without empty lines.
    const int gaps = k == 0 && common ? -2 * blocks : 0;
    EXPECT_EQ(page.size(), (k == 0 ? first : later) + blocks * block + gaps);
  }
  QStringList sorted = ids;
  sorted.sort();
  EXPECT_EQ(ids, sorted);
  EXPECT_EQ(ids.size(), p.lines);
}

INSTANTIATE_TEST_SUITE_P(BothKinds, PagingTest,
                         ::testing::Values(Paging{Kind::Common, 0, "01", {0}},
                                           Paging{Kind::Common, 1, "01", {1}},
                                           Paging{Kind::Common, 2, "03", {1, 1}},
                                           Paging{Kind::Common, 3, "", {1, 2}},
                                           Paging{Kind::Common, 4, "01", {1, 2, 1}},
                                           Paging{Kind::Common, 0, "02", {0, -1}},
                                           Paging{Kind::Common, 3, "02", {1, 2, -1}},
                                           Paging{Kind::Construction, 0, "01", {0}},
                                           Paging{Kind::Construction, 3, "01", {1, 2}},
                                           Paging{Kind::Construction, 6, "02", {1, 2, 2, 1, -1}}));

struct Fault {
  const char* name;
  Printout printout;
  std::function<void(Database&)> store;
  int printer_fails_at;
  QString code_and_description;
  int pages_printed;
};

class FaultTest : public PagesTest, public ::testing::WithParamInterface<Fault> {};

TEST_P(FaultTest, EndsThePrintoutWithTheProblemMessage) {
  const Fault& f = GetParam();
  f.store(db_);
  CapturePrinter printer;
  printer.fails_at = f.printer_fails_at;
  EXPECT_FALSE(RunPrintout(store_.vars, dialogs_, Kind::Common, f.printout, printer));
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  const testing::ShownMessage& shown = dialogs_.messages[0];
  EXPECT_EQ(shown.text, pt::kProblem + u"\r\nΚωδικός λάθους: "_s + f.code_and_description);
  EXPECT_EQ(shown.title, u"Ξ.Ρ.Φ."_s);
  EXPECT_FALSE(shown.busy);
  EXPECT_EQ(dialogs_.busy_calls, (std::vector{true, false}));
  EXPECT_EQ(printer.calls.back(), u"kill"_s);
  EXPECT_EQ(printer.calls.count(u"end"_s), 0);
  EXPECT_EQ(printer.pages.size(), size_t(f.pages_printed));
}

void CommonHeader(Database& db, const char* taxation_number) {
  InsertRow(db, With<EmployerRow>(0, {{"declaration_type", "01"},
                                      {"emp_employer_id", "1"},
                                      {"taxation_number", taxation_number}}));
}

INSTANTIATE_TEST_SUITE_P(
    Printouts, FaultTest,
    ::testing::Values(
        Fault{"NoHeader", Printout::kSummary, [](Database&) {}, -1,
              u"0\r\nΠεριγραφή λάθους: "_s + pt::kNoHeader, 0},
        Fault{"NullTaxNumber", Printout::kSummary,
              [](Database& db) {
                InsertRow(db, With<EmployerRow>(
                                  0, {{"declaration_type", "01"}, {"emp_employer_id", "1"}}));
              },
              -1, u"20\r\nΠεριγραφή λάθους: "_s + pt::kNoValue.arg(u"Α.Φ.Μ."_s), 0},
        Fault{"FullDayNotANumber", Printout::kDeclaration,
              [](Database& db) {
                CommonHeader(db, "2");
                InsertRow(db, With<EmployeeRow>(1, {{"full_day", "1"}, {"all_days", "1"}}));
                InsertRow(db, With<EmployeeRow>(2, {{"full_day", ""}, {"all_days", "1"}}));
              },
              -1,
              u"20\r\nΠεριγραφή λάθους: "_s +
                  pt::kNotANumber.arg(QString(), pt::kFullDay.trimmed().chopped(1), u"2"_s),
              1},
        Fault{"PrinterFailsOnTheSecondPage", Printout::kDeclaration,
              [](Database& db) {
                CommonHeader(db, "2");
                for (int n = 1; n <= 2; ++n) {
                  InsertRow(db, With<EmployeeRow>(n, {{"full_day", "1"}, {"all_days", "1"}}));
                }
              },
              3, u"28\r\nΠεριγραφή λάθους: No space left on device"_s, 1}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(PagesTest, TheDeclarationIsPrintedOnlyWhenTheUserSaysYes) {
  AddCommonLines(1, u"01"_s);
  PrintDeclaration(store_.vars, dialogs_, Kind::Common);
  ASSERT_EQ(dialogs_.questions.size(), 1u);
  EXPECT_EQ(dialogs_.questions[0].text, pt::kAskAll);
  EXPECT_EQ(dialogs_.questions[0].title, u"Ξ.Ρ.Φ."_s);
  EXPECT_EQ(dialogs_.last_style, AskStyle::Plain);
  EXPECT_TRUE(dialogs_.printers.empty());
  EXPECT_TRUE(dialogs_.busy_calls.empty());

  dialogs_.answers = {true};
  PrintDeclaration(store_.vars, dialogs_, Kind::Common);
  PrintSummary(store_.vars, dialogs_, Kind::Common);
  ASSERT_EQ(dialogs_.printers.size(), 2u);
  EXPECT_EQ(dialogs_.questions.size(), 2u);  // none for the summary
  EXPECT_EQ(dialogs_.printed, (std::vector{true, true}));
  EXPECT_EQ(dialogs_.printers[0].calls,
            (QStringList{u"size 10"_s, u"name Courier New Greek"_s, u"print"_s, u"end"_s}));
  EXPECT_TRUE(dialogs_.printers[1].pages[0].contains(pt::kSumTitle));
}

}  // namespace
}  // namespace veroxia
