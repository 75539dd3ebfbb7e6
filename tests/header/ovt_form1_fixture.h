#pragma once
// A common-business header screen over its own temporary store, and the few
// helpers its tests share: a header that passes every check, the state of
// the fields and buttons, and the stored header row.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>

#include "header/date_box.h"
#include "header/ovt_form1.h"
#include "store/rows.h"
#include "support/fakes.h"
#include "support/printers.h"

namespace veroxia::testing {

using namespace Qt::StringLiterals;

// The fields the edit state unlocks, the type options included.
inline const QStringList kSwitchedFields{
    u"Text2"_s,     u"Text3"_s,     u"Text4"_s,       u"FirstNmTxt"_s, u"FatherNmTxt"_s,
    u"Text5"_s,     u"Text6"_s,     u"Text7"_s,       u"Text8"_s,      u"Text9"_s,
    u"Text10"_s,    u"FlDateTxt"_s, u"StopDateTxt"_s, u"Text14_1"_s,   u"Text15_1"_s,
    u"Text16_1"_s,  u"Text14_2"_s,  u"Text15_2"_s,    u"Text16_2"_s,   u"Text14_3"_s,
    u"Text15_3"_s,  u"Text16_3"_s,  u"Text17_1"_s,    u"Text17_2"_s,   u"Text17_3"_s,
    u"Option1_0"_s, u"Option1_1"_s, u"Option1_2"_s};
// Fields that are never unlocked, and the two that are never shown.
inline const QStringList kAlwaysLocked{u"Text11_1"_s, u"Text11_2"_s, u"Text12_1"_s, u"Text12_2"_s,
                                       u"Text13_1"_s, u"Text13_2"_s, u"Text13_3"_s};
inline const QStringList kHidden{u"Text1"_s, u"KodDescr"_s};
inline const QStringList kButtons{u"SaveCmd"_s,     u"UpDateCmd"_s, u"ExitCmd"_s,
                                  u"CancelCmd"_s,   u"QorInsert"_s, u"PrintCmd"_s,
                                  u"PrintSumCmd"_s, u"CreateFile"_s};
inline const QStringList kActions{u"QorInsert"_s, u"PrintCmd"_s, u"PrintSumCmd"_s, u"CreateFile"_s};

// What the user sees of the screen's state.
struct ScreenState {
  bool fields_enabled = false;  // every switched field unlocked (false: every one locked)
  QStringList visible;          // buttons shown, in kButtons order
  QStringList disabled;         // of those, the greyed ones

  friend bool operator==(const ScreenState&, const ScreenState&) = default;
  friend void PrintTo(const ScreenState& state, std::ostream* out) {
    *out << "fields " << (state.fields_enabled ? "enabled" : "locked") << ", visible ["
         << state.visible.join(u',').toStdString() << "], disabled ["
         << state.disabled.join(u',').toStdString() << "]";
  }
};

class OvtForm1Test : public ::testing::Test {
 protected:
  static constexpr int kId = 7;

  OvtForm1Test() {
    store_.vars.DeclarationId = kId;
    store_.vars.PeriodFrom = u"012002"_s;
    store_.vars.PeriodTo = u"032002"_s;
  }

  // A fresh screen on the shared variables, loaded.
  OvtForm1& Open() {
    form_ = std::make_unique<OvtForm1>(store_.vars, dialogs_, screens_);
    form_->Load();
    return *form_;
  }

  // Types a header that passes every check (type 01, no dates).
  void TypeValidHeader() {
    OvtForm1& form = *form_;
    form.Type(u"Text2"_s, u"123"_s);
    form.Type(u"Text3"_s, u"Αθηνών"_s);
    form.Type(u"Text4"_s, u"Ηλίας Α.Ε."_s);
    form.Type(u"FirstNmTxt"_s, u""_s);
    form.Type(u"FatherNmTxt"_s, u""_s);
    form.Type(u"Text5"_s, u"1234567890"_s);
    form.Type(u"Text6"_s, u"123456789"_s);
    form.Type(u"Text7"_s, u"Πατησίων"_s);
    form.Type(u"Text8"_s, u""_s);
    form.Type(u"Text9"_s, u"10434"_s);
    form.Type(u"Text10"_s, u"Αθήνα"_s);
    for (const char* total :
         {"Text14_1", "Text15_1", "Text16_1", "Text14_2", "Text15_2", "Text16_2", "Text14_3",
          "Text15_3", "Text16_3", "Text17_1", "Text17_2", "Text17_3"}) {
      form.Type(QString::fromLatin1(total), u"0"_s);
    }
    form.Type(u"FlDateTxt"_s, kEmptyDateBox);
    form.Type(u"StopDateTxt"_s, kEmptyDateBox);
  }

