// The declaration printout of a payroll to a PDF file through the PDF
// printer: 1,000 lines make 501 pages. The file's size and the process's
// resident memory after the run are counters; the same run at four times the
// lines shows that memory does not grow with the pages.
//
// The print preview of the 100,000-line payroll (50,001 pages): its pages
// composed into the page file, and its first page read back and laid out on
// the paper, as the preview window does before it shows. The highest growth
// of resident memory while composing is a counter.

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <array>
#include <map>
#include <memory>

#include "gui/paper/pdf_printer.h"
#include "payroll.h"
#include "printing/page_file.h"
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

// Keeps the highest resident memory seen, a few times a second's worth of
// pages.
class MemoryWatch : public Progress {
 public:
  bool Advance(qint64 done, qint64) override {
    if (done % 500 == 0) peak_ = std::max(peak_, bench::ResidentKb());
    return true;
  }
  long Peak() const { return peak_; }

 private:
  long peak_ = 0;
};

void BM_PreviewPages(benchmark::State& state) {
  NeedGuiApplication();
  const Kind kind = bench::KindOf(state.range(0));
  auto db = Database::Open(bench::PayrollFile(), StorePassword());
  QTemporaryDir dir;
  QPdfWriter paper(dir.filePath(u"unused.pdf"_s));  // a paged device to measure on
  long growth = 0;
  int pages = 0;
  qint64 file_kb = 0;
  double first_page_ms = 0;
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    const long before = bench::ResidentKb();
    MemoryWatch watch;
    PageFile file;
    std::unique_ptr<Pages> composer =
        ComposePages(*db, kind, Printout::kDeclaration, bench::kPayrollId);
    PrintPages(*composer, file, &watch);
    SheetLines lines(PrintoutFont(file.FontSize(), file.FontName()), &paper,
                     QSizeF(paper.width(), paper.height()));
    int pieces = 0;
    for (const QStringView line : QStringView(file.Page(0)).tokenize(u"\r\n")) {
      lines.Place(
          line.toString(), [] {}, [&](QPointF, const QString&) { ++pieces; });
    }
    benchmark::DoNotOptimize(pieces);
    first_page_ms = static_cast<double>(clock.elapsed());
    growth = std::max(growth, std::max(watch.Peak(), bench::ResidentKb()) - before);
    pages = file.Count();
    file_kb = file.Bytes() / 1024;
  }
  state.counters["pages"] = pages;
  state.counters["first_page_ms"] = first_page_ms;
  state.counters["file_kb"] = static_cast<double>(file_kb);
  state.counters["rss_growth_kb"] = static_cast<double>(growth);
}
BENCHMARK(BM_PreviewPages)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
