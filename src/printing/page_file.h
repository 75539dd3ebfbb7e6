#pragma once
// A printer that keeps the pages it is given, so that any one of them can be
// read back at once, whatever their number, in little memory: the pages' texts
// are compressed, a few dozen pages at a time, into a temporary file that is
// removed with it, and only where each page lies is kept in memory. The print
// preview shows its pages from one.

#include <QString>
#include <QTemporaryFile>
#include <vector>

#include "printing/printer.h"

namespace veroxia {

class PageFile : public Printer {
 public:
  PageFile() = default;
  PageFile(const PageFile&) = delete;
  PageFile& operator=(const PageFile&) = delete;

  // The font is kept as it was last set: the printouts set it before their
  // first text, for the whole document.
  void SetFontSize(const QString& size) override { font_size_ = size; }
  void SetFontName(const QString& name) override { font_name_ = name; }
  // The text goes on the page being printed, after what it holds already.
  // Throws PrinterError when the temporary file cannot be made or written.
  void Print(const QString& text) override;
  void NewPage() override;
  void EndDoc() override;
  // Forgets every page.
  void KillDoc() override;

  // The pages kept so far: those before the one being printed, and every
  // one once the document has ended.
  int Count() const { return static_cast<int>(pages_.size()); }
  // The text of the page at that index (from 0) as it was printed, its
  // texts joined by CR LF. Throws PrinterError when it cannot be read back.
  QString Page(int index);
  // The bytes the pages take in the file.
  qint64 Bytes() const { return blocks_.empty() ? 0 : blocks_.back(); }

  const QString& FontSize() const { return font_size_; }
  const QString& FontName() const { return font_name_; }

 private:
  // Where a page's text lies: its block, and its bytes in the block.
  struct Place {
    int block;
    qsizetype start;
    qsizetype length;
  };
  void Keep();
  void WriteBlock();
  const QByteArray& Block(int block);

  QString font_size_;
  QString font_name_;
  QTemporaryFile file_;
  std::vector<Place> pages_;
  std::vector<qint64> blocks_;  // where each written block ends in the file
  QByteArray filling_;          // the block being filled, not yet written
  int read_block_ = -1;         // the block read back last, kept
  QByteArray read_;
  QString page_;  // the page being printed
  bool page_open_ = false;
  bool page_printed_ = false;  // some text is on the page being printed
  bool ended_ = false;
};

}  // namespace veroxia
