#pragma once
// A printer that writes the page texts to a stream: each line ended by a
// newline, a form feed between pages. The font plays no part.

#include <cstdio>

#include "printing/printer.h"

namespace veroxia {

class TextPrinter : public Printer {
 public:
  // Writes to `out`, which stays open and owned by the caller.
  explicit TextPrinter(std::FILE* out) : out_(out) {}

  void SetFontSize(const QString&) override {}
  void SetFontName(const QString&) override {}
  // Throws PrinterError when the stream cannot be written.
  void Print(const QString& text) override;
  void NewPage() override;
  void EndDoc() override;
  void KillDoc() override {}

 private:
  void Write(const QByteArray& bytes);
  std::FILE* out_;
};

}  // namespace veroxia
