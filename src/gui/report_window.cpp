#include "gui/report_window.h"

#include <QBoxLayout>
#include <QDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTableWidget>
#include <algorithm>
#include <memory>

#include "gui/qt_dialogs.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

using namespace Qt::StringLiterals;

const QString kClose = u"Κλείσιμο"_s;
const QString kSave = u"Αποθήκευση ως κείμενο"_s;
const QString kSaveTitle = u"Αποθήκευση της αναφοράς σε αρχείο κειμένου"_s;
const QString kTextFilter = u"Αρχεία κειμένου (*.txt);;Όλα τα αρχεία (*)"_s;
const QColor kFault(0xb0, 0x00, 0x00);

// Lines of notes shown without scrolling when the window opens.
constexpr int kNoteLines = 6;
// Room the style keeps on each side of a note's text.
constexpr int kItemMargin = 4;

// A number as the reports write them: digits, with dots, commas and signs.
bool IsFigure(const QString& text) {
  if (text.isEmpty()) return false;
  for (const QChar c : text) {
    if (!c.isDigit() && c != u'.' && c != u',' && c != u'-' && c != u'+') return false;
  }
  return true;
}

QTableWidget* Table(QWidget* parent, const Report& report) {
  auto* table = new QTableWidget(static_cast<int>(report.rows.size()),
                                 static_cast<int>(report.columns.size()), parent);
  table->setObjectName(u"ReportTable"_s);
  table->setHorizontalHeaderLabels(report.columns);
  table->verticalHeader()->hide();
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setWordWrap(false);
  QFont marked = table->font();
  marked.setBold(true);
  for (int r = 0; r < table->rowCount(); ++r) {
    const ReportRow& row = report.rows[static_cast<size_t>(r)];
    for (int c = 0; c < table->columnCount(); ++c) {
      auto* cell = new QTableWidgetItem(row.cells.value(c));
      // Words read from the left, figures line up on the right.
      cell->setTextAlignment((IsFigure(row.cells.value(c)) ? Qt::AlignRight : Qt::AlignLeft) |
                             Qt::AlignVCenter);
      if (!row.holds) {
        cell->setForeground(kFault);
        cell->setFont(marked);
      }
      table->setItem(r, c, cell);
    }
  }
  table->resizeColumnsToContents();
  table->horizontalHeader()->setStretchLastSection(true);
  table->resizeRowsToContents();
  return table;
}

// The room the table needs to show every column and, within the screen,
// every row.
QSize TableRoom(const QTableWidget& table, int most_height) {
  int width = 2 * table.frameWidth() + table.verticalScrollBar()->sizeHint().width();
  for (int c = 0; c < table.columnCount(); ++c) width += table.columnWidth(c);
  int height = 2 * table.frameWidth() + table.horizontalHeader()->sizeHint().height();
  for (int r = 0; r < table.rowCount(); ++r) height += table.rowHeight(r);
  return {width, std::min(height, most_height)};
}

// The report as a text file, where the user chooses; a file that cannot be
// written is told.
void SaveReport(QWidget* window, const Report& report) {
  const QString path =
      ChooseFile(window, {kSaveTitle, kTextFilter,
                          report.file_name.isEmpty() ? u"report.txt"_s : report.file_name, true});
  if (path.isEmpty()) return;
  const QString problem = SaveReportText(report, path);
  if (problem.isEmpty()) return;
  QMessageBox box(QMessageBox::NoIcon, texts::kAppTitle, problem, QMessageBox::Ok, window);
  box.exec();
}

}  // namespace

