#include "gui/ovt_form1_view.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QFrame>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "gui/fields.h"
#include "gui/form_binder.h"
#include "gui/twips.h"
#include "gui/wrap_button.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

constexpr double kFontPoints = 8.0;
constexpr int kMarginTwips = 90;
constexpr int kDateBoxChars = 10;
// Room between one type option with its caption and the next.
constexpr int kOptionGapTwips = 360;
// Room on either side of the "/" between a month and a year.
constexpr int kCloseTwips = 30;
const QString kDateMask = u"99/99/9999;_"_s;

bool IsDateBox(const QString& name) { return name == u"FlDateTxt" || name == u"StopDateTxt"; }

}  // namespace

OvtForm1View::OvtForm1View(OvtForm1& form)
    : form_(form), binder_(new FormBinder(form, *this, form.FocusOrder())) {
  QVBoxLayout* layout =
      DressWindow(*this, kFontPoints, form_.Title(), form_.IconPath(), kMarginTwips);
  layout->addWidget(BuildTop());
  layout->addWidget(BuildFrame(), 1);
  layout->addLayout(BuildButtons());

  // Controls the window shows nowhere (hidden boxes and captions) still get a
  // widget, so that every control has one and stays hidden.
  for (const QString& name : binder_->Unbound()) {
    auto* hidden = binder_->Add<QLabel>(name, this);
    hidden->hide();
  }

  for (int i = 0; i < 3; ++i) {
    binder_->OnClick(u"Option1_"_s + QString::number(i), [this, i] { form_.Option1_Click(i); });
  }
  binder_->OnClick(u"SaveCmd"_s, [this] { form_.SaveCmd_Click(); });
  binder_->OnClick(u"UpDateCmd"_s, [this] { form_.UpDateCmd_Click(); });
  binder_->OnClick(u"CancelCmd"_s, [this] { form_.CancelCmd_Click(); });
  binder_->OnClick(u"ExitCmd"_s, [this] { form_.ExitCmd_Click(); });
  binder_->OnClick(u"QorInsert"_s, [this] { form_.QorInsert_Click(); });
  binder_->OnClick(u"PrintCmd"_s, [this] { form_.PrintCmd_Click(); });
  binder_->OnClick(u"PrintSumCmd"_s, [this] { form_.PrintSumCmd_Click(); });
  binder_->OnClick(u"CreateFile"_s, [this] { form_.CreateFile_Click(); });
  binder_->OnFocus([this](const QString& name) { form_.GotFocus(name); });
  binder_->FocusFirst();
  // The options show the selected type after every event.
  binder_->OnMirror([this] {
    for (int i = 0; i < 3; ++i) {
      auto* option =
          qobject_cast<QRadioButton*>(binder_->Widget(u"Option1_"_s + QString::number(i)));
      if (option != nullptr) option->setChecked(i == form_.SelectedType());
    }
  });
  binder_->Mirror();
  FixWindow(*this, OvtForm1::kLeftTwips, OvtForm1::kTopTwips, OvtForm1::kWidthTwips,
            OvtForm1::kHeightTwips);
}

QLabel* OvtForm1View::Caption(const QString& name, QWidget* parent) {
  auto* label = binder_->Add<QLabel>(name, parent);
  label->setWordWrap(false);
  return label;
}

QWidget* OvtForm1View::Field(const QString& name, QWidget* parent) {
  auto* edit = new QLineEdit(parent);  // owned by parent
  if (IsDateBox(name)) {
    edit->setInputMask(kDateMask);
    FitToCharacters(*edit, kDateBoxChars);
  }
  binder_->Bind(name, edit);  // sized from its maximum length unless sized here
  return edit;
}

