#include "gui/qt_dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "gui/dir_view.h"
#include "gui/print_preview.h"
#include "gui/report_window.h"
#include "gui/search_view.h"
#include "lines/texts.h"
#include "printing/text_printer.h"
#include "shell/dir_form.h"
#include "shell/search_form.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

// The hooks alive, in the order they were made.
std::vector<BeforeBoxOpens*>& Hooks() {
  static std::vector<BeforeBoxOpens*> hooks;
  return hooks;
}

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

// Pixels the margins, the icon and the indent of a box take beside its text.
constexpr int kBesideText = 120;

// The widest a box may grow before QMessageBox breaks lines inside words.
int WidestBox(const QMessageBox& box) {
  const QScreen* screen = box.screen() != nullptr ? box.screen() : QGuiApplication::primaryScreen();
  const int screen_width = screen != nullptr ? screen->availableGeometry().width() : 800;
  return screen_width <= 1024 ? screen_width : std::min(screen_width - 480, 1000);
}

// QMessageBox wraps any text wider than half the screen (500 pixels at most),
// so a line of a message would break in two. The column of the text is made
// as wide as the longest line, and the whole box as wide as its title needs
// beside the buttons of a title bar; both within what the screen allows.
void WidenForLinesAndTitle(QMessageBox& box) {
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (grid == nullptr || label == nullptr) return;
  const int index = grid->indexOf(label);
  if (index < 0) return;
  int row = 0;
  int column = 0;
  int row_span = 0;
  int column_span = 0;
  grid->getItemPosition(index, &row, &column, &row_span, &column_span);

  const QFontMetrics metrics(label->font());
  int longest = 0;
  for (const QString& line : box.text().split(u'\n')) {
    longest = std::max(longest, metrics.horizontalAdvance(line));
  }
  // A character to spare, so that rounding never pushes a word down.
  const int text_width = longest + metrics.averageCharWidth();
  // Title bars write their title in a bold face, beside an icon and buttons.
  QFont title_font = box.font();
  title_font.setBold(true);
  const int title_width =
      QFontMetrics(title_font).horizontalAdvance(box.windowTitle()) + 8 * metrics.height();

  // The box's margins, icon and indent leave the text less than the widest box.
  const int widest = WidestBox(box) - kBesideText;
  const int last_row = grid->rowCount();
  grid->addItem(
      new QSpacerItem(std::min(text_width, widest), 0, QSizePolicy::Fixed, QSizePolicy::Minimum),
      last_row, column);  // owned by the grid
  grid->addItem(
      new QSpacerItem(std::min(title_width, widest), 0, QSizePolicy::Fixed, QSizePolicy::Minimum),
      last_row + 1, 0, 1, grid->columnCount());  // owned by the grid
}

// Plain text, buttons that carry their caption only, and room for every line
// and the title.
void Prepare(QMessageBox& box) {
  box.setTextFormat(Qt::PlainText);
  for (QAbstractButton* button : box.buttons()) button->setIcon(QIcon());
  WidenForLinesAndTitle(box);
}

}  // namespace

QString ChooseFile(QWidget* parent, const FileQuestion& question) {
  // Qt's own dialog, in our Greek, wherever the program runs; it opens where
  // the last file was chosen.
  static QString folder = QDir::homePath();
  const QFileDialog::Options options = QFileDialog::DontUseNativeDialog;
  const QString path = question.save
                           ? QFileDialog::getSaveFileName(parent, question.title,
                                                          QDir(folder).filePath(question.suggested),
                                                          question.filter, nullptr, options)
                           : QFileDialog::getOpenFileName(parent, question.title, folder,
                                                          question.filter, nullptr, options);
  if (!path.isEmpty()) folder = QFileInfo(path).absolutePath();
  return path;
}

BeforeBoxOpens::BeforeBoxOpens(std::function<void()> routine) : routine_(std::move(routine)) {
  Hooks().push_back(this);
}

BeforeBoxOpens::~BeforeBoxOpens() { std::erase(Hooks(), this); }

