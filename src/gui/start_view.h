#pragma once
// The window of the start screen. Every control of StartForm is a widget
// named after it; the logic decides, the window shows.

#include <QWidget>

#include "shell/start_form.h"

namespace veroxia {

class FormBinder;

class StartView : public QWidget {
 public:
  explicit StartView(StartForm& form);

  FormBinder& Binder() { return *binder_; }

 private:
  // Enter in any of the period fields presses OkCmd, as a dialog's default
  // button would be pressed.
  void PressOkOnEnter();
  QWidget* BuildTop();
  QWidget* BuildFrame1();
  QWidget* BuildPeriodFields(QWidget* parent);
  QWidget* BuildFrame2(QWidget* parent);
  // A month field, a "/" and a year field side by side, under the label.
  QLayout* PeriodRow(QWidget* parent, const QString& label, const QString& month,
                     const QString& year);

  StartForm& form_;
  FormBinder* binder_;  // owned by this window
};

}  // namespace veroxia
