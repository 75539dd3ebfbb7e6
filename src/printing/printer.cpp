#include "printing/printer.h"

#include "filing/volume_files.h"

namespace veroxia {

PrinterError SystemPrinterError(int code) { return {code, FileErrorDescription(code)}; }

}  // namespace veroxia
