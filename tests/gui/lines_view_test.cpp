// The employee window of either kind and the search dialog: real widgets,
// typed into and clicked.

#include "gui/lines_view.h"
#include "gui/driver.h"
#include "gui/form_binder.h"
#include "gui/search_view.h"
#include "lines/import_texts.h"
#include "lines/ovt_form2.h"
#include "lines/ovt_form4.h"
#include "lines/texts.h"
#include "shell/file_names.h"

namespace veroxia::testing {
namespace {

// What differs between the kinds' employee windows.
struct LinesKind {
  const char* name;
  std::function<std::unique_ptr<LinesForm>(Vars&, Dialogs&, Screens&)> form;
  const std::vector<LinesRow>* rows;
  QString date;         // a date box
  QString choice;       // a choice box
  QString second;       // the second of its choices
  QString surname;      // a name field
  QString first_fault;  // the field of the first check that fails with the surname alone
};

void PrintTo(const LinesKind& kind, std::ostream* out) { *out << kind.name; }

template <class F>
std::unique_ptr<LinesForm> Make(Vars& vars, Dialogs& dialogs, Screens& screens) {
  return std::make_unique<F>(vars, dialogs, screens);
}

class LinesViewTest : public ::testing::TestWithParam<LinesKind> {
 protected:
  LinesViewTest() : form(GetParam().form(store.vars, dialogs, screens)) {
    store.Open();
    store.vars.DeclarationId = 1;
    store.vars.PeriodFrom = u"012002"_s;
    store.vars.PeriodTo = u"012002"_s;
    form->Load();
    view = std::make_unique<LinesView>(*form, *GetParam().rows, QRect(500, 100, 10320, 8175));
    ShowActive(*view);
  }

  TempStore store;
  FakeDialogs dialogs;
  FakeScreens screens;
  std::unique_ptr<LinesForm> form;
  std::unique_ptr<LinesView> view;
};

TEST_P(LinesViewTest, TypedTextsReachTheChecksClearAndGoToALine) {
  const LinesKind& kind = GetParam();
  for (const QString& name : form->Names()) {
    EXPECT_NE(view->findChild<QWidget*>(name), nullptr) << name.toStdString();
  }
  ExpectNothingCut(*view);
  EXPECT_EQ(Focused(*view), form->FirstField());
  EXPECT_EQ(Find<QLineEdit>(*view, kind.date)->displayText(), u"__/__/____"_s);
  EXPECT_EQ(Find<QComboBox>(*view, kind.choice)->count(), 2);
  // The file buttons ask for a file to read and a file to write.
  Click(*view, u"ImportCmd"_s);
  Click(*view, u"ExportCmd"_s);
  ASSERT_EQ(dialogs.file_questions.size(), 2u);
  EXPECT_EQ(dialogs.file_questions[0].title, import_texts::kImportTitle);
  EXPECT_EQ(dialogs.file_questions[1].suggested,
            DeclarationFileName(form->Layout().kind, 1, u"012002"_s, u"012002"_s, u"csv"_s));
  // Typed texts reach the logic (the date box as shown, the choice box by its
  // list); OK runs the checks, whose fault takes the focus; the close box asks.
  TypeInto(*view, kind.surname, u"Papas"_s);
  TypeInto(*view, kind.date, u"05031970"_s);
  Find<QComboBox>(*view, kind.choice)->setCurrentIndex(1);
  QApplication::processEvents();
  EXPECT_EQ(form->Text(kind.surname), u"Papas"_s);
  EXPECT_EQ(form->Text(kind.date), u"05/03/1970"_s);
  EXPECT_EQ(form->Text(kind.choice), kind.second);
  Click(*view, u"OkCmd"_s);
  EXPECT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(Focused(*view), kind.first_fault);
  view->close();  // answered No: the window stays
  EXPECT_EQ(dialogs.questions.size(), 1u);
  EXPECT_TRUE(view->isVisible());

  // Clear puts the focus on the first box, where the user sees it; in browse
  // mode the number of a line and Enter show that line and where it stands.
  Click(*view, u"ClearCmd"_s);
  EXPECT_EQ(Focused(*view), form->FirstField());
  EXPECT_TRUE(Find<QLineEdit>(*view, kind.surname)->text().isEmpty());
  store.vars.StoreConnection->Exec(
      form->Layout().kind == Kind::Common
          ? "INSERT INTO QOR_EMPLOYEES (id, row_num) VALUES (1, 1), (1, 2)"
          : "INSERT INTO QOR_CON_EMPLOYEES (id, row_num) VALUES (1, 1), (1, 2)");
  form->Load();
  view->Binder().Mirror();
  TypeInto(*view, u"GotoTxt"_s, u"2"_s);
  Key(*Find<QLineEdit>(*view, u"GotoTxt"_s), Qt::Key_Return);
  EXPECT_EQ(Find<QLabel>(*view, u"PositionLbl"_s)->text(),
            lines_texts::kPosition.arg(u"2"_s, u"2"_s));
  ExpectNothingCut(*view);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, LinesViewTest,
    ::testing::Values(LinesKind{"Common", Make<OvtForm2>, &CommonLinesRows(), u"Text25"_s,
                                u"Text28"_s, lines_texts::kNo, u"Text21"_s, u"Text18_1"_s},
                      LinesKind{"Construction", Make<OvtForm4>, &ConstructionLinesRows(),
                                u"Text28"_s, u"Text30"_s, lines_texts::kUnmarried, u"Text24"_s,
                                u"Text25"_s}),
    [](const ::testing::TestParamInfo<LinesKind>& info) { return std::string(info.param.name); });

TEST(SearchViewTest, OneKeyAtATimeAndTheCloseBoxCancels) {
  FakeDialogs dialogs;
  SearchForm form(QString(), dialogs);
  form.Load();
  SearchView view(form);
  ShowActive(view);
  EXPECT_EQ(Focused(view), u"Text2"_s);
  TypeInto(view, u"Text2"_s, u"ab"_s);
  TypeInto(view, u"Text1"_s, u"12"_s);
  EXPECT_EQ(Find<QLineEdit>(view, u"Text2"_s)->text(), u""_s);
  Click(view, u"Command1"_s);
  EXPECT_EQ(dialogs.LastMessage(), lines_texts::kSearchNotNine);
  EXPECT_TRUE(view.isVisible());
  TypeInto(view, u"Text1"_s, u"123456789"_s);
  Click(view, u"Command1"_s);
  QApplication::processEvents();
  EXPECT_FALSE(view.isVisible());
  EXPECT_EQ(form.Answer().text, u"123456789"_s);
  EXPECT_EQ(form.Answer().kind, u"AMA"_s);

  SearchForm again(QString(), dialogs);
  SearchView closed(again);
  QTimer::singleShot(0, &closed, [&closed] { closed.close(); });
  EXPECT_TRUE(closed.Ask().text.isEmpty());
}

}  // namespace
}  // namespace veroxia::testing
