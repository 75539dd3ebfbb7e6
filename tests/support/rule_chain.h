#pragma once
// A check sequence proved rule by rule. Every field of the list starts with a
// text its rule refuses; each run of the checks must report the next step of
// the list (its message, the application title, the focus on the field, the
// whole text selected or not), after which the field gets the step's next
// text: a valid one, or the bad text of a later step on the same field. At
// the end the checks pass. A rule out of its place, or one that does not
// refuse its text, shows as the step that was expected.

#include <gtest/gtest.h>

#include <functional>

#include "rules/checks.h"
#include "shell/form.h"
#include "shell/texts.h"
#include "support/fakes.h"

namespace veroxia::testing {

using namespace Qt::StringLiterals;

// The message a rule gives for a text.
using Says = std::function<Fault(const QString& text)>;

inline Says Fixed(const QString& message) {
  return [=](const QString&) { return Fault(message); };
}
inline Says Integer(const QString& name, int digits, bool exact) {
  return [=](const QString& text) { return CheckInteger(text, name, digits, exact); };
}
inline Says Decimal(const QString& name, int max_int_digits) {
  return [=](const QString& text) { return CheckDecimal(text, name, max_int_digits); };
}
inline Says NoDigits(const QString& name) {
  return [=](const QString& text) { return CheckNoDigits(text, name); };
}
inline Says Date(const QString& name) {
  return [=](const QString& text) { return CheckDate(text, name); };
}

struct RuleStep {
  const char* field;
  QString bad;
  Says says;
  bool selects;  // the whole text is selected; otherwise only focused
  QString next;
};

inline void ExpectRulesInOrder(Form& form, const FakeDialogs& dialogs,
                               const std::function<bool()>& check,
                               const std::vector<RuleStep>& steps) {
  QStringList typed;
  for (const RuleStep& step : steps) {
    const QString field = QString::fromLatin1(step.field);
    if (!typed.contains(field)) form.Type(field, step.bad);
    typed << field;
  }
  for (const RuleStep& step : steps) {
    const QString field = QString::fromLatin1(step.field);
    SCOPED_TRACE(step.field + (u" = \""_s + step.bad + u'"').toStdString());
    const size_t before = dialogs.messages.size();
    EXPECT_FALSE(check());
    ASSERT_EQ(dialogs.messages.size(), before + 1);
    EXPECT_EQ(dialogs.messages.back().text, step.says(step.bad).value_or(u"<passes>"_s));
    EXPECT_EQ(dialogs.messages.back().title, texts::kAppTitle);
    EXPECT_EQ(form.FocusedField(), field);
    const auto selection = form.SelectionOf(field);
    EXPECT_EQ(selection ? selection->length : -1,
              step.selects ? static_cast<int>(form.Text(field).size()) : -1);
    form.Type(field, step.next);
  }
  EXPECT_TRUE(check()) << dialogs.LastMessage().toStdString();
}

}  // namespace veroxia::testing
