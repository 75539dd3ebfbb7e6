#include "gui/paper/pdf_printer.h"

#include <QFileInfo>
#include <QPdfWriter>
#include <cerrno>

namespace veroxia {

PdfPrinter::PdfPrinter(const QString& path, const std::optional<PdfPage>& page)
    : file_(std::make_unique<QSaveFile>(path)), writer_(std::make_unique<QPdfWriter>(file_.get())) {
  if (page) {
    writer_->setResolution(page->resolution);
    writer_->setPageLayout(page->layout);
  }
  paper_ = std::make_unique<PainterPrinter>(*writer_);
}

PdfPrinter::~PdfPrinter() {
  // Painting ends before the file goes, and with it a file not committed.
  paper_.reset();
  writer_.reset();
}

QPageLayout PdfPrinter::PageLayout() const { return writer_->pageLayout(); }

int PdfPrinter::Resolution() const { return writer_->resolution(); }

void PdfPrinter::Open() {
  if (file_->isOpen() || ended_) return;
  errno = 0;
  if (!file_->open(QIODevice::WriteOnly)) Fail(errno);
}

void PdfPrinter::Fail(int saved_errno) {
  if (saved_errno == 0) {
    // Refused by Qt before asking the system: a directory, or a file that
    // may not be written.
    saved_errno = QFileInfo(file_->fileName()).isDir() ? EISDIR : EACCES;
  }
  throw SystemPrinterError(saved_errno);
}

void PdfPrinter::SetFontSize(const QString& size) {
  Open();
  paper_->SetFontSize(size);
}

void PdfPrinter::SetFontName(const QString& name) {
  Open();
  paper_->SetFontName(name);
}

void PdfPrinter::Print(const QString& text) {
  Open();
  paper_->Print(text);
}

void PdfPrinter::NewPage() {
  Open();
  paper_->NewPage();
}

void PdfPrinter::EndDoc() {
  Open();
  if (ended_) return;
  paper_->EndDoc();
  ended_ = true;
  errno = 0;
  if (!file_->commit()) Fail(errno);
}

void PdfPrinter::KillDoc() {
  ended_ = true;
  paper_->KillDoc();
  if (!file_->isOpen()) return;
  file_->cancelWriting();
  file_->commit();  // removes what was written
}

}  // namespace veroxia
