#include "shell/errors.h"

#include "shell/texts.h"

namespace veroxia {

QString ErrorMessage(const QString& first_line, const StoreError& error) {
  return first_line + QStringLiteral("\r\n") + texts::kErrorCode + QString::number(error.code) +
         QStringLiteral("\r\n") +
         texts::kErrorDescription + error.description;
}

}  // namespace veroxia
