#include "gui/header_view.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>

#include "gui/fields.h"
#include "gui/form_binder.h"
#include "gui/twips.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

}  // namespace

// Every line of fields starts with a caption in the caption column; each box
// stands beside its own caption, a second pair follows on the same line.
template <>
void OvtForm1View::ArrangeFields(QWidget& frame, QVBoxLayout& column, QGridLayout& grid, int row) {
  Heading(grid, &frame, row++, u"BranchHeadingLbl"_s);
  Line(grid, &frame, row++, {{"Text2Lbl", "Text2"}, {"Text3Lbl", "Text3"}});
  Line(grid, &frame, row++, {{"Text4Lbl", "Text4"}});
  Line(grid, &frame, row++, {{"FirstNmLbl", "FirstNmTxt"}});
  Line(grid, &frame, row++, {{"FatherNmLbl", "FatherNmTxt"}});
  Line(grid, &frame, row++, {{"Text5Lbl", "Text5"}, {"Text6Lbl", "Text6"}});
  Heading(grid, &frame, row++, u"AddressHeadingLbl"_s);
  Line(grid, &frame, row++, {{"Text7Lbl", "Text7"}, {"Text8Lbl", "Text8"}});
  Line(grid, &frame, row++, {{"Text9Lbl", "Text9"}, {"Text10Lbl", "Text10"}});

  // The period, on a line of its own for its long captions: month, "/",
  // year, for the start and for the end.
  auto* period = new QHBoxLayout;
  period->setSpacing(0);
  period->addWidget(Caption(u"Text11Lbl"_s, &frame));
  period->addSpacing(grid.horizontalSpacing());
  period->addLayout(MonthYear(&frame, u"Text11_1"_s, u"Text11SepLbl"_s, u"Text11_2"_s));
  period->addSpacing(2 * grid.horizontalSpacing());
  period->addWidget(Caption(u"Text12Lbl"_s, &frame));
  period->addSpacing(grid.horizontalSpacing());
  period->addLayout(MonthYear(&frame, u"Text12_1"_s, u"Text12SepLbl"_s, u"Text12_2"_s));
  period->addStretch(1);
  grid.addLayout(period, row++, 0, 1, 2);
  Line(grid, &frame, row++, {{"FlDateLbl", "FlDateTxt"}, {"StopDateLbl", "StopDateTxt"}});

  // The table of months under the grid: the month labels, then days,
  // earnings and contributions by month, each row ending in its total.
  auto* totals = new QWidget(&frame);
  auto* table = new QGridLayout(totals);
  table->setContentsMargins(0, TwipsY(*this, 60), 0, 0);
  const QStringList cells[] = {
      {u"Text13_1"_s, u"Text13_2"_s, u"Text13_3"_s},
      {u"Text14_1"_s, u"Text14_2"_s, u"Text14_3"_s, u"Text17_1"_s},
      {u"Text15_1"_s, u"Text15_2"_s, u"Text15_3"_s, u"Text17_2"_s},
      {u"Text16_1"_s, u"Text16_2"_s, u"Text16_3"_s, u"Text17_3"_s},
  };
  const QString captions[] = {u"Text13Lbl"_s, u"Text14Lbl"_s, u"Text15Lbl"_s, u"Text16Lbl"_s};
  // The columns of the table are as wide as its longest box.
  int widest = 0;
  for (const QStringList& cell_row : cells) {
    for (const QString& name : cell_row) widest = std::max(widest, Form().At(name).max_length);
  }
  for (int r = 0; r < 4; ++r) {
    table->addWidget(Caption(captions[r], totals), r, 0);
    for (int c = 0; c < cells[r].size(); ++c) {
      auto* edit = new QLineEdit(totals);  // owned by totals
      FitToCharacters(*edit, widest);
      Binder().Bind(cells[r][c], edit);
      table->addWidget(edit, r, c + 1);
    }
  }
  table->addWidget(Caption(u"Text17Lbl"_s, totals), 0, 4, Qt::AlignCenter);
  table->setColumnStretch(5, 1);
  column.addWidget(totals);
}

}  // namespace veroxia
