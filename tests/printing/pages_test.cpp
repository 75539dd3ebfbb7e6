#include "printing/pages.h"

#include <gtest/gtest.h>

#include <functional>

#include "printing/page_file.h"
#include "printing/printout.h"
#include "printing/texts.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;
namespace pt = printing_texts;

QString B(int count) { return QString(count, u' '); }

QStringList Closing() {
  return {u""_s, u""_s, pt::kStatement1, pt::kStatement2, u""_s, pt::kSigners,
          u""_s, u""_s, u""_s,           u""_s,           u""_s, pt::kSubmitted};
}

QStringList Stop(const QString& date) {
  // clang-format off
  return {pt::kStopStatement1 + date + u","_s, pt::kStopStatement2, pt::kStopStatement3,
          pt::kStopStatement4, u""_s, u""_s, pt::kDates1, pt::kDates2, u""_s, pt::kSigners2,
          u""_s, u""_s, u""_s, u""_s, u""_s, u""_s, pt::kStamps};
  // clang-format on
}

// A header of declaration 1 that prints, or lacks its tax number.
void Header(Database& db, bool tax_number = true) {
  InsertRow(db, Filled<EmployerRow>(0, {{"declaration_type", "01"},
                                        {"emp_employer_id", "1"},
                                        {"taxation_number", tax_number ? Text(u"2"_s) : Text()}}));
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

  TempStore store_;
  Database& db_ = store_.Open();
  FakeDialogs dialogs_;
};

// clang-format off
TEST_F(PagesTest, CommonSummaryOfOneMonth) {
  InsertRow(db_, Filled<EmployerRow>(0, {
      {"declaration_type", "01"}, {"declaration_descr", "ΚΑΝΟΝΙΚΗ "},
      {"orgbra_branch_code", " 12 "}, {"orgbra_branch_descr", "ΑΘΗΝΩΝ"}, {"employer_name", QString(50, u'Ω')},
      {"emp_first_name", "ΒΗΤΑΣ"}, {"emp_father_name", "ΓΑΜΑ"}, {"emp_employer_id", "0123456 "},
      {"taxation_number", "094000000"}, {"address_street", "ΣΤΑΔΙΟΥ"}, {"num", "5"},
      {"zip_code", "10562"}, {"city", "ΑΘΗΝΑ"}, {"from_month", "01"}, {"from_year", "2026"},
      {"to_month", "01"}, {"to_year", "2026"}, {"saldate1", "01/2026"}, {"saldate2", " "},
      {"total_days1", "25"}, {"total_salaries1", "1234,5"}, {"total_days", "25"},
      {"total_salaries", "1234567,891"}, {"total_contributions", "-3"}}));
  const QStringList expected = QStringList{
      u""_s, u""_s, u""_s, u""_s, pt::kSumTitle, pt::kSumSubtitle, u""_s, u""_s,
      pt::kType + u"01 ΚΑΝΟΝΙΚΗ "_s, u""_s, pt::kBranch1, pt::kBranch2 + u"12 ΑΘΗΝΩΝ"_s, u""_s,
      pt::kEmployer + QString(50, u'Ω') + u" ΒΗΤΑΣ "_s, B(27) + u"ΓΑΜΑ"_s, u""_s, pt::kSumAme + u"0123456 "_s,
      pt::kSumAfm + u"094000000"_s, u""_s, pt::kAddress + u"ΣΤΑΔΙΟΥ 5"_s, B(27) + u"10562 ΑΘΗΝΑ"_s,
      u""_s, pt::kFrom + u"01/2026"_s, pt::kTo + u"01/2026"_s, u""_s, pt::kSumColumns1,
      pt::kSumColumns2, u""_s,
      pt::kPerMonth + u"01/2026"_s + B(11) + u"25"_s + B(13) + u"1.234,50"_s + B(17) + u"0,00"_s, u""_s,
      B(18) + pt::kTotals + B(11) + u"25"_s + B(9) + u"1.234.567,89"_s + B(16) + u"-3,00"_s} + Closing();
  EXPECT_EQ(Print(Kind::Common, Printout::kSummary), std::vector{expected});
}

