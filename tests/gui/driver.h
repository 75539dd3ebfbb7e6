#pragma once
// Drives a window the way the user does: clicks, keys, the tab key.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>

namespace veroxia::testing {

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
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&target, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QApplication::sendEvent(&target, &release);
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

}  // namespace veroxia::testing
