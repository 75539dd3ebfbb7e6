// Opening the common-business header screen: a stored header shown as
// stored, a new one with the period of the start screen, the month labels,
// a taken-over header, and a store that cannot be read.

#include "header/ovt_form1_fixture.h"
#include "header/texts.h"
#include "shell/errors.h"
#include "shell/texts.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

class OvtForm1Load : public testing::OvtForm1Test {};

struct LabelCase {
  const char* from;
  const char* to;
  const char* label1;
  const char* label2;
  const char* label3;
};

void PrintTo(const LabelCase& period, std::ostream* out) {
  *out << period.from << "-" << period.to;
}

class OvtForm1MonthLabels : public testing::OvtForm1Test,
                            public ::testing::WithParamInterface<LabelCase> {};

TEST_P(OvtForm1MonthLabels, FollowThePeriod) {
  store_.vars.PeriodFrom = QString::fromLatin1(GetParam().from);
  store_.vars.PeriodTo = QString::fromLatin1(GetParam().to);
  OvtForm1& form = Open();
  EXPECT_EQ(form.Text(u"Text13_1"_s), QString::fromLatin1(GetParam().label1));
  EXPECT_EQ(form.Text(u"Text13_2"_s), QString::fromLatin1(GetParam().label2));
  EXPECT_EQ(form.Text(u"Text13_3"_s), QString::fromLatin1(GetParam().label3));
}

INSTANTIATE_TEST_SUITE_P(
    OvtForm1Load, OvtForm1MonthLabels,
    ::testing::Values(LabelCase{"052002", "052002", "05/2002", "", ""},
                      LabelCase{"012002", "032002", "01/2002", "02/2002", "03/2002"},
                      LabelCase{"042002", "062002", "04/2002", "05/2002", "06/2002"},
                      LabelCase{"092002", "112002", "09/2002", "10/2002", "11/2002"},
                      LabelCase{"102002", "122002", "10/2002", "11/2002", "12/2002"}));

TEST_F(OvtForm1Load, NewHeaderTakesThePeriodOfTheStartScreen) {
  store_.vars.PeriodFrom = u"042003"_s;
  store_.vars.PeriodTo = u"062003"_s;
  OvtForm1& form = Open();
  EXPECT_TRUE(form.IsNewHeader());
  EXPECT_EQ(form.Text(u"Text11_1"_s), u"04"_s);
  EXPECT_EQ(form.Text(u"Text11_2"_s), u"2003"_s);
  EXPECT_EQ(form.Text(u"Text12_1"_s), u"06"_s);
  EXPECT_EQ(form.Text(u"Text12_2"_s), u"2003"_s);
  EXPECT_EQ(State(), testing::kNewState);
}

struct Shown {
  const char* field;
  QString text;
};