TEST_F(PagesTest, ConstructionSummary) {
  // The totals of wages and contributions are read as texts: a Null prints nothing.
  const struct { Text salaries, contributions; QString printed_salaries, printed_contributions; } totals[] = {
      {u"1234,5"_s, {}, u"1.234,50"_s, u""_s}, {{}, u" -7"_s, u""_s, u"-7,00"_s}};
  for (const auto& t : totals) {
    db_.Exec("DELETE FROM QOR_CON_EMPLOYERS");
    InsertRow(db_, Filled<ConEmployerRow>(0, {
        {"declare_type", "03"}, {"ovt_code", "7"}, {"ovt_name", "ΠΕΙΡΑΙΑ"}, {"emp_name", "ΑΛΦΑ"},
        {"emp_address", "ΟΔΟΣ"}, {"emp_num", "1"}, {"emp_zip_code", "18535"}, {"emp_city", "ΠΕΙΡΑΙΑΣ"},
        {"con_descr", QString(51, u'Ε') + u' ' + QString(18, u'Ζ')}, {"ame", "11"}, {"amoe", "22"}, {"afm", "33"},
        {"con_address", "ΛΙΜΑΝΙ"}, {"con_zip_code", "18536"}, {"from_month", "05"},
        {"from_year", "2026"}, {"sum_days", " 40"}, {"sum_salaries", t.salaries}, {"sum_contr", t.contributions}}));
    const QStringList expected = QStringList{
        u""_s, u""_s, u""_s, u""_s, pt::kConSumTitle, pt::kConSumSubtitle, u""_s, u""_s,
        pt::kType + u"03 "_s + pt::kResubmission, u""_s, pt::kBranch1,
        pt::kBranch2 + u"007 ΠΕΙΡΑΙΑ"_s, u""_s, pt::kEmployer + u"ΑΛΦΑ"_s + B(2), u""_s,
        pt::kSeat + u"ΟΔΟΣ 1"_s, pt::kSeatEmployer + u"18535 ΠΕΙΡΑΙΑΣ"_s, u""_s,
        pt::kWorks + QString(51, u'Ε') + u' ', B(17) + QString(18, u'Ζ'), u""_s,
        pt::kSumAme + u"11"_s + pt::kSumAmoe + u"22"_s + pt::kSumAfmAfterAmoe + u"33"_s, u""_s,
        pt::kSite + u"ΛΙΜΑΝΙ "_s, B(27) + u"18536 "_s, u""_s, pt::kSumMonth + u"05/2026"_s, u""_s,
        pt::kSumDays1, pt::kSumDays2 + u" 40"_s, u""_s, pt::kSumTotal, pt::kSalaries + t.printed_salaries,
        u""_s, pt::kSumTotal, pt::kContributions + t.printed_contributions} + Closing();
    EXPECT_EQ(Print(Kind::Construction, Printout::kSummary), std::vector{expected});
  }
}
// clang-format on

// The value a sample row holds in that column ("<column> <id>.<row>").
QString V(const char* column, const char* row = "1.1") {
  return QString::fromLatin1(column) + u' ' + QString::fromLatin1(row);
}

QStringList Labelled(const std::vector<std::pair<QString, QString>>& rows) {
  QStringList lines;
  for (const auto& [label, value] : rows) lines << label + value;
  return lines;
}

