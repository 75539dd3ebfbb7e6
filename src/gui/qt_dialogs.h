#pragma once
// Message boxes, questions and the hourglass pointer through Qt.
//
// With the environment variable VEROXIA_UNATTENDED set (automated runs of the
// program), no box opens: every message is written to standard output as one
// line "title<TAB>text", line breaks written as the two characters \n, and
// answered with OK, or No for a question.
//
// Before any box or question opens (unattended runs included), every living
// BeforeBoxOpens hook runs: the windows behind the box show the state the
// logic has reached by then, not the one of the last finished event.

#include <QString>
#include <functional>

class QWidget;

#include "shell/ports.h"

namespace veroxia {

// The text as a box shows it: CR LF and a lone CR become line breaks.
QString DisplayText(const QString& text);
// The one line written for a message in unattended runs (without the newline).
QString UnattendedLine(const QString& text, const QString& title);

// Qt's file dialog over `parent`, opening where the last file was chosen: the
// full path chosen, empty when cancelled.
QString ChooseFile(QWidget* parent, const FileQuestion& question);

// While it lives, `routine` runs before every message box or question opens,
// after the hooks made before it. FormBinder makes one for each screen.
class BeforeBoxOpens {
 public:
  explicit BeforeBoxOpens(std::function<void()> routine);
  ~BeforeBoxOpens();
  BeforeBoxOpens(const BeforeBoxOpens&) = delete;
  BeforeBoxOpens& operator=(const BeforeBoxOpens&) = delete;

  // Runs every living hook once.
  static void RunAll();

 private:
  std::function<void()> routine_;
};

class QtDialogs : public Dialogs {
 public:
  QtDialogs();
  explicit QtDialogs(bool unattended) : unattended_(unattended) {}
  ~QtDialogs() override;
  QtDialogs(const QtDialogs&) = delete;
  QtDialogs& operator=(const QtDialogs&) = delete;

  void Message(const QString& text, const QString& title) override;
  bool Ask(const QString& text, const QString& title, AskStyle style) override;
  // A box with one button for each answer, no icon, the first the default;
  // closed (-1) at once in unattended runs.
  int Choose(const QString& text, const QString& title, const QStringList& buttons) override;
  // The pointer is either busy or not: turning it on twice and off once
  // leaves the normal pointer, as does turning it off when it is not on.
  void SetBusy(bool busy) override;
  // The search dialog over the window shown now; cancelled at once in
  // unattended runs.
  SearchAnswer AskInsuredPerson() override;
  // The directory dialog over the window shown now, with the normal pointer
  // (OK leaves the hourglass on for the writing that follows); cancelled at
  // once in unattended runs.
  QString AskDirectory(DirPurpose purpose) override;
  // The print preview over the window shown now, modal. In unattended runs
  // no window opens: the pages go as text to standard output, a form feed
  // between them.
  void PrintPreview(const PrintJob& job) override;
  // The report window over the window shown now; in unattended runs the
  // report's lines go to standard output instead.
  void ShowReport(const Report& report) override;
  // The report window with a button to go on; in unattended runs the report
  // goes to standard output and the answer is to stop.
  bool ConfirmReport(const Report& report, const QString& go_on) override;
  // Qt's file dialog over the window shown now; cancelled at once in
  // unattended runs.
  QString AskFile(const FileQuestion& question) override;
  // A progress bar with a cancel button over the window shown now, modal,
  // once the task takes longer than a moment; no bar in unattended runs.
  void RunWithProgress(const QString& text, const std::function<void(Progress&)>& task) override;

  bool Busy() const { return busy_; }

 private:
  void Print(const QString& text, const QString& title) const;

  bool unattended_;
  bool busy_ = false;
};

}  // namespace veroxia