void BeforeBoxOpens::RunAll() {
  // A hook may end another (a window closing): each runs only while alive.
  const std::vector<BeforeBoxOpens*> hooks = Hooks();
  for (BeforeBoxOpens* hook : hooks) {
    if (std::find(Hooks().begin(), Hooks().end(), hook) != Hooks().end()) hook->routine_();
  }
}

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
  BeforeBoxOpens::RunAll();
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
  BeforeBoxOpens::RunAll();
  if (unattended_) {
    Print(text, title);
    return false;
  }
  ArrowWhileOpen arrow(busy_);
  const bool question = style == AskStyle::Question;
  QMessageBox box(question ? QMessageBox::Question : QMessageBox::NoIcon, title, DisplayText(text),
                  QMessageBox::Yes | QMessageBox::No, Owner());
  box.button(QMessageBox::Yes)->setText(texts::kYes);
  box.button(QMessageBox::No)->setText(texts::kNo);
  Prepare(box);
  box.setDefaultButton(question ? QMessageBox::No : QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

int QtDialogs::Choose(const QString& text, const QString& title, const QStringList& buttons) {
  BeforeBoxOpens::RunAll();
  if (unattended_) {
    Print(text, title);
    return -1;
  }
  ArrowWhileOpen arrow(busy_);
  QMessageBox box(QMessageBox::NoIcon, title, DisplayText(text), QMessageBox::NoButton, Owner());
  std::vector<QAbstractButton*> added;
  for (const QString& caption : buttons) {
    added.push_back(box.addButton(caption, QMessageBox::ActionRole));
  }
  Prepare(box);
  if (!added.empty()) box.setDefaultButton(qobject_cast<QPushButton*>(added.front()));
  box.exec();
  const auto pressed = std::find(added.begin(), added.end(), box.clickedButton());
  return pressed == added.end() ? -1 : static_cast<int>(pressed - added.begin());
}

SearchAnswer QtDialogs::AskInsuredPerson() {
  BeforeBoxOpens::RunAll();
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

QString QtDialogs::AskDirectory(DirPurpose purpose) {
  BeforeBoxOpens::RunAll();
  DirForm form(QCoreApplication::applicationDirPath(), *this, SystemDrives, purpose);
  if (unattended_) {
    Print(form.Title(), texts::kAppTitle);
    return {};
  }
  // The form sets the pointer itself: the arrow while open, the hourglass
  // after OK.
  form.Load();
  DirView view(form, Owner());
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

void QtDialogs::PrintPreview(const PrintJob& job) {
  BeforeBoxOpens::RunAll();
  if (unattended_) {
    struct Unstopped : Progress {
      bool Advance(qint64, qint64) override { return true; }
    } progress;
    TextPrinter pages(stdout);
    job.draw(pages, progress);
    return;
  }
  ShowPrintPreview(Owner(), *this, job);
}

void QtDialogs::ShowReport(const Report& report) {
  BeforeBoxOpens::RunAll();
  if (unattended_) {
    for (const QString& line : ReportText(report)) {
      std::fputs((line + u'\n').toUtf8().constData(), stdout);
    }
    std::fflush(stdout);
    return;
  }
  ArrowWhileOpen arrow(busy_);
  ShowReportWindow(Owner(), report);
}

bool QtDialogs::ConfirmReport(const Report& report, const QString& go_on) {
  BeforeBoxOpens::RunAll();
  if (unattended_) {
    ShowReport(report);
    return false;
  }
  ArrowWhileOpen arrow(busy_);
  return ConfirmReportWindow(Owner(), report, go_on);
}

QString QtDialogs::AskFile(const FileQuestion& question) {
  BeforeBoxOpens::RunAll();
  if (unattended_) {
    Print(question.title, texts::kAppTitle);
    return {};
  }
  ArrowWhileOpen arrow(busy_);
  return ChooseFile(Owner(), question);
}

void QtDialogs::RunWithProgress(const QString& text, const std::function<void(Progress&)>& task) {
  BeforeBoxOpens::RunAll();
  struct Unstopped : Progress {
    bool Advance(qint64, qint64) override { return true; }
  };
  if (unattended_) {
    Unstopped progress;
    task(progress);
    return;
  }
  constexpr int kSteps = 1000;
  QProgressDialog dialog(DisplayText(text), texts::kCancelCmd, 0, kSteps, Owner());
  dialog.setWindowTitle(texts::kAppTitle);
  dialog.setWindowModality(Qt::ApplicationModal);
  dialog.setAutoReset(false);
  dialog.setAutoClose(false);
  dialog.setMinimumDuration(400);
  dialog.setValue(0);
  // A box the task opens comes up once the bar has gone, not under it, and the
  // bar's timer does not bring it back over the box. A stop asked for before
  // stays asked for.
  bool stopped = false;
  const BeforeBoxOpens bar_away([&dialog, &stopped] {
    stopped = stopped || dialog.wasCanceled();
    dialog.reset();
    dialog.hide();
  });
  // The bar and the windows are brought up to date a few times a second:
  // often enough to answer the cancel button at once, seldom enough to cost
  // the work nothing.
  class Bar : public Progress {
   public:
    Bar(QProgressDialog& dialog, const bool& stopped) : dialog_(dialog), stopped_(stopped) {
      since_.start();
    }
    bool Advance(qint64 done, qint64 total) override {
      if (since_.elapsed() >= 40 || done >= total) {
        since_.restart();
        const qint64 step = total > 0 ? done * kSteps / total : 0;
        dialog_.setValue(static_cast<int>(std::min<qint64>(step, kSteps - 1)));
        QCoreApplication::processEvents();
      }
      return !stopped_ && !dialog_.wasCanceled();
    }

   private:
    QProgressDialog& dialog_;
    const bool& stopped_;
    QElapsedTimer since_;
  } bar(dialog, stopped);
  task(bar);
}

}  // namespace veroxia
