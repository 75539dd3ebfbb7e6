// The states of the common-business header screen: which fields are unlocked
// and which buttons are shown and usable, on opening and after each button;
// the type selection, the focus selection, and leaving the screen.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <functional>

#include "header/ovt_form1_fixture.h"
#include "header/texts.h"
#include "shell/texts.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using testing::ScreenState;

class OvtForm1States : public testing::OvtForm1Test {};

class StateTable;

struct StateCase {
  const char* name;
  std::function<void(StateTable&)> steps;
  ScreenState expected;
  bool is_new_header;
};

void PrintTo(const StateCase& state, std::ostream* out) { *out << state.name; }

class StateTable : public OvtForm1States, public ::testing::WithParamInterface<StateCase> {
 public:
  void OpenStored() {
    Store(StoredRow());
    Open();
  }
  void OpenNew() { Open(); }
  void OpenTakenOver() {
    Store(StoredRow(kId - 1));
    store_.vars.PreviousDeclarationId = kId - 1;
    store_.vars.CarryOver = true;
    Open();
  }
  OvtForm1& Form() { return *form_; }
  void TypeValid() { TypeValidHeader(); }
  Database& Db() { return db_; }
};

const StateCase kStateCases[] = {
    {"NewHeader", [](StateTable& t) { t.OpenNew(); }, testing::kNewState, true},
    {"TakenOver", [](StateTable& t) { t.OpenTakenOver(); }, testing::kTakeoverState, true},
    {"StoredHeader", [](StateTable& t) { t.OpenStored(); }, testing::kViewState, false},
    {"Correcting",
     [](StateTable& s) {
       s.OpenStored();
       s.Form().UpDateCmd_Click();
     },
     testing::kCorrectingState, false},
    {"CancelledCorrection",
     [](StateTable& s) {
       s.OpenStored();
       s.Form().UpDateCmd_Click();
       s.Form().CancelCmd_Click();
     },
     testing::kViewState, false},
    {"NewHeaderSaved",
     [](StateTable& s) {
       s.OpenNew();
       s.TypeValid();
       s.Form().SaveCmd_Click();
     },
     testing::kViewState, false},
    {"NewHeaderSavedThenCorrecting",
     [](StateTable& s) {
       s.OpenNew();
       s.TypeValid();
       s.Form().SaveCmd_Click();
       s.Form().UpDateCmd_Click();
     },
     testing::kCorrectingState, false},
    {"TakenOverSaved",
     [](StateTable& s) {
       s.OpenTakenOver();
       s.Form().SaveCmd_Click();
     },
     testing::kViewState, false},
    {"CorrectionOfAVanishedRow",
     [](StateTable& s) {
       s.OpenStored();
       s.Form().UpDateCmd_Click();
       s.Db().Exec("DELETE FROM QOR_EMPLOYERS");
       s.Form().SaveCmd_Click();
     },
     testing::kViewState, false},
    {"NewHeaderFailingACheck",
     [](StateTable& s) {
       s.OpenNew();
       s.TypeValid();
       s.Form().Type(u"Text2"_s, u"1"_s);
       s.Form().SaveCmd_Click();
     },
     testing::kNewState, true},
};

TEST_P(StateTable, FieldsAndButtons) {
  GetParam().steps(*this);
  EXPECT_EQ(State(), GetParam().expected);
  EXPECT_EQ(form_->IsNewHeader(), GetParam().is_new_header);
  ExpectBusyBalanced();
}

