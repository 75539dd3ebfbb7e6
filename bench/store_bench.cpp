// Opening the store (the key derivation of the encryption included) and the
// registry's look-ups on a store holding 1,000 declarations of each kind.

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "shell/registry.h"
#include "store/rows.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace {

using namespace veroxia;

constexpr int kDeclarations = 1000;

QString Two(int n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); }

// A store with one header per declaration, each for its own month.
class FilledStore {
 public:
  FilledStore() {
    CreateStore(Path(), StorePassword());
    auto db = Database::Open(Path(), StorePassword());
    Transaction transaction(*db);
    for (int id = 1; id <= kDeclarations; ++id) {
      EmployerRow row;
      row.id = id;
      row.from_month = row.to_month = Two((id - 1) % 12 + 1);
      row.from_year = row.to_year = QString::number(1900 + (id - 1) / 12);
      InsertRow(*db, row);
      ConEmployerRow con;
      con.id = id;
      con.from_month = row.from_month;
      con.from_year = row.from_year;
      InsertRow(*db, con);
    }
    transaction.Commit();
  }
  QString Path() const { return StorePath(dir_.path()); }

 private:
  QTemporaryDir dir_;
};

FilledStore& Store() {
  static FilledStore store;
  return store;
}

void BM_OpenStore(benchmark::State& state) {
  const QString path = Store().Path();
  for (auto _ : state) {
    auto db = OpenStoreFile(path, StorePassword());
    benchmark::DoNotOptimize(db);
  }
}
BENCHMARK(BM_OpenStore)->Unit(benchmark::kMillisecond);

void BM_FindStoredDeclaration(benchmark::State& state) {
  auto db = Database::Open(Store().Path(), StorePassword());
  const PeriodTexts period{QStringLiteral("06"), QStringLiteral("1950"), QStringLiteral("06"),
                           QStringLiteral("1950")};
  for (auto _ : state) {
    benchmark::DoNotOptimize(SettleDeclaration(*db, Kind::Common, period, false));
  }
}
BENCHMARK(BM_FindStoredDeclaration)->Unit(benchmark::kMicrosecond);

void BM_NewDeclarationWithCarryOver(benchmark::State& state) {
  auto db = Database::Open(Store().Path(), StorePassword());
  const Kind kind = state.range(0) == 0 ? Kind::Common : Kind::Construction;
  const PeriodTexts period{QStringLiteral("01"), QStringLiteral("2100"), QStringLiteral("01"),
                           QStringLiteral("2100")};
  for (auto _ : state) {
    benchmark::DoNotOptimize(SettleDeclaration(*db, kind, period, true));
  }
}
BENCHMARK(BM_NewDeclarationWithCarryOver)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace
