#include "gui/search_view.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "gui/fields.h"
#include "gui/form_binder.h"
#include "gui/twips.h"
#include "gui/wrap_button.h"

namespace veroxia {

using namespace Qt::StringLiterals;

SearchView::SearchView(SearchForm& form, QWidget* parent)
    : QDialog(parent), form_(form), binder_(new FormBinder(form, *this, form.FocusOrder())) {
  setWindowTitle(form_.Title());
  if (!form_.IconPath().isEmpty()) setWindowIcon(QIcon(form_.IconPath()));
  setModal(true);

  auto* column = new QVBoxLayout(this);
  column->addWidget(binder_->Add<QLabel>(u"Label1"_s, this));
  auto* grid = new QGridLayout;
  grid->addWidget(binder_->Add<QLabel>(u"Label2"_s, this), 0, 0);
  auto* surname = binder_->Add<QLineEdit>(u"Text2"_s, this);
  FitToCharacters(*surname, 30);
  grid->addWidget(surname, 0, 1);
  grid->addWidget(binder_->Add<QLabel>(u"Label3"_s, this), 1, 0);
  auto* number = binder_->Add<QLineEdit>(u"Text1"_s, this);
  FitToCharacters(*number, 9);
  grid->addWidget(number, 1, 1, Qt::AlignLeft);
  column->addLayout(grid);
  auto* buttons = new QHBoxLayout;
  auto* find = binder_->Add<WrapButton>(u"Command1"_s, this);
  find->setDefault(true);  // Enter searches
  buttons->addWidget(find);
  buttons->addStretch(1);
  buttons->addWidget(binder_->Add<WrapButton>(u"Command2"_s, this));
  column->addLayout(buttons);

  binder_->OnEdit([this](const QString& name) {
    if (name == u"Text1") form_.Text1_Change();
    if (name == u"Text2") form_.Text2_Change();
  });
  binder_->OnClick(u"Command1"_s, [this] { form_.Command1_Click(); });
  binder_->OnClick(u"Command2"_s, [this] { form_.Command2_Click(); });
  binder_->OnMirror([this] { CloseIfDone(); });
  binder_->Mirror();
  setFixedSize(sizeHint());
  move(TwipsPoint(*this, SearchForm::kLeftTwips, SearchForm::kTopTwips));
}

SearchAnswer SearchView::Ask() {
  exec();
  return form_.Answer();
}

void SearchView::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  form_.Activate();
  binder_->Mirror();
}

void SearchView::CloseIfDone() {
  // Closed by the form: leave once the click that closed it has run.
  if (form_.Closed() && isVisible()) QTimer::singleShot(0, this, [this] { done(0); });
}

void SearchView::reject() {
  form_.QueryClose();
  QDialog::reject();
}

}  // namespace veroxia
