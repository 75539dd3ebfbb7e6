// The declaration printout of a payroll to a PDF file through the PDF
// printer: 1,000 lines make 501 pages. The file's size and the process's
// resident memory after the run are counters; the same run at four times the
// lines shows that memory does not grow with the pages.

#include <benchmark/benchmark.h>

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <array>
#include <map>
#include <memory>

#include "gui/paper/pdf_printer.h"
#include "payroll.h"
#include "printing/printout.h"
#include "store/store_file.h"

namespace {

using namespace veroxia;
using namespace Qt::StringLiterals;

// Drawing text needs the application object of Qt Gui; the offscreen
// platform needs no display.
void NeedGuiApplication() {
  static int argc = 1;
  static char name[] = "veroxia_bench";
  static std::array<char*, 2> argv = {name, nullptr};
  if (QGuiApplication::instance() != nullptr) return;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static QGuiApplication app(argc, argv.data());
}

// A store holding a common declaration of that many lines, made once.
const QString& StoreOf(int lines) {
  static std::map<int, std::pair<std::unique_ptr<QTemporaryDir>, QString>> stores;
  auto& [dir, path] = stores[lines];
  if (!dir) {
    dir = std::make_unique<QTemporaryDir>();
    path = dir->filePath(u"QorDb.mdb"_s);
    bench::MakePayrollStore(path, lines, lines / 3);
  }
  return path;
}

// The declaration printout of a common declaration to a PDF file, composed
// and drawn page by page, as "Εκτύπωση στοιχείων" saves it.
void BM_PdfPrintout(benchmark::State& state) {
  NeedGuiApplication();
  const int lines = static_cast<int>(state.range(0));
  auto db = Database::Open(StoreOf(lines), StorePassword());
  QTemporaryDir dir;
  const QString path = dir.filePath(u"printout.pdf"_s);
  int pages = 0;
  for (auto _ : state) {
    PdfPrinter printer(path);
    std::unique_ptr<Pages> composer =
        ComposePages(*db, Kind::Common, Printout::kDeclaration, bench::kPayrollId);
    pages = composer->Count();
    PrintPages(*composer, printer);
  }
  state.counters["pages"] = pages;
  state.counters["file_kb"] = static_cast<double>(QFileInfo(path).size() / 1024);
  state.counters["resident_kb"] = static_cast<double>(bench::ResidentKb());
}
BENCHMARK(BM_PdfPrintout)->Arg(1000)->Arg(4000)->Unit(benchmark::kMillisecond);

}  // namespace
