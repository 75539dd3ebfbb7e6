#include "gui/qt_dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <cstdio>

#include "gui/search_view.h"
#include "lines/texts.h"
#include "shell/search_form.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

// While a box is open the user answers it with the normal pointer, even in
// the middle of a busy operation.
class ArrowWhileOpen {
 public:
  explicit ArrowWhileOpen(bool busy) : active_(busy) {
    if (active_) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ~ArrowWhileOpen() {
    if (active_) QGuiApplication::restoreOverrideCursor();
  }
  ArrowWhileOpen(const ArrowWhileOpen&) = delete;
  ArrowWhileOpen& operator=(const ArrowWhileOpen&) = delete;

 private:
  bool active_;
};

QWidget* Owner() {
  // A window that is closing (hidden) cannot own a box: the box would not show.
  QWidget* active = QApplication::activeWindow();
  return active != nullptr && active->isVisible() ? active : nullptr;
}

// Plain text, and buttons that carry their caption only.
void Prepare(QMessageBox& box) {
  box.setTextFormat(Qt::PlainText);
  for (QAbstractButton* button : box.buttons()) button->setIcon(QIcon());
}

}  // namespace

QString DisplayText(const QString& text) {
  QString shown = text;
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  shown.replace(u'\r', u'\n');
  return shown;
}

QString UnattendedLine(const QString& text, const QString& title) {
  QString line = DisplayText(text);
  line.replace(u'\n', QStringLiteral("\\n"));
  return title + u'\t' + line;
}

QtDialogs::QtDialogs() : QtDialogs(qEnvironmentVariableIsSet("VEROXIA_UNATTENDED")) {}

QtDialogs::~QtDialogs() { SetBusy(false); }

void QtDialogs::Print(const QString& text, const QString& title) const {
  const QByteArray line = UnattendedLine(text, title).toUtf8();
  std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

void QtDialogs::Message(const QString& text, const QString& title) {
  if (unattended_) {
    Print(text, title);
    return;
  }
  ArrowWhileOpen arrow(busy_);
  QMessageBox box(QMessageBox::NoIcon, title, DisplayText(text), QMessageBox::Ok, Owner());
  Prepare(box);
  box.exec();
}

bool QtDialogs::Ask(const QString& text, const QString& title, AskStyle style) {
  if (unattended_) {
    Print(text, title);
    return false;
  }
  ArrowWhileOpen arrow(busy_);
  const bool question = style == AskStyle::Question;
  QMessageBox box(question ? QMessageBox::Question : QMessageBox::NoIcon, title, DisplayText(text),
                  QMessageBox::Yes | QMessageBox::No, Owner());
  Prepare(box);
  box.button(QMessageBox::Yes)->setText(texts::kYes);
  box.button(QMessageBox::No)->setText(texts::kNo);
  box.setDefaultButton(question ? QMessageBox::No : QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

SearchAnswer QtDialogs::AskInsuredPerson() {
  if (unattended_) {
    Print(lines_texts::kSearchTitle, texts::kAppTitle);
    return {};
  }
  ArrowWhileOpen arrow(busy_);
  SearchForm form(QCoreApplication::applicationDirPath(), *this);
  form.Load();
  SearchView view(form, Owner());
  return view.Ask();
}

void QtDialogs::SetBusy(bool busy) {
  if (busy == busy_) return;
  busy_ = busy;
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

}  // namespace veroxia
