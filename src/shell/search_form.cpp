#include "shell/search_form.h"

#include "lines/texts.h"
#include "rules/numbers.h"
#include "rules/texts.h"
#include "shell/texts.h"

namespace veroxia {

using namespace Qt::StringLiterals;
using namespace lines_texts;

SearchForm::SearchForm(const QString& app_dir, Dialogs& dialogs)
    : app_dir_(app_dir), dialogs_(dialogs) {
  SetTitle(kSearchTitle);
  Declare(u"Label1"_s, kSearchLabel1);
  Declare(u"Label2"_s, kSearchLabel2);
  Declare(u"Text2"_s, {}, 50);
  Declare(u"Label3"_s, kSearchLabel3);
  Declare(u"Text1"_s, {}, 9);
  Declare(u"Command1"_s, kSearchFind);
  Declare(u"Command2"_s, kCancelCmd);
}

QStringList SearchForm::FocusOrder() const {
  return {u"Text2"_s, u"Text1"_s, u"Command1"_s, u"Command2"_s};
}

void SearchForm::Load() {
  const QString icon = app_dir_ + u"/qormain.ico"_s;
  icon_path_ = FileExists(icon) ? icon : QString();
}

void SearchForm::Text1_Change() {
  if (!Text(u"Text1"_s).isEmpty()) At(u"Text2"_s).text.clear();
}

void SearchForm::Text2_Change() {
  if (!Text(u"Text2"_s).isEmpty()) At(u"Text1"_s).text.clear();
}

void SearchForm::Command1_Click() {
  const QString number = Text(u"Text1"_s);
  if (number.trimmed().isEmpty()) {
    Close(Text(u"Text2"_s), u"NAME"_s);
    return;
  }
  if (!IsNumeric(number)) {
    dialogs_.Message(kSearchNotNumber, texts::kAppTitle);
  } else if (number.size() >= 9) {
    Close(number, u"AMA"_s);
    return;
  } else {
    dialogs_.Message(kSearchNotNine, texts::kAppTitle);
  }
  SetFocus(u"Text1"_s);
}

void SearchForm::Command2_Click() { Close({}, {}); }

void SearchForm::QueryClose() {
  if (!closed_) Close({}, {});
}

void SearchForm::Close(const QString& text, const QString& kind) {
  answer_ = SearchAnswer{text, kind};
  closed_ = true;
}

}  // namespace veroxia
