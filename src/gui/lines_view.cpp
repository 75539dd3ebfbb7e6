#include "gui/lines_view.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "gui/arrows.h"
#include "gui/fields.h"
#include "gui/form_binder.h"
#include "gui/twips.h"
#include "gui/wrap_button.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

constexpr double kFontPoints = 8.0;
constexpr int kMarginTwips = 90;

const LineField* FieldNamed(const LinesLayout& layout, const QString& name) {
  for (const LineField& field : layout.fields) {
    if (field.name == name) return &field;
  }
  return nullptr;
}

// The place of box `box` (Text<box> under Text<box>Lbl), or of its two parts
// joined by its "/" label.
LinesPlace One(const char* box) {
  const QString number = QString::fromLatin1(box);
  return LinesPlace{u"Text"_s + number + u"Lbl"_s, {u"Text"_s + number}, {}};
}
LinesPlace Two(const char* box) {
  const QString number = QString::fromLatin1(box);
  return LinesPlace{u"Text"_s + number + u"Lbl"_s,
                    {u"Text"_s + number + u"_1"_s, u"Text"_s + number + u"_2"_s},
                    u"Text"_s + number + u"SepLbl"_s};
}

}  // namespace

const std::vector<LinesRow>& CommonLinesRows() {
  // clang-format off
  static const std::vector<LinesRow> rows{
      {Two("18"), One("19")},
      {One("20"), One("26")},
      {One("21"), {}, true},
      {One("22"), {}, true},
      {One("23"), {}, true},
      {One("24"), {}, true},
      {One("25"), One("27")},
      {One("29"), One("28")},
      {One("30"), One("39")},
      {One("31"), One("40")},
      {One("32"), One("41")},
      {Two("33"), One("42")},
      {One("34"), One("43")},
      {One("35"), One("44")},
      {One("36"), One("45")},
      {One("37"), One("46")},
      {One("38"), {}},
  };
  // clang-format on
  return rows;
}

// The long captions stand on the left, so that the right-hand captions leave
// the boxes their room; codes are paired with the amounts.
const std::vector<LinesRow>& ConstructionLinesRows() {
  // clang-format off
  static const std::vector<LinesRow> rows{
      {One("21"), One("22")},
      {One("23"), One("29")},
      {One("24"), {}, true},
      {One("25"), {}, true},
      {One("26"), {}, true},
      {One("27"), {}, true},
      {One("28"), One("30")},
      {One("31"), One("36")},
      {One("32"), One("37")},
      {One("33"), One("39")},
      {One("34"), One("40")},
      {One("35"), One("41")},
      {One("38"), One("44")},
      {One("42"), One("45")},
      {One("43"), One("46")},
  };
  // clang-format on
  return rows;
}

LinesView::LinesView(LinesForm& form, const std::vector<LinesRow>& rows, QRect twips)
    : form_(form), binder_(new FormBinder(form, *this, form.FocusOrder())) {
  QVBoxLayout* layout =
      DressWindow(*this, kFontPoints, form_.Title(), form_.IconPath(), kMarginTwips);
  layout->setSpacing(TwipsY(*this, 60));
  QLabel* heading = binder_->Add<QLabel>(u"HeadingLbl"_s, this);
  QFont bold = heading->font();
  bold.setBold(true);
  bold.setPointSizeF(kFontPoints + 3);
  heading->setFont(bold);
  layout->addWidget(heading, 0, Qt::AlignHCenter);
  layout->addWidget(BuildFields(rows));
  layout->addStretch(1);
  // Where the screen stands among the lines, and the move to a line by its
  // number (Enter in the box moves too).
  auto* place = new QHBoxLayout;
  place->addWidget(binder_->Add<QLabel>(u"PositionLbl"_s, this));
  place->addStretch(1);
  place->addWidget(binder_->Add<QPushButton>(u"GotoCmd"_s, this));
  auto* go_to = binder_->Add<QLineEdit>(u"GotoTxt"_s, this);
  connect(go_to, &QLineEdit::returnPressed, this, [this] {
    form_.GotoCmd_Click();
    binder_->Mirror();
  });
  place->addWidget(go_to);
  layout->addLayout(place);
  // Lines from and to a CSV file, on a row of their own over the buttons of
  // the line shown.
  auto* files = new QHBoxLayout;
  files->addStretch(1);
  for (const char* name : {"ImportCmd", "ExportCmd"}) {
    files->addWidget(binder_->Add<QPushButton>(QString::fromLatin1(name), this));
  }
  layout->addLayout(files);
  layout->addLayout(BuildButtons());

  binder_->OnClick(u"NewCmd"_s, [this] { form_.NewCmd_Click(); });
  binder_->OnClick(u"UpDateCmd"_s, [this] { form_.UpDateCmd_Click(); });
  binder_->OnClick(u"OkCmd"_s, [this] { form_.OkCmd_Click(); });
  binder_->OnClick(u"CancelCmd"_s, [this] { form_.CancelCmd_Click(); });
  binder_->OnClick(u"ClearCmd"_s, [this] { form_.ClearCmd_Click(); });
  binder_->OnClick(u"DeleteCmd"_s, [this] { form_.DeleteCmd_Click(); });
  binder_->OnClick(u"SeekCmd"_s, [this] { form_.SeekCmd_Click(); });
  binder_->OnClick(u"BackCmd"_s, [this] { form_.BackCmd_Click(); });
  binder_->OnClick(u"FirstCmd"_s, [this] { form_.FirstCmd_Click(); });
  binder_->OnClick(u"PrevCmd"_s, [this] { form_.PrevCmd_Click(); });
  binder_->OnClick(u"Nextcmd"_s, [this] { form_.Nextcmd_Click(); });
  binder_->OnClick(u"LastCmd"_s, [this] { form_.LastCmd_Click(); });
  binder_->OnClick(u"ImportCmd"_s, [this] { form_.ImportCmd_Click(); });
  binder_->OnClick(u"ExportCmd"_s, [this] { form_.ExportCmd_Click(); });
  binder_->OnClick(u"GotoCmd"_s, [this] { form_.GotoCmd_Click(); });
  binder_->OnFocus([this](const QString& name) { form_.GotFocus(name); });
  binder_->FocusFirst();
  binder_->Mirror();
  FixWindow(*this, twips.left(), twips.top(), twips.width(), twips.height());
}

