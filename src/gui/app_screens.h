#pragma once
// The main screens of the program, exactly one shown at a time. Showing a
// screen builds it afresh and closes the one shown before.

#include <QObject>
#include <QWidget>
#include <memory>
#include <optional>
#include <vector>

#include "shell/ports.h"
#include "shell/start_form.h"
#include "shell/vars.h"

namespace veroxia {

class AppScreens : public Screens {
 public:
  AppScreens(Vars& vars, Dialogs& dialogs);
  ~AppScreens() override;
  AppScreens(const AppScreens&) = delete;
  AppScreens& operator=(const AppScreens&) = delete;

  void ShowStart() override;
  void ShowHeader(Kind kind) override;
  void ShowLines(Kind kind) override;
  void Quit(int status) override;

  // The status Quit was given, once it was called; main returns it at once
  // when the program ends before its event loop starts.
  std::optional<int> QuitStatus() const { return quit_status_; }
  // The window shown now, if any.
  QWidget* Current() const;

 private:
  // A screen's logic and its window; the window is destroyed first.
  struct Shown {
    std::unique_ptr<Form> form;
    std::unique_ptr<QWidget> view;
  };
  // Builds the screen of form F in a window V (given the form and `args`),
  // loads it and shows it.
  template <class F, class V, class... Args>
  void Open(const Args&... args);
  // Shows a screen built now and retires the one shown before.
  void Show(std::unique_ptr<Shown> next);
  // Hides the screen shown now. It is destroyed later, once the event that
  // closed it (a click in that very screen, maybe) has run to its end.
  void Retire();

  QObject timers_;  // pending clean-ups die with this object
  Vars& vars_;
  Dialogs& dialogs_;
  std::unique_ptr<Shown> current_;
  std::vector<std::unique_ptr<Shown>> retired_;
  std::optional<int> quit_status_;
};

}  // namespace veroxia