void OvtForm1View::Line(QGridLayout& grid, QWidget* parent, int row,
                        std::initializer_list<std::pair<const char*, const char*>> pairs) {
  auto* boxes = new QHBoxLayout;
  boxes->setSpacing(grid.horizontalSpacing());
  bool first = true;
  for (const auto& [label, field] : pairs) {
    QLabel* caption = Caption(QString::fromLatin1(label), parent);
    if (first) {
      grid.addWidget(caption, row, 0);
    } else {
      boxes->addSpacing(grid.horizontalSpacing());
      boxes->addWidget(caption);
    }
    first = false;
    QWidget* box = Field(QString::fromLatin1(field), parent);
    // A box that can grow takes the room before the empty end of the line.
    const bool grows = box->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
    boxes->addWidget(box, grows ? 1 : 0);
  }
  boxes->addStretch(0);
  grid.addLayout(boxes, row, 1);
}

QWidget* OvtForm1View::BuildTop() {
  auto* top = new QWidget(this);
  auto* row = new QHBoxLayout(top);
  row->setContentsMargins(0, 0, 0, 0);
  QLabel* heading = Caption(u"HeadingLbl"_s, top);
  QFont bold = heading->font();
  bold.setBold(true);
  bold.setPointSizeF(kFontPoints + 3);
  heading->setFont(bold);
  row->addWidget(heading, 1, Qt::AlignVCenter);
  auto* img = binder_->Add<QLabel>(u"Img"_s, top);
  if (!form_.ImagePath().isEmpty()) {
    QPixmap picture(form_.ImagePath());
    const QSize room = TwipsSize(*this, 3600, 700);
    if (picture.width() > room.width() || picture.height() > room.height()) {
      picture = picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    img->setPixmap(picture);
  }
  row->addWidget(img, 0, Qt::AlignRight);
  return top;
}

// Every line of fields starts with a caption in the caption column; each box
// stands beside its own caption, a second pair follows on the same line.
QWidget* OvtForm1View::BuildFrame() {
  auto* frame = binder_->Add<QFrame>(u"Frame1"_s, this);
  frame->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
  auto* column = new QVBoxLayout(frame);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(TwipsX(*this, 90));
  grid->setVerticalSpacing(TwipsY(*this, 30));
  column->addLayout(grid);
  int row = 0;

  // The type line, across the caption column for its room: heading, code
  // caption, then each option with its caption right after it, the three
  // apart.
  auto* types = new QHBoxLayout;
  types->setSpacing(0);
  types->addWidget(Caption(u"TypeHeadingLbl"_s, frame));
  types->addSpacing(TwipsX(*this, kOptionGapTwips));
  types->addWidget(Caption(u"TypeCodeLbl"_s, frame));
  for (int i = 0; i < 3; ++i) {
    auto* option = binder_->Add<QRadioButton>(u"Option1_"_s + QString::number(i), frame);
    option->setAutoExclusive(true);
    types->addSpacing(TwipsX(*this, kOptionGapTwips));
    types->addLayout(
        CaptionedOption(*option, *Caption(u"Option1Lbl_"_s + QString::number(i), frame)));
  }
  types->addStretch(1);
  grid->addLayout(types, row++, 0, 1, 2);

  grid->addWidget(Caption(u"BranchHeadingLbl"_s, frame), row++, 0, 1, 2);
  Line(*grid, frame, row++, {{"Text2Lbl", "Text2"}, {"Text3Lbl", "Text3"}});
  Line(*grid, frame, row++, {{"Text4Lbl", "Text4"}});
  Line(*grid, frame, row++, {{"FirstNmLbl", "FirstNmTxt"}});
  Line(*grid, frame, row++, {{"FatherNmLbl", "FatherNmTxt"}});
  Line(*grid, frame, row++, {{"Text5Lbl", "Text5"}, {"Text6Lbl", "Text6"}});
  grid->addWidget(Caption(u"AddressHeadingLbl"_s, frame), row++, 0, 1, 2);
  Line(*grid, frame, row++, {{"Text7Lbl", "Text7"}, {"Text8Lbl", "Text8"}});
  Line(*grid, frame, row++, {{"Text9Lbl", "Text9"}, {"Text10Lbl", "Text10"}});

  // The period, on a line of its own for its long captions: month, "/",
  // year, for the start and for the end.
  auto* period = new QHBoxLayout;
  period->setSpacing(0);
  const int close = TwipsX(*this, kCloseTwips);
  const auto month_year = [&](const QString& label, const QString& month, const QString& separator,
                              const QString& year) {
    period->addWidget(Caption(label, frame));
    period->addSpacing(grid->horizontalSpacing());
    period->addWidget(Field(month, frame));
    period->addSpacing(close);
    period->addWidget(Caption(separator, frame));
    period->addSpacing(close);
    period->addWidget(Field(year, frame));
  };
  month_year(u"Text11Lbl"_s, u"Text11_1"_s, u"Text11SepLbl"_s, u"Text11_2"_s);
  period->addSpacing(2 * grid->horizontalSpacing());
  month_year(u"Text12Lbl"_s, u"Text12_1"_s, u"Text12SepLbl"_s, u"Text12_2"_s);
  period->addStretch(1);
  grid->addLayout(period, row++, 0, 1, 2);
  Line(*grid, frame, row++, {{"FlDateLbl", "FlDateTxt"}, {"StopDateLbl", "StopDateTxt"}});
  grid->setColumnStretch(1, 1);

  column->addWidget(BuildTotals(frame));
  return frame;
}

QWidget* OvtForm1View::BuildTotals(QWidget* parent) {
  auto* totals = new QWidget(parent);
  auto* grid = new QGridLayout(totals);
  grid->setContentsMargins(0, TwipsY(*this, 60), 0, 0);
  // The month labels, then days, earnings and contributions by month, each
  // row ending in its total.
  const QStringList cells[] = {
      {u"Text13_1"_s, u"Text13_2"_s, u"Text13_3"_s},
      {u"Text14_1"_s, u"Text14_2"_s, u"Text14_3"_s, u"Text17_1"_s},
      {u"Text15_1"_s, u"Text15_2"_s, u"Text15_3"_s, u"Text17_2"_s},
      {u"Text16_1"_s, u"Text16_2"_s, u"Text16_3"_s, u"Text17_3"_s},
  };
  const QString captions[] = {u"Text13Lbl"_s, u"Text14Lbl"_s, u"Text15Lbl"_s, u"Text16Lbl"_s};
  // The columns of the table are as wide as its longest box.
  int widest = 0;
  for (const QStringList& row : cells) {
    for (const QString& name : row) widest = std::max(widest, form_.At(name).max_length);
  }
  for (int r = 0; r < 4; ++r) {
    grid->addWidget(Caption(captions[r], totals), r, 0);
    for (int c = 0; c < cells[r].size(); ++c) {
      auto* edit = new QLineEdit(totals);  // owned by totals
      FitToCharacters(*edit, widest);
      binder_->Bind(cells[r][c], edit);
      grid->addWidget(edit, r, c + 1);
    }
  }
  grid->addWidget(Caption(u"Text17Lbl"_s, totals), 0, 4, Qt::AlignCenter);
  grid->setColumnStretch(5, 1);
  return totals;
}

QLayout* OvtForm1View::BuildButtons() {
  auto* row = new QHBoxLayout;
  for (const char* name : {"CreateFile", "PrintSumCmd", "PrintCmd", "QorInsert"}) {
    row->addWidget(binder_->Add<WrapButton>(QString::fromLatin1(name), this));
  }
  // "Save" and "Correct" share one place, "Return" and "Cancel" another.
  row->addWidget(binder_->SharedPlace<WrapButton>(u"SaveCmd"_s, u"UpDateCmd"_s, this));
  row->addWidget(binder_->SharedPlace<WrapButton>(u"ExitCmd"_s, u"CancelCmd"_s, this));
  return row;
}

void OvtForm1View::closeEvent(QCloseEvent* event) { event->setAccepted(form_.QueryClose()); }

}  // namespace veroxia
