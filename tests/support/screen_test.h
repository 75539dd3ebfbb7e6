#pragma once
// A screen of one kind over its own temporary store, opened afresh on the
// shared variables whenever a test asks.

#include <gtest/gtest.h>

#include "support/fakes.h"

namespace veroxia::testing {

template <class Screen>
class ScreenTest : public ::testing::Test {
 protected:
  // A fresh screen on the shared variables, loaded.
  Screen& Open() {
    form_ = std::make_unique<Screen>(vars_, dialogs_, screens_);
    form_->Load();
    return *form_;
  }
  // The texts of the fields, in the order named.
  QStringList Texts(const QStringList& names) const {
    QStringList texts;
    for (const QString& name : names) texts << form_->Text(name);
    return texts;
  }

  TempStore store_;
  Vars& vars_ = store_.vars;
  Database& db_ = store_.Open();
  FakeDialogs dialogs_;
  FakeScreens screens_;
  std::unique_ptr<Screen> form_;
};

}  // namespace veroxia::testing