// clang-format off
TEST_F(PagesTest, CommonDeclarationOfAQuarterWithItsStatementPage) {
  InsertRow(db_, Set(Sample<EmployerRow>(1), {
      {"declaration_type", u"02"_s}, {"declaration_descr", u"ΕΚΤΑΚΤΗ "_s}, {"from_month", u"01 "_s},
      {"saldate1", u"01/2026"_s}, {"saldate2", u"02/2026"_s}, {"saldate3", u"03/2026"_s},
      {"total_days1", u"1"_s}, {"total_days2", {}}, {"total_days3", u"22"_s}, {"total_days", u"1234"_s},
      {"total_salaries1", {}}, {"total_salaries2", u"1234,5"_s}, {"total_salaries3", u"0"_s},
      {"total_salaries", u"12345678901234,5"_s},  // longer than its room: written whole
      {"total_contributions1", u"7"_s}, {"total_contributions2", u"7"_s},
      {"total_contributions3", u"7"_s}, {"total_contributions", u"21"_s}}));
  InsertRow(db_, Set(Sample<EmployeeRow>(1, 1), {
      {"full_day", u"1,0"_s}, {"all_days", u"2"_s}, {"daily_wages", u"1234,5"_s}, {"payed_contr", {}}}));
  for (const char* id : {"x", "y"}) {
    InsertRow(db_, Set(Sample<EmployeeRow>(1, 2), {
        {"insured_id", QString::fromLatin1(id)}, {"full_day", u"0"_s}, {"all_days", u"0"_s}}));
  }

  const std::vector<QStringList> pages = Print(Kind::Common, Printout::kDeclaration);
  ASSERT_EQ(pages.size(), 3u);
  const QString from = u"01 /"_s + V("from_year", "1.0");
  const QString to = V("to_month", "1.0") + u'/' + V("to_year", "1.0");
  const QString ame = V("emp_employer_id", "1.0"), afm = V("taxation_number", "1.0");
  const QStringList page1 = QStringList(4) + QStringList{
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
      u""_s} + Labelled({
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
      {pt::kSubsidyAmount, V("emp_subsidy_amount")}, {pt::kPayedContr, u"0,00"_s}});
  EXPECT_EQ(pages[0], page1);
  EXPECT_EQ(pages[1].mid(0, 9), (QStringList(4) + QStringList{
      pt::kPageN + u"2"_s + pt::kOf + u"3"_s, u""_s, pt::kPageAme + ame + pt::kPageAfm + afm,
      pt::kFrom + from + pt::kPageTo + to, u""_s}));
  EXPECT_EQ(pages[2], (QStringList(4) + QStringList{
      pt::kLastPage + u"3"_s + pt::kOf + u"3"_s, u""_s, pt::kPageAme + ame + pt::kLastAfm + afm,
      pt::kFrom + from + pt::kPageTo + to, u""_s, u""_s, u""_s, u""_s, u""_s, u""_s,
      pt::kCessation, pt::kCessation2, u""_s} + Stop(V("stop_date", "1.0"))));
}

TEST_F(PagesTest, ConstructionDeclarationWithItsStatementPage) {
  InsertRow(db_, Set(Sample<ConEmployerRow>(1), {
      {"declare_type", u" 02"_s}, {"ovt_code", u"45"_s}, {"sum_salaries", u"1234,5"_s},
      {"sum_days", u"31"_s}, {"sum_contr", {}}}));
  InsertRow(db_, Set(Sample<ConEmployeeRow>(1, 1), {
      {"married_status", u"1"_s}, {"daily_wages", u"1234,5"_s}}));

  const std::vector<QStringList> pages = Print(Kind::Construction, Printout::kDeclaration);
  ASSERT_EQ(pages.size(), 2u);
  const QString month = V("from_month", "1.0") + u'/' + V("from_year", "1.0");
  const QStringList page1 = QStringList(4) + QStringList{
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
      pt::kContributions + B(12) + u"0,00"_s, u""_s} + Labelled({
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
      {pt::kTotalContr, V("total_contr")}}) + QStringList{u""_s};
  EXPECT_EQ(pages[0], page1);
  EXPECT_EQ(pages[1], (QStringList(4) + QStringList{
      pt::kLastPage + u"2"_s + pt::kOf + u"2"_s, u""_s,
      pt::kConPageAme + V("ame", "1.0") + pt::kConPageAmoe + V("amoe", "1.0") + pt::kConPageAfm + V("afm", "1.0"),
      pt::kConPageMonth + month, u""_s, u""_s, u""_s, u""_s, u""_s, pt::kConCessation, pt::kCessation2,
      u""_s} + Stop(V("stop_date", "1.0"))));
}
// clang-format on

