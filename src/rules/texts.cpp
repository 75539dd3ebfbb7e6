#include "rules/texts.h"

#include <QFileInfo>

namespace veroxia {

QString FieldText(const std::optional<QString>& value) {
  return value ? value->trimmed() : QString();
}

QString FieldNumber(const std::optional<QString>& value) {
  return value ? *value : QStringLiteral("0");
}

QString GreekUpper(const QString& text) {
  // Accented vowels, small then capital, and what each becomes. The
  // comparison ignores case, so the small ones already catch the capitals.
  static const QString accented = QStringLiteral("άέόίήύώΆΈΌΊΉΎΏ");
  static const QString plain = QStringLiteral("αεοιηυωαεοιηυω");
  QString result = text.trimmed();
  if (result.isEmpty()) return result;
  for (qsizetype i = 0; i < accented.size(); ++i) {
    result.replace(accented[i], plain[i], Qt::CaseInsensitive);
  }
  return result;
}

bool FileExists(const QString& path) {
  if (path.isEmpty()) return false;
  const QFileInfo info(path);
  return info.exists() && info.isFile() && !info.isHidden();
}

}  // namespace veroxia
