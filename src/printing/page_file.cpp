#include "printing/page_file.h"

#include <QDir>
#include <QtEndian>
#include <cerrno>

namespace veroxia {

namespace {

// Pages of one printout repeat their labels line after line: the fastest
// compression takes them to about a tenth. A block of some forty pages is
// compressed at once, which costs little to read back for one page and
// spares setting the compressor up for each page.
constexpr int kCompression = 1;
constexpr qsizetype kBlockBytes = 256 * 1024;

[[noreturn]] void Fail() { throw SystemPrinterError(errno != 0 ? errno : EIO); }

}  // namespace

void PageFile::Print(const QString& text) {
  if (ended_) return;
  page_open_ = true;
  if (page_printed_) page_ += u"\r\n";
  page_ += text;
  page_printed_ = true;
}

void PageFile::NewPage() {
  if (ended_) return;
  page_open_ = true;  // a sheet left blank is a page too
  Keep();
  page_open_ = true;
}

void PageFile::EndDoc() {
  if (ended_) return;
  if (page_open_) Keep();
  if (!filling_.isEmpty()) WriteBlock();
  ended_ = true;
}

void PageFile::KillDoc() {
  ended_ = true;
  pages_.clear();
  blocks_.clear();
  filling_.clear();
  read_.clear();
  read_block_ = -1;
  page_.clear();
  page_open_ = page_printed_ = false;
  if (file_.isOpen()) file_.resize(0);
}

void PageFile::Keep() {
  const QByteArray bytes = page_.toUtf8();
  pages_.push_back({static_cast<int>(blocks_.size()), filling_.size(), bytes.size()});
  filling_ += bytes;
  page_.clear();
  page_open_ = page_printed_ = false;
  if (filling_.size() >= kBlockBytes) WriteBlock();
}

void PageFile::WriteBlock() {
  errno = 0;
  if (!file_.isOpen()) {
    file_.setFileTemplate(QDir::temp().filePath(QStringLiteral("veroxia-pages-XXXXXX")));
    if (!file_.open()) Fail();
  }
  const QByteArray bytes = qCompress(filling_, kCompression);
  const qint64 start = Bytes();
  if (!file_.seek(start) || file_.write(bytes) != bytes.size()) Fail();
  blocks_.push_back(start + bytes.size());
  filling_.truncate(0);
}

const QByteArray& PageFile::Block(int block) {
  if (block == static_cast<int>(blocks_.size())) return filling_;
  if (block == read_block_) return read_;
  const qint64 start = block == 0 ? 0 : blocks_[block - 1];
  const qint64 size = blocks_[block] - start;
  errno = 0;
  if (!file_.flush() || !file_.seek(start)) Fail();
  const QByteArray bytes = file_.read(size);
  if (bytes.size() != size) Fail();
  // qCompress puts the length of the text, big-endian, before its bytes.
  read_block_ = -1;
  read_ = qUncompress(bytes);
  if (size < 4 || read_.size() != qFromBigEndian<quint32>(bytes.constData())) {
    throw SystemPrinterError(EIO);
  }
  read_block_ = block;
  return read_;
}

QString PageFile::Page(int index) {
  if (index < 0 || index >= Count()) return {};
  const Place& place = pages_[index];
  return QString::fromUtf8(Block(place.block).sliced(place.start, place.length));
}

}  // namespace veroxia