INSTANTIATE_TEST_SUITE_P(OvtForm1States, StateTable, ::testing::ValuesIn(kStateCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(OvtForm1States, OpeningSetsTitleTypeAndPictures) {
  for (const char* name : {"ovt2.gif", "qormain.ico"}) {
    QFile file(QDir(store_.Dir()).filePath(QString::fromLatin1(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("GIF89a");
  }
  OvtForm1& form = Open();
  EXPECT_EQ(form.Title(), header_texts::kOvtForm1Title);
  EXPECT_EQ(QFileInfo(form.ImagePath()), QFileInfo(QDir(store_.Dir()).filePath(u"ovt2.gif"_s)));
  EXPECT_EQ(QFileInfo(form.IconPath()), QFileInfo(QDir(store_.Dir()).filePath(u"qormain.ico"_s)));
  EXPECT_EQ(form.SelectedType(), 0);
  EXPECT_EQ(form.Text(u"Text1"_s), u"01"_s);
  EXPECT_EQ(form.Text(u"KodDescr"_s), header_texts::kType01Descr);
  EXPECT_FALSE(form.ClosingByCommand());
  EXPECT_TRUE(dialogs_.messages.empty());
  ExpectBusyBalanced();
  EXPECT_FALSE(dialogs_.busy_calls.empty());
}

struct MaxLength {
  const char* field;
  int length;
};

struct TypeCase {
  int index;
  const char* code;
};

TEST_F(OvtForm1States, TypeSelectionSetsCodeDescriptionAndGreysTheOtherCaptions) {
  OvtForm1& form = Open();
  const QString descriptions[] = {header_texts::kType01Descr, header_texts::kType02Descr,
                                  header_texts::kType03Descr};
  for (const TypeCase& type : {TypeCase{1, "02"}, TypeCase{2, "03"}, TypeCase{0, "01"}}) {
    form.Option1_Click(type.index);
    EXPECT_EQ(form.SelectedType(), type.index);
    EXPECT_EQ(form.Text(u"Text1"_s), QString::fromLatin1(type.code));
    EXPECT_EQ(form.Text(u"KodDescr"_s), descriptions[type.index]);
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(form.At(u"Option1Lbl_"_s + QString::number(i)).enabled, i == type.index)
          << "type " << type.code << ", caption " << i;
    }
  }
}

TEST_F(OvtForm1States, HiddenCodeChangedInTheViewStateSelectsAgain) {
  Store(StoredRow());  // type 02
  OvtForm1& form = Open();
  ASSERT_EQ(form.SelectedType(), 1);
  form.Type(u"Text1"_s, u"03"_s);
  form.Text1_Change();
  EXPECT_EQ(form.Text(u"KodDescr"_s), header_texts::kType03Descr);
  EXPECT_TRUE(form.At(u"Option1Lbl_2"_s).enabled);
  EXPECT_FALSE(form.At(u"Option1Lbl_1"_s).enabled);
  EXPECT_EQ(form.SelectedType(), 1);  // the option buttons are not touched

  form.Type(u"Text1"_s, u"07"_s);  // any other code stands for 01
  form.Text1_Change();
  EXPECT_EQ(form.Text(u"Text1"_s), u"01"_s);
  EXPECT_EQ(form.Text(u"KodDescr"_s), header_texts::kType01Descr);
  EXPECT_TRUE(form.At(u"Option1Lbl_0"_s).enabled);
}

TEST_F(OvtForm1States, HiddenCodeChangedWhileEditingDoesNothing) {
  OvtForm1& form = Open();  // new header: the save button is shown
  form.Type(u"Text1"_s, u"02"_s);
  form.Text1_Change();
  EXPECT_EQ(form.Text(u"Text1"_s), u"02"_s);
  EXPECT_EQ(form.Text(u"KodDescr"_s), header_texts::kType01Descr);
  EXPECT_TRUE(form.At(u"Option1Lbl_0"_s).enabled);
  EXPECT_FALSE(form.At(u"Option1Lbl_1"_s).enabled);
}

struct FocusCase {
  const char* field;
  QString text;
  int selected;
};

TEST_F(OvtForm1States, AFieldTakingTheFocusHasItsWholeContentSelected) {
  OvtForm1& form = Open();
  const FocusCase cases[] = {
      {"Text2", u"12"_s, 2},
      {"Text4", QString(80, u'Α'), 80},
      {"Text3", u"Αθηνών"_s, 6},
      {"Text14_1", u"12345"_s, 5},
      {"Text17_3", u"1,5"_s, 3},
      {"FlDateTxt", u"08/05/2002"_s, 10},
      {"StopDateTxt", u"__/__/____"_s, 10},
  };
  for (const FocusCase& focus : cases) {
    const QString name = QString::fromLatin1(focus.field);
    form.Type(name, focus.text);
    form.GotFocus(name);
    EXPECT_EQ(form.FocusedField(), name);
    const auto selection = form.SelectionOf(name);
    ASSERT_TRUE(selection.has_value()) << focus.field;
    EXPECT_EQ(selection->start, 0) << focus.field;
    EXPECT_EQ(selection->length, focus.selected) << focus.field;
  }
}

TEST_F(OvtForm1States, CorrectionStartsInTheBranchCode) {
  Store(StoredRow());
  OvtForm1& form = Open();
  form.UpDateCmd_Click();
  EXPECT_EQ(form.FocusedField(), u"Text2"_s);
  EXPECT_EQ(form.SelectionOf(u"Text2"_s).value_or(Selection{}).length, 3);  // "051", selected
}

TEST_F(OvtForm1States, CancelBringsBackExactlyTheStoredValues) {
  Store(StoredRow());
  OvtForm1& form = Open();
  QStringList shown;
  for (const QString& name : form.Names()) shown << form.Text(name);
  const int type = form.SelectedType();

  form.UpDateCmd_Click();
  for (const QString& name : testing::kSwitchedFields) {
    if (!name.startsWith(u"Option"_s)) form.Type(name, u"9"_s);
  }
  form.Option1_Click(2);
  form.CancelCmd_Click();

  QStringList after;
  for (const QString& name : form.Names()) after << form.Text(name);
  EXPECT_EQ(after, shown);
  EXPECT_EQ(form.SelectedType(), type);
  EXPECT_EQ(State(), testing::kViewState);
  ExpectBusyBalanced();
}

TEST_F(OvtForm1States, ReturnShowsTheStartScreenWithoutAQuestion) {
  OvtForm1& form = Open();
  form.ExitCmd_Click();
  EXPECT_EQ(screens_.shown, QStringList{u"start"_s});
  EXPECT_TRUE(form.ClosingByCommand());
  EXPECT_TRUE(form.QueryClose());
  EXPECT_TRUE(dialogs_.questions.empty());
  EXPECT_EQ(screens_.quit_status, std::nullopt);
}

TEST_F(OvtForm1States, EmployeesButtonOpensTheEmployeeScreenWithoutAQuestion) {
  Store(StoredRow());
  OvtForm1& form = Open();
  form.QorInsert_Click();
  EXPECT_EQ(screens_.shown, QStringList{u"lines common"_s});
  EXPECT_TRUE(form.QueryClose());
  EXPECT_TRUE(dialogs_.questions.empty());
}

TEST_F(OvtForm1States, CloseBoxAsksAndNoKeepsTheScreen) {
  OvtForm1& form = Open();
  dialogs_.answers = {false};
  EXPECT_FALSE(form.QueryClose());
  ASSERT_EQ(dialogs_.questions.size(), 1u);
  EXPECT_EQ(dialogs_.questions[0].text, header_texts::kCloseQuestion);
  EXPECT_EQ(dialogs_.questions[0].title, header_texts::kOvtForm1CloseTitle);
  EXPECT_EQ(dialogs_.last_style, AskStyle::Plain);
  EXPECT_EQ(screens_.quit_status, std::nullopt);
}

TEST_F(OvtForm1States, CloseBoxAndYesEndsTheProgram) {
  OvtForm1& form = Open();
  dialogs_.answers = {true};
  EXPECT_TRUE(form.QueryClose());
  EXPECT_EQ(dialogs_.questions.size(), 1u);
  EXPECT_EQ(screens_.quit_status, 0);
  EXPECT_TRUE(screens_.shown.isEmpty());
}

TEST_F(OvtForm1States, FileAndPrintoutButtonsSayTheyAreNotAvailableYet) {
  Store(StoredRow());
  OvtForm1& form = Open();
  form.PrintCmd_Click();
  form.PrintSumCmd_Click();
  form.CreateFile_Click();
  ASSERT_EQ(dialogs_.messages.size(), 3u);
  for (const auto& message : dialogs_.messages) {
    EXPECT_EQ(message.text, header_texts::kNotAvailable);
    EXPECT_EQ(message.title, texts::kAppTitle);
  }
  EXPECT_TRUE(screens_.shown.isEmpty());
}

}  // namespace
}  // namespace veroxia