// Lines stored against the reading order, printed in it: the first page holds
// one block, every later one two, and an extraordinary declaration ends with
// its statement page.
TEST_F(PagesTest, TwoBlocksToAPageAfterTheFirst) {
  const struct {
    Kind kind;
    int lines;
    const char* type;
    std::vector<int> blocks;  // on each page; -1 for the statement page
  } cases[] = {
      {Kind::Common, 0, "01", {0}},          {Kind::Common, 1, "01", {1}},
      {Kind::Common, 2, "03", {1, 1}},       {Kind::Common, 3, "", {1, 2}},
      {Kind::Common, 4, "01", {1, 2, 1}},    {Kind::Common, 0, "02", {0, -1}},
      {Kind::Common, 3, "02", {1, 2, -1}},   {Kind::Construction, 0, "01", {0}},
      {Kind::Construction, 3, "01", {1, 2}}, {Kind::Construction, 6, "02", {1, 2, 2, 1, -1}},
  };
  for (const auto& p : cases) {
    SCOPED_TRACE(::testing::Message() << p.lines << p.type);
    const bool common = p.kind == Kind::Common;
    db_.Exec(
        "DELETE FROM QOR_EMPLOYERS; DELETE FROM QOR_EMPLOYEES; DELETE FROM QOR_CON_EMPLOYERS; "
        "DELETE FROM QOR_CON_EMPLOYEES");
    common ? InsertRow(db_, Filled<EmployerRow>(0, {{"declaration_type", p.type}}))
           : InsertRow(db_, Filled<ConEmployerRow>(0, {{"declare_type", p.type}}));
    QStringList stored;  // the register numbers in reading order
    for (int n = p.lines; n >= 1; --n) {
      const QString id = QString::number(100 + n);
      stored.prepend(id);
      // clang-format off
      common ? InsertRow(db_, Filled<EmployeeRow>(n, {{"insured_id", id}, {"full_day", "0"}, {"all_days", "0"}}))
             : InsertRow(db_, Filled<ConEmployeeRow>(n, {{"insured_id", id}}));
      // clang-format on
    }
    const std::vector<QStringList> pages = Print(p.kind, Printout::kDeclaration);
    ASSERT_EQ(pages.size(), p.blocks.size());
    const QString count = pt::kOf + QString::number(pages.size());
    const int first = common ? 21 : 24, later = 9, block = common ? 31 : 29;
    QStringList ids;
    for (size_t k = 0; k < pages.size(); ++k) {
      const QStringList& page = pages[k];
      EXPECT_TRUE(page[4].endsWith(QString::number(k + 1) + count)) << page[4].toStdString();
      if (p.blocks[k] < 0) continue;  // the statement page, as the pages above show it
      QStringList blocks;             // the register number of each block
      for (const QString& line : page) {
        if (line.startsWith(pt::kInsuredId)) blocks << line.mid(pt::kInsuredId.size());
      }
      ids << blocks;
      EXPECT_EQ(blocks.size(), p.blocks[k]) << k;
      // Page 1 of the common kind ends with its block, without empty lines.
      const int gaps = k == 0 && common ? -2 * p.blocks[k] : 0;
      EXPECT_EQ(page.size(), (k == 0 ? first : later) + p.blocks[k] * block + gaps) << k;
    }
    EXPECT_EQ(ids, stored);
  }
}

// A store fault or a printer failure ends the printout: the problem told with
// its number and text once the pointer is back, the document killed.
// The pages of a printout that was killed, never ended; -1 otherwise.
int Killed(const CapturePrinter& printer) {
  const bool killed = printer.calls.back() == u"kill" && !printer.calls.contains(u"end"_s);
  return killed ? int(printer.pages.size()) : -1;
}

TEST_F(PagesTest, FaultsEndThePrintoutWithTheProblemMessage) {
  const auto line = [](Database& db, int n, const char* full_day) {
    InsertRow(db, Filled<EmployeeRow>(n, {{"full_day", full_day}, {"all_days", "1"}}));
  };
  const QString description = u"\r\nΠεριγραφή λάθους: "_s;
  // clang-format off
  const struct {
    Printout printout;
    std::function<void(Database&)> store;
    int printer_fails_at;
    QString code_and_description;
    int pages_printed;
  } cases[] = {
      {Printout::kSummary, [](Database&) {}, -1, u"0"_s + description + pt::kNoHeader, 0},
      {Printout::kSummary, [&](Database& db) { Header(db, false); }, -1,
       u"20"_s + description + pt::kNoValue.arg(u"Α.Φ.Μ."_s), 0},
      {Printout::kDeclaration, [&](Database& db) { Header(db), line(db, 1, "1"), line(db, 2, ""); },
       -1, u"20"_s + description + pt::kNotANumber.arg(QString(), pt::kFullDay.trimmed().chopped(1), u"2"_s), 1},
      {Printout::kDeclaration, [&](Database& db) { Header(db), line(db, 1, "1"), line(db, 2, "1"); },
       3, u"28"_s + description + u"No space left on device"_s, 1},
  };
  // clang-format on
  for (const auto& f : cases) {
    SCOPED_TRACE(f.code_and_description.toStdString());
    db_.Exec("DELETE FROM QOR_EMPLOYERS; DELETE FROM QOR_EMPLOYEES");
    f.store(db_);
    FakeDialogs dialogs;
    CapturePrinter printer;
    printer.fails_at = f.printer_fails_at;
    EXPECT_FALSE(RunPrintout(store_.vars, dialogs, Kind::Common, f.printout, printer));
    EXPECT_EQ(FakeDialogs::Told(dialogs.messages),
              (QStringList{u"Ξ.Ρ.Φ."_s,
                           pt::kProblem + u"\r\nΚωδικός λάθους: "_s + f.code_and_description}));
    EXPECT_EQ(std::pair(dialogs.busy_calls, dialogs.messages.at(0).busy),
              std::pair(std::vector{true, false}, false));
    EXPECT_EQ(Killed(printer), f.pages_printed);
  }
}

