#include "gui/header_view.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QFrame>
#include <QGridLayout>
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
// Room between one type option with its caption and the next.
constexpr int kOptionGapTwips = 360;
// Room on either side of the "/" between a month and a year.
constexpr int kCloseTwips = 30;

QString OptionName(int index) { return u"Option1_"_s + QString::number(index); }

bool IsDateBox(const HeaderLayout& layout, const QString& name) {
  for (const HeaderField& field : layout.fields) {
    if (field.name == name) return field.insert_as == StoreAs::Date;
  }
  return false;
}

}  // namespace

HeaderView::HeaderView(HeaderForm& form)
    : form_(form), binder_(new FormBinder(form, *this, form.FocusOrder())) {}

void HeaderView::Build(QRect twips) {
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
  Wire();
  FixWindow(*this, twips.left(), twips.top(), twips.width(), twips.height());
}

void HeaderView::Wire() {
  for (int i = 0; i < 3; ++i)
    binder_->OnClick(OptionName(i), [this, i] { form_.Option1_Click(i); });
  binder_->OnClick(u"SaveCmd"_s, [this] { form_.SaveCmd_Click(); });
  binder_->OnClick(u"UpDateCmd"_s, [this] { form_.UpDateCmd_Click(); });
  binder_->OnClick(u"CancelCmd"_s, [this] { form_.CancelCmd_Click(); });
  binder_->OnClick(u"ExitCmd"_s, [this] { form_.ExitCmd_Click(); });
  binder_->OnClick(form_.Layout().lines_button, [this] { form_.OpenLines(); });
  binder_->OnClick(u"PrintCmd"_s, [this] { form_.PrintCmd_Click(); });
  binder_->OnClick(u"PrintSumCmd"_s, [this] { form_.PrintSumCmd_Click(); });
  binder_->OnClick(u"CreateFile"_s, [this] { form_.CreateFile_Click(); });
  binder_->OnClick(u"TotalsCmd"_s, [this] { form_.TotalsCmd_Click(); });
  binder_->OnClick(u"VolumesCmd"_s, [this] { form_.VolumesCmd_Click(); });
  binder_->OnFocus([this](const QString& name) { form_.GotFocus(name); });
  binder_->FocusFirst();
  // The options show the selected type after every event.
  binder_->OnMirror([this] {
    for (int i = 0; i < 3; ++i) {
      auto* option = qobject_cast<QRadioButton*>(binder_->Widget(OptionName(i)));
      if (option != nullptr) option->setChecked(i == form_.SelectedType());
    }
  });
  binder_->Mirror();
}

QLabel* HeaderView::Caption(const QString& name, QWidget* parent) {
  auto* label = binder_->Add<QLabel>(name, parent);
  label->setWordWrap(false);
  return label;
}

QWidget* HeaderView::Field(const QString& name, QWidget* parent) {
  auto* edit = new QLineEdit(parent);  // owned by parent
  if (IsDateBox(form_.Layout(), name)) {
    MakeDateBox(*edit);
  }
  binder_->Bind(name, edit);  // sized from its maximum length unless sized here
  return edit;
}

void HeaderView::Line(QGridLayout& grid, QWidget* parent, int row,
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

void HeaderView::Heading(QGridLayout& grid, QWidget* parent, int row, const QString& name) {
  grid.addWidget(Caption(name, parent), row, 0, 1, 2);
}

QLayout* HeaderView::MonthYear(QWidget* parent, const QString& month, const QString& separator,
                               const QString& year) {
  auto* boxes = new QHBoxLayout;
  boxes->setSpacing(TwipsX(*this, kCloseTwips));
  boxes->addWidget(Field(month, parent));
  boxes->addWidget(Caption(separator, parent));
  boxes->addWidget(Field(year, parent));
  return boxes;
}

QWidget* HeaderView::BuildTop() {
  auto* top = new QWidget(this);
  auto* row = new QHBoxLayout(top);
  row->setContentsMargins(0, 0, 0, 0);
  QLabel* heading = Caption(u"HeadingLbl"_s, top);
  QFont bold = heading->font();
  bold.setBold(true);
  bold.setPointSizeF(kFontPoints + 3);
  heading->setFont(bold);
  row->addWidget(heading, 1, Qt::AlignVCenter);
  // The checks before filing sit beside the heading: the row of buttons
  // below is full.
  auto* checks = new QVBoxLayout;
  checks->setSpacing(TwipsY(*this, 30));
  checks->addWidget(binder_->Add<QPushButton>(u"TotalsCmd"_s, top));
  checks->addWidget(binder_->Add<QPushButton>(u"VolumesCmd"_s, top));
  row->addLayout(checks);
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

// The type line leads the frame, across the caption column for its room:
// heading, code caption, then each option with its caption right after it,
// the three apart. The kind's fields follow.
QWidget* HeaderView::BuildFrame() {
  auto* frame = binder_->Add<QFrame>(u"Frame1"_s, this);
  frame->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
  auto* column = new QVBoxLayout(frame);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(TwipsX(*this, 90));
  grid->setVerticalSpacing(TwipsY(*this, 30));
  column->addLayout(grid);

  auto* types = new QHBoxLayout;
  types->setSpacing(0);
  types->addWidget(Caption(u"TypeHeadingLbl"_s, frame));
  types->addSpacing(TwipsX(*this, kOptionGapTwips));
  types->addWidget(Caption(u"TypeCodeLbl"_s, frame));
  for (int i = 0; i < 3; ++i) {
    auto* option = binder_->Add<QRadioButton>(OptionName(i), frame);
    option->setAutoExclusive(true);
    types->addSpacing(TwipsX(*this, kOptionGapTwips));
    types->addLayout(
        CaptionedOption(*option, *Caption(u"Option1Lbl_"_s + QString::number(i), frame)));
  }
  types->addStretch(1);
  grid->addLayout(types, 0, 0, 1, 2);
  ArrangeFields(*frame, *column, *grid, 1);
  grid->setColumnStretch(1, 1);
  return frame;
}

QLayout* HeaderView::BuildButtons() {
  auto* row = new QHBoxLayout;
  for (const QString& name :
       {u"CreateFile"_s, u"PrintSumCmd"_s, u"PrintCmd"_s, form_.Layout().lines_button}) {
    row->addWidget(binder_->Add<WrapButton>(name, this));
  }
  // "Save" and "Correct" share one place, "Return" and "Cancel" another.
  row->addWidget(binder_->SharedPlace<WrapButton>(u"SaveCmd"_s, u"UpDateCmd"_s, this));
  row->addWidget(binder_->SharedPlace<WrapButton>(u"ExitCmd"_s, u"CancelCmd"_s, this));
  return row;
}

void HeaderView::closeEvent(QCloseEvent* event) { event->setAccepted(form_.QueryClose()); }

}  // namespace veroxia
