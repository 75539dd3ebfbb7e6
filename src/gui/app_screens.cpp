#include "gui/app_screens.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include "gui/header_view.h"
#include "gui/lines_view.h"
#include "gui/start_view.h"
#include "lines/ovt_form2.h"
#include "shell/texts.h"

namespace veroxia {

AppScreens::AppScreens(Vars& vars, Dialogs& dialogs) : vars_(vars), dialogs_(dialogs) {}

AppScreens::~AppScreens() = default;

QWidget* AppScreens::Current() const { return current_ ? current_->view.get() : nullptr; }

void AppScreens::Show(std::unique_ptr<Shown> next) {
  next->view->show();
  next->view->raise();
  next->view->activateWindow();
  Retire();
  current_ = std::move(next);
}

void AppScreens::ShowStart() {
  auto form = std::make_unique<StartForm>(vars_, dialogs_, *this);
  if (!form->Load()) return;  // the store could not be opened: Quit was called
  auto next = std::make_unique<Shown>();
  next->view = std::make_unique<StartView>(*form);
  next->form = std::move(form);
  Show(std::move(next));
}

void AppScreens::ShowHeader(Kind kind) {
  if (kind == Kind::Construction) {
    dialogs_.Message(texts::kNotAvailableYet, texts::kAppTitle);
    ShowStart();
    return;
  }
  auto form = std::make_unique<OvtForm1>(vars_, dialogs_, *this);
  form->Load();
  auto next = std::make_unique<Shown>();
  next->view = std::make_unique<OvtForm1View>(*form);
  next->form = std::move(form);
  Show(std::move(next));
}

void AppScreens::ShowLines(Kind kind) {
  if (kind == Kind::Construction) {
    dialogs_.Message(texts::kNotAvailableYet, texts::kAppTitle);
    ShowStart();
    return;
  }
  auto form = std::make_unique<OvtForm2>(vars_, dialogs_, *this);
  form->Load();
  auto next = std::make_unique<Shown>();
  next->view = std::make_unique<LinesView>(*form, CommonLinesRows(),
                                           QRect(LinesForm::kLeftTwips, LinesForm::kTopTwips,
                                                 LinesForm::kWidthTwips, LinesForm::kHeightTwips));
  next->form = std::move(form);
  Show(std::move(next));
}

void AppScreens::Quit(int status) {
  quit_status_ = status;
  Retire();
  // Before the event loop runs there is nothing to leave: main returns the
  // status itself. (Asking to leave then would end every later loop at once.)
  if (QThread::currentThread()->loopLevel() > 0) QCoreApplication::exit(status);
}

void AppScreens::Retire() {
  if (!current_) return;
  current_->view->hide();
  retired_.push_back(std::move(current_));
  QTimer::singleShot(0, &timers_, [this] { retired_.clear(); });
}

}  // namespace veroxia
