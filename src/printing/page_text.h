#pragma once
// What the page composers share: a page built line by line, the values as
// the printouts show them, and the statement blocks both kinds print.

#include <QString>

#include "store/database.h"

namespace veroxia {

class PageText {
 public:
  PageText() { text_.reserve(4096); }
  // A line made of the pieces, joined with nothing in between. A piece may
  // hold CR LF itself (a wrapped value): it then continues on a new line.
  template <class... Pieces>
  void Line(const Pieces&... pieces) {
    Begin();
    (text_.append(pieces), ...);
  }
  void Empty(int count = 1) {
    for (int i = 0; i < count; ++i) Begin();
  }
  // The page so far, leaving the builder empty.
  QString Take();

 private:
  void Begin();
  QString text_;
  bool started_ = false;
};

namespace page_values {

// The stored text as stored: Null gives an empty text.
QString Stored(const Text& value);
// The stored text as stored; a Null cannot be printed and fails with a
// store error that names the item by its printed label.
QString Required(const Text& value, const QString& label);
// "##,##0.00", right-aligned in `width` (0: not padded); Null prints 0,00.
QString Amount(const Text& value, int width = 0);
// A number of days right-aligned in 8; Null prints 0.
QString Days(const Text& value);
// "ΝΑΙ" when the stored text reads as the number 1, "ΟΧΙ" for any other
// number; a text that is not a number (empty or Null) fails with a store
// error naming the item and the line.
QString YesNo(const Text& value, const QString& label, int row_num);
// The name of a declaration type: extraordinary (02), resubmission (03) or
// regular (anything else).
QString TypeName(const QString& code);
// A text of three digits with leading zeros, as the branch code is shown.
QString ThreeDigits(const Text& value);
// Name, first name and father's name, broken once after 60 characters.
QString EmployerName(const Text& name, const Text& first_name, const Text& father_name);

}  // namespace page_values

// The closing block of both summary forms, from the two empty lines before
// the employer's statement to the submission-date line.
void SummaryClosing(PageText& page);
// The statement of an extraordinary declaration that no one is employed any
// more from the stop date, with the date and signature lines.
void StopStatement(PageText& page, const QString& stop_date);

}  // namespace veroxia
