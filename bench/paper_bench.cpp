// A long printout to a PDF file through the PDF printer: pages of 71 lines of
// about 80 characters of Greek text, as the payroll listings print them. The
// file's size and the process's resident memory after the run are counters;
// the same run at four times the pages shows that memory does not grow with
// them.

#include <benchmark/benchmark.h>

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <array>

#include "gui/paper/pdf_printer.h"

namespace {

using namespace veroxia;
using namespace Qt::StringLiterals;

constexpr int kLinesPerPage = 71;

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

// Resident memory of the process, in kilobytes.
long ResidentKb() {
  QFile statm(u"/proc/self/statm"_s);
  if (!statm.open(QIODevice::ReadOnly)) return 0;
  const QList<QByteArray> fields = statm.readAll().split(' ');
  return fields.size() > 1 ? fields[1].toLong() * 4 : 0;
}

// A line of the listing: register number, surname, name, days and pay.
QString Line(int page, int line) {
  static const std::array<QString, 6> surnames = {u"ΠΑΠΑΔΟΠΟΥΛΟΣ"_s, u"ΚΩΝΣΤΑΝΤΙΝΙΔΗΣ"_s,
                                                  u"ΓΕΩΡΓΙΟΥ"_s,     u"ΝΙΚΟΛΑΪΔΗΣ"_s,
                                                  u"ΑΘΑΝΑΣΙΑΔΟΥ"_s,  u"ΔΗΜΗΤΡΙΟΥ-ΒΛΑΧΟΥ"_s};
  static const std::array<QString, 4> names = {u"Ευάγγελος"_s, u"Ιωάννα"_s, u"Αϊμιλία"_s,
                                               u"Σπυρίδων"_s};
  const int row = page * kLinesPerPage + line;
  return u"%1 %2 %3 %4 %5 %6,%7 Ά/Α"_s.arg(100'000'000 + row, 9)
      .arg(surnames[row % surnames.size()], -20)
      .arg(names[row % names.size()], -12)
      .arg(row % 31, 3)
      .arg(row % 12 + 1, 2)
      .arg(row % 100'000, 12)
      .arg(row % 100, 2, 10, QChar(u'0'));
}

void BM_PdfPrintout(benchmark::State& state) {
  NeedGuiApplication();
  const int pages = static_cast<int>(state.range(0));
  QTemporaryDir dir;
  const QString path = dir.filePath(u"printout.pdf"_s);
  for (auto _ : state) {
    PdfPrinter printer(path);
    printer.SetFontSize(u"10"_s);
    printer.SetFontName(u"Courier New Greek"_s);
    for (int page = 0; page < pages; ++page) {
      if (page > 0) printer.NewPage();
      for (int line = 0; line < kLinesPerPage; ++line) printer.Print(Line(page, line));
    }
    printer.EndDoc();
  }
  state.counters["pages"] = pages;
  state.counters["file_kb"] = static_cast<double>(QFileInfo(path).size() / 1024);
  state.counters["resident_kb"] = static_cast<double>(ResidentKb());
}
BENCHMARK(BM_PdfPrintout)->Arg(501)->Arg(2004)->Unit(benchmark::kMillisecond);

}  // namespace
