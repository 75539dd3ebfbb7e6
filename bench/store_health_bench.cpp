// The store's health and backups on the payroll store (100,000 lines of each
// kind): the plain open, the open as the program does it (lock, health check
// started in its own thread), the quick check itself, and one backup.

#include <benchmark/benchmark.h>

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include "payroll.h"
#include "shell/store_open.h"
#include "silent_ports.h"
#include "store/backups.h"
#include "store/health.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace {

using namespace veroxia;

// A directory holding a copy of the payroll store under the store's name.
const QTemporaryDir& PayrollDir() {
  static QTemporaryDir dir;
  static const bool copied = QFile::copy(bench::PayrollFile(), StorePath(dir.path()));
  (void)copied;
  return dir;
}

void BM_PayrollOpenPlain(benchmark::State& state) {
  const QString path = StorePath(PayrollDir().path());
  for (auto _ : state) {
    auto db = OpenStoreFile(path, StorePassword());
    benchmark::DoNotOptimize(db);
  }
}
BENCHMARK(BM_PayrollOpenPlain)->Unit(benchmark::kMillisecond);

// What the user waits for at start-up: OpenStore returns while the check
// reads on in its own thread. Closing stops the check; that is not timed.
void BM_PayrollOpenStoreWithBackgroundCheck(benchmark::State& state) {
  bench::SilentDialogs dialogs;
  for (auto _ : state) {
    Vars vars;
    vars.AppDir = PayrollDir().path();
    if (!OpenStore(vars, dialogs)) state.SkipWithError("the store did not open");
    state.PauseTiming();
    CloseStore(vars, dialogs);
    state.ResumeTiming();
  }
}
BENCHMARK(BM_PayrollOpenStoreWithBackgroundCheck)->Unit(benchmark::kMillisecond);

// What the start would cost with the check run at open.
void BM_PayrollOpenAndQuickCheck(benchmark::State& state) {
  const QString path = StorePath(PayrollDir().path());
  for (auto _ : state) {
    auto db = OpenStoreFile(path, StorePassword());
    if (!QuickCheck(*db).isEmpty()) state.SkipWithError("the store is damaged");
  }
}
BENCHMARK(BM_PayrollOpenAndQuickCheck)->Unit(benchmark::kMillisecond)->Iterations(5);

// The background check from start to answer, on its own connection.
void BM_PayrollHealthCheckInItsThread(benchmark::State& state) {
  const QString path = StorePath(PayrollDir().path());
  for (auto _ : state) {
    HealthCheck check(path, StorePassword());
    if (!check.Findings().isEmpty()) state.SkipWithError("the store is damaged");
  }
}
BENCHMARK(BM_PayrollHealthCheckInItsThread)->Unit(benchmark::kMillisecond)->Iterations(5);

// The backup before the first change of a session: the user's first save
// waits for it once.
void BM_PayrollBackup(benchmark::State& state) {
  const QString path = StorePath(PayrollDir().path());
  auto db = Database::Open(path, StorePassword());
  QDateTime when = QDateTime::currentDateTime();
  for (auto _ : state) {
    MakeBackup(*db, path, StorePassword(), when, 1);
    when = when.addSecs(1);
  }
  state.counters["MB"] = static_cast<double>(QFile(path).size()) / 1e6;
}
BENCHMARK(BM_PayrollBackup)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
