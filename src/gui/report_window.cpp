#include "gui/report_window.h"

#include <QBoxLayout>
#include <QDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTableWidget>
#include <QTextDocument>
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

// Lines of notes shown without scrolling.
constexpr int kNoteLines = 6;

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

  if (!report.notes.isEmpty()) {
    auto* notes = new QPlainTextEdit(window);
    notes->setObjectName(u"ReportNotes"_s);
    notes->setReadOnly(true);
    notes->setLineWrapMode(QPlainTextEdit::NoWrap);
    notes->setPlainText(report.notes.join(u'\n'));
    const int line = notes->fontMetrics().lineSpacing();
    notes->setFixedHeight(line * (std::min<int>(report.notes.size(), kNoteLines) + 1) +
                          2 * notes->frameWidth());
    // As wide as the longest note, so that each reads without scrolling.
    int widest = 0;
    for (const QString& note : report.notes) {
      widest = std::max(widest, notes->fontMetrics().horizontalAdvance(note));
    }
    const int margins = 2 * notes->frameWidth() +
                        2 * static_cast<int>(notes->document()->documentMargin()) +
                        notes->verticalScrollBar()->sizeHint().width();
    notes->setMinimumWidth(std::min(widest + margins, room.width() - 60));
    column->addWidget(notes);
  }

  auto* verdict = new QLabel(report.verdict, window);
  verdict->setObjectName(u"ReportVerdict"_s);
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
