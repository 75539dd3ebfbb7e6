#pragma once
// Before a header or a line is stored, a tax number or AMKA whose check digit
// is wrong is shown to the user, who may store it all the same.

#include "rules/check_digits.h"
#include "shell/form.h"
#include "shell/ports.h"
#include "shell/texts.h"

namespace veroxia {

// For each field (a layout's fields, with their control name and column)
// whose number has a wrong check digit: the field is selected and the user
// asked (Yes/No, No the default). No answers false, leaving that field
// selected; Yes goes on to the next.
template <class Fields>
bool ConfirmCheckDigits(Form& form, Dialogs& dialogs, const Fields& fields) {
  for (const auto& field : fields) {
    const std::optional<QString> warning = CheckDigitWarning(field.column, form.Text(field.name));
    if (!warning) continue;
    form.Select(field.name, static_cast<int>(form.Text(field.name).size()));
    if (!dialogs.Ask(*warning, texts::kAppTitle, AskStyle::Question)) return false;
  }
  return true;
}

}  // namespace veroxia
