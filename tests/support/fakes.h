#pragma once
// Scripted stand-ins for the person in front of the screen and the windowing
// side, and a temporary store for each test.

#include <QStringList>
#include <QTemporaryDir>
#include <deque>
#include <memory>
#include <vector>

#include "printing/printer.h"
#include "shell/ports.h"
#include "shell/vars.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace veroxia::testing {

// A printer that keeps what it is told: its calls in order ("size 10",
// "name …", "print", "new page", "end", "kill") and the text of each page.
class CapturePrinter : public Printer {
 public:
  void SetFontSize(const QString& size) override { Call(QStringLiteral("size ") + size); }
  void SetFontName(const QString& name) override { Call(QStringLiteral("name ") + name); }
  void Print(const QString& text) override {
    Call(QStringLiteral("print"));
    if (pages.empty()) pages.emplace_back();
    pages.back() += text;
  }
  void NewPage() override {
    Call(QStringLiteral("new page"));
    pages.emplace_back();
  }
  void EndDoc() override { Call(QStringLiteral("end")); }
  void KillDoc() override { calls << QStringLiteral("kill"); }

  QStringList calls;
  std::vector<QString> pages;
  int fails_at = -1;  // the call, counted from 0, that throws a PrinterError

 private:
  void Call(const QString& call) {
    if (calls.size() == fails_at) throw PrinterError{28, QStringLiteral("No space left on device")};
    calls << call;
  }
};

struct ShownMessage {
  QString text;
  QString title;
  bool busy = false;  // the hourglass was showing when it opened
};

class FakeDialogs : public Dialogs {
 public:
  // The next scripted answer, or `none` once the script has run out.
  template <class T>
  static T Next(std::deque<T>& script, T none) {
    if (script.empty()) return none;
    T answer = std::move(script.front());
    script.pop_front();
    return answer;
  }
  void Message(const QString& text, const QString& title) override {
    messages.push_back({text, title, busy});
  }
  bool Ask(const QString& text, const QString& title, AskStyle style) override {
    questions.push_back({text, title});
    last_style = style;
    return Next(answers, false);
  }
  int Choose(const QString& text, const QString& title, const QStringList& buttons) override {
    questions.push_back({text, title});
    choice_buttons.push_back(buttons);
    return Next(choices, -1);
  }
  void SetBusy(bool busy) override {
    busy_calls.push_back(busy);
    this->busy = busy;
  }

  SearchAnswer AskInsuredPerson() override { return Next(searches, SearchAnswer{}); }

  QString AskDirectory(DirPurpose) override {
    ++directories_asked;
    return Next(directories, QString());
  }

  // Draws the printout once on a capture printer, as the preview would, with
  // the progress of RunWithProgress.
  void PrintPreview(const PrintJob& job) override {
    printers.emplace_back();
    printers.back().fails_at = printer_fails_at;
    pdf_names << job.pdf_name;
    Scripted progress(*this);
    printed.push_back(job.draw(printers.back(), progress));
  }

  void ShowReport(const Report& report) override { reports.push_back(report); }

  bool ConfirmReport(const Report& report, const QString& go_on) override {
    confirmed.push_back(report);
    confirm_captions << go_on;
    return Next(confirms, true);
  }

  QString AskFile(const FileQuestion& question) override {
    file_questions.push_back(question);
    return Next(files, QString());
  }

  // Runs the task; the user stops it at the `stop_at`-th report of progress
  // (from 1; never when 0), which answers false from then on.
  void RunWithProgress(const QString& text, const std::function<void(Progress&)>& task) override {
    progress_texts << text;
    Scripted progress(*this);
    task(progress);
  }

  QString LastMessage() const { return messages.empty() ? QString() : messages.back().text; }
  // The title and text of each message (or question), in turn.
  static QStringList Told(const std::vector<ShownMessage>& shown) {
    QStringList told;
    for (const ShownMessage& message : shown) told << message.title << message.text;
    return told;
  }

  std::vector<ShownMessage> messages;
  std::vector<Report> reports;
  std::vector<ShownMessage> questions;
  std::deque<bool> answers;  // scripted answers to Ask, in order; No when none is left
  AskStyle last_style = AskStyle::Plain;
  std::deque<int> choices;  // scripted answers to Choose, in order; closed (-1) when none
  std::vector<QStringList> choice_buttons;  // the buttons of each Choose
  std::vector<bool> busy_calls;
  bool busy = false;
  std::deque<SearchAnswer> searches;  // scripted answers of the search dialog; cancel when none
  std::deque<QString> directories;    // scripted answers of the directory dialog; cancel when none
  int directories_asked = 0;
  std::vector<CapturePrinter> printers;  // one for each preview, in order
  std::vector<bool> printed;             // what each drawing answered
  int printer_fails_at = -1;             // see CapturePrinter::fails_at
  std::vector<Report> confirmed;         // reports shown with a button to go on
  QStringList confirm_captions;
  std::deque<bool> confirms;  // scripted answers of ConfirmReport; go on when none is left
  std::vector<FileQuestion> file_questions;
  std::deque<QString> files;  // scripted answers of the file chooser; cancel when none
  QStringList progress_texts;
  std::vector<std::pair<qint64, qint64>> progress;  // every report of progress
  int stop_at = 0;
  QStringList pdf_names;  // the PDF file name each preview offers

 private:
  class Scripted : public Progress {
   public:
    explicit Scripted(FakeDialogs& owner) : owner_(owner) {}
    bool Advance(qint64 done, qint64 total) override {
      owner_.progress.emplace_back(done, total);
      return owner_.stop_at == 0 || static_cast<int>(owner_.progress.size()) < owner_.stop_at;
    }

   private:
    FakeDialogs& owner_;
  };
};

class FakeScreens : public Screens {
 public:
  void ShowStart() override { shown << QStringLiteral("start"); }
  void ShowHeader(Kind kind) override { shown << QStringLiteral("header ") + Name(kind); }
  void ShowLines(Kind kind) override { shown << QStringLiteral("lines ") + Name(kind); }
  void Quit(int status) override { quit_status = status; }
  static QString Name(Kind kind) {
    return kind == Kind::Common ? QStringLiteral("common") : QStringLiteral("construction");
  }

  QStringList shown;
  std::optional<int> quit_status;
};

// A fresh directory holding an empty store, and Vars pointing at it.
class TempStore {
 public:
  explicit TempStore(bool create = true) {  // false: no store file
    vars.AppDir = dir_.path();
    if (create) CreateStore(Path(), StorePassword());
  }
  QString Dir() const { return dir_.path(); }
  QString Path() const { return StorePath(dir_.path()); }
  // Opens the store into vars (as the start screen would).
  Database& Open() {
    if (!vars.StoreConnection) {
      vars.StoreConnection = Database::Open(Path(), StorePassword());
      vars.StoreOpen = true;
    }
    return *vars.StoreConnection;
  }

  Vars vars;

 private:
  QTemporaryDir dir_;
};

}  // namespace veroxia::testing
