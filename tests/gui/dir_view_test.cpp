// The directory dialog's window: it starts in the program's directory, opens
// a directory by double-click or Enter, and hands back the one opened.

#include "gui/dir_view.h"
#include "gui/driver.h"
#include "shell/texts.h"

namespace veroxia::testing {
namespace {

// The list's entry of that name, once the list has read its directory.
QModelIndex Entry(const QListView& list, const QString& name) {
  QElapsedTimer waited;
  for (waited.start(); waited.elapsed() < 5000; QThread::msleep(5)) {
    QApplication::processEvents();
    for (int row = 0; row < list.model()->rowCount(list.rootIndex()); ++row) {
      const QModelIndex index = list.model()->index(row, 0, list.rootIndex());
      if (index.data().toString() == name) return index;
    }
  }
  ADD_FAILURE() << "no entry " << name.toStdString();
  return {};
}

void DoubleClick(QListView& list, const QString& name) {
  const QPoint at = list.visualRect(Entry(list, name)).center();
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                          QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
    const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, list.mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(list.viewport(), &event);
  }
}

// Home holds the program's directory app/ with out/more/ in it; the drive GONE was
// taken out after the list was made. For either purpose the captions say what
// the directory is for and fit, the title in a title bar too. Enter in the
// list or the path box (typed anew after a fault) opens, and presses no
// button; "Νέος φάκελος" asks for the name in a box of its own and opens the
// folder made; OK hands back the directory opened, not the one highlighted.
TEST(DirViewTest, OpensByDoubleClickEnterPathOrNewFolderAndHandsBackTheOpened) {
  const std::tuple<DirPurpose, QString, QString> purposes[] = {
      {DirPurpose::kWriteVolumes, u"Δημιουργία αρχείου Ξ.Ρ.Φ"_s, texts::kDirLabel1},
      {DirPurpose::kCheckVolumes, texts::kDirCheckTitle, texts::kDirCheckLabel1}};
  for (const auto& [purpose, title, label1] : purposes) {
    QTemporaryDir home;
    const QString app = home.path() + u"/app"_s;
    ASSERT_TRUE(QDir(app).mkpath(u"out/more"_s));
    FakeDialogs dialogs;
    const auto drives = [&home] {
      return QList<Drive>{{u"home"_s, home.path()}, {u"GONE"_s, home.path() + u"/gone"_s}};
    };
    DirForm form(app, dialogs, drives, purpose);
    form.Load();
    DirView view(form);
    auto* list = Find<QListView>(view, u"Dir1"_s);
    ShowActive(view);
    ExpectNothingCut(view);
    EXPECT_EQ(view.windowTitle(), title);
    EXPECT_EQ(Find<QLabel>(view, u"Label1"_s)->text(), label1);
    EXPECT_TRUE(ShowsWhole(*Find<QLineEdit>(view, u"PathTxt"_s), texts::kDirPathHint));
    QFont bold = view.font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    EXPECT_LT(metrics.horizontalAdvance(title) + 8 * metrics.height(), view.width());
    EXPECT_EQ(Focused(view), u"Dir1"_s);
    EXPECT_EQ(Find<QLabel>(view, u"Dir1Path"_s)->toolTip(), app);
    auto* drive = Find<QComboBox>(view, u"Drive1"_s);
    drive->setCurrentText(u"GONE"_s);
    EXPECT_EQ(dialogs.LastMessage(), texts::kDirDriveUnreadable + u"GONE'."_s);
    EXPECT_EQ(drive->currentText(), u"home"_s);

    DoubleClick(*list, u"out"_s);
    EXPECT_EQ(form.Path(), app + u"/out"_s);
    list->setCurrentIndex(Entry(*list, u".."_s));
    Key(*list, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(form.Path(), app);
    for (const QString& typed : {u"x"_s, u"out"_s}) {
      TypeInto(view, u"PathTxt"_s, typed);
      Key(*Find<QLineEdit>(view, u"PathTxt"_s), Qt::Key_Enter);
    }
    EXPECT_EQ(dialogs.messages.size(), 2u);
    EXPECT_FALSE(form.Closed());
    QTimer::singleShot(0, &view, [] {
      auto* question = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
      if (question != nullptr && question->labelText() == texts::kDirNewFolderName) {
        question->setTextValue(u"made"_s);
        question->accept();
      }
    });
    Click(view, u"NewDirCmd"_s);
    EXPECT_EQ(form.Path(), app + u"/out/made"_s);
    TypeInto(view, u"PathTxt"_s, u".."_s);
    Key(*Find<QLineEdit>(view, u"PathTxt"_s), Qt::Key_Return);
    list->setCurrentIndex(Entry(*list, u"more"_s));  // highlighted only
    Click(view, u"Command1"_s);
    QApplication::processEvents();
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(form.Answer(), app + u"/out"_s);
  }
}

TEST(DirViewTest, CancelEscapeAndTheCloseControlAnswerEmpty) {
  const std::function<void(DirView&)> ways[] = {
      [](DirView& view) { Click(view, u"Command2"_s); },
      [](DirView& view) { Key(*Find<QListView>(view, u"Dir1"_s), Qt::Key_Escape); },
      [](DirView& view) { view.close(); }};
  for (const auto& cancel : ways) {
    FakeDialogs dialogs;
    DirForm form(QDir::tempPath(), dialogs);
    form.Load();
    DirView view(form);
    QTimer::singleShot(0, &view, [&] { cancel(view); });
    EXPECT_EQ(view.Ask(), QString());
    EXPECT_TRUE(form.Closed());
  }
}

}  // namespace
}  // namespace veroxia::testing
