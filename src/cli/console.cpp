#include "cli/console.h"

namespace veroxia::cli {

using namespace Qt::StringLiterals;

void Print(FILE* to, const QString& text) {
  QString lines = text;
  lines.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
  std::fputs(lines.toUtf8().constData(), to);
  std::fputc('\n', to);
}

void ConsoleDialogs::ShowReport(const Report& report) {
  for (const QString& line : ReportText(report)) Print(reports_, line);
}

void ConsoleDialogs::RunWithProgress(const QString&, const std::function<void(Progress&)>& task) {
  struct Unstopped : Progress {
    bool Advance(qint64, qint64) override { return true; }
  } progress;
  task(progress);
}

bool ReadKind(const QString& word, Kind& kind) {
  if (word == u"common") {
    kind = Kind::Common;
  } else if (word == u"construction") {
    kind = Kind::Construction;
  } else {
    return false;
  }
  return true;
}

std::optional<int> ReadId(const QString& word) {
  bool number = false;
  const int id = word.toInt(&number);
  if (!number || id < 1 || id > 32767) return std::nullopt;
  return id;
}

}  // namespace veroxia::cli