QWidget* LinesView::BuildFields(const std::vector<LinesRow>& rows) {
  auto* fields = new QWidget(this);
  auto* grid = new QGridLayout(fields);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(TwipsX(*this, 90));
  grid->setVerticalSpacing(TwipsY(*this, 15));
  int row = 0;
  for (const LinesRow& line : rows) {
    Place(*grid, fields, line.left, row, 0, line.span);
    if (!line.right.caption.isEmpty()) Place(*grid, fields, line.right, row, 2, false);
    ++row;
  }
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  return fields;
}

void LinesView::Place(QGridLayout& grid, QWidget* parent, const LinesPlace& place, int row,
                      int column, bool whole_row) {
  auto* caption = binder_->Add<QLabel>(place.caption, parent);
  grid.addWidget(caption, row, column);
  auto* boxes = new QHBoxLayout;
  boxes->setSpacing(TwipsX(*this, 45));
  for (int i = 0; i < place.fields.size(); ++i) {
    if (i > 0) boxes->addWidget(binder_->Add<QLabel>(place.separator, parent));
    const LineField* field = FieldNamed(form_.Layout(), place.fields[i]);
    if (field != nullptr) boxes->addWidget(Field(*field, parent, whole_row), whole_row ? 1 : 0);
  }
  boxes->addStretch(whole_row ? 0 : 1);  // a long box takes the room up to its length
  grid.addLayout(boxes, row, column + 1, 1, whole_row ? 3 : 1);
}

QWidget* LinesView::Field(const LineField& field, QWidget* parent, bool stretch) {
  if (!field.choices.isEmpty()) {
    auto* combo = new QComboBox(parent);  // owned by parent
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->addItems(field.choices);
    binder_->Bind(field.name, combo);
    return combo;
  }
  auto* edit = new QLineEdit(parent);  // owned by parent
  if (field.store == StoreAs::Date) {
    MakeDateBox(*edit);
  } else if (!stretch) {
    FitToCharacters(*edit, field.max_length);
  }
  binder_->Bind(field.name, edit);
  return edit;
}

QLayout* LinesView::BuildButtons() {
  auto* row = new QHBoxLayout;
  const int arrow_size = TwipsY(*this, 240);
  const std::pair<const char*, Arrow> arrows[] = {{"FirstCmd", Arrow::First},
                                                  {"PrevCmd", Arrow::Previous},
                                                  {"Nextcmd", Arrow::Next},
                                                  {"LastCmd", Arrow::Last}};
  for (const auto& [name, arrow] : arrows) {
    auto* button = binder_->Add<QPushButton>(QString::fromLatin1(name), this);
    button->setIcon(ArrowIcon(arrow, arrow_size));
    button->setIconSize(QSize(arrow_size, arrow_size));
    button->setFixedWidth(arrow_size * 2);
    row->addWidget(button);
  }
  row->addSpacing(TwipsX(*this, 120));
  // "New" and "Store", "Correct" and "Cancel" share a place each. "Clear"
  // keeps its place when hidden.
  row->addWidget(binder_->SharedPlace<WrapButton>(u"NewCmd"_s, u"OkCmd"_s, this), 1);
  row->addWidget(binder_->SharedPlace<WrapButton>(u"UpDateCmd"_s, u"CancelCmd"_s, this), 1);
  for (const char* name : {"ClearCmd", "DeleteCmd", "SeekCmd", "BackCmd"}) {
    auto* button = binder_->Add<WrapButton>(QString::fromLatin1(name), this);
    QSizePolicy policy = button->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    button->setSizePolicy(policy);
    row->addWidget(button, 1);
  }
  return row;
}

void LinesView::closeEvent(QCloseEvent* event) { event->setAccepted(form_.QueryClose()); }

}  // namespace veroxia
