#pragma once
// Stand-ins for the person in front of the screen during a measurement:
// every message is counted, every question answered Yes, the search dialog
// answers the key it was given, the directory dialog is cancelled, the file
// chooser answers the file it was given, a long task runs without a bar.

#include "shell/ports.h"

namespace veroxia::bench {

class SilentDialogs : public Dialogs {
 public:
  void Message(const QString&, const QString&) override { ++messages; }
  bool Ask(const QString&, const QString&, AskStyle) override { return true; }
  int Choose(const QString&, const QString&, const QStringList&) override { return 0; }
  void SetBusy(bool) override {}
  SearchAnswer AskInsuredPerson() override { return search; }
  QString AskDirectory(DirPurpose) override { return {}; }
  void PrintPreview(const PrintJob&) override {}
  void ShowReport(const Report&) override {}
  bool ConfirmReport(const Report&, const QString&) override { return true; }
  QString AskFile(const FileQuestion&) override { return file; }
  void RunWithProgress(const QString&, const std::function<void(Progress&)>& task) override {
    struct Unstopped : Progress {
      bool Advance(qint64, qint64) override { return true; }
    } progress;
    task(progress);
  }

  int messages = 0;
  SearchAnswer search;
  QString file;
};

class SilentScreens : public Screens {
 public:
  void ShowStart() override {}
  void ShowHeader(Kind) override {}
  void ShowLines(Kind) override {}
  void Quit(int) override {}
};

}  // namespace veroxia::bench
