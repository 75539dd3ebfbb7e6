#include "filing/totals.h"

#include <gtest/gtest.h>

#include "header/box_captions.h"
#include "support/fakes.h"
#include "support/printers.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

// Each row as "label | header | lines | difference | agrees".
QStringList Rows(const TotalsReport& report) {
  QStringList rows;
  for (const TotalsRow& r : report.rows) {
    rows << QStringList{r.label, r.header, r.lines, r.difference, r.agrees ? u"="_s : u"≠"_s}.join(
        u" | "_s);
  }
  return rows;
}

// A quarter with one disagreement in each quantity: the days of January, the
// wages of February, the whole of the contributions. A line of another month
// counts in the whole only; a wage that is no number is reported, not summed.
TEST(Totals, CommonQuarterAgainstItsLines) {
  testing::TempStore store;
  Database& db = store.Open();
  db.Exec(
      "INSERT INTO QOR_EMPLOYERS (id, taxation_number, from_month, from_year, to_month, to_year, "
      "saldate1, saldate2, saldate3, total_days1, total_days2, "
      "total_days3, total_days, total_salaries1, total_salaries2, total_salaries3, "
      "total_salaries, total_contributions1, total_contributions2, total_contributions3, "
      "total_contributions) VALUES (1, '123456789', '01', '2026', '03', '2026', '01/2026', "
      "'02/2026', '03/2026', '26', '20', "
      "'0', '55', "
      "'1000,5', '999', '0', '2000,5', '100', '100', '0', '200,01');"
      "INSERT INTO QOR_EMPLOYEES (id, row_num, sal_month, sal_year, insurance_days, salary, "
      "payed_contr, amka, taxation_id) VALUES (1, 1, '01', '2026', '25', '1000,50', '100', "
      "'12345678901', '094014201'), (1, 2, '2', '2026', '20', '1000', '100', '12345678903', "
      "'090000044'), (1, 3, '12', '2025', '10', 'x', '0', "
      "NULL, NULL), (1, 4, '01', '2026', ' 0 ', '0,004', NULL, '', '')");
  const auto report = CompareTotals(db, Kind::Common, 1);
  ASSERT_TRUE(report);
  EXPECT_EQ(Rows(*report), (QStringList{
                               u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ 01/2026 | 26 | 25 | 1 | ≠"_s,
                               u"ΑΠΟΔΟΧΕΣ 01/2026 | 1.000,50 | 1.000,50 | 0,00 | ="_s,
                               u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ 01/2026 | 100,00 | 100,00 | 0,00 | ="_s,
                               u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ 02/2026 | 20 | 20 | 0 | ="_s,
                               u"ΑΠΟΔΟΧΕΣ 02/2026 | 999,00 | 1.000,00 | -1,00 | ≠"_s,
                               u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ 02/2026 | 100,00 | 100,00 | 0,00 | ="_s,
                               u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ 03/2026 | 0 | 0 | 0 | ="_s,
                               u"ΑΠΟΔΟΧΕΣ 03/2026 | 0,00 | 0,00 | 0,00 | ="_s,
                               u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ 03/2026 | 0,00 | 0,00 | 0,00 | ="_s,
                               u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ ΣΥΝΟΛΟ | 55 | 55 | 0 | ="_s,
                               u"ΑΠΟΔΟΧΕΣ ΣΥΝΟΛΟ | 2.000,50 | 2.000,50 | 0,00 | ="_s,
                               u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ ΣΥΝΟΛΟ | 200,01 | 200,00 | 0,01 | ≠"_s,
                           }));
  ASSERT_EQ(report->unreadable.size(), 2u);
  EXPECT_EQ(report->unreadable[0].row_num, 4);  // in reading order
  EXPECT_EQ(report->unreadable[0].column, u"payed_contr"_s);
  EXPECT_EQ(report->unreadable[1].row_num, 3);
  EXPECT_EQ(report->unreadable[1].column, u"salary"_s);
  EXPECT_EQ(report->unreadable[1].text, u"x"_s);
  ASSERT_EQ(report->check_digits.size(), 3u);  // the header's, line 1's AMKA, line 2's tax number
  EXPECT_EQ(report->check_digits[0].row_num, 0);
  EXPECT_EQ(report->check_digits[1].column, u"amka"_s);
  EXPECT_EQ(report->check_digits[2].text, u"090000044"_s);
  EXPECT_FALSE(report->AllAgree());
  // The notes name the boxes, in the order of the lines; line 3's payroll
  // month lies outside the period. The report is offered under the
  // declaration's name.
  store.vars.DeclarationId = 1;
  store.vars.PeriodFrom = u"012026"_s;
  store.vars.PeriodTo = u"032026"_s;
  testing::FakeDialogs dialogs;
  ShowTotals(store.vars, dialogs, Kind::Common, BoxCaptionsOf(Kind::Common));
  const Report& shown = dialogs.reports.at(0);
  QStringList boxes;  // each note up to its box
  for (const QString& note : shown.notes) boxes << note.section(u'\'', 0, 1);
  EXPECT_EQ(boxes, (QStringList{u"Η επικεφαλίδα έχει στο πεδίο 'Α.Φ.Μ. (6)"_s,
                                u"Η γραμμή 1 έχει στο πεδίο 'Α.Μ.Κ.Α (20)"_s,
                                u"Η γραμμή 2 έχει στο πεδίο 'Α.Φ.Μ. (26)"_s,
                                u"Η γραμμή 3 έχει στο πεδίο 'ΜΙΣΘΟΛ. ΠΕΡΙΟΔΟΣ (33) MM/EEEE"_s,
                                u"Η γραμμή 3 έχει στο πεδίο 'ΑΠΟΔΟΧΕΣ (39)"_s,
                                u"Η γραμμή 4 έχει στο πεδίο 'ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ (46)"_s}));
  EXPECT_TRUE(shown.notes[3].endsWith(
      u"'12/2025', έξω από την περίοδο της δήλωσης (01/2026 έως 03/2026)."_s));
  EXPECT_EQ(shown.file_name, u"OVT-common-1-2026-01_2026-03.txt"_s);
  EXPECT_FALSE(shown.rows.back().holds);
  EXPECT_EQ(shown.verdict, kTotalsDisagree);
}

TEST(Totals, ConstructionOfOneMonth) {
  testing::TempStore store;
  Database& db = store.Open();
  db.Exec(
      "INSERT INTO QOR_CON_EMPLOYERS (id, sum_days, sum_salaries, sum_contr) VALUES "
      "(1, '44', '2882', 'y');"
      "INSERT INTO QOR_CON_EMPLOYEES (id, row_num, insurance_days, salary, total_contr) VALUES "
      "(1, 1, '22', '1441', '650,86'), (1, 2, '22', '1441,00', '650,86')");
  const auto report = CompareTotals(db, Kind::Construction, 1);
  ASSERT_TRUE(report);
  EXPECT_EQ(Rows(*report), (QStringList{u"ΗΜΕΡΕΣ ΑΠΑΣΧΟΛΗΣΗΣ ΣΥΝΟΛΟ | 44 | 44 | 0 | ="_s,
                                        u"ΑΠΟΔΟΧΕΣ ΣΥΝΟΛΟ | 2.882,00 | 2.882,00 | 0,00 | ="_s,
                                        u"ΕΙΣΦΟΡΕΣ ΣΥΝΟΛΟ | y | 1.301,72 |  | ≠"_s}));
  EXPECT_FALSE(CompareTotals(db, Kind::Construction, 2));
}

}  // namespace
}  // namespace veroxia
