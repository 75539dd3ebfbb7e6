#include "header/date_box.h"

#include "rules/texts.h"

namespace veroxia {

bool DateBoxIsEmpty(const QString& text) {
  QString typed = text;
  typed.remove(u'/').remove(u'_');
  return typed.trimmed().isEmpty();
}

QString DateBoxValue(const QString& text) { return DateBoxIsEmpty(text) ? QString() : text; }

QString DateBoxText(const Text& stored) {
  return FieldText(stored).isEmpty() ? kEmptyDateBox : *stored;
}

}  // namespace veroxia
