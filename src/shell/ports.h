#pragma once
// What the screen logic needs from the person in front of the screen and from
// the windowing side. The GUI implements these for real; the tests with fakes.

#include <QString>
#include <QStringList>
#include <functional>

#include "printing/printer.h"
#include "shell/report.h"

#include "store/kind.h"

namespace veroxia {

enum class AskStyle { Plain, Question };  // Question: question icon, No as default

// What a directory is chosen for: to write the submission file into it, or
// to read back the volumes written there before.
enum class DirPurpose { kWriteVolumes, kCheckVolumes };

// What the file chooser asks: its title, the kinds of file it lists
// ("Name (*.csv);;..."), and whether a file is to be written (a name that
// exists is asked about before it is overwritten) or read.
struct FileQuestion {
  QString title;
  QString filter;
  QString suggested;  // the name offered first, for a file to write
  bool save = false;
};

// How far a long task has got; the person may stop it.
class Progress {
 public:
  virtual ~Progress() = default;
  // `done` of `total` is done; false once the user asked to stop.
  virtual bool Advance(qint64 done, qint64 total) = 0;
};

// A printout as the print preview takes it.
struct PrintJob {
  // Prints the whole printout on the printer it is given, telling `progress`
  // of every page. Answers false when it failed (the user has been told and
  // the job abandoned) or when the user stopped it (the job abandoned,
  // nothing told).
  std::function<bool(Printer&, Progress&)> draw;
  // The name the printout is offered under when it is saved as a PDF file.
  QString pdf_name;
};

// What the insured-person search dialog hands back: the key as typed (empty
// when the user cancelled) and its kind, "AMA" for a register number or
// "NAME" for a surname.
struct SearchAnswer {
  QString text;
  QString kind;
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // A message box with OK and no icon.
  virtual void Message(const QString& text, const QString& title) = 0;
  // A Yes/No question; true for Yes.
  virtual bool Ask(const QString& text, const QString& title, AskStyle style) = 0;
  // A question answered by one of several buttons, captioned `buttons`, the
  // first the default: the index of the button pressed, -1 when the box was
  // closed without one (Esc, the close box).
  virtual int Choose(const QString& text, const QString& title, const QStringList& buttons) = 0;
  // The hourglass pointer on or off.
  virtual void SetBusy(bool busy) = 0;
  // The insured-person search dialog, modal.
  virtual SearchAnswer AskInsuredPerson() = 0;
  // The target-directory dialog, modal: the full path of the chosen
  // directory, or an empty text when the user cancelled.
  virtual QString AskDirectory(DirPurpose purpose) = 0;
  // The print preview of a printout, modal. It draws the pages once to show
  // them, and again on the printer or file the user sends them to.
  virtual void PrintPreview(const PrintJob& job) = 0;
  // A report in its own window, modal, until the user closes it.
  virtual void ShowReport(const Report& report) = 0;
  // A report in its own window with a button captioned `go_on` beside the
  // cancel button: true for that button, false when the window is closed
  // otherwise.
  virtual bool ConfirmReport(const Report& report, const QString& go_on) = 0;
  // The file chooser, modal: the full path chosen, empty when cancelled.
  virtual QString AskFile(const FileQuestion& question) = 0;
  // Runs `task` while a progress bar with a cancel button shows `text`; the
  // windows keep being drawn meanwhile and take no other input.
  virtual void RunWithProgress(const QString& text, const std::function<void(Progress&)>& task) = 0;
};

// Which main screen is shown; exactly one at a time. Showing a screen closes
// the one shown before.
class Screens {
 public:
  virtual ~Screens() = default;
  virtual void ShowStart() = 0;
  virtual void ShowHeader(Kind kind) = 0;
  virtual void ShowLines(Kind kind) = 0;
  // Ends the program with the given exit status.
  virtual void Quit(int status) = 0;
};

// The hourglass for as long as it lives, restored on every way out.
class BusyPointer {
 public:
  explicit BusyPointer(Dialogs& dialogs) : dialogs_(dialogs) { dialogs_.SetBusy(true); }
  ~BusyPointer() { dialogs_.SetBusy(false); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

 private:
  Dialogs& dialogs_;
};

}  // namespace veroxia
