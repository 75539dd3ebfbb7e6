#pragma once
// The command line's side of the person in front of the screen: texts on the
// standard streams, questions answered by the command itself.

#include <QString>
#include <cstdio>
#include <optional>

#include "shell/ports.h"

namespace veroxia::cli {

// Writes the text and a line end, its CR LF and lone CR made line ends.
void Print(FILE* to, const QString& text);

// The person in front of the screen is a script: messages go to standard
// error; a question is told there too and answered Yes, the command being
// the answer (the volumes are written though the totals disagree, as the
// program's file button allows); the directory and the file are the ones the
// command names; a report goes to `reports` (standard output unless told
// otherwise); a long task runs without a bar.
class ConsoleDialogs : public Dialogs {
 public:
  explicit ConsoleDialogs(QString path = {}, FILE* reports = stdout)
      : path_(std::move(path)), reports_(reports) {}
  void Message(const QString& text, const QString&) override { Print(stderr, text); }
  bool Ask(const QString& text, const QString&, AskStyle) override {
    Print(stderr, text);
    return true;
  }
  // A question of several answers is told and answered by `choice`, which
  // the command sets from its options (-1, the box closed, unless set).
  int Choose(const QString& text, const QString&, const QStringList&) override {
    Print(stderr, text);
    return choice;
  }
  void SetBusy(bool) override {}
  SearchAnswer AskInsuredPerson() override { return {}; }
  QString AskDirectory(DirPurpose) override { return path_; }
  // The command line has no preview: its printouts go straight to the
  // printer the command names (RunPrintout).
  void PrintPreview(const PrintJob&) override {}
  void ShowReport(const Report& report) override;
  bool ConfirmReport(const Report&, const QString&) override { return true; }
  QString AskFile(const FileQuestion&) override { return path_; }
  void RunWithProgress(const QString& text, const std::function<void(Progress&)>& task) override;

  int choice = -1;

 private:
  QString path_;
  FILE* reports_;
};

// The words of a kind on the command line: "common" or "construction";
// false for another word.
bool ReadKind(const QString& word, Kind& kind);

// A declaration's number on the command line: a whole number from 1 to
// 32767; nothing for another word.
std::optional<int> ReadId(const QString& word);

}  // namespace veroxia::cli
