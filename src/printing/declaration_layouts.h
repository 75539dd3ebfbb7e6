#pragma once
// The page layouts of the declaration printout of each kind. Both are paged
// the same way (pages.cpp): page 1 with the header, the totals and the first
// line's block; then pages of at most two blocks under a short header; for an
// extraordinary declaration a last page with the employer's statement.

#include <QString>

#include "printing/page_text.h"
#include "store/kind.h"
#include "store/schema.h"

namespace veroxia {

struct CommonDeclaration {
  using Header = EmployerRow;
  using Line = EmployeeRow;
  static constexpr Kind kKind = Kind::Common;
  static constexpr int kFirstGap = 0;  // empty lines after the block of page 1
  static constexpr int kGap = 2;       // empty lines after each block of the later pages

  static QString Type(const Header& header);
  static void FirstPage(PageText& page, const Header& header, int pages);
  static void PageHeader(PageText& page, const Header& header, int number, int pages);
  // Throws StoreError when the full-time or all-days mark is not a number.
  static void Block(PageText& page, const Line& line);
  static void LastPage(PageText& page, const Header& header, int pages);
};

struct ConstructionDeclaration {
  using Header = ConEmployerRow;
  using Line = ConEmployeeRow;
  static constexpr Kind kKind = Kind::Construction;
  static constexpr int kFirstGap = 1;
  static constexpr int kGap = 1;

  static QString Type(const Header& header);
  static void FirstPage(PageText& page, const Header& header, int pages);
  static void PageHeader(PageText& page, const Header& header, int number, int pages);
  static void Block(PageText& page, const Line& line);
  static void LastPage(PageText& page, const Header& header, int pages);
};

}  // namespace veroxia
