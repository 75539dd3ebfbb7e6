#pragma once
// The window of the insured-person search dialog, modal. Every control of
// SearchForm is a widget named after it.

#include <QDialog>

#include "shell/search_form.h"

namespace veroxia {

class FormBinder;

class SearchView : public QDialog {
 public:
  explicit SearchView(SearchForm& form, QWidget* parent = nullptr);

  FormBinder& Binder() { return *binder_; }

  // Shows the dialog until it closes; answers what the form handed back.
  SearchAnswer Ask();

 protected:
  void showEvent(QShowEvent* event) override;
  // Escape and the window's close control: cancel.
  void reject() override;

 private:
  void CloseIfDone();

  SearchForm& form_;
  FormBinder* binder_;  // owned by this dialog
};

}  // namespace veroxia
