#pragma once
// Ties a screen's logic (a Form) to its widgets. Each control of the form has
// one widget whose object name is the control's name. What the user types is
// copied into the form as it is typed, and focus moves are reported; after
// every event routine the widgets show the form's state again: text, shown,
// enabled, maximum length, whether the tab key stops on it, the tab order,
// the focus and the selection. They show it also before any message box or
// question opens while the window is shown (see BeforeBoxOpens), so a box
// never stands over a state the logic has left.
//
// A text box the view has not sized takes its width from the control's
// maximum length (FitToLength). A text set by the logic is shown from its
// first character; a selection keeps the cursor at its start, so that the
// beginning of a long text is what the user sees.

#include <QAbstractButton>
#include <QBoxLayout>
#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>
#include <map>

#include "gui/qt_dialogs.h"
#include "shell/form.h"

class QWidget;

namespace veroxia {

class FormBinder : public QObject {
 public:
  // The widgets are looked for under root; the tab key follows focus_order.
  FormBinder(Form& form, QWidget& root, QStringList focus_order);

  // Makes the widget of a control, named after it, under parent.
  template <class W, class... Args>
  W* Add(const QString& name, QWidget* parent, Args&&... args) {
    W* widget = new W(std::forward<Args>(args)..., parent);  // owned by parent
    Bind(name, widget);
    return widget;
  }
  // Takes a widget made elsewhere as the control's widget.
  void Bind(const QString& name, QWidget* widget);

  // Runs the routine when the button is clicked, then shows the form's state.
  void OnClick(const QString& name, std::function<void()> routine);

  // Runs the routine whenever a control takes the focus (instead of only
  // noting the move), then shows the form's state.
  void OnFocus(std::function<void(const QString&)> routine) { on_focus_ = std::move(routine); }

  // Runs after the user changed the text of a field (the form has the new
  // text already), then shows the form's state.
  void OnEdit(std::function<void(const QString&)> routine) { on_edit_ = std::move(routine); }

  // Runs after every showing of the form's state, for what a screen shows
  // beyond its controls' own state.
  void OnMirror(std::function<void()> routine) { on_mirror_ = std::move(routine); }

  // Shows the form's state in the widgets.
  void Mirror();

  // Where the form has no focus yet, the focus arrives at the first control
  // of the focus order that can take it (through the OnFocus routine).
  void FocusFirst();

  // Two buttons in one place of a row: of the pair only one is ever shown.
  template <class Button>
  QWidget* SharedPlace(const QString& first, const QString& second, QWidget* parent) {
    auto* place = new QWidget(parent);  // owned by parent
    auto* stack = new QHBoxLayout(place);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->addWidget(Add<Button>(first, place));
    stack->addWidget(Add<Button>(second, place));
    return place;
  }

  QWidget* Widget(const QString& name) const;
  // Controls of the form that have no widget yet.
  QStringList Unbound() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Edited(const QString& name);
  void MirrorControl(const QString& name, QWidget& widget);
  void MirrorTabOrder();
  void MirrorFocus();

  Form& form_;
  QWidget& root_;
  QStringList focus_order_;
  std::map<QString, QWidget*> widgets_;
  std::map<QWidget*, QString> names_;
  std::map<QWidget*, bool> focusable_;  // takes the focus at all (buttons, fields)
  bool mirroring_ = false;
  std::function<void(const QString&)> on_focus_;
  std::function<void()> on_mirror_;
  std::function<void(const QString&)> on_edit_;
  BeforeBoxOpens before_box_;
};

}  // namespace veroxia
