// Carrying a large payroll over to the next declaration: one transaction that
// copies every line of the previous declaration under the new id.

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "shell/carry_over.h"
#include "silent_ports.h"
#include "store/rows.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace {

using namespace veroxia;

using bench::SilentDialogs;

void BM_CarryOverLines(benchmark::State& state) {
  const int lines = static_cast<int>(state.range(0));
  QTemporaryDir dir;
  const QString path = StorePath(dir.path());
  CreateStore(path, StorePassword());
  Vars vars;
  vars.StoreConnection = Database::Open(path, StorePassword());
  Database& db = *vars.StoreConnection;
  {
    Transaction transaction(db);
    for (int row = 1; row <= lines; ++row) {
      EmployeeRow line;
      line.id = 1;
      line.row_num = row;
      line.insured_id = QStringLiteral("%1").arg(100000000 + row);
      line.surname = QStringLiteral("ΠΑΠΑΔΟΠΟΥΛΟΣ");
      line.salary = QStringLiteral("1234,56");
      line.daily_wages = QStringLiteral("45,20");
      InsertRow(db, line);
    }
    transaction.Commit();
  }
  SilentDialogs dialogs;
  vars.PreviousDeclarationId = 1;
  vars.DeclarationId = 2;
  for (auto _ : state) {
    const CarryOverOutcome outcome = CarryOverLines(vars, dialogs, Kind::Common);
    state.PauseTiming();
    if (!outcome.ok || outcome.copied != lines) state.SkipWithError("lines not copied");
    db.Exec("DELETE FROM QOR_EMPLOYEES WHERE id = 2");
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * lines);
}
BENCHMARK(BM_CarryOverLines)->Arg(100)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace
