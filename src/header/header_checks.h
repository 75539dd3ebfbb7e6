#pragma once
// The check sequence of a header screen: rules in a fixed order; the first
// that fails is shown in a message box and its field is selected or only
// focused; the sequence then answers false.

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "shell/form.h"
#include "shell/ports.h"

namespace veroxia {

enum class OnFault {
  Select,  // the field's text is selected, then the field takes the focus
  Focus,   // the field only takes the focus
};

struct FieldFault {
  QString field;
  QString message;
  OnFault then = OnFault::Select;
  int length = -1;  // characters selected from the first; -1: the whole text
};

// One rule: what is wrong, or nothing. Rules read the form when they run, so
// a rule after the first failure is never evaluated.
using HeaderCheck = std::function<std::optional<FieldFault>()>;

// Runs the rules in order and answers the first failure, without a word to
// the user. An unexpected error while the rules run is the unknown-error
// message, on no field.
std::optional<FieldFault> FirstFault(const std::vector<HeaderCheck>& checks);

// Runs the rules in order and reports the first failure (application title).
// True when every rule passes.
bool RunHeaderChecks(Form& form, Dialogs& dialogs, const std::vector<HeaderCheck>& checks);

// The field's trimmed text must not be empty.
HeaderCheck FilledCheck(const Form& form, const QString& field, const QString& message,
                        OnFault then);
// CheckInteger on the field's text with the given field name.
HeaderCheck IntegerCheck(const Form& form, const QString& field, const QString& name, int digits,
                         bool exact, OnFault then);
// CheckDecimal on the field's text with the given field name.
HeaderCheck DecimalCheck(const Form& form, const QString& field, const QString& name,
                         int max_int_digits, OnFault then);
// CheckNoDigits, only when the field's trimmed text is not empty; selects.
HeaderCheck NamedCheck(const Form& form, const QString& field, const QString& name);
// CheckDate on a date box's full text, only when something is typed; selects.
HeaderCheck DateBoxCheck(const Form& form, const QString& field, const QString& name);
// CheckInteger, only when the field's trimmed text is not empty; selects.
HeaderCheck IntegerCheckIfFilled(const Form& form, const QString& field, const QString& name,
                                 int digits, bool exact);
// The rule applies only when the field's trimmed text is not empty.
HeaderCheck IfFilled(const Form& form, const QString& field, HeaderCheck check);
// A date box must hold a typed character; only focuses.
HeaderCheck DateFilledCheck(const Form& form, const QString& field, const QString& message);
// A choice box must not be blank and must hold one of its choices in any
// case; selects.
HeaderCheck ChoiceCheck(const Form& form, const QString& field, const QString& blank,
                        const QString& wrong, const QStringList& choices);
// What a box stores, as the code-page rule reads it.
struct StoredBox {
  QString field;
  QString value;
};

// The caption the screen shows beside a field, its runs of blanks made one:
// the label "Text21Lbl" of Text21, "Text18Lbl" of Text18_1 and Text18_2,
// "FirstNmLbl" of FirstNmTxt; the field's own name when it has none.
QString CaptionOf(const Form& form, const QString& field);

// Every value the screen stores must be one that Windows-1253, the code page
// of the submission file, can hold: the first box that holds a character it
// cannot is told by its caption, with the character and its code; selects.
// `stored` gives the values as they would be stored, when the rule runs.
HeaderCheck CodePageCheck(const Form& form, std::function<std::vector<StoredBox>()> stored);

// The stop date against the selected declaration type (0: 01, 1: 02, 2: 03):
// an extraordinary declaration needs a valid date, the other two forbid one.
HeaderCheck StopDateCheck(const Form& form, const QString& field, int type_index);

}  // namespace veroxia
