#pragma once
// Message boxes, questions and the hourglass pointer through Qt.
//
// With the environment variable VEROXIA_UNATTENDED set (automated runs of the
// program), no box opens: every message is written to standard output as one
// line "title<TAB>text", line breaks written as the two characters \n, and
// answered with OK, or No for a question.

#include <QString>

#include "shell/ports.h"

namespace veroxia {

// The text as a box shows it: CR LF and a lone CR become line breaks.
QString DisplayText(const QString& text);
// The one line written for a message in unattended runs (without the newline).
QString UnattendedLine(const QString& text, const QString& title);

class QtDialogs : public Dialogs {
 public:
  QtDialogs();
  explicit QtDialogs(bool unattended) : unattended_(unattended) {}
  ~QtDialogs() override;
  QtDialogs(const QtDialogs&) = delete;
  QtDialogs& operator=(const QtDialogs&) = delete;

  void Message(const QString& text, const QString& title) override;
  bool Ask(const QString& text, const QString& title, AskStyle style) override;
  // The pointer is either busy or not: turning it on twice and off once
  // leaves the normal pointer, as does turning it off when it is not on.
  void SetBusy(bool busy) override;
  // The search dialog over the window shown now; cancelled at once in
  // unattended runs.
  SearchAnswer AskInsuredPerson() override;

  bool Busy() const { return busy_; }

 private:
  void Print(const QString& text, const QString& title) const;

  bool unattended_;
  bool busy_ = false;
};

}  // namespace veroxia
