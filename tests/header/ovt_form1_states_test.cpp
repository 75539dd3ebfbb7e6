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

TEST_F(OvtForm1States, MissingPicturesAreSkippedSilently) {
  OvtForm1& form = Open();
  EXPECT_TRUE(form.ImagePath().isEmpty());
  EXPECT_TRUE(form.IconPath().isEmpty());
  EXPECT_TRUE(dialogs_.messages.empty());
}

TEST_F(OvtForm1States, NewHeaderOpensWithInitialTexts) {
  OvtForm1& form = Open();
  for (const char* total :
       {"Text14_1", "Text15_1", "Text16_1", "Text14_2", "Text15_2", "Text16_2", "Text14_3",
        "Text15_3", "Text16_3", "Text17_1", "Text17_2", "Text17_3"}) {
    EXPECT_EQ(form.Text(QString::fromLatin1(total)), u"0"_s) << total;
  }
  for (const char* empty : {"Text2", "Text3", "Text4", "FirstNmTxt", "FatherNmTxt", "Text5",
                            "Text6", "Text7", "Text8", "Text9", "Text10"}) {
    EXPECT_TRUE(form.Text(QString::fromLatin1(empty)).isEmpty()) << empty;
  }
  EXPECT_EQ(form.Text(u"FlDateTxt"_s), u"__/__/____"_s);
  EXPECT_EQ(form.Text(u"StopDateTxt"_s), u"__/__/____"_s);
  EXPECT_EQ(form.Text(u"Text11_1"_s), u"01"_s);
  EXPECT_EQ(form.Text(u"Text11_2"_s), u"2002"_s);
  EXPECT_EQ(form.Text(u"Text12_1"_s), u"03"_s);
  EXPECT_EQ(form.Text(u"Text12_2"_s), u"2002"_s);
}

struct MaxLength {
  const char* field;
  int length;
};

TEST_F(OvtForm1States, TypingIsCutAtEachFieldsMaximumLength) {
  const MaxLength lengths[] = {
      {"KodDescr", 15},   {"Text2", 3},        {"Text3", 50},    {"Text4", 80},
      {"FirstNmTxt", 30}, {"FatherNmTxt", 30}, {"Text5", 10},    {"Text6", 9},
      {"Text7", 50},      {"Text8", 10},       {"Text9", 5},     {"Text10", 30},
      {"Text11_1", 2},    {"Text11_2", 4},     {"Text12_1", 2},  {"Text12_2", 4},
      {"FlDateTxt", 10},  {"StopDateTxt", 10}, {"Text14_1", 8},  {"Text15_1", 13},
      {"Text16_1", 13},   {"Text14_2", 8},     {"Text15_2", 13}, {"Text16_2", 13},
      {"Text14_3", 8},    {"Text15_3", 13},    {"Text16_3", 13}, {"Text17_1", 8},
      {"Text17_2", 13},   {"Text17_3", 13},    {"Text13_1", 8},  {"Text13_2", 8},
      {"Text13_3", 8}};
  OvtForm1& form = Open();
  const QString long_text(200, u'9');
  for (const MaxLength& entry : lengths) {
    const QString name = QString::fromLatin1(entry.field);
    form.Type(name, long_text);
    EXPECT_EQ(form.Text(name).size(), entry.length) << entry.field;
  }
  form.Type(u"Text1"_s, long_text);
  EXPECT_EQ(form.Text(u"Text1"_s), long_text);
}

// The texts keep their blanks, their Latin look-alike letters and their line
// breaks exactly.
TEST_F(OvtForm1States, TextsKeepTheirBlanksAndLetters) {
  OvtForm1& form = Open();
  EXPECT_TRUE(form.Text(u"SaveCmd"_s).endsWith(u"η "_s));
  EXPECT_TRUE(form.Text(u"Text6Lbl"_s).endsWith(u".  (6)"_s));
  EXPECT_TRUE(form.Text(u"Text11Lbl"_s).endsWith(u")       (MM/EEEE)"_s));
  EXPECT_TRUE(form.Text(u"Text12Lbl"_s).endsWith(u")          (MM/EEEE)"_s));
  EXPECT_TRUE(form.Text(u"Option1Lbl_0"_s).startsWith(u" 01 "_s));
  EXPECT_TRUE(form.Text(u"Option1Lbl_1"_s).startsWith(u"  02 "_s));
  EXPECT_TRUE(form.Text(u"Option1Lbl_2"_s).startsWith(u"  03 "_s));
  EXPECT_EQ(header_texts::kNameAme, u"A.M.E."_s);  // Latin capitals
  EXPECT_EQ(header_texts::kNameTk, u"T.K."_s);
  EXPECT_TRUE(header_texts::kNameAfm.startsWith(u"A."_s));
  EXPECT_NE(form.Text(u"Text5Lbl"_s).left(1), u"A"_s);  // the caption's letters are Greek
  for (const QString& message : {header_texts::kStopDateNotIn01, header_texts::kStopDateNotIn03}) {
    EXPECT_EQ(message.count(u"\r\n"_s), 1);
    EXPECT_FALSE(message.contains(u"\r\n\r\n"_s));
  }
  EXPECT_FALSE(form.At(u"Text1Lbl"_s).visible);
  EXPECT_FALSE(form.At(u"KodDescrLbl"_s).visible);
}

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
