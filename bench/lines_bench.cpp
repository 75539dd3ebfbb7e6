// The employee screens of both kinds on a large payroll: opening the lines,
// browsing, finding, inserting, and deleting with the renumbering of every
// later line, beside the bare renumbering statement on the same store. The
// argument of each benchmark is the kind: 0 common, 1 construction.

#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>

#include "lines/ovt_form2.h"
#include "lines/ovt_form4.h"
#include "payroll.h"
#include "silent_ports.h"
#include "store/store_file.h"

namespace {

using namespace veroxia;
using namespace veroxia::bench;
using namespace Qt::StringLiterals;

class Screen {
 public:
  explicit Screen(Kind kind) : kind_(kind) {
    QFile::copy(PayrollFile(), StorePath(dir_.path()));
    vars.AppDir = dir_.path();
    vars.StoreConnection = Database::Open(StorePath(dir_.path()), StorePassword());
    vars.StoreOpen = true;
    vars.DeclarationId = kPayrollId;
    vars.PeriodFrom = u"012002"_s;
    vars.PeriodTo = u"032002"_s;
  }
  std::unique_ptr<LinesForm> Open() {
    std::unique_ptr<LinesForm> form;
    if (kind_ == Kind::Common) {
      form = std::make_unique<OvtForm2>(vars, dialogs, screens);
    } else {
      form = std::make_unique<OvtForm4>(vars, dialogs, screens);
    }
    form->Load();
    return form;
  }

  Kind kind_;
  QTemporaryDir dir_;
  Vars vars;
  SilentDialogs dialogs;
  SilentScreens screens;
};

void BM_OpenLinesAndShowFirst(benchmark::State& state) {
  Screen screen(KindOf(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(screen.Open());
}
BENCHMARK(BM_OpenLinesAndShowFirst)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_NextLine(benchmark::State& state) {
  Screen screen(KindOf(state.range(0)));
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
BENCHMARK(BM_NextLine)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_PreviousLine(benchmark::State& state) {
  Screen screen(KindOf(state.range(0)));
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
BENCHMARK(BM_PreviousLine)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_FindByRegisterNumber(benchmark::State& state) {
  Screen screen(KindOf(state.range(0)));
  auto form = screen.Open();
  int person = 0;
  for (auto _ : state) {
    person = (person + 7919) % kPayrollPersons;
    screen.dialogs.search = {PayrollInsuredId(person), u"AMA"_s};
    form->SeekCmd_Click();
  }
  if (screen.dialogs.messages != 0) state.SkipWithError("a register number was not found");
}
BENCHMARK(BM_FindByRegisterNumber)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_FindBySurnamePrefix(benchmark::State& state) {
  Screen screen(KindOf(state.range(0)));
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
BENCHMARK(BM_FindBySurnamePrefix)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_InsertLine(benchmark::State& state) {
  Screen screen(KindOf(state.range(0)));
  auto form = screen.Open();
  form->NewCmd_Click();
  using Typed = std::vector<std::pair<const char*, QString>>;
  // clang-format off
  const Typed common{
      {"Text18_1", u"0001"_s}, {"Text18_2", u"5510"_s},     {"Text19", u"999999999"_s},
      {"Text21", u"ΝΕΟΣ"_s},   {"Text22", u"ΝΕΟΣ"_s},       {"Text23", u"ΝΕΟΣ"_s},
      {"Text24", u"ΝΕΑ"_s},    {"Text25", u"01/01/1980"_s}, {"Text26", u"123456789"_s},
      {"Text29", u"0"_s},      {"Text30", u"913000"_s},     {"Text32", u"101"_s},
      {"Text33_1", u"02"_s},   {"Text33_2", u"2002"_s},     {"Text36", u"01"_s},
      {"Text37", u"25"_s},
  };
  const Typed construction{
      {"Text22", u"999999999"_s}, {"Text24", u"ΝΕΟΣ"_s},  {"Text25", u"ΝΕΟΣ"_s},
      {"Text26", u"ΝΕΟΣ"_s},      {"Text27", u"ΝΕΑ"_s},   {"Text28", u"01/01/1980"_s},
      {"Text29", u"123456789"_s}, {"Text31", u"1"_s},     {"Text32", u"0"_s},
      {"Text33", u"913000"_s},    {"Text35", u"101"_s},   {"Text38", u"01"_s},
      {"Text39", u"25"_s},        {"Text40", u"40,5"_s},  {"Text41", u"1000"_s},
  };
  // clang-format on
  const Typed& typed = screen.kind_ == Kind::Common ? common : construction;
  for (const auto& [name, text] : typed) form->Type(QString::fromLatin1(name), text);
  const int before = screen.dialogs.messages;
  for (auto _ : state) form->OkCmd_Click();
  if (form->CurrentRowNum().toInt() != kPayrollLines + static_cast<int>(state.iterations())) {
    state.SkipWithError("the lines were not inserted");
  }
  benchmark::DoNotOptimize(before);
}
BENCHMARK(BM_InsertLine)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// Deletes the first line (number 1) again and again: every other line of the
// declaration moves one number down each time.
void BM_DeleteFirstLine(benchmark::State& state) {
  Screen screen(KindOf(state.range(0)));
  auto form = screen.Open();
  for (auto _ : state) {
    if (form->CurrentRowNum() != u"1"_s) state.SkipWithError("the first line is not line 1");
    form->DeleteCmd_Click();
  }
}
BENCHMARK(BM_DeleteFirstLine)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(10);

// The renumbering statement alone, on the same lines.
void BM_BareRenumbering(benchmark::State& state) {
  Screen screen(KindOf(state.range(0)));
  Database& db = *screen.vars.StoreConnection;
  for (auto _ : state) {
    db.Prepare(QByteArray("UPDATE ") + TablesOf(screen.kind_).lines +
               " SET row_num = row_num - 1 WHERE id = ? AND row_num > ?")
        .Bind(1, kPayrollId)
        .Bind(2, 1)
        .Run();
  }
}
BENCHMARK(BM_BareRenumbering)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(10);

void BM_DeleteLastLine(benchmark::State& state) {
  Screen screen(KindOf(state.range(0)));
  auto form = screen.Open();
  for (auto _ : state) {
    state.PauseTiming();
    form->LastCmd_Click();
    state.ResumeTiming();
    form->DeleteCmd_Click();
  }
}
BENCHMARK(BM_DeleteLastLine)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(20);

}  // namespace
