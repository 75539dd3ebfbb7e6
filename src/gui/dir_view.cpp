#include "gui/dir_view.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QComboBox>
#include <QFileSystemModel>
#include <QIcon>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTimer>

#include "gui/form_binder.h"
#include "gui/twips.h"
#include "gui/wrap_button.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

// The window's outer size, margins and spacing in twips, and its font size in
// points: room for the label on two lines and about ten directories.
constexpr int kWidthTwips = 5400;
constexpr int kHeightTwips = 5700;
constexpr int kMarginTwips = 120;
constexpr int kSpacingTwips = 60;
constexpr double kFontPoints = 8.5;

}  // namespace

DirView::DirView(DirForm& form, QWidget* parent)
    : QDialog(parent),
      form_(form),
      binder_(new FormBinder(form, *this, DirForm::FocusOrder())),
      model_(new QFileSystemModel(this)),
      list_(new QListView(this)),
      path_(new QLabel(this)),
      path_box_(new QLineEdit(this)) {
  setModal(true);
  QVBoxLayout* layout =
      DressWindow(*this, kFontPoints, form_.Title(), form_.IconPath(), kMarginTwips);
  layout->setSpacing(TwipsY(*this, kSpacingTwips));

  auto* label = binder_->Add<QLabel>(u"Label1"_s, this);
  label->setWordWrap(true);
  layout->addWidget(label);

  // The drives are listed before the list is bound: filling it is no choice.
  auto* drives = new QComboBox(this);
  drives->addItems(form_.DriveNames());
  drives->setCurrentText(form_.Text(u"Drive1"_s));
  binder_->Bind(u"Drive1"_s, drives);
  layout->addWidget(drives);

  // The path box, with its caption before it.
  auto* go_to = new QHBoxLayout;
  go_to->addWidget(binder_->Add<QLabel>(u"PathLbl"_s, this));
  path_box_->setPlaceholderText(texts::kDirPathHint);
  path_box_->setClearButtonEnabled(true);
  binder_->Bind(u"PathTxt"_s, path_box_);
  path_box_->installEventFilter(this);
  go_to->addWidget(path_box_, 1);
  layout->addLayout(go_to);

  path_->setObjectName(u"Dir1Path"_s);
  path_->setTextFormat(Qt::PlainText);
  // A long path is shortened in its middle rather than widening the window.
  path_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  layout->addWidget(path_);

  // Directories only, with ".." to go up; hidden ones are left out.
  model_->setFilter(QDir::AllDirs | QDir::NoDot);
  model_->setReadOnly(true);
  list_->setModel(model_);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  binder_->Bind(u"Dir1"_s, list_);
  list_->installEventFilter(this);
  layout->addWidget(list_, 1);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(binder_->Add<WrapButton>(u"Command1"_s, this));
  buttons->addStretch(1);
  buttons->addWidget(binder_->Add<WrapButton>(u"NewDirCmd"_s, this));
  buttons->addStretch(1);
  buttons->addWidget(binder_->Add<WrapButton>(u"Command2"_s, this));
  layout->addLayout(buttons);

  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& current) {
            if (!showing_path_ && current.isValid()) {
              form_.HighlightDirectory(model_->filePath(current));
            }
          });
  connect(list_, &QAbstractItemView::doubleClicked, this, &DirView::Open);
  binder_->OnEdit([this](const QString& name) {
    if (name == u"Drive1") form_.Drive1_Change();
    if (name == u"PathTxt") form_.PathTxt_Change();
  });
  binder_->OnClick(u"Command1"_s, [this] { form_.Command1_Click(); });
  binder_->OnClick(u"Command2"_s, [this] { form_.Command2_Click(); });
  binder_->OnClick(u"NewDirCmd"_s, [this] { form_.NewDirCmd_Click(); });
  form_.AskNamesWith([this] { return AskFolderName(); });
  binder_->OnMirror([this] {
    ShowPath();
    CloseIfDone();
  });
  binder_->Mirror();
  FixWindow(*this, DirForm::kLeftTwips, DirForm::kTopTwips, kWidthTwips, kHeightTwips);
}

QString DirView::Ask() {
  exec();
  return form_.Answer();
}

void DirView::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  binder_->FocusFirst();
  binder_->Mirror();
}

void DirView::ShowPath() {
  showing_path_ = true;
  const QString path = form_.Path();
  if (model_->rootPath() != path) {
    model_->setRootPath(path);
    list_->setRootIndex(model_->index(path));
  }
  if (form_.Highlighted().isEmpty() && list_->currentIndex().isValid()) {
    list_->setCurrentIndex(QModelIndex());
  }
  const int width = path_->width() > 0 ? path_->width() : list_->width();
  path_->setText(path_->fontMetrics().elidedText(path, Qt::ElideMiddle, width));
  path_->setToolTip(path);
  showing_path_ = false;
}

void DirView::Open(const QModelIndex& index) {
  if (!index.isValid()) return;
  form_.HighlightDirectory(model_->filePath(index));
  form_.OpenHighlighted();
  binder_->Mirror();
}

bool DirView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return QDialog::eventFilter(watched, event);
  if (watched == list_ && list_->currentIndex().isValid()) {
    Open(list_->currentIndex());
    return true;
  }
  if (watched == path_box_) {
    form_.PathTxt_Enter();
    binder_->Mirror();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

std::optional<QString> DirView::AskFolderName() {
  QInputDialog question(this);
  question.setWindowTitle(texts::kDirNewFolder);
  question.setLabelText(texts::kDirNewFolderName);
  question.setOkButtonText(texts::kOkCmd);
  question.setCancelButtonText(texts::kCancelCmd);
  question.setInputMode(QInputDialog::TextInput);
  // Buttons that carry their caption only, as in the program's other boxes.
  for (QAbstractButton* button : question.findChildren<QAbstractButton*>()) {
    button->setIcon(QIcon());
  }
  if (question.exec() != QDialog::Accepted) return std::nullopt;
  return question.textValue();
}

void DirView::CloseIfDone() {
  // Closed by the form: leave once the click that closed it has run.
  if (form_.Closed() && isVisible()) QTimer::singleShot(0, this, [this] { done(0); });
}

void DirView::reject() {
  form_.QueryClose();
  QDialog::reject();
}

}  // namespace veroxia
