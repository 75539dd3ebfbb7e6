// The directory dialog: which directory it hands back, and the drive that
// cannot be read; which mounted volumes its drive list offers, in which order
// and by which name. The search dialog: which key it hands back, or why it
// stays. A report saved as text, and the names a declaration's files get.

#include <gtest/gtest.h>

#include <QDir>

#include "lines/texts.h"
#include "shell/dir_form.h"
#include "shell/drives.h"
#include "shell/file_names.h"
#include "shell/report.h"
#include "shell/search_form.h"
#include "shell/texts.h"
#include "support/fakes.h"
#include "support/files.h"
#include "support/printers.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;

QString Shown(const QList<Drive>& drives) {
  QStringList shown;
  for (const Drive& drive : drives) shown << drive.name + u'=' + drive.root;
  return shown.join(u' ');
}

TEST(Drives, RemovableByLabelThenHomeThenRootAndThePathsDriveIsTheLongestRoot) {
  // clang-format off
  const QList<Volume> volumes = {{u"/"_s, {}}, {u"/boot/efi"_s, u"EFI"_s}, {u"/run/media/u/X"_s, u"X"_s},
                                 {u"/media/u/S"_s, u"S"_s}, {u"/mnt"_s, {}}, {u"/media/u/X2"_s, u"X"_s},
                                 {u"/mediax"_s, u"M"_s}, {u"/mnt/a"_s, u"/"_s}};
  // clang-format on
  EXPECT_EQ(Shown(DrivesOf(volumes, u"/home/u/"_s)),
            u"S=/media/u/S /media/u/X2=/media/u/X2 /mnt=/mnt /mnt/a=/mnt/a "
            "/run/media/u/X=/run/media/u/X /home/u=/home/u /=/"_s);
  EXPECT_EQ(Shown(DrivesOf({}, u"/"_s)), u"/=/"_s);
  // The drive shown for a path is the one with the longest root holding it.
  const QList<Drive> drives{{u"/"_s, u"/"_s}, {u"u"_s, u"/home/u"_s}, {u"v"_s, u"/home/v"_s}};
  EXPECT_EQ(DriveOf(drives, u"/home/u/x"_s), 1);
  EXPECT_EQ(DriveOf(drives, u"/home/uv"_s), 0);
  EXPECT_EQ(DriveOf({}, u"/home"_s), -1);
}

// What the user does, step by step: "open:", "highlight:" a directory below
// home, choose a "drive:", "cancel" or "close"; then OK unless closed. Home
// holds the program's directory app/ with out/inner/ and its icon in it, and
// a stick; the drive GONE was taken out after the list was made.
TEST(DirDialog, HandsBackTheOpenedDirectory) {
  const struct {
    QStringList steps;
    QString answer;  // below home; "-" when cancelled
    QString failed;  // the drive reported unreadable
    QString drive;   // Drive1 at the end
  } cases[] = {
      // clang-format off
      {{}, u"/app"_s, {}, u"home"_s},
      {{u"open:/app/out"_s, u"highlight:/app/out/inner"_s}, u"/app/out"_s, {}, u"home"_s},
      {{u"open:/app/.."_s, u"open:/nowhere"_s}, u""_s, {}, u"home"_s},
      {{u"drive:STICK"_s}, u"/stick"_s, {}, u"STICK"_s},
      {{u"open:/app/out"_s, u"drive:GONE"_s}, u"/app/out"_s, u"GONE"_s, u"home"_s},
      {{u"open:/app/out"_s, u"cancel"_s}, u"-"_s, {}, u"home"_s},
      {{u"drive:/"_s, u"close"_s}, u"-"_s, {}, u"/"_s},
      // clang-format on
  };
  QTemporaryDir temp;
  const QString home = temp.path();
  ASSERT_TRUE(QDir(home).mkpath(u"app/out/inner"_s) && QDir(home).mkpath(u"stick"_s));
  ASSERT_TRUE(QFile(home + u"/app/qormain.ico"_s).open(QIODevice::WriteOnly));
  for (const auto& c : cases) {
    SCOPED_TRACE(c.steps.join(u' ').toStdString());
    FakeDialogs dialogs;
    // clang-format off
    DirForm form(home + u"/app/"_s, dialogs, [&home] {
      return QList<Drive>{{u"/"_s, u"/"_s}, {u"STICK"_s, home + u"/stick"_s}, {u"GONE"_s, home + u"/gone"_s}, {u"home"_s, home}};
    });
    // clang-format on
    form.Load();
    EXPECT_EQ(form.IconPath(), home + u"/app/qormain.ico"_s);
    for (const QString& step : c.steps) {
      const QString what = step.section(u':', 0, 0), value = step.section(u':', 1);
      if (what == u"open" || what == u"highlight") form.HighlightDirectory(home + value);
      if (what == u"open") form.OpenHighlighted();
      if (what == u"drive") form.Type(u"Drive1"_s, value), form.Drive1_Change();
      if (what == u"cancel") form.Command2_Click();
      if (what == u"close") form.QueryClose();
    }
    EXPECT_EQ(dialogs.LastMessage(),
              c.failed.isEmpty() ? QString() : texts::kDirDriveUnreadable + c.failed + u"'."_s);
    EXPECT_EQ(form.Text(u"Drive1"_s), c.drive);
    if (!form.Closed()) form.Command1_Click();
    EXPECT_EQ(form.Answer(), c.answer == u"-" ? QString() : home + c.answer);
    // The arrow on loading; the hourglass after OK, for the writing that follows.
    EXPECT_EQ(dialogs.busy_calls,
              (c.answer == u"-" ? std::vector<bool>{false} : std::vector<bool>{false, true}));
  }
}