  // A header row stored for the declaration, every column with a value.
  EmployerRow StoredRow(int id = kId) {
    EmployerRow row;
    row.id = id;
    row.declaration_type = u"02"_s;
    row.declaration_descr = u"ΕΚΤΑΚΤΗ"_s;
    row.orgbra_branch_code = u"051"_s;
    row.orgbra_branch_descr = u"ΠΕΙΡΑΙΑ"_s;
    row.employer_name = u"ΚΑΡΑΓΙΑΝΝΗΣ Ο.Ε."_s;
    row.emp_employer_id = u"0123456789"_s;
    row.taxation_number = u"987654321"_s;
    row.address_street = u"ΑΚΤΗ ΜΙΑΟΥΛΗ"_s;
    row.num = u"12Α"_s;
    row.zip_code = u"18536"_s;
    row.city = u"ΠΕΙΡΑΙΑΣ"_s;
    row.from_month = u"01"_s;
    row.from_year = u"2002"_s;
    row.to_month = u"03"_s;
    row.to_year = u"2002"_s;
    row.total_days1 = u"25"_s;
    row.total_days2 = u"24"_s;
    row.total_days3 = u"26"_s;
    row.total_days = u"75"_s;
    row.total_salaries1 = u"1000,50"_s;
    row.total_salaries2 = u"1100"_s;
    row.total_salaries3 = u"1200,5"_s;
    row.total_salaries = u"3301"_s;
    row.total_contributions1 = u"100"_s;
    row.total_contributions2 = u"110"_s;
    row.total_contributions3 = u"120"_s;
    row.total_contributions = u"330"_s;
    row.saldate1 = u"stale 1"_s;
    row.saldate2 = u"stale 2"_s;
    row.saldate3 = u"stale 3"_s;
    row.emp_first_name = u"ΝΙΚΟΣ"_s;
    row.emp_father_name = u"ΓΕΩΡΓΙΟΣ"_s;
    row.CreateFlDate = u"20/04/2002"_s;
    row.stop_date = u"31/03/2002"_s;
    return row;
  }

  void Store(const EmployerRow& row) { ASSERT_EQ(InsertRow(db_, row), 1); }

  std::optional<EmployerRow> Stored(int id = kId) { return SelectHeader<EmployerRow>(db_, id); }

  int HeaderCount() {
    Statement& count = db_.Prepare("SELECT count(*) FROM QOR_EMPLOYERS");
    return count.Next() ? count.Int(0) : -1;
  }

  ScreenState State() const {
    ScreenState state;
    const auto enabled = [this](const QString& name) { return form_->At(name).enabled; };
    state.fields_enabled = std::all_of(kSwitchedFields.begin(), kSwitchedFields.end(), enabled);
    const bool none = std::none_of(kSwitchedFields.begin(), kSwitchedFields.end(), enabled);
    EXPECT_TRUE(state.fields_enabled || none) << "fields half locked";
    for (const QString& name : kAlwaysLocked) EXPECT_FALSE(enabled(name)) << name.toStdString();
    for (const QString& name : kHidden) {
      EXPECT_FALSE(form_->At(name).visible) << name.toStdString();
    }
    for (const QString& name : kButtons) {
      if (!form_->At(name).visible) continue;
      state.visible << name;
      if (!form_->At(name).enabled) state.disabled << name;
    }
    return state;
  }

  // The busy pointer was put on as often as it was taken off, and is off.
  void ExpectBusyBalanced() const {
    const auto on = std::count(dialogs_.busy_calls.begin(), dialogs_.busy_calls.end(), true);
    const auto off = std::count(dialogs_.busy_calls.begin(), dialogs_.busy_calls.end(), false);
    EXPECT_EQ(on, off);
    EXPECT_FALSE(dialogs_.busy);
  }

  TempStore store_;
  Database& db_ = store_.Open();
  FakeDialogs dialogs_;
  FakeScreens screens_;
  std::unique_ptr<OvtForm1> form_;
};

// The states of the screen, as its buttons and fields show them.
inline const ScreenState kNewState{
    true,
    {u"SaveCmd"_s, u"ExitCmd"_s, u"QorInsert"_s, u"PrintCmd"_s, u"PrintSumCmd"_s, u"CreateFile"_s},
    kActions};
inline const ScreenState kTakeoverState{
    false,
    {u"SaveCmd"_s, u"ExitCmd"_s, u"QorInsert"_s, u"PrintCmd"_s, u"PrintSumCmd"_s, u"CreateFile"_s},
    kActions};
inline const ScreenState kViewState{false,
                                    {u"UpDateCmd"_s, u"ExitCmd"_s, u"QorInsert"_s, u"PrintCmd"_s,
                                     u"PrintSumCmd"_s, u"CreateFile"_s},
                                    {}};
inline const ScreenState kCorrectingState{true,
                                          {u"SaveCmd"_s, u"CancelCmd"_s, u"QorInsert"_s,
                                           u"PrintCmd"_s, u"PrintSumCmd"_s, u"CreateFile"_s},
                                          kActions};

}  // namespace veroxia::testing
