#include "printing/page_text.h"

#include <sqlcipher/sqlite3.h>

#include "printing/texts.h"
#include "rules/formats.h"
#include "rules/numbers.h"
#include "rules/texts.h"

namespace veroxia {

using namespace Qt::StringLiterals;
namespace pt = printing_texts;

void PageText::Begin() {
  if (started_) text_.append(u"\r\n");
  started_ = true;
}

QString PageText::Take() {
  QString page = std::move(text_);
  text_ = QString();
  text_.reserve(page.size());
  started_ = false;
  return page;
}

namespace page_values {

namespace {

// A printed label as the user reads it: "Α.Μ.Ε.:  " gives "Α.Μ.Ε.".
QString LabelName(const QString& label) {
  QString name = label.trimmed();
  if (name.endsWith(u':')) name.chop(1);
  return name;
}

}  // namespace

QString Stored(const Text& value) { return value.value_or(QString()); }

QString Required(const Text& value, const QString& label) {
  if (!value) throw StoreError{SQLITE_MISMATCH, pt::kNoValue.arg(LabelName(label))};
  return *value;
}

QString Amount(const Text& value, int width) {
  return AmountText(FieldNumber(value), width, width == 0);
}

QString Days(const Text& value) { return PadText(FieldNumber(value), 8, false); }

QString YesNo(const Text& value, const QString& label, int row_num) {
  const QString text = value.value_or(QString());
  const auto number = ReadDecimal(text);
  if (!number) {
    throw StoreError{SQLITE_MISMATCH,
                     pt::kNotANumber.arg(text, LabelName(label), QString::number(row_num))};
  }
  // Equal to 1: the digits 1 followed by zeros only, or 1 and zeros after
  // the decimal comma ("1", "1,0", "01").
  QString digits = number->digits;
  int exponent = number->exponent;
  while (exponent < 0 && digits.endsWith(u'0')) {
    digits.chop(1);
    ++exponent;
  }
  const bool one = !number->negative && digits == u"1" && exponent == 0;
  return one ? pt::kYes : pt::kNo;
}

QString TypeName(const QString& code) {
  if (code == u"02") return pt::kExtraordinary;
  if (code == u"03") return pt::kResubmission;
  return pt::kRegular;
}

QString ThreeDigits(const Text& value) { return AmountDigits(FieldText(value), 3, true); }

QString EmployerName(const Text& name, const Text& first_name, const Text& father_name) {
  return WrapText(FieldText(name) + u' ' + FieldText(first_name) + u' ' + FieldText(father_name),
                  false);
}

}  // namespace page_values

void SummaryClosing(PageText& page) {
  page.Empty(2);
  page.Line(pt::kStatement1);
  page.Line(pt::kStatement2);
  page.Empty();
  page.Line(pt::kSigners);
  page.Empty(5);
  page.Line(pt::kSubmitted);
}

void StopStatement(PageText& page, const QString& stop_date) {
  page.Line(pt::kStopStatement1, stop_date, u","_s);
  page.Line(pt::kStopStatement2);
  page.Line(pt::kStopStatement3);
  page.Line(pt::kStopStatement4);
  page.Empty(2);
  page.Line(pt::kDates1);
  page.Line(pt::kDates2);
  page.Empty();
  page.Line(pt::kSigners2);
  page.Empty(6);
  page.Line(pt::kStamps);
}

}  // namespace veroxia