// In the program's directory app/, which holds out/ and a file "note": a
// path typed into PathTxt and Enter ("go:", ~ for home), or "Νέος φάκελος"
// answered with a name ("new:") or cancelled ("new").
TEST(DirDialog, GoesToATypedPathAndMakesANewFolder) {
  const struct {
    QString step, path, message;  // the opened directory below home; %1 the typed text
  } cases[] = {
      // clang-format off
      {u"go: out "_s, u"/app/out"_s, {}}, {u"go:~/stick"_s, u"/stick"_s, {}},
      {u"go:nowhere"_s, u"/app"_s, texts::kDirPathUnreadable}, {u"go:note"_s, u"/app"_s, texts::kDirPathUnreadable},
      {u"new: made "_s, u"/app/made"_s, {}}, {u"new:out"_s, u"/app"_s, texts::kDirFolderExists},
      {u"new:a/b"_s, u"/app"_s, texts::kDirFolderSeparator}, {u"new:  "_s, u"/app"_s, texts::kDirFolderNoName},
      {u"new"_s, u"/app"_s, {}},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.step.toStdString());
    QTemporaryDir temp;
    const QString home = temp.path();
    ASSERT_TRUE(QDir(home).mkpath(u"app/out"_s) && QDir(home).mkpath(u"stick"_s));
    ASSERT_TRUE(QFile(home + u"/app/note"_s).open(QIODevice::WriteOnly));
    FakeDialogs dialogs;
    DirForm form(home + u"/app"_s, dialogs, [&home] {
      return QList<Drive>{{u"STICK"_s, home + u"/stick"_s}, {u"home"_s, home}};
    });
    form.Load();
    const QString typed = c.step.section(u':', 1).replace(u'~', home);
    const bool go = c.step.startsWith(u"go:");
    form.Type(u"PathTxt"_s, go ? typed : QString());
    form.AskNamesWith([&]() -> std::optional<QString> {
      return c.step == u"new" ? std::nullopt : std::optional(typed);
    });
    go ? form.PathTxt_Enter() : form.NewDirCmd_Click();
    EXPECT_EQ(form.Path(), home + c.path);
    EXPECT_EQ(form.Text(u"Drive1"_s), c.path == u"/stick" ? u"STICK"_s : u"home"_s);
    EXPECT_EQ(dialogs.LastMessage(),
              c.message.contains(u"%1") ? c.message.arg(typed.trimmed()) : c.message);
    // A path that failed stays typed and selected; once opened, the list has the focus.
    const bool failed = go && !c.message.isEmpty();
    EXPECT_EQ(form.Text(u"PathTxt"_s), failed ? typed : QString());
    EXPECT_EQ(form.SelectionOf(u"PathTxt"_s).value_or(Selection{}).length,
              failed ? typed.size() : 0);
    EXPECT_EQ(form.FocusedField(),
              failed ? u"PathTxt"_s : (c.path == u"/app" ? QString() : u"Dir1"_s));
  }
}

