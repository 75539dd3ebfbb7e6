#pragma once
// The lines of one declaration as a line screen browses them: the keys of
// every line in reading order (register number, surname, then the kind's
// further columns, as the store orders those texts) and a current position
// that may stand before the first line (BOF) or after the last (EOF). Only
// the keys are held; the line shown is read from the store when shown.

#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "store/lines.h"

namespace veroxia {

class LineSet {
 public:
  LineSet();
  ~LineSet();
  LineSet(const LineSet&) = delete;
  LineSet& operator=(const LineSet&) = delete;

  // Reads the keys afresh; the position goes to the first line (or EOF and
  // BOF together when there is none). The store must outlive the set.
  // Throws StoreError.
  void Open(Database& db, Kind kind, int id);
  // Drops the key of a line deleted through the screen, as reading the keys
  // afresh would; the position goes to the first line.
  void Remove(qint64 rowid);

  bool Empty() const { return keys_.empty(); }
  qsizetype Size() const { return static_cast<qsizetype>(keys_.size()); }
  bool Bof() const { return keys_.empty() || position_ < 0; }
  bool Eof() const { return keys_.empty() || position_ >= Size(); }
  // The key at the position; nothing at BOF or EOF.
  const LineKey* Current() const;
  qsizetype Position() const { return position_; }

  void MoveFirst() { position_ = 0; }
  void MoveTo(qsizetype position) { position_ = position; }
  void MoveLast() { position_ = Size() - 1; }
  void MoveNext();
  void MovePrevious();

  // Each find moves to the first line of the set, in reading order, that
  // matches; when none does, the position goes to EOF and the answer is
  // false. The line number is looked up in the store (throws StoreError).
  bool FindRowNum(std::optional<int> row_num);
  // The stored register number equal to the text.
  bool FindInsuredId(const QString& insured_id);
  // The stored surname beginning with the text, letter for letter: no
  // character of it is a wildcard.
  bool FindSurnamePrefix(const QString& prefix);

 private:
  struct Index;
  bool Found(std::optional<qsizetype> found);
  Index& Indexes();

  Database* db_ = nullptr;
  Kind kind_ = Kind::Common;
  int id_ = 0;
  std::vector<LineKey> keys_;
  qsizetype position_ = 0;
  std::unique_ptr<Index> index_;  // built at the first find after Open
};

}  // namespace veroxia
