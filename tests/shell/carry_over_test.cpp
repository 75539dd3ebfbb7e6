// Copying the previous declaration's lines under the new id: all of them,
// once, and nothing at all when a statement fails.

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include "header/ovt_form1.h"
#include "header/texts.h"
#include "shell/carry_over.h"
#include "shell/errors.h"
#include "shell/texts.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr int kPrevious = 5, kNew = 6;

class CarryOver : public ::testing::Test {
 protected:
  CarryOver() {
    store_.vars.PreviousDeclarationId = kPrevious;
    store_.vars.DeclarationId = kNew;
  }
  // Runs the carry-over, which must succeed silently and leave no scratch.
  void ExpectCopied(Kind kind, int copied) {
    const CarryOverOutcome outcome = CarryOverLines(store_.vars, dialogs_, kind);
    EXPECT_EQ(std::pair(outcome.ok, outcome.copied), std::pair(true, copied));
    EXPECT_TRUE(dialogs_.messages.empty()) << dialogs_.LastMessage().toStdString();
    EXPECT_EQ(DumpTable(db_, "QOR_TEMP_EMPLOYEES").size() +
                  DumpTable(db_, "QOR_CON_TEMP_EMPLOYEES").size(),
              0u);
  }
  // Three common lines of the previous declaration, stored out of reading
  // order, the second with an empty daily wage. Answers them in reading order.
  std::vector<EmployeeRow> AddCommonLines() {
    std::vector<EmployeeRow> lines{SampleLine<EmployeeRow>(kPrevious, 1, u"300"_s),
                                   SampleLine<EmployeeRow>(kPrevious, 2, u"100"_s),
                                   SampleLine<EmployeeRow>(kPrevious, 3, u"200"_s)};
    lines[1].daily_wages = u""_s;
    for (const auto& line : lines) InsertRow(db_, line);
    return {lines[1], lines[2], lines[0]};
  }

  TempStore store_;
  Database& db_ = store_.Open();
  FakeDialogs dialogs_;
};

// Each kind's lines, every column, under the new id, once; only common lines
// have their daily wages set (the rule is proved with the store).
TEST_F(CarryOver, CopiesTheLinesOfItsKindUnderTheNewIdOnce) {
  auto previous = AddCommonLines();
  std::vector<ConEmployeeRow> con{SampleLine<ConEmployeeRow>(kPrevious, 1, u"2"_s),
                                  SampleLine<ConEmployeeRow>(kPrevious, 2, u"1"_s)};
  for (const auto& line : con) InsertRow(db_, line);
  const auto common = DumpTable(db_, "QOR_EMPLOYEES");

  ExpectCopied(Kind::Construction, 2);
  std::swap(con[0], con[1]);  // reading order
  EXPECT_EQ(ValuesOf(LinesOf<ConEmployeeRow>(db_, kPrevious)), ValuesOf(con));
  for (auto& line : con) line.id = kNew;
  EXPECT_EQ(ValuesOf(LinesOf<ConEmployeeRow>(db_, kNew)), ValuesOf(con));
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYEES"), common);

  ExpectCopied(Kind::Common, 3);
  EXPECT_EQ(dialogs_.busy_calls, (std::vector<bool>{true, false, true, false}));
  previous[0].daily_wages = u"0"_s;  // empty in the previous declaration
  EXPECT_EQ(ValuesOf(LinesOf<EmployeeRow>(db_, kPrevious)), ValuesOf(previous));
  for (auto& line : previous) line.id = kNew;
  EXPECT_EQ(ValuesOf(LinesOf<EmployeeRow>(db_, kNew)), ValuesOf(previous));
  ExpectCopied(Kind::Common, 0);  // a second run finds them copied
}

TEST_F(CarryOver, FailureLeavesLinesAndScratchExactlyAsTheyWere) {
  AddCommonLines();
  InsertRow(db_, Sample<EmployeeRow>(40, 1));
  // clang-format off
  db_.Exec("INSERT INTO QOR_TEMP_EMPLOYEES SELECT * FROM QOR_EMPLOYEES WHERE id = 40; CREATE TRIGGER fail "
           "BEFORE INSERT ON QOR_EMPLOYEES WHEN NEW.id = 6 BEGIN SELECT RAISE(ABORT, 'injected'); END");
  // clang-format on
  const auto lines = DumpTable(db_, "QOR_EMPLOYEES");
  const auto scratch = DumpTable(db_, "QOR_TEMP_EMPLOYEES");

  const CarryOverOutcome outcome = CarryOverLines(store_.vars, dialogs_, Kind::Common);

  EXPECT_EQ(std::tuple(outcome.ok, outcome.copied, db_.InTransaction()),
            std::tuple(false, 0, false));
  EXPECT_EQ(DumpTable(db_, "QOR_EMPLOYEES"), lines);
  EXPECT_EQ(DumpTable(db_, "QOR_TEMP_EMPLOYEES"), scratch);
  EXPECT_EQ(FakeDialogs::Told(dialogs_.messages),
            (QStringList{texts::kAppTitle, ErrorMessage(texts::kCarryOverFailed,
                                                        {SQLITE_CONSTRAINT, u"injected"_s})}));
  EXPECT_EQ(dialogs_.busy_calls, (std::vector<bool>{true, false}));

  // Nothing half-copied stands in the way of the next save.
  db_.Exec("DROP TRIGGER fail");
  dialogs_.messages.clear();
  ExpectCopied(Kind::Common, 3);
}

