#include "printing/text_printer.h"

#include <cerrno>

#include "filing/volume_files.h"

namespace veroxia {

void TextPrinter::Print(const QString& text) {
  QString lines = text;
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  Write(lines.toUtf8() + '\n');
}

void TextPrinter::NewPage() { Write("\f"); }

void TextPrinter::EndDoc() {
  if (std::fflush(out_) != 0) throw PrinterError{errno, FileErrorDescription(errno)};
}

void TextPrinter::Write(const QByteArray& bytes) {
  const size_t size = static_cast<size_t>(bytes.size());
  if (std::fwrite(bytes.constData(), 1, size, out_) != size) {
    throw PrinterError{errno, FileErrorDescription(errno)};
  }
}

}  // namespace veroxia
