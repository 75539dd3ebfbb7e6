#pragma once
// The printer as a PDF file. The file is written beside its final name and
// takes that name only when the job ends: no half-written PDF is ever left,
// and a file of that name from before stays as it was until then. An
// abandoned job leaves nothing.
//
// Its pages are those of a QPrinter with no printer behind it (the preview's
// "print to file"): A4, upright, margins of 10 points, 1200 dots an inch.
// Qt's PDF writer and such a QPrinter share one PDF engine and with it these
// defaults, so nothing is set here; the view tests hold them together.

#include <QPageLayout>
#include <QSaveFile>
#include <QString>
#include <memory>
#include <optional>

#include "gui/paper/painter_printer.h"

class QPdfWriter;

namespace veroxia {

// The page a QPrinter gives when it prints to a file.
struct PdfPage {
  QPageLayout layout;
  int resolution = 0;  // dots an inch
};

class PdfPrinter : public Printer {
 public:
  // The file is opened with the first call; a path that cannot be written
  // fails it with the system's error number (errno) and words for it.
  explicit PdfPrinter(const QString& path, const std::optional<PdfPage>& page = std::nullopt);
  ~PdfPrinter() override;
  PdfPrinter(const PdfPrinter&) = delete;
  PdfPrinter& operator=(const PdfPrinter&) = delete;

  void SetFontSize(const QString& size) override;
  void SetFontName(const QString& name) override;
  void Print(const QString& text) override;
  void NewPage() override;
  void EndDoc() override;
  void KillDoc() override;

  const QFont& Font() const { return paper_->Font(); }
  // The geometry its pages are drawn with.
  QPageLayout PageLayout() const;
  int Resolution() const;

 private:
  void Open();
  [[noreturn]] void Fail(int saved_errno);

  std::unique_ptr<QSaveFile> file_;
  std::unique_ptr<QPdfWriter> writer_;
  std::unique_ptr<PainterPrinter> paper_;
  bool ended_ = false;  // committed or abandoned
};

}  // namespace veroxia
