#include "gui/start_view.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QStackedLayout>
#include <algorithm>

#include "gui/fields.h"
#include "gui/form_binder.h"
#include "gui/twips.h"
#include "gui/wrap_button.h"

namespace veroxia {

namespace {

// Room the picture takes at the top left, the width of the exit button and
// of the two buttons of the period frame, margins and spacing, in twips.
constexpr int kImgWidthTwips = 1800;
constexpr int kImgHeightTwips = 1200;
constexpr int kCommand3WidthTwips = 1455;
constexpr int kFrameButtonWidthTwips = 1335;
constexpr int kMarginTwips = 90;
constexpr int kSpacingTwips = 60;
// The window's font size, in points.
constexpr double kFontPoints = 8.5;

void GrowWithWindow(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setHorizontalPolicy(QSizePolicy::Expanding);
  policy.setVerticalPolicy(QSizePolicy::Expanding);
  widget.setSizePolicy(policy);
}

QLabel* Slash(QWidget* parent) {
  auto* slash = new QLabel(QStringLiteral("/"), parent);  // owned by parent
  slash->setTextFormat(Qt::PlainText);
  return slash;
}

}  // namespace

StartView::StartView(StartForm& form)
    : form_(form), binder_(new FormBinder(form, *this, StartForm::FocusOrder())) {
  // The narrower face of the program's font, a little smaller, lets the long
  // period labels stand side by side in the narrow window.
  QFont narrow = font();
  narrow.setStretch(QFont::SemiCondensed);
  setFont(narrow);
  QVBoxLayout* layout =
      DressWindow(*this, kFontPoints, form_.Title(), form_.IconPath(), kMarginTwips);
  layout->setSpacing(TwipsY(*this, kSpacingTwips));
  layout->addWidget(BuildTop());
  for (const char* name : {"Command1", "Command4", "Command2", "Command5"}) {
    auto* button = binder_->Add<WrapButton>(QString::fromLatin1(name), this);
    GrowWithWindow(*button);
    layout->addWidget(button, 1);
  }
  layout->addWidget(BuildFrame1(), 1);

  binder_->OnClick(QStringLiteral("Command1"), [this] { form_.Command1_Click(); });
  binder_->OnClick(QStringLiteral("Command4"), [this] { form_.Command4_Click(); });
  binder_->OnClick(QStringLiteral("Command2"), [this] { form_.Command2_Click(); });
  binder_->OnClick(QStringLiteral("Command5"), [this] { form_.Command5_Click(); });
  binder_->OnClick(QStringLiteral("Command3"), [this] { form_.Command3_Click(); });
  binder_->OnClick(QStringLiteral("OkCmd"), [this] { form_.OkCmd_Click(); });
  binder_->OnClick(QStringLiteral("CancelCmd"), [this] { form_.CancelCmd_Click(); });
  binder_->OnFocus([this](const QString& name) { form_.GotFocus(name); });
  PressOkOnEnter();
  binder_->Mirror();

  FixWindow(*this, StartForm::kLeftTwips, StartForm::kTopTwips, StartForm::kWidthTwips,
            StartForm::kHeightTwips);
}

void StartView::PressOkOnEnter() {
  auto* ok = qobject_cast<QAbstractButton*>(binder_->Widget(QStringLiteral("OkCmd")));
  for (const char* name : {"Month1", "Year1", "Month2", "Year2", "ConMonth", "ConYear"}) {
    auto* field = qobject_cast<QLineEdit*>(binder_->Widget(QString::fromLatin1(name)));
    // Return and the keypad's Enter alike.
    connect(field, &QLineEdit::returnPressed, ok, [ok] {
      if (ok->isVisible() && ok->isEnabled()) ok->click();
    });
  }
}

QWidget* StartView::BuildTop() {
  auto* top = new QWidget(this);
  auto* row = new QHBoxLayout(top);
  row->setContentsMargins(0, 0, 0, 0);

  auto* img = binder_->Add<QLabel>(QStringLiteral("Img"), top);
  img->setFixedSize(TwipsSize(*this, kImgWidthTwips, kImgHeightTwips));
  img->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  if (!form_.ImagePath().isEmpty()) {
    QPixmap picture(form_.ImagePath());
    if (picture.width() > img->width() || picture.height() > img->height()) {
      picture = picture.scaled(img->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    img->setPixmap(picture);  // an unreadable file leaves the picture empty
  }
  row->addWidget(img, 0, Qt::AlignLeft | Qt::AlignTop);
  row->addStretch(1);

  auto* command3 = binder_->Add<WrapButton>(QStringLiteral("Command3"), top);
  command3->setFixedWidth(TwipsX(*this, kCommand3WidthTwips));
  row->addWidget(command3, 0, Qt::AlignRight | Qt::AlignTop);
  return top;
}

QWidget* StartView::BuildFrame1() {
  auto* frame1 = binder_->Add<QFrame>(QStringLiteral("Frame1"), this);
  frame1->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
  auto* layout = new QVBoxLayout(frame1);
  const int margin_x = TwipsX(*this, kMarginTwips);
  const int margin_y = TwipsY(*this, kMarginTwips);
  layout->setContentsMargins(margin_x, margin_y, margin_x, margin_y);

  // Frame2 lies over the start and end fields and their labels, with exactly
  // their place; it covers them whenever it is shown.
  auto* stack = new QStackedLayout;
  stack->setStackingMode(QStackedLayout::StackAll);
  QWidget* fields = BuildPeriodFields(frame1);
  QWidget* frame2 = BuildFrame2(frame1);
  stack->addWidget(fields);
  stack->addWidget(frame2);
  stack->setCurrentWidget(frame2);
  layout->addStretch(1);
  layout->addLayout(stack);
  layout->addStretch(2);

  auto* buttons = new QHBoxLayout;
  for (const char* name : {"OkCmd", "CancelCmd"}) {
    auto* button = binder_->Add<WrapButton>(QString::fromLatin1(name), frame1);
    button->setFixedWidth(TwipsX(*this, kFrameButtonWidthTwips));
    buttons->addWidget(button);
    if (buttons->count() == 1) buttons->addStretch(1);
  }
  layout->addLayout(buttons);
  return frame1;
}

QWidget* StartView::BuildPeriodFields(QWidget* parent) {
  auto* fields = new QWidget(parent);
  auto* grid = new QGridLayout(fields);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(binder_->Add<QLabel>(QStringLiteral("Label2"), fields), 0, 0);
  grid->addWidget(binder_->Add<QLabel>(QStringLiteral("Label3"), fields), 0, 1);
  grid->addLayout(PeriodRow(fields, QStringLiteral("Label2"), QStringLiteral("Month1"),
                            QStringLiteral("Year1")),
                  1, 0);
  grid->addLayout(PeriodRow(fields, QStringLiteral("Label3"), QStringLiteral("Month2"),
                            QStringLiteral("Year2")),
                  1, 1);
  return fields;
}

QWidget* StartView::BuildFrame2(QWidget* parent) {
  auto* frame2 = binder_->Add<QFrame>(QStringLiteral("Frame2"), parent);
  frame2->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
  frame2->setAutoFillBackground(true);  // hides what lies under it
  auto* column = new QVBoxLayout(frame2);
  column->addWidget(binder_->Add<QLabel>(QStringLiteral("Label6"), frame2));
  column->addLayout(PeriodRow(frame2, QStringLiteral("Label6"), QStringLiteral("ConMonth"),
                              QStringLiteral("ConYear")));
  return frame2;
}

QLayout* StartView::PeriodRow(QWidget* parent, const QString& label, const QString& month,
                              const QString& year) {
  auto* month_edit = binder_->Add<QLineEdit>(month, parent);
  auto* year_edit = binder_->Add<QLineEdit>(year, parent);
  FitToCharacters(*month_edit, form_.At(month).max_length);
  FitToCharacters(*year_edit, form_.At(year).max_length);
  QLabel* slash = Slash(parent);

  // The label above ends in the two words that name the month and the year;
  // each field stands centred under its word.
  const QFontMetrics metrics(font());
  const QString caption = form_.Text(label);
  const QStringList words = caption.split(u' ', Qt::SkipEmptyParts);
  const int gap = metrics.horizontalAdvance(u' ');
  const int month_width = month_edit->width();
  const int year_width = year_edit->width();
  const int slash_width = slash->sizeHint().width();
  int month_left = 0;
  int year_left = month_width + slash_width + 2 * gap;
  if (words.size() >= 2) {
    const auto centre = [&](const QString& word) {
      const auto at = caption.lastIndexOf(word);
      return metrics.horizontalAdvance(caption.left(at)) + metrics.horizontalAdvance(word) / 2;
    };
    month_left = std::max(0, centre(words[words.size() - 2]) - month_width / 2);
    year_left = std::max(month_left + month_width + slash_width + 2 * gap,
                         centre(words.last()) - year_width / 2);
  }
  const int between = year_left - month_left - month_width - slash_width;

  auto* row = new QHBoxLayout;
  row->setSpacing(0);
  row->addSpacing(month_left);
  row->addWidget(month_edit);
  row->addSpacing(between / 2);
  row->addWidget(slash);
  row->addSpacing(between - between / 2);
  row->addWidget(year_edit);
  row->addStretch(1);
  return row;
}

}  // namespace veroxia
