#include "gui/app_screens.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include "gui/header_view.h"
#include "gui/lines_view.h"
#include "gui/start_view.h"
#include "lines/ovt_form2.h"
#include "lines/ovt_form4.h"

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

template <class F, class V, class... Args>
void AppScreens::Open(const Args&... args) {
  auto form = std::make_unique<F>(vars_, dialogs_, *this);
  form->Load();
  auto next = std::make_unique<Shown>();
  next->view = std::make_unique<V>(*form, args...);
  next->form = std::move(form);
  Show(std::move(next));
}

void AppScreens::ShowHeader(Kind kind) {
  if (kind == Kind::Construction) {
    Open<OvtForm3, OvtForm3View>();
  } else {
    Open<OvtForm1, OvtForm1View>();
  }
}

void AppScreens::ShowLines(Kind kind) {
  const QRect place(LinesForm::kLeftTwips, LinesForm::kTopTwips, LinesForm::kWidthTwips,
                    LinesForm::kHeightTwips);
  if (kind == Kind::Construction) {
    Open<OvtForm4, LinesView>(ConstructionLinesRows(), place);
  } else {
    Open<OvtForm2, LinesView>(CommonLinesRows(), place);
  }
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