TEST_F(PagesTest, TheDeclarationIsPrintedOnlyWhenTheUserSaysYesAndAStopAbandonsIt) {
  Header(db_);
  InsertRow(db_,
            Filled<EmployeeRow>(1, {{"insured_id", "1"}, {"full_day", "0"}, {"all_days", "1"}}));
  PrintDeclaration(store_.vars, dialogs_, Kind::Common);
  EXPECT_EQ(FakeDialogs::Told(dialogs_.questions), (QStringList{u"Ξ.Ρ.Φ."_s, pt::kAskAll}));
  EXPECT_EQ(std::tuple(dialogs_.last_style, dialogs_.printers.size(), dialogs_.busy_calls.size()),
            std::tuple(AskStyle::Plain, 0u, 0u));

  dialogs_.answers = {true};
  PrintDeclaration(store_.vars, dialogs_, Kind::Common);
  PrintSummary(store_.vars, dialogs_, Kind::Common);
  ASSERT_EQ(dialogs_.printers.size(), 2u);
  EXPECT_EQ(dialogs_.questions.size(), 2u);  // none for the summary
  EXPECT_EQ(dialogs_.printed, (std::vector{true, true}));
  EXPECT_EQ(dialogs_.printers[0].calls,
            (QStringList{u"size 10"_s, u"name Courier New Greek"_s, u"print"_s, u"end"_s}));
  EXPECT_TRUE(dialogs_.printers[1].pages[0].contains(pt::kSumTitle));
  // A printout the user stops is abandoned at once and nothing is told; the
  // preview offers it under the declaration's name.
  for (int n = 2; n <= 5; ++n) {
    // clang-format off
    InsertRow(db_, Filled<EmployeeRow>(n, {{"insured_id", QString::number(n)}, {"full_day", "0"}, {"all_days", "1"}}));
    // clang-format on
  }
  FakeDialogs dialogs;
  store_.vars.PeriodFrom = u"012026"_s;
  store_.vars.PeriodTo = u"032026"_s;
  dialogs.answers = {true};
  dialogs.stop_at = 2;
  PrintDeclaration(store_.vars, dialogs, Kind::Common);
  EXPECT_EQ(dialogs.pdf_names, QStringList{u"OVT-common-1-2026-01_2026-03.pdf"_s});
  EXPECT_EQ(dialogs.printed, std::vector{false});
  EXPECT_EQ(dialogs.progress, (std::vector<std::pair<qint64, qint64>>{{1, 3}, {2, 3}}));
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(dialogs.busy_calls, (std::vector{true, false}));
  EXPECT_EQ(Killed(dialogs.printers.at(0)), 2);
}

TEST(PageFileTest, GivesBackAnyPageAsItWasPrinted) {
  PageFile file;
  file.Print(u"ΑΒΓ\r\n  x  "_s);
  file.Print(u"δεύτερο"_s);  // on the same page
  file.NewPage();
  file.NewPage();  // a page left blank
  for (int page = 3; page <= 1000; ++page) {
    if (page > 3) file.NewPage();
    file.Print(QString(page, u'Ω') + QString::number(page));
  }
  EXPECT_EQ(file.Count(), 999);  // the last one is still being printed
  file.EndDoc();
  ASSERT_EQ(file.Count(), 1000);
  EXPECT_EQ(file.Page(999), QString(1000, u'Ω') + u"1000"_s);
  EXPECT_EQ(file.Page(0), u"ΑΒΓ\r\n  x  \r\nδεύτερο"_s);
  EXPECT_EQ(file.Page(1), QString());
  file.KillDoc();
  EXPECT_EQ(file.Count(), 0);
}

}  // namespace
}  // namespace veroxia::testing
