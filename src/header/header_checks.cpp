#include "header/header_checks.h"

#include "filing/plain_field.h"
#include "header/date_box.h"
#include "header/texts.h"
#include "rules/checks.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

std::optional<FieldFault> FaultOf(const Fault& message, const QString& field, OnFault then) {
  if (!message) return std::nullopt;
  return FieldFault{field, *message, then};
}

// A character as the user can find it: itself and its code point.
QString CodeOf(const QString& character) {
  const QList<uint> points = character.toUcs4();
  const uint point = points.isEmpty() ? 0 : points.front();
  return QString::number(point, 16).toUpper().rightJustified(4, u'0');
}

}  // namespace

std::optional<FieldFault> FirstFault(const std::vector<HeaderCheck>& checks) {
  try {
    for (const HeaderCheck& check : checks) {
      if (std::optional<FieldFault> fault = check()) return fault;
    }
    return std::nullopt;
  } catch (...) {
    return FieldFault{QString(), header_texts::kUnknownFieldError};
  }
}

bool RunHeaderChecks(Form& form, Dialogs& dialogs, const std::vector<HeaderCheck>& checks) {
  const std::optional<FieldFault> fault = FirstFault(checks);
  if (!fault) return true;
  dialogs.Message(fault->message, texts::kAppTitle);
  if (fault->field.isEmpty()) return false;
  if (fault->then == OnFault::Select) {
    const int whole = static_cast<int>(form.Text(fault->field).size());
    form.Select(fault->field, fault->length < 0 ? whole : fault->length);
  } else {
    form.SetFocus(fault->field);
  }
  return false;
}

HeaderCheck FilledCheck(const Form& form, const QString& field, const QString& message,
                        OnFault then) {
  return [&form, field, message, then]() -> std::optional<FieldFault> {
    if (!form.Text(field).trimmed().isEmpty()) return std::nullopt;
    return FieldFault{field, message, then};
  };
}

HeaderCheck IntegerCheck(const Form& form, const QString& field, const QString& name, int digits,
                         bool exact, OnFault then) {
  return [&form, field, name, digits, exact, then] {
    return FaultOf(CheckInteger(form.Text(field), name, digits, exact), field, then);
  };
}

HeaderCheck DecimalCheck(const Form& form, const QString& field, const QString& name,
                         int max_int_digits, OnFault then) {
  return [&form, field, name, max_int_digits, then] {
    return FaultOf(CheckDecimal(form.Text(field), name, max_int_digits), field, then);
  };
}

HeaderCheck NamedCheck(const Form& form, const QString& field, const QString& name) {
  return [&form, field, name]() -> std::optional<FieldFault> {
    const QString text = form.Text(field);
    if (text.trimmed().isEmpty()) return std::nullopt;
    return FaultOf(CheckNoDigits(text, name), field, OnFault::Select);
  };
}

HeaderCheck DateBoxCheck(const Form& form, const QString& field, const QString& name) {
  return [&form, field, name]() -> std::optional<FieldFault> {
    const QString text = form.Text(field);
    if (DateBoxIsEmpty(text)) return std::nullopt;
    return FaultOf(CheckDate(text, name), field, OnFault::Select);
  };
}

HeaderCheck IfFilled(const Form& form, const QString& field, HeaderCheck check) {
  return [&form, field, check = std::move(check)]() -> std::optional<FieldFault> {
    if (form.Text(field).trimmed().isEmpty()) return std::nullopt;
    return check();
  };
}

HeaderCheck IntegerCheckIfFilled(const Form& form, const QString& field, const QString& name,
                                 int digits, bool exact) {
  return IfFilled(form, field, IntegerCheck(form, field, name, digits, exact, OnFault::Select));
}

HeaderCheck DateFilledCheck(const Form& form, const QString& field, const QString& message) {
  return [&form, field, message]() -> std::optional<FieldFault> {
    if (!DateBoxIsEmpty(form.Text(field))) return std::nullopt;
    return FieldFault{field, message, OnFault::Focus};
  };
}

HeaderCheck ChoiceCheck(const Form& form, const QString& field, const QString& blank,
                        const QString& wrong, const QStringList& choices) {
  return [&form, field, blank, wrong, choices]() -> std::optional<FieldFault> {
    const QString text = form.Text(field);
    if (text.trimmed().isEmpty()) return FieldFault{field, blank, OnFault::Select};
    if (choices.contains(text.toUpper())) return std::nullopt;
    return FieldFault{field, wrong, OnFault::Select};
  };
}

HeaderCheck StopDateCheck(const Form& form, const QString& field, int type_index) {
  return [&form, field, type_index]() -> std::optional<FieldFault> {
    const QString text = form.Text(field);
    constexpr int kDateLength = 10;
    if (DateBoxIsEmpty(text)) {
      if (type_index == 1) return FieldFault{field, header_texts::kStopDateBlank, OnFault::Focus};
      return std::nullopt;
    }
    switch (type_index) {
      case 1:
        return FaultOf(CheckDate(text, header_texts::kNameStopDate), field, OnFault::Select);
      case 2:
        return FieldFault{field, header_texts::kStopDateNotIn03, OnFault::Select, kDateLength};
      default:
        return FieldFault{field, header_texts::kStopDateNotIn01, OnFault::Select, kDateLength};
    }
  };
}

QString CaptionOf(const Form& form, const QString& field) {
  const QString label = (field.endsWith(u"Txt") ? field.chopped(3) : field.section(u'_', 0, 0)) +
                        QStringLiteral("Lbl");
  if (!form.Has(label) || form.Text(label).trimmed().isEmpty()) return field;
  return form.Text(label).simplified();
}

HeaderCheck CodePageCheck(const Form& form, std::function<std::vector<StoredBox>()> stored) {
  return [&form, stored = std::move(stored)]() -> std::optional<FieldFault> {
    for (const StoredBox& box : stored()) {
      const std::optional<QString> bad = FirstUnencodable(box.value);
      if (!bad) continue;
      return FieldFault{box.field, header_texts::kNotInCodePage.arg(CaptionOf(form, box.field),
                                                                    *bad, CodeOf(*bad))};
    }
    return std::nullopt;
  };
}

}  // namespace veroxia
