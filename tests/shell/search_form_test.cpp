// The search dialog's find button: which key it hands back, or why it stays.

#include <gtest/gtest.h>

#include <QFile>

#include "lines/texts.h"
#include "shell/search_form.h"
#include "support/fakes.h"
#include "support/printers.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;
using namespace lines_texts;

TEST(SearchDialog, HandsBackOneKeyOrStaysOnTheNumber) {
  const struct {
    QString surname;
    QString number;
    QString message;  // empty: the dialog closes with the key below
    SearchAnswer answer;
  } cases[] = {
      {u"πάπα "_s, u" "_s, {}, {u"πάπα "_s, u"NAME"_s}},
      {{}, {}, {}, {{}, u"NAME"_s}},
      {u"x"_s, u"123456789"_s, {}, {u"123456789"_s, u"AMA"_s}},
      {{}, u"12345678"_s, kSearchNotNine, {}},
      {{}, u"12345678x"_s, kSearchNotNumber, {}},
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
    EXPECT_EQ(form.Answer().text, c.answer.text);
    EXPECT_EQ(form.Answer().kind, c.answer.kind);
  }
}

TEST(SearchDialog, TypingOneKeyEmptiesTheOther) {
  FakeDialogs dialogs;
  SearchForm form(QString(), dialogs);
  form.Type(u"Text1"_s, u"123"_s);
  form.Type(u"Text2"_s, u"Π"_s);
  form.Text2_Change();
  EXPECT_EQ(form.Text(u"Text1"_s), u""_s);
  EXPECT_EQ(form.Text(u"Text2"_s), u"Π"_s);
  form.Type(u"Text1"_s, u"9"_s);
  form.Text1_Change();
  EXPECT_EQ(form.Text(u"Text2"_s), u""_s);
}

}  // namespace
}  // namespace veroxia::testing
