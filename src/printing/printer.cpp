#include "printing/printer.h"

#include <locale.h>
#include <string.h>

#include "filing/volume_files.h"

namespace veroxia {

PrinterError SystemPrinterError(int code) {
  static const locale_t c_locale = newlocale(LC_ALL_MASK, "C", locale_t{});
  return {code, FileErrorDescription(code, QString::fromLocal8Bit(strerror_l(code, c_locale)))};
}

}  // namespace veroxia