TEST(SearchDialog, HandsBackOneKeyOrStaysOnTheNumber) {
  const struct {
    QString surname, number;
    QString message;  // empty: the dialog closes with the key below
    SearchAnswer answer;
  } cases[] = {
      {u"πάπα "_s, u" "_s, {}, {u"πάπα "_s, u"NAME"_s}},
      {{}, {}, {}, {{}, u"NAME"_s}},
      {u"x"_s, u"123456789"_s, {}, {u"123456789"_s, u"AMA"_s}},
      {{}, u"12345678"_s, lines_texts::kSearchNotNine, {}},
      {{}, u"12345678x"_s, lines_texts::kSearchNotNumber, {}},
  };
  QTemporaryDir app;  // the program's directory, with its icon
  ASSERT_TRUE(QFile(app.filePath(u"qormain.ico"_s)).open(QIODevice::WriteOnly));
  for (const auto& c : cases) {
    SCOPED_TRACE(c.number.toStdString());
    FakeDialogs dialogs;
    SearchForm form(app.path(), dialogs);
    form.Load();
    EXPECT_EQ(form.IconPath(), app.filePath(u"qormain.ico"_s));
    form.Activate();
    EXPECT_EQ(form.FocusedField(), u"Text2"_s);
    form.Type(u"Text2"_s, c.surname);
    form.Type(u"Text1"_s, c.number);
    form.Command1_Click();
    EXPECT_EQ(dialogs.LastMessage(), c.message);
    EXPECT_EQ(form.Closed(), c.message.isEmpty());
    if (!c.message.isEmpty()) {
      EXPECT_EQ(form.FocusedField(), u"Text1"_s);
      form.QueryClose();  // the window's close control
    }
    EXPECT_EQ(std::pair(form.Answer().text, form.Answer().kind),
              std::pair(c.answer.text, c.answer.kind));
  }
}

TEST(SearchDialog, TypingOneKeyEmptiesTheOther) {
  FakeDialogs dialogs;
  SearchForm form(QString(), dialogs);
  form.Type(u"Text1"_s, u"123"_s);
  form.Type(u"Text2"_s, u"Π"_s);
  form.Text2_Change();
  EXPECT_EQ(form.Text(u"Text1"_s) + u'|' + form.Text(u"Text2"_s), u"|Π"_s);
  form.Type(u"Text1"_s, u"9"_s);
  form.Text1_Change();
  EXPECT_EQ(form.Text(u"Text1"_s) + u'|' + form.Text(u"Text2"_s), u"9|"_s);
}

TEST(ReportTest, SavedAsTextWholeOrToldWhyNot) {
  // clang-format off
  const Report report{{}, {u"Αρχείο: a.csv"_s}, {u"ΓΡΑΜΜΗ"_s, u"ΜΗΝΥΜΑ"_s}, {{{u"3"_s, u"ΠΡΟΣΟΧΗ!!"_s}, false}},
                      {u"σημείωση"_s}, u"Τέλος."_s, {}};
  // clang-format on
  QTemporaryDir dir;
  const QString path = dir.filePath(u"report.txt"_s);
  EXPECT_EQ(SaveReportText(report, path), QString());
  EXPECT_EQ(
      FileBytes(path),
      "\xEF\xBB\xBF" +
          u"Αρχείο: a.csv\r\nΓΡΑΜΜΗ\tΜΗΝΥΜΑ\r\n3\tΠΡΟΣΟΧΗ!!\r\nσημείωση\r\nΤέλος.\r\n"_s.toUtf8());
  const QString nowhere = dir.filePath(u"none/report.txt"_s);
  EXPECT_TRUE(SaveReportText(report, nowhere).startsWith(texts::kFileNotWritten.arg(nowhere)));
}

TEST(ReportTest, FilesOfADeclarationAreNamedByKindNumberAndPeriod) {
  // clang-format off
  EXPECT_EQ(DeclarationFileName(Kind::Common, 7, u"012009"_s, u"032009"_s, u"txt"_s), u"OVT-common-7-2009-01_2009-03.txt"_s);
  EXPECT_EQ(DeclarationFileName(Kind::Construction, 3, u"1/2026"_s, {}, u"csv"_s), u"OVT-construction-3-12026.csv"_s);
  // clang-format on
}

}  // namespace
}  // namespace veroxia::testing
