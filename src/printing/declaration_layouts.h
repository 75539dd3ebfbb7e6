#pragma once
// The page layouts of the declaration printout of each kind. Both are paged
// the same way (pages.cpp): page 1 with the header, the totals and the first
// line's block; then pages of at most two blocks under a short header; for an
// extraordinary declaration a last page with the employer's statement.

#include <QString>

#include "printing/page_text.h"
#include "printing/texts.h"
#include "rules/texts.h"
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

// The lines both kinds' blocks share: the person (the AMKA label differs
// between the two), and the three contributions.
template <class Line>
void PersonLines(PageText& page, const Line& l, const QString& amka_label) {
  namespace pt = printing_texts;
  page.Line(pt::kInsuredId, FieldText(l.insured_id));
  page.Line(amka_label, FieldText(l.amka));
  page.Line(pt::kSurname, FieldText(l.surname));
  page.Line(pt::kName, FieldText(l.name));
  page.Line(pt::kFather, FieldText(l.father_name));
  page.Line(pt::kMother, FieldText(l.mother_name));
  page.Line(pt::kBirth, FieldText(l.birth_date));
  page.Line(pt::kAfm, FieldText(l.taxation_id));
}

template <class Line>
void ContributionLines(PageText& page, const Line& l) {
  namespace pt = printing_texts;
  page.Line(pt::kInsuredContr, page_values::Amount(l.insured_contr));
  page.Line(pt::kEmployerContr, page_values::Amount(l.employer_contr));
  page.Line(pt::kTotalContr, page_values::Amount(l.total_contr));
}

}  // namespace veroxia
