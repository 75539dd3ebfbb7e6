// A character the submission file's code page cannot hold is refused when a
// header or a line of either kind is stored: the message names the box by
// its caption and the character with its code, the box is selected, nothing
// is stored. A character the code page holds is stored.

#include <gtest/gtest.h>

#include "header/ovt_form1.h"
#include "header/ovt_form3.h"
#include "header/texts.h"
#include "lines/ovt_form2_fixture.h"
#include "lines/ovt_form4_fixture.h"
#include "lines/texts.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia::testing {
namespace {

using Typed = std::vector<std::pair<QString, QString>>;

struct Screen {
  const char* name;
  std::function<std::unique_ptr<Form>(Vars&, Dialogs&, Screens&)> make;
  const char* table;
  Typed valid;
  QString field;
  QString caption;
};

template <class F>
std::unique_ptr<Form> Make(Vars& vars, Dialogs& dialogs, Screens& screens) {
  auto form = std::make_unique<F>(vars, dialogs, screens);
  form->Load();
  return form;
}

// The save of a header, the store of a line in new mode.
void Store(Form& form) {
  if (auto* header = dynamic_cast<HeaderForm*>(&form)) return header->SaveCmd_Click();
  dynamic_cast<LinesForm&>(form).OkCmd_Click();
}

TEST(CodePageTest, EveryScreenRefusesWhatTheFileCannotHold) {
  // clang-format off
  const Screen screens[] = {
      {"OvtForm1", Make<OvtForm1>, "QOR_EMPLOYERS",
       {{u"Text2"_s, u"123"_s}, {u"Text3"_s, u"Αθηνών"_s}, {u"Text5"_s, u"1234567890"_s},
        {u"Text6"_s, u"094014201"_s}, {u"Text7"_s, u"Πατησίων"_s}, {u"Text9"_s, u"10434"_s},
        {u"Text10"_s, u"Αθήνα"_s}},
       u"Text4"_s, header_texts::kText4Lbl},
      {"OvtForm3", Make<OvtForm3>, "QOR_CON_EMPLOYERS",
       {{u"Text2"_s, u"012"_s}, {u"Text3"_s, u"Αθηνών"_s}, {u"Text4"_s, u"Δομική"_s},
        {u"Text5"_s, u"Πατησίων"_s}, {u"Text7"_s, u"10434"_s}, {u"Text8"_s, u"Αθήνα"_s},
        {u"Text9"_s, u"Πολυκατοικία"_s}, {u"Text10"_s, u"1234567890"_s},
        {u"Text11"_s, u"0987654321"_s}, {u"Text12"_s, u"094014201"_s}, {u"Text13"_s, u"Σόλωνος"_s},
        {u"Text15"_s, u"10672"_s}, {u"Text16"_s, u"Αθήνα"_s}},
       u"FirstNmTxt"_s, header_texts::kFirstNmLbl},
      {"OvtForm2", Make<OvtForm2>, "QOR_EMPLOYEES", ValidCommonLine(), u"Text21"_s,
       lines_texts::kLbl21},
      {"OvtForm4", Make<OvtForm4>, "QOR_CON_EMPLOYEES", ValidConLine(u"123456789"_s),
       u"Text27"_s, lines_texts::kConLbl27},
  };
  // clang-format on
  // A character, and its code when the code page cannot hold it (the one
  // stored comes last).
  const std::pair<QString, QString> characters[] = {
      {u"Ж"_s, u"0416"_s}, {u"→"_s, u"2192"_s}, {u"😀"_s, u"1F600"_s}, {u"€"_s, {}}};
  for (const Screen& screen : screens) {
    TempStore store;
    Database& db = store.Open();
    store.vars.DeclarationId = 1;
    store.vars.PeriodFrom = u"012002"_s;
    store.vars.PeriodTo = u"032002"_s;
    for (const auto& [character, code] : characters) {
      SCOPED_TRACE(screen.name + (u' ' + code).toStdString());
      FakeDialogs dialogs;
      FakeScreens shown;
      const std::unique_ptr<Form> form = screen.make(store.vars, dialogs, shown);
      for (const auto& [field, text] : screen.valid) form->Type(field, text);
      const QString typed = u"Α"_s + character + u"Β"_s;
      form->Type(screen.field, typed);
      Store(*form);
      const size_t stored = DumpTable(db, screen.table).size();
      if (code.isEmpty()) {
        EXPECT_EQ(stored, 1u) << dialogs.LastMessage().toStdString();
        continue;
      }
      EXPECT_EQ(stored, 0u);
      EXPECT_EQ(dialogs.LastMessage(),
                header_texts::kNotInCodePage.arg(screen.caption.simplified(), character, code));
      EXPECT_EQ(form->FocusedField(), screen.field);
      const auto selection = form->SelectionOf(screen.field);
      EXPECT_TRUE(selection && selection->length == typed.size());
    }
  }
}

}  // namespace
}  // namespace veroxia::testing
