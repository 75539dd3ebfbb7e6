// The pages of the declaration printout of a large payroll, of each kind:
// composed one at a time from the store, nothing drawn. Items are lines of
// page text.

#include <benchmark/benchmark.h>

#include <QFile>

#include "payroll.h"
#include "printing/pages.h"
#include "store/store_file.h"

namespace {

using namespace veroxia;
using namespace veroxia::bench;

void BM_ComposeDeclarationPages(benchmark::State& state) {
  auto db = Database::Open(PayrollFile(), StorePassword());
  const Kind kind = KindOf(state.range(0));
  qint64 lines = 0;
  int pages = 0;
  long growth = 0;
  for (auto _ : state) {
    const long before = ResidentKb();
    std::unique_ptr<Pages> composer = ComposePages(*db, kind, Printout::kDeclaration, kPayrollId);
    QString page;
    pages = 0;
    while (composer->Next(page)) {
      lines += page.count(u'\n') + 1;
      ++pages;
    }
    growth = std::max(growth, ResidentKb() - before);
  }
  state.SetItemsProcessed(lines);
  state.counters["pages"] = pages;
  state.counters["rss_growth_kb"] = static_cast<double>(growth);
}
BENCHMARK(BM_ComposeDeclarationPages)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
