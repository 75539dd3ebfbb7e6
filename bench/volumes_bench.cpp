// The submission file of a large payroll, of each kind, beside a bare read
// of the same lines in the same order (every column fetched as text, nothing
// written), measured in the same run.

#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "filing/totals.h"
#include "filing/volume_files.h"
#include "filing/volume_writer.h"
#include "payroll.h"
#include "store/declarations.h"
#include "store/store_file.h"

namespace {

using namespace veroxia;
using namespace veroxia::bench;
using namespace Qt::StringLiterals;

void BM_ReadLinesBare(benchmark::State& state) {
  auto db = Database::Open(PayrollFile(), StorePassword());
  for (auto _ : state) {
    Rows rows = LinesInOrder(*db, KindOf(state.range(0)), kPayrollId);
    const int columns = rows->ColumnCount();
    qint64 chars = 0;
    while (rows->Next()) {
      for (int column = 0; column < columns; ++column) {
        chars += rows->Value(column).value_or(QString()).size();
      }
    }
    benchmark::DoNotOptimize(chars);
  }
  state.SetItemsProcessed(state.iterations() * kPayrollLines);
}
BENCHMARK(BM_ReadLinesBare)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The totals report: the header's totals against the sums of every line.
void BM_CompareTotals(benchmark::State& state) {
  auto db = Database::Open(PayrollFile(), StorePassword());
  for (auto _ : state) {
    const std::optional<TotalsReport> report =
        CompareTotals(*db, KindOf(state.range(0)), kPayrollId);
    benchmark::DoNotOptimize(report);
  }
  state.SetItemsProcessed(state.iterations() * kPayrollLines);
}
BENCHMARK(BM_CompareTotals)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_WriteVolumes(benchmark::State& state) {
  auto db = Database::Open(PayrollFile(), StorePassword());
  QTemporaryDir target;
  long growth = 0;
  int volumes = 0;
  for (auto _ : state) {
    const long before = ResidentKb();
    VolumeWriter writer(*db, KindOf(state.range(0)), kPayrollId);
    VolumeFiles files(target.path());
    volumes = writer.Write(files);
    growth = std::max(growth, ResidentKb() - before);
  }
  state.SetItemsProcessed(state.iterations() * kPayrollLines);
  state.counters["volumes"] = volumes;
  state.counters["rss_growth_kb"] = static_cast<double>(growth);
}
BENCHMARK(BM_WriteVolumes)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
