#pragma once
// Drives a window the way the user does: clicks, keys, the tab key; brings
// Qt's widgets and printing and the fakes to the window tests.

#include <gtest/gtest.h>

#include <QtPrintSupport>  // and the widgets, the GUI and the core under it
#include <functional>
#include <type_traits>

#include "gui/wrap_button.h"
#include "support/fakes.h"
#include "support/printers.h"

namespace veroxia::testing {

using namespace Qt::StringLiterals;

// Shows the window, makes it the active one and lets it lay itself out.
inline void ShowActive(QWidget& window) {
  window.show();
  window.activateWindow();
  QApplication::processEvents();
}

template <class W = QWidget>
W* Find(const QWidget& window, const QString& name) {
  W* widget = window.findChild<W*>(name);
  EXPECT_NE(widget, nullptr) << "no widget " << name.toStdString();
  return widget;
}

inline void Click(const QWidget& window, const QString& name) {
  if (auto* button = Find<QAbstractButton>(window, name)) button->click();
  QApplication::processEvents();
}

inline void Key(QWidget& target, int key, const QString& text = {}) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QApplication::sendEvent(&target, &event);
  }
}

// Clears the field and types the text into it key by key.
inline void TypeInto(const QWidget& window, const QString& name, const QString& text) {
  auto* edit = Find<QLineEdit>(window, name);
  if (edit == nullptr) return;
  edit->setFocus(Qt::MouseFocusReason);
  edit->selectAll();
  Key(*edit, Qt::Key_Backspace);
  for (const QChar c : text) Key(*edit, c.unicode(), QString(c));
}

// The name of the widget that has the window's focus.
inline QString Focused(const QWidget& window) {
  const QWidget* widget = window.focusWidget();
  return widget != nullptr ? widget->objectName() : QString();
}

// Presses the tab key where the focus is.
inline void Tab(QWidget& window) {
  if (QWidget* widget = window.focusWidget()) Key(*widget, Qt::Key_Tab);
  QApplication::processEvents();
}

// Whether the box would show the whole text at once: with the cursor at its
// end it is as far from the start as the text is long, nothing scrolled
// away. The box is left as it was.
inline bool ShowsWhole(QLineEdit& box, const QString& text) {
  const QString before = box.text();
  const int cursor = box.cursorPosition();
  const int max_length = box.maxLength();
  box.setMaxLength(static_cast<int>(text.size()));
  const auto cursor_at = [&box](qsizetype position) {
    box.setCursorPosition(static_cast<int>(position));
    box.repaint();  // the box scrolls to its cursor when it paints
    return box.inputMethodQuery(Qt::ImCursorRectangle).toRect().left();
  };
  box.setText(text);
  const int start = cursor_at(0);
  const bool whole = cursor_at(text.size()) - start == box.fontMetrics().horizontalAdvance(text);
  box.setMaxLength(max_length);
  box.setText(before);
  box.setCursorPosition(cursor);
  return whole;
}

// Runs `open`; the first modal window of type W (a message box unless told)
// that comes up is handed to `look` while it is open, then answered with the
// Return key (its default button). False when none came up.
template <class W = QMessageBox>
bool AnswerNextBox(const std::function<void()>& open,
                   const std::type_identity_t<std::function<void(W&)>>& look) {
  bool seen = false;
  QTimer poll;
  poll.setInterval(5);
  QObject::connect(&poll, &QTimer::timeout, [&] {
    auto* box = qobject_cast<W*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) return;
    poll.stop();
    seen = true;
    look(*box);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(box, &enter);
  });
  poll.start();
  open();
  return seen;
}

// Every shown widget lies inside its parent and shows all of itself: button
// captions, label texts, the height of a text box.
inline void ExpectNothingCut(const QWidget& window) {
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    const std::string name = widget->objectName().toStdString();
    EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << name;
    if (const auto* button = qobject_cast<const WrapButton*>(widget)) {
      EXPECT_TRUE(button->CaptionFits()) << name;
    } else if (const auto* push = qobject_cast<const QPushButton*>(widget)) {
      EXPECT_GE(push->width(), push->sizeHint().width()) << name;
    } else if (const auto* label = qobject_cast<const QLabel*>(widget)) {
      EXPECT_LE(label->minimumSizeHint().width(), label->width()) << name;
      EXPECT_LE(label->minimumSizeHint().height(), label->height()) << name;
    } else if (const auto* edit = qobject_cast<const QLineEdit*>(widget);
               edit != nullptr && qobject_cast<const QComboBox*>(edit->parentWidget()) == nullptr) {
      // (A choice box sizes the text box inside it itself.)
      EXPECT_GE(edit->width(), edit->minimumSizeHint().width()) << name;
      EXPECT_GE(edit->height(), edit->sizeHint().height()) << name;
    }
  }
}

}  // namespace veroxia::testing
