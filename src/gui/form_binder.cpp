#include "gui/form_binder.h"

#include <QComboBox>
#include <QEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QToolTip>
#include <QWidget>

#include "gui/fields.h"

namespace veroxia {

namespace {

// A QLineEdit without a limit reports this maximum length.
constexpr int kNoLimit = 32767;

}  // namespace

FormBinder::FormBinder(Form& form, QWidget& root, QStringList focus_order)
    : QObject(&root),
      form_(form),
      root_(root),
      focus_order_(std::move(focus_order)),
      before_box_([this] {
        if (root_.isVisible() && !mirroring_) Mirror();
      }) {}

void FormBinder::Bind(const QString& name, QWidget* widget) {
  form_.At(name);  // the form must know the control
  widget->setObjectName(name);
  widgets_[name] = widget;
  names_[widget] = name;
  focusable_[widget] = widget->focusPolicy() != Qt::NoFocus;
  widget->installEventFilter(this);
  if (auto* label = qobject_cast<QLabel*>(widget)) label->setTextFormat(Qt::PlainText);
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
    const int max_length = form_.At(name).max_length;
    const bool sized = edit->minimumWidth() > 0 || edit->maximumWidth() < QWIDGETSIZE_MAX;
    if (max_length > 0 && !sized) FitToLength(*edit, max_length);
    // A masked box hands over its text as shown, blanks of the mask included.
    connect(edit, &QLineEdit::textEdited, this, [this, name, edit](const QString& text) {
      form_.Type(name, edit->inputMask().isEmpty() ? text : edit->displayText());
      Edited(name);
    });
  }
  if (auto* combo = qobject_cast<QComboBox*>(widget)) {
    // A choice box takes a choice from its list or a text typed into it.
    connect(combo, &QComboBox::currentTextChanged, this, [this, name](const QString& text) {
      if (mirroring_) return;
      form_.Type(name, text);
      Edited(name);
    });
  }
}

void FormBinder::Edited(const QString& name) {
  if (!on_edit_) return;
  on_edit_(name);
  Mirror();
}

void FormBinder::OnClick(const QString& name, std::function<void()> routine) {
  auto* button = qobject_cast<QAbstractButton*>(Widget(name));
  if (button == nullptr) return;
  connect(button, &QAbstractButton::clicked, this, [this, routine = std::move(routine)] {
    routine();
    Mirror();
  });
}

QWidget* FormBinder::Widget(const QString& name) const {
  const auto it = widgets_.find(name);
  return it == widgets_.end() ? nullptr : it->second;
}

QStringList FormBinder::Unbound() const {
  QStringList missing;
  for (const QString& name : form_.Names()) {
    if (widgets_.count(name) == 0) missing << name;
  }
  return missing;
}

void FormBinder::Mirror() {
  mirroring_ = true;
  for (const auto& [name, widget] : widgets_) MirrorControl(name, *widget);
  MirrorTabOrder();
  MirrorFocus();
  if (on_mirror_) on_mirror_();
  mirroring_ = false;
  // The window may have moved the focus by itself, away from a control that
  // was hidden or disabled: the form learns where it went.
  if (QWidget* focused = root_.focusWidget()) {
    const auto it = names_.find(focused);
    if (it != names_.end() && it->second != form_.FocusedField()) {
      const QWidget* wanted = Widget(form_.FocusedField());
      if (wanted == nullptr || !wanted->isVisibleTo(&root_) || !wanted->isEnabled()) {
        form_.FocusMovedTo(it->second);
      }
    }
  }
}

void FormBinder::FocusFirst() {
  if (!form_.FocusedField().isEmpty()) return;
  for (const QString& name : focus_order_) {
    const Control& control = form_.At(name);
    if (!control.visible || !control.enabled || !control.tab_stop) continue;
    if (on_focus_) {
      on_focus_(name);
    } else {
      form_.SetFocus(name);
    }
    return;
  }
}

void FormBinder::MirrorControl(const QString& name, QWidget& widget) {
  const Control& control = form_.At(name);
  if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
    const int max_length = control.max_length > 0 ? control.max_length : kNoLimit;
    if (edit->maxLength() != max_length) edit->setMaxLength(max_length);
    const QString shown = edit->inputMask().isEmpty() ? edit->text() : edit->displayText();
    // A new text, or a box being locked (the user cannot scroll it any more),
    // is shown from its first character.
    if (shown != control.text || (edit->isEnabled() && !control.enabled)) {
      if (shown != control.text) edit->setText(control.text);
      edit->setCursorPosition(0);
    }
  } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
    if (combo->currentText() != control.text) {
      if (combo->isEditable()) {
        combo->setEditText(control.text);
        combo->lineEdit()->setCursorPosition(0);  // from its first character, as a box
      } else {
        combo->setCurrentText(control.text);
      }
    }
  } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    if (button->text() != control.text) button->setText(control.text);
  } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
    // A picture label has no text of its own; its picture stays.
    if (label->text() != control.text && !control.text.isEmpty()) label->setText(control.text);
  }
  if (widget.isEnabled() != control.enabled) widget.setEnabled(control.enabled);
  if (focusable_[&widget]) {
    const Qt::FocusPolicy policy = control.tab_stop ? Qt::StrongFocus : Qt::ClickFocus;
    if (widget.focusPolicy() != policy) widget.setFocusPolicy(policy);
  }
  if (widget.isHidden() == control.visible) widget.setVisible(control.visible);
}

void FormBinder::MirrorTabOrder() {
  QWidget* previous = nullptr;
  for (const QString& name : focus_order_) {
    QWidget* widget = Widget(name);
    if (widget == nullptr) continue;
    if (previous != nullptr) QWidget::setTabOrder(previous, widget);
    previous = widget;
  }
}

void FormBinder::MirrorFocus() {
  const QString name = form_.FocusedField();
  QWidget* widget = Widget(name);
  if (widget == nullptr || !widget->isEnabled() || !widget->isVisibleTo(&root_)) return;
  widget->setFocus(Qt::OtherFocusReason);
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
    if (const auto selection = form_.SelectionOf(name); selection && selection->length > 0) {
      // Selected from its end back to its start: the cursor, and with it
      // the part of a long text in view, stays at the start.
      edit->setSelection(selection->start + selection->length, -selection->length);
    } else if (selection) {
      edit->setCursorPosition(selection->start);
    } else {
      edit->deselect();
    }
  }
}

bool FormBinder::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    // A box too narrow for its text, which a locked box cannot scroll, shows
    // the whole text when the pointer rests on it.
    auto* edit = qobject_cast<QLineEdit*>(watched);
    if (edit != nullptr && edit->toolTip().isEmpty() && !TextFits(*edit)) {
      QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), edit->displayText(), edit);
      return true;
    }
  }
  if (event->type() == QEvent::FocusIn && !mirroring_) {
    const auto it = names_.find(static_cast<QWidget*>(watched));
    // Coming back to the field that has the focus already is no move.
    if (it != names_.end() && it->second != form_.FocusedField()) {
      if (on_focus_) {
        const QString name = it->second;
        // After the field has taken the focus its own way, the form's
        // selection is shown.
        QTimer::singleShot(0, this, [this, name] {
          if (form_.FocusedField() != name) return;  // an event moved it on since
          on_focus_(name);
          Mirror();
        });
        form_.FocusMovedTo(name);
      } else {
        form_.FocusMovedTo(it->second);
      }
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace veroxia
