// Bringing the large payroll in from a CSV file, every row checked as the
// employee screen checks it, beside a bare INSERT of the same rows in one
// transaction, measured in the same run; and the memory the import leaves.

#include <benchmark/benchmark.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "lines/line_import.h"
#include "lines/line_kinds.h"
#include "payroll.h"
#include "silent_ports.h"
#include "store/declarations.h"
#include "store/store_file.h"

namespace {

using namespace veroxia;
using namespace veroxia::bench;
using namespace Qt::StringLiterals;

// The payroll's first `lines` lines of the kind as the export writes them,
// written once per run.
QString PayrollCsv(Kind kind, int lines) {
  static QTemporaryDir dir;
  const QString whole =
      dir.filePath(kind == Kind::Common ? u"common.csv"_s : u"construction.csv"_s);
  const QString part = dir.filePath(u"%1-%2"_s.arg(lines).arg(QFileInfo(whole).fileName()));
  if (!QFile::exists(whole)) {
    auto db = Database::Open(PayrollFile(), StorePassword());
    ExportLines(*db, kind, kPayrollId, whole);
  }
  if (lines >= kPayrollLines) return whole;
  if (!QFile::exists(part)) {
    QFile in(whole);
    QFile out(part);
    if (in.open(QIODevice::ReadOnly) && out.open(QIODevice::WriteOnly)) {
      for (int line = 0; line <= lines; ++line) out.write(in.readLine());
    }
  }
  return part;
}

// A store of its own holding the payroll's header of the kind and no line.
struct EmptyDeclaration {
  explicit EmptyDeclaration(Kind kind) {
    const QString path = dir.filePath(u"QorDb.mdb"_s);
    CreateStore(path, StorePassword());
    vars.StoreConnection = Database::Open(path, StorePassword());
    vars.StoreOpen = true;
    vars.DeclarationId = kPayrollId;
    vars.PeriodFrom = u"012002"_s;
    vars.PeriodTo = u"032002"_s;
    vars.StoreConnection->Exec(kind == Kind::Common
                                   ? "INSERT INTO QOR_EMPLOYERS (id) VALUES (1)"
                                   : "INSERT INTO QOR_CON_EMPLOYERS (id) VALUES (1)");
  }
  QTemporaryDir dir;
  Vars vars;
};

void BM_ImportPayroll(benchmark::State& state) {
  const Kind kind = KindOf(state.range(0));
  const int lines = static_cast<int>(state.range(1));
  const QString csv = PayrollCsv(kind, lines);
  SilentDialogs dialogs;
  SilentScreens screens;
  long growth = 0;
  for (auto _ : state) {
    state.PauseTiming();
    auto target = std::make_unique<EmptyDeclaration>(kind);
    auto form = MakeLinesForm(kind, target->vars, dialogs, screens);
    const long before = ResidentKb();
    state.ResumeTiming();
    LineImport import(*form, csv);
    const QString refusal = import.Open();
    import.Run(nullptr);
    import.Commit();
    state.PauseTiming();
    growth = std::max(growth, ResidentKb() - before);
    if (!refusal.isEmpty() || import.Rows() != lines || import.FailedRows() > 0 ||
        import.WarnedRows() > 0 || import.RepeatedRows() > 0) {
      state.SkipWithError("the payroll did not import cleanly");
    }
    target.reset();
    state.ResumeTiming();
  }
  state.counters["rss_growth_kb"] = static_cast<double>(growth);
  state.SetItemsProcessed(state.iterations() * lines);
}
// A quarter of the payroll beside the whole: what memory the import takes
// grows with the file only by the identities of its lines (a few bytes each).
BENCHMARK(BM_ImportPayroll)
    ->Args({0, kPayrollLines})
    ->Args({1, kPayrollLines})
    ->Args({0, kPayrollLines / 4})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

// A copy of the payroll store: the declaration holds the payroll's lines.
struct FullDeclaration {
  FullDeclaration() {
    const QString path = dir.filePath(u"QorDb.mdb"_s);
    QFile::copy(PayrollFile(), path);
    vars.StoreConnection = Database::Open(path, StorePassword());
    vars.StoreOpen = true;
    vars.DeclarationId = kPayrollId;
    vars.PeriodFrom = u"012002"_s;
    vars.PeriodTo = u"032002"_s;
  }
  QTemporaryDir dir;
  Vars vars;
};

// The payroll brought into the declaration that holds it already, up to the
// point where the user is asked: appended, every row is looked up among the
// stored lines and the rows before it, each repeats a stored line and nothing
// is kept; replacing, the stored lines are deleted and the rows stored and
// kept in their place.
void BM_ImportPayrollOntoItself(benchmark::State& state) {
  const Kind kind = KindOf(state.range(0));
  const auto mode = state.range(1) == 0 ? ImportMode::kAppend : ImportMode::kReplace;
  const QString csv = PayrollCsv(kind, kPayrollLines);
  SilentDialogs dialogs;
  SilentScreens screens;
  for (auto _ : state) {
    state.PauseTiming();
    auto target = std::make_unique<FullDeclaration>();
    auto form = MakeLinesForm(kind, target->vars, dialogs, screens);
    state.ResumeTiming();
    LineImport import(*form, csv);
    const QString refusal = import.Open();
    import.SetMode(mode, kPayrollLines);
    import.Run(nullptr);
    if (mode == ImportMode::kReplace) import.Commit();
    state.PauseTiming();
    const qint64 repeated = mode == ImportMode::kAppend ? kPayrollLines : 0;
    if (!refusal.isEmpty() || import.Rows() != kPayrollLines || import.FailedRows() > 0 ||
        import.RepeatedRows() != repeated) {
      state.SkipWithError("the payroll did not import as expected");
    }
    target.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * kPayrollLines);
}
BENCHMARK(BM_ImportPayrollOntoItself)
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(2);

// The same rows, as stored, inserted with one prepared statement in one
// transaction: nothing read from a file, nothing checked.
template <class Row>
void InsertBare(benchmark::State& state, Kind kind) {
  std::vector<Row> rows;
  {
    auto db = Database::Open(PayrollFile(), StorePassword());
    Rows lines = LinesByNumber(*db, kind, kPayrollId);
    while (lines->Next()) rows.push_back(RowFrom<Row>(*lines));
  }
  long growth = 0;
  for (auto _ : state) {
    state.PauseTiming();
    auto target = std::make_unique<EmptyDeclaration>(kind);
    Database& db = *target->vars.StoreConnection;
    const long before = ResidentKb();
    state.ResumeTiming();
    Transaction transaction(db);
    for (const Row& row : rows) InsertRow(db, row);
    transaction.Commit();
    state.PauseTiming();
    growth = std::max(growth, ResidentKb() - before);
    target.reset();
    state.ResumeTiming();
  }
  // What the store's page cache takes, for the import's figure beside it.
  state.counters["rss_growth_kb"] = static_cast<double>(growth);
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(rows.size()));
}

void BM_InsertPayrollBare(benchmark::State& state) {
  if (KindOf(state.range(0)) == Kind::Common) {
    InsertBare<EmployeeRow>(state, Kind::Common);
  } else {
    InsertBare<ConEmployeeRow>(state, Kind::Construction);
  }
}
BENCHMARK(BM_InsertPayrollBare)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
