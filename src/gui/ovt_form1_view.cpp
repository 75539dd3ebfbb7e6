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
const QString kDateMask = u"99/99/9999;_"_s;

bool IsDateBox(const QString& name) { return name == u"FlDateTxt" || name == u"StopDateTxt"; }

}  // namespace

OvtForm1View::OvtForm1View(OvtForm1& form)
    : form_(form), binder_(new FormBinder(form, *this, form.FocusOrder())) {
  QFont small = font();
  small.setPointSizeF(kFontPoints);
  setFont(small);
  setWindowTitle(form_.Title());
  if (!form_.IconPath().isEmpty()) setWindowIcon(QIcon(form_.IconPath()));

  auto* layout = new QVBoxLayout(this);
  const int margin = TwipsX(*this, kMarginTwips);
  layout->setContentsMargins(margin, margin, margin, margin);
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
  // The window opens with the focus on the first control that can take it.
  for (const QString& name : form_.FocusOrder()) {
    const Control& control = form_.At(name);
    if (control.visible && control.enabled && control.tab_stop) {
      form_.GotFocus(name);
      break;
    }
  }
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
  } else if (form_.At(name).max_length <= 4) {
    FitToCharacters(*edit, form_.At(name).max_length);
  }
  binder_->Bind(name, edit);
  return edit;
}

void OvtForm1View::Pair(QGridLayout& grid, QWidget* parent, const QString& label,
                        const QString& field, int row, int column, int span) {
  grid.addWidget(Caption(label, parent), row, column);
  grid.addWidget(Field(field, parent), row, column + 1, 1, span);
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

QWidget* OvtForm1View::BuildFrame() {
  auto* frame = binder_->Add<QFrame>(u"Frame1"_s, this);
  frame->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
  auto* column = new QVBoxLayout(frame);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(TwipsX(*this, 90));
  grid->setVerticalSpacing(TwipsY(*this, 30));
  column->addLayout(grid);
  int row = 0;

  // The type row: heading, code caption, three options with their captions.
  grid->addWidget(Caption(u"TypeHeadingLbl"_s, frame), row, 0);
  auto* types = new QHBoxLayout;
  types->addWidget(Caption(u"TypeCodeLbl"_s, frame));
  for (int i = 0; i < 3; ++i) {
    auto* option = binder_->Add<QRadioButton>(u"Option1_"_s + QString::number(i), frame);
    option->setAutoExclusive(true);
    types->addWidget(option);
    types->addWidget(Caption(u"Option1Lbl_"_s + QString::number(i), frame));
  }
  types->addStretch(1);
  grid->addLayout(types, row++, 1, 1, 3);

  grid->addWidget(Caption(u"BranchHeadingLbl"_s, frame), row++, 0, 1, 4);
  Pair(*grid, frame, u"Text2Lbl"_s, u"Text2"_s, row, 0);
  Pair(*grid, frame, u"Text3Lbl"_s, u"Text3"_s, row++, 2);
  Pair(*grid, frame, u"Text4Lbl"_s, u"Text4"_s, row++, 0, 3);
  Pair(*grid, frame, u"FirstNmLbl"_s, u"FirstNmTxt"_s, row, 0);
  Pair(*grid, frame, u"FatherNmLbl"_s, u"FatherNmTxt"_s, row++, 2);
  Pair(*grid, frame, u"Text5Lbl"_s, u"Text5"_s, row, 0);
  Pair(*grid, frame, u"Text6Lbl"_s, u"Text6"_s, row++, 2);
  grid->addWidget(Caption(u"AddressHeadingLbl"_s, frame), row++, 0, 1, 4);
  Pair(*grid, frame, u"Text7Lbl"_s, u"Text7"_s, row, 0);
  Pair(*grid, frame, u"Text8Lbl"_s, u"Text8"_s, row++, 2);
  Pair(*grid, frame, u"Text9Lbl"_s, u"Text9"_s, row, 0);
  Pair(*grid, frame, u"Text10Lbl"_s, u"Text10"_s, row++, 2);

  // The period: month, "/", year, for the start and for the end.
  const auto period = [&](const QString& label, const QString& month, const QString& separator,
                          const QString& year, int at) {
    grid->addWidget(Caption(label, frame), row, at);
    auto* boxes = new QHBoxLayout;
    boxes->addWidget(Field(month, frame));
    boxes->addWidget(Caption(separator, frame));
    boxes->addWidget(Field(year, frame));
    boxes->addStretch(1);
    grid->addLayout(boxes, row, at + 1);
  };
  period(u"Text11Lbl"_s, u"Text11_1"_s, u"Text11SepLbl"_s, u"Text11_2"_s, 0);
  period(u"Text12Lbl"_s, u"Text12_1"_s, u"Text12SepLbl"_s, u"Text12_2"_s, 2);
  ++row;
  grid->addWidget(Caption(u"FlDateLbl"_s, frame), row, 0);
  grid->addWidget(Field(u"FlDateTxt"_s, frame), row, 1, Qt::AlignLeft);
  grid->addWidget(Caption(u"StopDateLbl"_s, frame), row, 2);
  grid->addWidget(Field(u"StopDateTxt"_s, frame), row++, 3, Qt::AlignLeft);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);

  column->addWidget(BuildTotals(frame));
  return frame;
}

QWidget* OvtForm1View::BuildTotals(QWidget* parent) {
  auto* totals = new QWidget(parent);
  auto* grid = new QGridLayout(totals);
  grid->setContentsMargins(0, TwipsY(*this, 60), 0, 0);
  grid->addWidget(Caption(u"Text13Lbl"_s, totals), 0, 0);
  for (int month = 1; month <= 3; ++month) {
    grid->addWidget(Field(u"Text13_"_s + QString::number(month), totals), 0, month);
  }
  grid->addWidget(Caption(u"Text17Lbl"_s, totals), 0, 4, Qt::AlignCenter);
  const char* rows[] = {"14", "15", "16"};
  for (int r = 0; r < 3; ++r) {
    const QString number = QString::fromLatin1(rows[r]);
    grid->addWidget(Caption(u"Text"_s + number + u"Lbl"_s, totals), r + 1, 0);
    for (int month = 1; month <= 3; ++month) {
      grid->addWidget(Field(u"Text"_s + number + u'_' + QString::number(month), totals), r + 1,
                      month);
    }
    grid->addWidget(Field(u"Text17_"_s + QString::number(r + 1), totals), r + 1, 4);
  }
  for (int c = 1; c <= 4; ++c) grid->setColumnStretch(c, 1);
  return totals;
}

QLayout* OvtForm1View::BuildButtons() {
  auto* row = new QHBoxLayout;
  for (const char* name : {"CreateFile", "PrintSumCmd", "PrintCmd", "QorInsert"}) {
    row->addWidget(binder_->Add<WrapButton>(QString::fromLatin1(name), this));
  }
  // "Save" and "Correct" share one place, "Return" and "Cancel" another: of
  // each pair only one is ever shown.
  for (const auto& pair : {std::pair{"SaveCmd", "UpDateCmd"}, std::pair{"ExitCmd", "CancelCmd"}}) {
    auto* place = new QWidget(this);
    auto* stack = new QHBoxLayout(place);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->addWidget(binder_->Add<WrapButton>(QString::fromLatin1(pair.first), place));
    stack->addWidget(binder_->Add<WrapButton>(QString::fromLatin1(pair.second), place));
    row->addWidget(place);
  }
  return row;
}

void OvtForm1View::closeEvent(QCloseEvent* event) {
  if (form_.QueryClose()) {
    event->accept();
  } else {
    event->ignore();
  }
}

}  // namespace veroxia
