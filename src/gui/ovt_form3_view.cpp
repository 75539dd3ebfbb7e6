#include "gui/header_view.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>

#include "gui/twips.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

// Room between the month and each date, captions and boxes.
constexpr int kApartTwips = 360;

}  // namespace

// Every line of fields starts with a caption in the caption column; each box
// stands beside its own caption, further pairs follow on the same line. The
// seat and the site each stand under their heading.
template <>
void OvtForm3View::ArrangeFields(QWidget& frame, QVBoxLayout&, QGridLayout& grid, int row) {
  Heading(grid, &frame, row++, u"BranchHeadingLbl"_s);
  Line(grid, &frame, row++, {{"Text2Lbl", "Text2"}, {"Text3Lbl", "Text3"}});
  Line(grid, &frame, row++, {{"Text4Lbl", "Text4"}});
  Line(grid, &frame, row++, {{"FirstNmLbl", "FirstNmTxt"}});
  Line(grid, &frame, row++, {{"FatherNmLbl", "FatherNmTxt"}});
  Heading(grid, &frame, row++, u"SeatHeadingLbl"_s);
  Line(grid, &frame, row++, {{"Text5Lbl", "Text5"}, {"Text6Lbl", "Text6"}});
  Line(grid, &frame, row++, {{"Text7Lbl", "Text7"}, {"Text8Lbl", "Text8"}});
  Line(grid, &frame, row++, {{"Text9Lbl", "Text9"}});
  Line(grid, &frame, row++,
       {{"Text10Lbl", "Text10"}, {"Text11Lbl", "Text11"}, {"Text12Lbl", "Text12"}});
  Heading(grid, &frame, row++, u"SiteHeadingLbl"_s);
  Line(grid, &frame, row++, {{"Text13Lbl", "Text13"}, {"Text14Lbl", "Text14"}});
  Line(grid, &frame, row++, {{"Text15Lbl", "Text15"}, {"Text16Lbl", "Text16"}});
  // The month and the two dates on one line, each caption over its boxes: the
  // captions are too long to stand beside them in the window's width.
  auto* dates = new QGridLayout;
  dates->setVerticalSpacing(0);
  dates->setHorizontalSpacing(TwipsX(*this, kApartTwips));
  dates->addWidget(Caption(u"Text17Lbl"_s, &frame), 0, 0);
  dates->addLayout(MonthYear(&frame, u"Text17_1"_s, u"Text17SepLbl"_s, u"Text17_2"_s), 1, 0,
                   Qt::AlignLeft);
  dates->addWidget(Caption(u"FlDateLbl"_s, &frame), 0, 1);
  dates->addWidget(Field(u"FlDateTxt"_s, &frame), 1, 1, Qt::AlignLeft);
  dates->addWidget(Caption(u"StopDateLbl"_s, &frame), 0, 2);
  dates->addWidget(Field(u"StopDateTxt"_s, &frame), 1, 2, Qt::AlignLeft);
  dates->setColumnStretch(3, 1);
  grid.addLayout(dates, row++, 0, 1, 2);
  Heading(grid, &frame, row++, u"TotalsHeadingLbl"_s);
  Line(grid, &frame, row++, {{"Text18Lbl", "Text18"}, {"Text19Lbl", "Text19"}});
  Line(grid, &frame, row++, {{"Text20Lbl", "Text20"}});
}

}  // namespace veroxia
