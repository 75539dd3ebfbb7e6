#pragma once
// A header screen of either kind over its own temporary store; for the
// common one, a header that passes every check, the state of the fields and
// buttons as one list, and the stored header rows.

#include <algorithm>
#include <optional>

#include "header/date_box.h"
#include "header/ovt_form1.h"
#include "support/screen_test.h"
#include "support/store_rows.h"

namespace veroxia::testing {

using namespace Qt::StringLiterals;

template <class Screen>
class HeaderTest : public ScreenTest<Screen> {
 protected:
  HeaderTest(int id, const QString& from, const QString& to) {
    this->vars_.DeclarationId = id;
    this->vars_.PreviousDeclarationId = id - 1;
    this->vars_.PeriodFrom = from;
    this->vars_.PeriodTo = to;
  }
};

// Fields never unlocked, and the two never shown (all others always are).
inline const QStringList kAlwaysLocked{u"Text11_1"_s, u"Text11_2"_s, u"Text12_1"_s, u"Text12_2"_s,
                                       u"Text13_1"_s, u"Text13_2"_s, u"Text13_3"_s};
inline const QStringList kHidden{u"Text1"_s, u"KodDescr"_s};
inline const QStringList kButtons{u"SaveCmd"_s, u"UpDateCmd"_s, u"ExitCmd"_s, u"CancelCmd"_s};
inline const QStringList kActions{u"QorInsert"_s,  u"PrintCmd"_s,  u"PrintSumCmd"_s,
                                  u"CreateFile"_s, u"TotalsCmd"_s, u"VolumesCmd"_s};

// A state as State() lists it: "fields" (all unlocked) or "locked", the
// buttons shown, and the action buttons, a greyed one marked with "-".
inline QStringList StateOf(bool fields, const QString& buttons, bool actions) {
  QStringList state{fields ? u"fields"_s : u"locked"_s};
  state << buttons.split(u' ');
  for (const QString& name : kActions) state << (actions ? name : name + u'-');
  return state;
}
inline const QStringList kNewState = StateOf(true, u"SaveCmd ExitCmd"_s, false);
inline const QStringList kTakeoverState = StateOf(false, u"SaveCmd ExitCmd"_s, false);
inline const QStringList kViewState = StateOf(false, u"UpDateCmd ExitCmd"_s, true);
inline const QStringList kCorrectingState = StateOf(true, u"SaveCmd CancelCmd"_s, false);
inline const QStringList kLoadFailedState = StateOf(false, u"ExitCmd"_s, false);

class OvtForm1Test : public HeaderTest<OvtForm1> {
 protected:
  static constexpr int kId = 7;
  OvtForm1Test() : HeaderTest(kId, u"012002"_s, u"032002"_s) {}

  // Types a header that passes every check: type 01, no dates, totals 0.
  void TypeValidHeader() {
    // clang-format off
    const std::pair<const char*, QString> typed[] = {
        {"Text2", u"123"_s}, {"Text3", u"Αθηνών"_s}, {"Text4", u"Ηλίας Α.Ε."_s},
        {"FirstNmTxt", {}}, {"FatherNmTxt", {}}, {"Text5", u"1234567890"_s},
        {"Text6", u"094014201"_s}, {"Text7", u"Πατησίων"_s}, {"Text8", {}}, {"Text9", u"10434"_s},
        {"Text10", u"Αθήνα"_s}, {"FlDateTxt", kEmptyDateBox}, {"StopDateTxt", kEmptyDateBox}};
    // clang-format on
    for (const auto& [field, text] : typed) form_->Type(QString::fromLatin1(field), text);
    for (int row = 14; row <= 17; ++row) {
      for (int month = 1; month <= 3; ++month)
        form_->Type(u"Text%1_%2"_s.arg(row).arg(month), u"0"_s);
    }
    form_->Option1_Click(0);
  }

  // A header of type 02 whose other columns hold values of their own, none
  // of which would pass the checks.
  EmployerRow StoredRow(int id = kId) {
    auto row = Sample<EmployerRow>(id);
    row.declaration_type = u"02"_s;
    return row;
  }
  void Store(const EmployerRow& row) { ASSERT_EQ(InsertRow(db_, row), 1); }
  std::optional<EmployerRow> Stored(int id = kId) { return SelectHeader<EmployerRow>(db_, id); }
  int HeaderCount() { return static_cast<int>(DumpTable(db_, "QOR_EMPLOYERS").size()); }

  // The state the user sees, listed as StateOf lists it; anything out of
  // place (a field left locked, a field shown or hidden wrongly) is listed too.
  QStringList State() const {
    const auto enabled = [this](const QString& name) { return form_->At(name).enabled; };
    const QStringList& switched = form_->Layout().switched;
    const auto on = std::count_if(switched.begin(), switched.end(), enabled);
    QStringList state{on == switched.size() ? u"fields"_s
                      : on == 0             ? u"locked"_s
                                            : u"half locked"_s};
    for (const QString& name : kAlwaysLocked) {
      if (enabled(name)) state << name + u" unlocked"_s;
    }
    for (const HeaderField& field : form_->Layout().fields) {
      const bool shown = form_->At(field.name).visible;
      if (shown == kHidden.contains(field.name))
        state << field.name + (shown ? u" shown"_s : u" hidden"_s);
    }
    for (const QString& name : kButtons + kActions) {
      if (form_->At(name).visible) state << (enabled(name) ? name : name + u'-');
    }
    return state;
  }

  // The busy pointer was put on as often as it was taken off, and is off.
  void ExpectBusyBalanced() const {
    const auto on = std::count(dialogs_.busy_calls.begin(), dialogs_.busy_calls.end(), true);
    EXPECT_EQ(2 * on, static_cast<long>(dialogs_.busy_calls.size()));
    EXPECT_FALSE(dialogs_.busy);
  }
};

}  // namespace veroxia::testing
