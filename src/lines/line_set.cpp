#include "lines/line_set.h"

#include <QHash>
#include <algorithm>
#include <utility>

namespace veroxia {

// Look-ups over the keys for the finds: the position of each line, the first
// line of each register number, and the surnames sorted, each with its
// line's position.
struct LineSet::Index {
  QHash<qint64, qsizetype> position_of_rowid;
  QHash<QString, qsizetype> first_of_insured;
  std::vector<std::pair<QString, qsizetype>> surnames;
};

LineSet::LineSet() = default;
LineSet::~LineSet() = default;

void LineSet::Open(Database& db, Kind kind, int id) {
  std::vector<LineKey> keys = SelectLineKeys(db, kind, id);
  db_ = &db;
  kind_ = kind;
  id_ = id;
  keys_ = std::move(keys);
  index_.reset();
  position_ = 0;
}

void LineSet::Remove(qint64 rowid) {
  const auto it = std::find_if(keys_.begin(), keys_.end(),
                               [rowid](const LineKey& key) { return key.rowid == rowid; });
  if (it != keys_.end()) keys_.erase(it);
  index_.reset();
  position_ = 0;
}

const LineKey* LineSet::Current() const {
  if (Bof() || Eof()) return nullptr;
  return &keys_[static_cast<size_t>(position_)];
}

void LineSet::MoveNext() {
  if (position_ < Size()) ++position_;
}

void LineSet::MovePrevious() {
  if (position_ >= 0) --position_;
}

bool LineSet::Found(std::optional<qsizetype> found) {
  position_ = found ? *found : Size();
  return found.has_value();
}

LineSet::Index& LineSet::Indexes() {
  if (index_) return *index_;
  index_ = std::make_unique<Index>();
  index_->surnames.reserve(keys_.size());
  for (qsizetype i = 0; i < Size(); ++i) {
    const LineKey& key = keys_[static_cast<size_t>(i)];
    index_->position_of_rowid.insert(key.rowid, i);
    if (key.insured_id && !index_->first_of_insured.contains(*key.insured_id)) {
      index_->first_of_insured.insert(*key.insured_id, i);
    }
    if (key.surname) index_->surnames.emplace_back(*key.surname, i);
  }
  std::sort(index_->surnames.begin(), index_->surnames.end());
  return *index_;
}

bool LineSet::FindRowNum(std::optional<int> row_num) {
  if (db_ == nullptr) return Found(std::nullopt);
  const auto& position_of = Indexes().position_of_rowid;
  std::optional<qsizetype> best;
  for (const qint64 rowid : RowidsOfRowNum(*db_, kind_, id_, row_num)) {
    const auto it = position_of.constFind(rowid);  // absent: stored behind the screen
    if (it != position_of.constEnd() && (!best || it.value() < *best)) best = it.value();
  }
  return Found(best);
}

bool LineSet::FindInsuredId(const QString& insured_id) {
  const auto& first_of = Indexes().first_of_insured;
  const auto it = first_of.constFind(insured_id);
  return Found(it == first_of.constEnd() ? std::nullopt : std::optional<qsizetype>(it.value()));
}

bool LineSet::FindSurnamePrefix(const QString& prefix) {
  const auto& surnames = Indexes().surnames;
  auto it =
      std::lower_bound(surnames.begin(), surnames.end(), prefix,
                       [](const auto& entry, const QString& text) { return entry.first < text; });
  std::optional<qsizetype> best;
  for (; it != surnames.end() && it->first.startsWith(prefix); ++it) {
    if (!best || it->second < *best) best = it->second;
  }
  return Found(best);
}

}  // namespace veroxia
