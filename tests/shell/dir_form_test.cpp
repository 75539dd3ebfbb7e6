// The directory dialog: which directory it hands back, and the drive that
// cannot be read.

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <functional>

#include "shell/dir_form.h"
#include "shell/texts.h"
#include "support/fakes.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;

// Under a temporary home: the program's directory app/ with out/inner/ in it,
// a stick that can be read, and one taken out since the list was made.
struct DirCase {
  const char* what;
  std::function<void(DirForm&, const QString& home)> user;
  QString answer;  // below home; "-" when cancelled
  QString message;
  QString drive;  // Drive1 at the end
};

class DirFormTest : public ::testing::TestWithParam<DirCase> {};

TEST_P(DirFormTest, HandsBackTheOpenedDirectory) {
  const DirCase& c = GetParam();
  QTemporaryDir temp;
  const QString home = temp.path();
  ASSERT_TRUE(QDir(home).mkpath(u"app/out/inner"_s) && QDir(home).mkpath(u"stick"_s));
  FakeDialogs dialogs;
  DirForm form(home + u"/app"_s, dialogs, [&home] {
    return QList<Drive>{{u"STICK"_s, home + u"/stick"_s},
                        {u"GONE"_s, home + u"/gone"_s},
                        {u"home"_s, home},
                        {u"/"_s, u"/"_s}};
  });
  form.Load();
  EXPECT_EQ(form.Text(u"Drive1"_s), u"home"_s);
  c.user(form, home);
  EXPECT_EQ(dialogs.LastMessage(), c.message);
  EXPECT_EQ(form.Text(u"Drive1"_s), c.drive);
  if (c.answer == u"-") {
    EXPECT_EQ(form.Answer(), QString());
  } else {
    form.Command1_Click();
    EXPECT_EQ(form.Answer(), home + c.answer);
    EXPECT_EQ(dialogs.busy_calls, (std::vector<bool>{false, true}));  // arrow, then hourglass
  }
  EXPECT_TRUE(form.Closed());
}

void Open(DirForm& form, const QString& path) {
  form.HighlightDirectory(path);
  EXPECT_TRUE(form.OpenHighlighted());
  EXPECT_EQ(form.Highlighted(), QString());
}

void Choose(DirForm& form, const QString& drive) {
  form.Type(u"Drive1"_s, drive);
  form.Drive1_Change();
}

INSTANTIATE_TEST_SUITE_P(
    Choices, DirFormTest,
    ::testing::Values(
        DirCase{"untouched", [](DirForm&, const QString&) {}, u"/app"_s, {}, u"home"_s},
        DirCase{"highlighted only",
                [](DirForm& f, const QString& home) {
                  Open(f, home + u"/app/out"_s);
                  f.HighlightDirectory(home + u"/app/out/inner"_s);
                },
                u"/app/out"_s,
                {},
                u"home"_s},
        DirCase{"up, and a directory that is not there",
                [](DirForm& f, const QString& home) {
                  Open(f, home + u"/app/.."_s);
                  f.HighlightDirectory(home + u"/nowhere"_s);
                  EXPECT_FALSE(f.OpenHighlighted());
                },
                u""_s,
                {},
                u"home"_s},
        DirCase{"stick",
                [](DirForm& f, const QString&) { Choose(f, u"STICK"_s); },
                u"/stick"_s,
                {},
                u"STICK"_s},
        DirCase{"drive taken out",
                [](DirForm& f, const QString& home) {
                  Open(f, home + u"/app/out"_s);
                  Choose(f, u"GONE"_s);
                },
                u"/app/out"_s, texts::kDirDriveUnreadable + u"GONE'."_s, u"home"_s},
        DirCase{"cancel",
                [](DirForm& f, const QString&) { f.Command2_Click(); },
                u"-"_s,
                {},
                u"home"_s},
        DirCase{"close control",
                [](DirForm& f, const QString&) {
                  Choose(f, u"/"_s);
                  f.QueryClose();
                },
                u"-"_s,
                {},
                u"/"_s}),
    [](const auto& info) {
      QString name = QString::fromLatin1(info.param.what);
      name.removeIf([](QChar c) { return !c.isLetter(); });
      return name.toStdString();
    });

TEST(DirFormLoad, StartsInTheProgramDirectoryWithItsIcon) {
  QTemporaryDir app;
  QFile icon(app.path() + u"/qormain.ico"_s);
  ASSERT_TRUE(icon.open(QIODevice::WriteOnly));
  FakeDialogs dialogs;
  DirForm form(app.path() + u"/"_s, dialogs, [] { return QList<Drive>{{u"/"_s, u"/"_s}}; });
  form.Load();
  EXPECT_EQ(form.Path(), app.path());
  EXPECT_EQ(form.IconPath(), app.path() + u"/qormain.ico"_s);
  EXPECT_EQ(form.DriveNames(), QStringList{u"/"_s});
  EXPECT_EQ(form.Title(), texts::kDirTitle);
  EXPECT_EQ(DirForm::FocusOrder(),
            (QStringList{u"Dir1"_s, u"Drive1"_s, u"Command1"_s, u"Command2"_s}));
}

}  // namespace
}  // namespace veroxia::testing