TEST_F(OvtForm1Load, StoredHeaderIsShownColumnByColumn) {
  EmployerRow row = StoredRow();
  row.employer_name = u"  ΚΑΡΑΓΙΑΝΝΗΣ Ο.Ε.  "_s;  // shown trimmed
  row.from_month = u"02"_s;                       // the stored period wins
  row.to_month = u"02"_s;
  Store(row);
  OvtForm1& form = Open();
  const Shown shown[] = {
      {"Text1", u"02"_s},
      {"KodDescr", u"ΕΚΤΑΚΤΗ"_s},
      {"Text2", u"051"_s},
      {"Text3", u"ΠΕΙΡΑΙΑ"_s},
      {"Text4", u"ΚΑΡΑΓΙΑΝΝΗΣ Ο.Ε."_s},
      {"Text5", u"0123456789"_s},
      {"Text6", u"987654321"_s},
      {"Text7", u"ΑΚΤΗ ΜΙΑΟΥΛΗ"_s},
      {"Text8", u"12Α"_s},
      {"Text9", u"18536"_s},
      {"Text10", u"ΠΕΙΡΑΙΑΣ"_s},
      {"Text11_1", u"02"_s},
      {"Text11_2", u"2002"_s},
      {"Text12_1", u"02"_s},
      {"Text12_2", u"2002"_s},
      {"Text14_1", u"25"_s},
      {"Text14_2", u"24"_s},
      {"Text14_3", u"26"_s},
      {"Text17_1", u"75"_s},
      {"Text15_1", u"1000,50"_s},
      {"Text15_2", u"1100"_s},
      {"Text15_3", u"1200,5"_s},
      {"Text17_2", u"3301"_s},
      {"Text16_1", u"100"_s},
      {"Text16_2", u"110"_s},
      {"Text16_3", u"120"_s},
      {"Text17_3", u"330"_s},
      {"FirstNmTxt", u"ΝΙΚΟΣ"_s},
      {"FatherNmTxt", u"ΓΕΩΡΓΙΟΣ"_s},
      {"FlDateTxt", u"20/04/2002"_s},
      {"StopDateTxt", u"31/03/2002"_s},
      // The month labels are computed from the stored period, never read.
      {"Text13_1", u"02/2002"_s},
      {"Text13_2", u""_s},
      {"Text13_3", u""_s},
  };
  for (const Shown& field : shown) {
    EXPECT_EQ(form.Text(QString::fromLatin1(field.field)), field.text) << field.field;
  }
  EXPECT_EQ(form.SelectedType(), 1);
  EXPECT_FALSE(form.IsNewHeader());
  EXPECT_EQ(State(), testing::kViewState);
  EXPECT_TRUE(dialogs_.messages.empty());
}

TEST_F(OvtForm1Load, NullColumnsShowEmptyBoxesAndEmptyDateMasks) {
  EmployerRow row;
  row.id = kId;
  Store(row);
  OvtForm1& form = Open();
  for (const HeaderField& field : OvtForm1::CommonLayout().fields) {
    if (field.insert_as == StoreAs::Date) {
      EXPECT_EQ(form.Text(field.name), u"__/__/____"_s) << field.name.toStdString();
    } else if (field.name != u"Text1"_s && !field.name.startsWith(u"Text13"_s)) {
      EXPECT_TRUE(form.Text(field.name).isEmpty()) << field.name.toStdString();
    }
  }
  EXPECT_EQ(form.SelectedType(), 0);
  EXPECT_EQ(State(), testing::kViewState);
}

TEST_F(OvtForm1Load, UnknownStoredTypeSelectsTheRegularTypeAndKeepsItsDescription) {
  for (const QString& code : {u"07"_s, u""_s}) {
    db_.Exec("DELETE FROM QOR_EMPLOYERS");
    EmployerRow row = StoredRow();
    row.declaration_type = code;
    row.declaration_descr = u"ΑΛΛΗ ΠΕΡΙΓΡΑΦΗ"_s;
    Store(row);
    OvtForm1& form = Open();
    EXPECT_EQ(form.SelectedType(), 0) << code.toStdString();
    EXPECT_EQ(form.Text(u"KodDescr"_s), u"ΑΛΛΗ ΠΕΡΙΓΡΑΦΗ"_s) << code.toStdString();
    EXPECT_EQ(form.Text(u"Text1"_s), u"01"_s) << code.toStdString();
    EXPECT_TRUE(form.At(u"Option1Lbl_0"_s).enabled);
  }
}

