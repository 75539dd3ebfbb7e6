#include "printing/pages.h"

#include "printing/declaration_layouts.h"
#include "printing/summary_pages.h"
#include "printing/texts.h"
#include "store/declarations.h"
#include "store/rows.h"

namespace veroxia {

namespace {

template <class Header>
Header HeaderOf(Database& db, int id) {
  std::optional<Header> header = SelectHeader<Header>(db, id);
  if (!header) throw StoreError{0, printing_texts::kNoHeader};
  return std::move(*header);
}

// A printout of one page, composed at once.
class OnePage : public Pages {
 public:
  explicit OnePage(QString page) : page_(std::move(page)) {}
  int Count() const override { return 1; }
  bool Next(QString& page) override {
    if (given_) return false;
    page = std::move(page_);
    given_ = true;
    return true;
  }

 private:
  QString page_;
  bool given_ = false;
};

// The declaration printout of either kind: the lines are read in the kind's
// order while the pages are made, two blocks to a page after the first.
template <class Layout>
class DeclarationPages : public Pages {
 public:
  DeclarationPages(Database& db, int id) {
    const int lines = CountLines(db, Layout::kKind, id);
    header_ = HeaderOf<typename Layout::Header>(db, id);
    extraordinary_ = Layout::Type(header_) == u"02";
    count_ = DeclarationPageCount(lines, extraordinary_);
    const KindTables tables = TablesOf(Layout::kKind);
    const QByteArray sql = "SELECT " + detail::ColumnList(tables.lines) + " FROM " +
                           QByteArray(tables.lines) + " WHERE id = ? ORDER BY " +
                           QByteArray(tables.order);
    rows_ = &db.Prepare(sql);
    rows_->Bind(1, id);
    Step();
  }
  ~DeclarationPages() override { rows_->Reset(); }
  DeclarationPages(const DeclarationPages&) = delete;
  DeclarationPages& operator=(const DeclarationPages&) = delete;

  int Count() const override { return count_; }

  bool Next(QString& page) override {
    if (number_ == 0) {
      Layout::FirstPage(text_, header_, count_);
      if (line_) AddBlock(Layout::kFirstGap);
    } else if (line_) {
      Layout::PageHeader(text_, header_, number_ + 1, count_);
      for (int blocks = 0; blocks < 2 && line_; ++blocks) AddBlock(Layout::kGap);
    } else if (extraordinary_ && !statement_given_) {
      Layout::LastPage(text_, header_, count_);
      statement_given_ = true;
    } else {
      return false;
    }
    ++number_;
    page = text_.Take();
    return true;
  }

 private:
  void Step() {
    if (rows_->Next()) {
      line_ = RowFrom<typename Layout::Line>(*rows_);
    } else {
      line_.reset();
    }
  }
  void AddBlock(int gap) {
    Layout::Block(text_, *line_);
    text_.Empty(gap);
    Step();
  }

  typename Layout::Header header_;
  bool extraordinary_ = false;
  int count_ = 0;
  Statement* rows_ = nullptr;
  std::optional<typename Layout::Line> line_;  // the next line to print
  int number_ = 0;                             // pages given so far
  bool statement_given_ = false;
  PageText text_;
};

}  // namespace

std::unique_ptr<Pages> ComposePages(Database& db, Kind kind, Printout printout, int id) {
  if (printout == Printout::kSummary) {
    return std::make_unique<OnePage>(kind == Kind::Common
                                         ? CommonSummary(HeaderOf<EmployerRow>(db, id))
                                         : ConstructionSummary(HeaderOf<ConEmployerRow>(db, id)));
  }
  if (kind == Kind::Common) return std::make_unique<DeclarationPages<CommonDeclaration>>(db, id);
  return std::make_unique<DeclarationPages<ConstructionDeclaration>>(db, id);
}

}  // namespace veroxia