QDialog* MakeReportWindow(QWidget* parent, const Report& report, const QString& go_on) {
  auto* window = new QDialog(parent);
  window->setObjectName(u"ReportWindow"_s);
  window->setWindowTitle(report.title);
  window->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  // A report is read at any size the user likes: the table and the notes
  // grow with the window.
  window->setSizeGripEnabled(true);
  auto* column = new QVBoxLayout(window);

  const QScreen* screen = parent != nullptr && parent->screen() != nullptr
                              ? parent->screen()
                              : QGuiApplication::primaryScreen();
  const QRect room = screen != nullptr ? screen->availableGeometry() : QRect(0, 0, 1024, 768);

  for (const QString& line : report.about) {
    auto* about = new QLabel(line, window);
    about->setObjectName(u"ReportAbout"_s);
    about->setTextFormat(Qt::PlainText);
    column->addWidget(about);
  }
  QTableWidget* table = Table(window, report);
  const QSize needed = TableRoom(*table, room.height() / 2);
  const int width = std::min(needed.width(), room.width() - 60);
  // A table cut short on the right scrolls: its bar takes room of its own.
  const int bar = width < needed.width() ? table->horizontalScrollBar()->sizeHint().height() : 0;
  table->setMinimumSize(width, needed.height() + bar);
  column->addWidget(table, 1);

  int notes_width = 0;
  if (!report.notes.isEmpty()) {
    // One note a row, in a list that takes its share of the window as it
    // grows; a note wider than the list wraps rather than being cut.
    auto* notes = new QListWidget(window);
    notes->setObjectName(u"ReportNotes"_s);
    notes->addItems(report.notes);
    notes->setSelectionMode(QAbstractItemView::ExtendedSelection);
    notes->setWordWrap(true);
    notes->setTextElideMode(Qt::ElideNone);
    notes->setResizeMode(QListView::Adjust);
    notes->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    notes->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    const int line = notes->fontMetrics().lineSpacing();
    notes->setMinimumHeight(line * (std::min<int>(report.notes.size(), kNoteLines) + 1) +
                            2 * notes->frameWidth());
    // The window opens as wide as the longest note, within the screen, so
    // that each reads on one line; narrowed, the notes wrap.
    int widest = 0;
    for (const QString& note : report.notes) {
      widest = std::max(widest, notes->fontMetrics().horizontalAdvance(note));
    }
    const int margins = 2 * notes->frameWidth() + 4 * notes->spacing() + 2 * kItemMargin +
                        notes->verticalScrollBar()->sizeHint().width();
    notes_width = std::min(widest + margins, room.width() - 60);
    column->addWidget(notes, 1);
    // Room beyond what the table's rows need goes to the notes.
    table->setMaximumHeight(TableRoom(*table, QWIDGETSIZE_MAX).height() + bar);
  }

  auto* verdict = new QLabel(report.verdict, window);
  verdict->setObjectName(u"ReportVerdict"_s);
  verdict->setWordWrap(true);
  QFont bold = verdict->font();
  bold.setBold(true);
  verdict->setFont(bold);
  if (!report.AllHold()) {
    QPalette palette = verdict->palette();
    palette.setColor(QPalette::WindowText, kFault);
    verdict->setPalette(palette);
  }
  column->addWidget(verdict);

  auto* buttons = new QHBoxLayout;
  auto* save = new QPushButton(kSave, window);
  save->setObjectName(u"SaveCmd"_s);
  save->setAutoDefault(false);
  QObject::connect(save, &QPushButton::clicked, window,
                   [window, report] { SaveReport(window, report); });
  buttons->addWidget(save);
  buttons->addStretch(1);
  if (!go_on.isEmpty()) {
    auto* go = new QPushButton(go_on, window);
    go->setObjectName(u"GoOnCmd"_s);
    QObject::connect(go, &QPushButton::clicked, window, &QDialog::accept);
    buttons->addWidget(go);
  }
  auto* close = new QPushButton(go_on.isEmpty() ? kClose : texts::kCancelCmd, window);
  close->setObjectName(u"CloseCmd"_s);
  close->setDefault(true);
  QObject::connect(close, &QPushButton::clicked, window,
                   go_on.isEmpty() ? &QDialog::accept : &QDialog::reject);
  buttons->addWidget(close);
  column->addLayout(buttons);
  window->adjustSize();
  const QMargins margins = column->contentsMargins();
  const int opening = notes_width + margins.left() + margins.right();
  if (window->width() < opening) window->resize(opening, window->height());
  return window;
}

void ShowReportWindow(QWidget* parent, const Report& report) {
  const std::unique_ptr<QDialog> window(MakeReportWindow(parent, report));
  window->exec();
}

bool ConfirmReportWindow(QWidget* parent, const Report& report, const QString& go_on) {
  const std::unique_ptr<QDialog> window(MakeReportWindow(parent, report, go_on));
  return window->exec() == QDialog::Accepted;
}

}  // namespace veroxia
