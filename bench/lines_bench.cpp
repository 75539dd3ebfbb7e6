// The employee screen on a large payroll: opening its lines, browsing,
// finding, inserting, and deleting with the renumbering of every later line,
// beside the bare renumbering statement on the same store.

#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>

#include "lines/ovt_form2.h"
#include "payroll.h"
#include "silent_ports.h"
#include "store/store_file.h"

namespace {

using namespace veroxia;
using namespace veroxia::bench;
using namespace Qt::StringLiterals;

class Screen {
 public:
  Screen() {
    QFile::copy(PayrollFile(), StorePath(dir_.path()));
    vars.AppDir = dir_.path();
    vars.StoreConnection = Database::Open(StorePath(dir_.path()), StorePassword());
    vars.StoreOpen = true;
    vars.DeclarationId = kPayrollId;
    vars.PeriodFrom = u"012002"_s;
    vars.PeriodTo = u"032002"_s;
  }
  std::unique_ptr<OvtForm2> Open() {
    auto form = std::make_unique<OvtForm2>(vars, dialogs, screens);
    form->Load();
    return form;
  }

  QTemporaryDir dir_;
  Vars vars;
  SilentDialogs dialogs;
  SilentScreens screens;
};

void BM_OpenLinesAndShowFirst(benchmark::State& state) {
  Screen screen;
  for (auto _ : state) benchmark::DoNotOptimize(screen.Open());
}
BENCHMARK(BM_OpenLinesAndShowFirst)->Unit(benchmark::kMillisecond);

void BM_NextLine(benchmark::State& state) {
  Screen screen;
  auto form = screen.Open();
  for (auto _ : state) {
    form->Nextcmd_Click();
    if (form->Lines().Position() == form->Lines().Size() - 1) {
      state.PauseTiming();
      form->FirstCmd_Click();
      state.ResumeTiming();
    }
  }
}
BENCHMARK(BM_NextLine)->Unit(benchmark::kMicrosecond);

void BM_PreviousLine(benchmark::State& state) {
  Screen screen;
  auto form = screen.Open();
  form->LastCmd_Click();
  for (auto _ : state) {
    form->PrevCmd_Click();
    if (form->Lines().Position() == 0) {
      state.PauseTiming();
      form->LastCmd_Click();
      state.ResumeTiming();
    }
  }
}
BENCHMARK(BM_PreviousLine)->Unit(benchmark::kMicrosecond);

void BM_FindByRegisterNumber(benchmark::State& state) {
  Screen screen;
  auto form = screen.Open();
  int person = 0;
  for (auto _ : state) {
    person = (person + 7919) % kPayrollPersons;
    screen.dialogs.search = {PayrollInsuredId(person), u"AMA"_s};
    form->SeekCmd_Click();
  }
  if (screen.dialogs.messages != 0) state.SkipWithError("a register number was not found");
}
BENCHMARK(BM_FindByRegisterNumber)->Unit(benchmark::kMicrosecond);

void BM_FindBySurnamePrefix(benchmark::State& state) {
  Screen screen;
  auto form = screen.Open();
  int person = 0;
  for (auto _ : state) {
    person = (person + 7919) % kPayrollPersons;
    // Typed in small letters; the find cleans the text as the store holds it.
    screen.dialogs.search = {PayrollSurname(person).toLower(), u"NAME"_s};
    form->SeekCmd_Click();
  }
  if (screen.dialogs.messages != 0) state.SkipWithError("a surname was not found");
}
BENCHMARK(BM_FindBySurnamePrefix)->Unit(benchmark::kMicrosecond);

void BM_InsertLine(benchmark::State& state) {
  Screen screen;
  auto form = screen.Open();
  form->NewCmd_Click();
  const std::pair<const char*, QString> typed[] = {
      {"Text18_1", u"0001"_s}, {"Text18_2", u"5510"_s},     {"Text19", u"999999999"_s},
      {"Text21", u"ΝΕΟΣ"_s},   {"Text22", u"ΝΕΟΣ"_s},       {"Text23", u"ΝΕΟΣ"_s},
      {"Text24", u"ΝΕΑ"_s},    {"Text25", u"01/01/1980"_s}, {"Text26", u"123456789"_s},
      {"Text29", u"0"_s},      {"Text30", u"913000"_s},     {"Text32", u"101"_s},
      {"Text33_1", u"02"_s},   {"Text33_2", u"2002"_s},     {"Text36", u"01"_s},
      {"Text37", u"25"_s},
  };
  for (const auto& [name, text] : typed) form->Type(QString::fromLatin1(name), text);
  const int before = screen.dialogs.messages;
  for (auto _ : state) form->OkCmd_Click();
  if (form->CurrentRowNum().toInt() != kPayrollLines + static_cast<int>(state.iterations())) {
    state.SkipWithError("the lines were not inserted");
  }
  benchmark::DoNotOptimize(before);
}
BENCHMARK(BM_InsertLine)->Unit(benchmark::kMillisecond);

// Deletes the first line (number 1) again and again: every other line of the
// declaration moves one number down each time.
void BM_DeleteFirstLine(benchmark::State& state) {
  Screen screen;
  auto form = screen.Open();
  for (auto _ : state) {
    if (form->CurrentRowNum() != u"1"_s) state.SkipWithError("the first line is not line 1");
    form->DeleteCmd_Click();
  }
}
BENCHMARK(BM_DeleteFirstLine)->Unit(benchmark::kMillisecond)->Iterations(10);

// The renumbering statement alone, on the same lines.
void BM_BareRenumbering(benchmark::State& state) {
  Screen screen;
  Database& db = *screen.vars.StoreConnection;
  for (auto _ : state) {
    db.Prepare("UPDATE QOR_EMPLOYEES SET row_num = row_num - 1 WHERE id = ? AND row_num > ?")
        .Bind(1, kPayrollId)
        .Bind(2, 1)
        .Run();
  }
}
BENCHMARK(BM_BareRenumbering)->Unit(benchmark::kMillisecond)->Iterations(10);

void BM_DeleteLastLine(benchmark::State& state) {
  Screen screen;
  auto form = screen.Open();
  for (auto _ : state) {
    state.PauseTiming();
    form->LastCmd_Click();
    state.ResumeTiming();
    form->DeleteCmd_Click();
  }
}
BENCHMARK(BM_DeleteLastLine)->Unit(benchmark::kMillisecond)->Iterations(20);

}  // namespace
