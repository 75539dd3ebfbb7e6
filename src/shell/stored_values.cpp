#include "shell/stored_values.h"

#include "header/date_box.h"
#include "rules/texts.h"

namespace veroxia {

QString StoredText(StoreAs how, const QString& text, const QString& first_choice) {
  switch (how) {
    case StoreAs::Clean:
      return GreekUpper(text).toUpper();
    case StoreAs::Upper: {
      // Letter by letter, so that blanks stay; a letter whose capital would
      // take a combining mark ("ΐ") loses its accent first.
      QString upper;
      upper.reserve(text.size());
      for (const QChar letter : text) {
        const QString capital = QString(letter).toUpper();
        upper += capital.size() == 1 ? capital : GreekUpper(QString(letter)).toUpper();
      }
      return upper;
    }
    case StoreAs::Date:
      return DateBoxValue(text);
    case StoreAs::Flag:
      return text.toUpper() == first_choice ? QStringLiteral("1") : QStringLiteral("0");
    case StoreAs::Text:
      break;
  }
  return text;
}

}  // namespace veroxia
