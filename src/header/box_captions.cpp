#include "header/box_captions.h"

#include "header/ovt_form1.h"
#include "header/ovt_form3.h"
#include "lines/line_kinds.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

// The label beside a control: "Text18_1" and "Text18_2" share "Text18Lbl",
// "FlDateTxt" has "FlDateLbl".
QString LabelOf(QString control) {
  if (control.endsWith(u"Txt"_s)) control.chop(3);
  return control.section(u'_', 0, 0) + u"Lbl"_s;
}

template <class Layout>
QString CaptionIn(const Layout& layout, const QString& column) {
  for (const auto& field : layout.fields) {
    if (field.column.compare(column, Qt::CaseInsensitive) != 0) continue;
    const QString label = LabelOf(field.name);
    for (const auto& caption : layout.captions) {
      if (caption.name == label) return caption.text.simplified();
    }
  }
  return column;
}

}  // namespace

BoxCaption BoxCaptionsOf(Kind kind) {
  const HeaderLayout& header =
      kind == Kind::Common ? OvtForm1::CommonLayout() : OvtForm3::ConstructionLayout();
  const LinesLayout& lines = LinesLayoutOf(kind);
  return [&header, &lines](bool in_header, const QString& column) {
    return in_header ? CaptionIn(header, column) : CaptionIn(lines, column);
  };
}

}  // namespace veroxia