TEST_F(OvtForm1Load, TakenOverHeaderIsLockedWithTheNewPeriodAndNoDates) {
  Store(StoredRow(3));  // a quarter 01-03/2002 with both dates
  store_.vars.PreviousDeclarationId = 3;
  store_.vars.DeclarationId = 4;
  store_.vars.CarryOver = true;
  store_.vars.PeriodFrom = u"042002"_s;
  store_.vars.PeriodTo = u"042002"_s;
  OvtForm1& form = Open();
  EXPECT_EQ(form.Text(u"Text4"_s), u"ΚΑΡΑΓΙΑΝΝΗΣ Ο.Ε."_s);
  EXPECT_EQ(form.Text(u"Text17_2"_s), u"3301"_s);
  EXPECT_EQ(form.Text(u"KodDescr"_s), u"ΕΚΤΑΚΤΗ"_s);
  EXPECT_EQ(form.SelectedType(), 1);
  EXPECT_EQ(form.Text(u"Text11_1"_s), u"04"_s);
  EXPECT_EQ(form.Text(u"Text12_1"_s), u"04"_s);
  EXPECT_EQ(form.Text(u"FlDateTxt"_s), u"__/__/____"_s);
  EXPECT_EQ(form.Text(u"StopDateTxt"_s), u"__/__/____"_s);
  EXPECT_EQ(form.Text(u"Text13_1"_s), u"04/2002"_s);
  EXPECT_EQ(form.Text(u"Text13_2"_s), u""_s);
  EXPECT_TRUE(form.IsNewHeader());
  EXPECT_EQ(State(), testing::kTakeoverState);
  EXPECT_FALSE(Stored(4).has_value());  // nothing is stored before the save
}

TEST_F(OvtForm1Load, TakeoverWithoutAPreviousHeaderKeepsTheOpeningValues) {
  store_.vars.PreviousDeclarationId = 3;
  store_.vars.DeclarationId = 4;
  store_.vars.CarryOver = true;
  OvtForm1& form = Open();
  EXPECT_TRUE(form.Text(u"Text4"_s).isEmpty());
  EXPECT_EQ(form.Text(u"Text14_1"_s), u"0"_s);
  EXPECT_EQ(form.Text(u"Text1"_s), u"01"_s);
  EXPECT_EQ(form.Text(u"Text11_1"_s), u"01"_s);
  EXPECT_EQ(form.Text(u"Text13_3"_s), u"03/2002"_s);
  EXPECT_EQ(State(), testing::kTakeoverState);
}

// A store whose header table cannot be read: the user is told, the fields
// keep their opening values, and only the return is offered.
TEST_F(OvtForm1Load, UnreadableStoreIsReportedAndLeavesOnlyTheReturn) {
  for (const bool carry_over : {false, true}) {
    testing::TempStore store;
    Database& db = store.Open();
    db.Exec("DROP TABLE QOR_EMPLOYERS");
    store.vars.DeclarationId = 2;
    store.vars.PreviousDeclarationId = 1;
    store.vars.CarryOver = carry_over;
    store.vars.PeriodFrom = u"012002"_s;
    store.vars.PeriodTo = u"032002"_s;
    testing::FakeDialogs dialogs;
    OvtForm1 form(store.vars, dialogs, screens_);
    form.Load();

    ASSERT_EQ(dialogs.messages.size(), 1u);
    const QString message = dialogs.messages[0].text;
    EXPECT_TRUE(message.startsWith(header_texts::kLoadFailed + u"\r\n"_s + texts::kErrorCode))
        << message.toStdString();
    EXPECT_TRUE(message.contains(u"no such table"_s)) << message.toStdString();
    EXPECT_EQ(dialogs.messages[0].title, texts::kAppTitle);
    EXPECT_TRUE(form.Text(u"Text11_1"_s).isEmpty());
    EXPECT_TRUE(form.Text(u"Text13_1"_s).isEmpty());
    EXPECT_EQ(form.Text(u"Text14_1"_s), u"0"_s);
    EXPECT_EQ(form.Text(u"FlDateTxt"_s), u"__/__/____"_s);
    QStringList visible;
    for (const QString& name : testing::kButtons) {
      if (form.At(name).visible && form.At(name).enabled) visible << name;
    }
    EXPECT_EQ(visible, QStringList{u"ExitCmd"_s}) << "carry over " << carry_over;
    for (const QString& name : testing::kSwitchedFields) {
      EXPECT_FALSE(form.At(name).enabled) << name.toStdString();
    }
    EXPECT_FALSE(dialogs.busy);
  }
}

}  // namespace
}  // namespace veroxia
