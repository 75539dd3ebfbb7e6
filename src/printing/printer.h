#pragma once
// The printer as every printout uses it: a font given by size and name, texts
// printed one after another, pages, and the end or abandonment of the job.
// Implementations: the system printer and PDF files (through Qt, in the
// windowing layer), plain text, and a capture in tests.

#include <QString>

namespace veroxia {

// A failure of the printer: the error's number and what it means.
struct PrinterError {
  int code = 0;
  QString description;
};

// The failure of a system call that set errno to `code`: its number and what
// it means, in our words (FileErrorDescription).
PrinterError SystemPrinterError(int code);

class Printer {
 public:
  virtual ~Printer() = default;
  // Later texts are printed in the font of that size (points, as a text such
  // as "10") and name. Every printout sets the size first, then the name.
  virtual void SetFontSize(const QString& size) = 0;
  virtual void SetFontName(const QString& name) = 0;
  // Prints the text from the current position: each CR LF starts a new line,
  // and a line break follows its end.
  virtual void Print(const QString& text) = 0;
  // The next text starts on a new sheet.
  virtual void NewPage() = 0;
  // The job is complete and goes to its destination.
  virtual void EndDoc() = 0;
  // The job in progress is abandoned; only after a failure.
  virtual void KillDoc() = 0;
};

}  // namespace veroxia