// The previous header's period and the new one ("MMYYYY-MMYYYY MMYYYY-MMYYYY"),
// and lines of a declaration with these payroll months ("month/year ...").
class PayrollMove : public CarryOver {
 protected:
  void Prepare(const QString& periods, const QString& months, int id = kNew) {
    db_.Exec("DELETE FROM QOR_EMPLOYERS; DELETE FROM QOR_EMPLOYEES");
    // clang-format off
    auto header = Filled<EmployerRow>(0, {{"from_month", periods.left(2)}, {"from_year", periods.mid(2, 4)},
                                          {"to_month", periods.mid(7, 2)}, {"to_year", periods.mid(9, 4)}});
    header.id = kPrevious;
    InsertRow(db_, header);
    int row = 0;
    for (const QString& month : months.split(u' ')) {
      auto line = Filled<EmployeeRow>(++row, {{"sal_month", month.section(u'/', 0, 0)}, {"sal_year", month.section(u'/', 1)}});
      line.id = id;
      InsertRow(db_, line);
    }
    // clang-format on
    store_.vars.PeriodFrom = periods.mid(14, 6);
    store_.vars.PeriodTo = periods.right(6);
  }
  QStringList Months() {
    QStringList months;
    Statement& lines = db_.Prepare(
        "SELECT sal_month || '/' || sal_year FROM QOR_EMPLOYEES WHERE id = 6 ORDER BY row_num");
    while (lines.Next()) months << lines.Value(0).value_or(QString());
    return months;
  }
};

// The k-th month of the previous period becomes the k-th of the new one (its
// last when it is shorter); a month outside the previous period, or none,
// stays; nothing is asked when nothing would change. A failure on the way
// leaves every line as copied; the construction kind is never asked.
TEST_F(PayrollMove, CopiedMonthsMoveIntoTheNewPeriodOnYes) {
  // previous and new period, the lines' months, the answer, the months after
  // ("-": nothing asked)
  // clang-format off
  const char* cases[] = {
      "012026-032026 042026-062026|01/2026 02/2026 03/2026 12/2025 /|yes|04/2026 05/2026 06/2026 12/2025 /",
      "012026-032026 042026-062026|3/2026|no|3/2026",
      "032026-032026 042026-042026|3/2026 02/2026|yes|04/2026 02/2026",
      "102025-122025 012026-012026|10/2025 12/2025|yes|01/2026 01/2026",
      "122025-122025 012026-032026|12/2025|yes|01/2026",
      "012026-032026 012026-032026|01/2026|yes|-"};
  // clang-format on
  for (const char* text : cases) {
    const QStringList c = QString::fromUtf8(text).split(u'|');
    Prepare(c[0], c[1]);
    dialogs_.questions.clear();
    dialogs_.answers = {c[2] == u"yes"};
    OfferPayrollMove(store_.vars, dialogs_, Kind::Common);
    EXPECT_EQ(dialogs_.questions.size(), c[3] == u"-" ? 0u : 1u) << text;
    EXPECT_EQ(Months().join(u' '), c[3] == u"-" ? c[1] : c[3]) << text;
  }
  EXPECT_TRUE(dialogs_.messages.empty());

  Prepare(u"012026-032026 042026-062026"_s, u"01/2026 03/2026 12/2025"_s);
  OfferPayrollMove(store_.vars, dialogs_, Kind::Construction);
  // clang-format off
  db_.Exec("CREATE TRIGGER fail BEFORE UPDATE ON QOR_EMPLOYEES WHEN NEW.sal_month = '06' BEGIN "
           "SELECT RAISE(ABORT, 'injected'); END");
  // clang-format on
  dialogs_.answers = {true};
  OfferPayrollMove(store_.vars, dialogs_, Kind::Common);
  ASSERT_EQ(dialogs_.questions.size(), 1u);
  EXPECT_EQ(
      dialogs_.questions[0].text,
      texts::kPayrollMoveQuestion.arg(u"01/2026 έως 03/2026"_s, u"04/2026 έως 06/2026"_s) +
          u"\r\n\r\n01/2026 σε 04/2026, γραμμές: 1\r\n03/2026 σε 06/2026, γραμμές: 1\r\n\r\n"_s +
          texts::kPayrollMoveLeft.arg(1));
  EXPECT_EQ(Months(), (QStringList{u"01/2026"_s, u"03/2026"_s, u"12/2025"_s}));
  EXPECT_FALSE(db_.InTransaction());
  EXPECT_EQ(dialogs_.LastMessage(),
            ErrorMessage(texts::kPayrollMoveFailed, {SQLITE_CONSTRAINT, u"injected"_s}));
}

// The header save asks once the header is stored and shown in the view
// state, after the message that says so.
TEST_F(PayrollMove, TheHeaderSaveAsksAfterItsMessage) {
  struct Watching : FakeDialogs {
    std::function<void()> asked;
    bool Ask(const QString& text, const QString& title, AskStyle style) override {
      asked();
      return FakeDialogs::Ask(text, title, style);
    }
  } dialogs;
  Prepare(u"012026-032026 042026-062026"_s, u"02/2026"_s, kPrevious);
  store_.vars.CarryOver = true;
  FakeScreens screens;
  OvtForm1 form(store_.vars, dialogs, screens);
  form.Load();
  dialogs.answers = {true};
  dialogs.asked = [&] {
    EXPECT_EQ(dialogs.LastMessage(), header_texts::kSaveDone);
    EXPECT_TRUE(form.At(u"UpDateCmd"_s).visible && !dialogs.busy);
  };
  form.SaveCmd_Click();
  EXPECT_EQ(dialogs.questions.size(), 1u);
  EXPECT_EQ(Months(), QStringList{u"05/2026"_s});
}

}  // namespace
}  // namespace veroxia::testing
