// The volume check of the large payroll's submission file, of each kind,
// beside a bare read of the same files (every byte read, the CR LF counted)
// and, in the same run, BM_ReadLinesBare: the same lines read from the store.
// The volumes are written once per run.

#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstring>
#include <memory>

#include "filing/volume_check.h"
#include "filing/volume_files.h"
#include "filing/volume_writer.h"
#include "payroll.h"
#include "store/store_file.h"

namespace {

using namespace veroxia;
using namespace veroxia::bench;

// The directory holding the payroll's volumes of the kind.
QString VolumesOf(Kind kind) {
  static std::unique_ptr<QTemporaryDir> dirs[2];
  std::unique_ptr<QTemporaryDir>& dir = dirs[kind == Kind::Common ? 0 : 1];
  if (!dir) {
    dir = std::make_unique<QTemporaryDir>();
    auto db = Database::Open(PayrollFile(), StorePassword());
    VolumeFiles files(dir->path());
    VolumeWriter(*db, kind, kPayrollId).Write(files);
  }
  return dir->path();
}

void BM_ReadVolumesBare(benchmark::State& state) {
  const QDir dir(VolumesOf(KindOf(state.range(0))));
  QByteArray buffer(1 << 18, Qt::Uninitialized);  // pieces as large as the check reads
  qint64 bytes = 0;
  for (auto _ : state) {
    qint64 records = 0;
    bytes = 0;
    for (const QString& name : dir.entryList(QDir::Files, QDir::Name)) {
      QFile file(dir.filePath(name));
      if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) state.SkipWithError("unread");
      char before = 0;  // the last byte of the piece before
      for (qint64 got; (got = file.read(buffer.data(), buffer.size())) > 0;) {
        bytes += got;
        const char* data = buffer.constData();
        for (const char* at = data;
             (at = static_cast<const char*>(std::memchr(at, '\n', data + got - at))) != nullptr;
             ++at) {
          records += (at == data ? before : at[-1]) == '\r';
        }
        before = data[got - 1];
      }
    }
    benchmark::DoNotOptimize(records);
  }
  state.SetItemsProcessed(state.iterations() * kPayrollLines);
  state.SetBytesProcessed(state.iterations() * bytes);
}
BENCHMARK(BM_ReadVolumesBare)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_VerifyVolumes(benchmark::State& state) {
  const QString dir = VolumesOf(KindOf(state.range(0)));
  long growth = 0;
  qint64 bytes = 0;
  for (auto _ : state) {
    const long before = ResidentKb();
    const VolumeCheck check = VerifyVolumes(dir);
    growth = std::max(growth, ResidentKb() - before);
    if (!check.AllHold() || check.lines != kPayrollLines) state.SkipWithError("does not hold");
    bytes = 0;
    for (const VolumeSummary& volume : check.volumes) bytes += volume.bytes;
    state.counters["volumes"] = static_cast<double>(check.volumes.size());
  }
  state.SetItemsProcessed(state.iterations() * kPayrollLines);
  state.SetBytesProcessed(state.iterations() * bytes);
  state.counters["rss_growth_kb"] = static_cast<double>(growth);
}
BENCHMARK(BM_VerifyVolumes)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The same against the store: the expected counts read first, as
// "verify --against" does.
void BM_VerifyAgainstStore(benchmark::State& state) {
  const QString dir = VolumesOf(KindOf(state.range(0)));
  auto db = Database::Open(PayrollFile(), StorePassword());
  for (auto _ : state) {
    const VolumeCheck check =
        VerifyVolumes(dir, ExpectedCounts(*db, KindOf(state.range(0)), kPayrollId));
    if (!check.AllHold()) state.SkipWithError("does not hold");
  }
  state.SetItemsProcessed(state.iterations() * kPayrollLines);
}
BENCHMARK(BM_VerifyAgainstStore)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
