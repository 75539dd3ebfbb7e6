#pragma once
// A common-business employee screen over its own temporary store: a line that
// passes every check, lines stored behind the screen, the mode it shows and
// the lines stored.

#include "lines/ovt_form2.h"
#include "store/lines.h"
#include "support/printers.h"
#include "support/screen_test.h"
#include "support/store_rows.h"

namespace veroxia::testing {

using namespace Qt::StringLiterals;

// A line that passes every check, field by field.
inline std::vector<std::pair<QString, QString>> ValidCommonLine(
    const QString& insured_id = u"123456789"_s, const QString& surname = u"Παπαδάκης"_s) {
  // clang-format off
  return {
      {u"Text18_1"_s, u"0001"_s}, {u"Text18_2"_s, u"5510"_s}, {u"Text19"_s, insured_id},
      {u"Text20"_s, u"12345678903"_s}, {u"Text21"_s, surname}, {u"Text22"_s, u"Γιώργος"_s},
      {u"Text23"_s, u"Νίκος"_s}, {u"Text24"_s, u"Ελένη"_s}, {u"Text25"_s, u"05/03/1970"_s},
      {u"Text26"_s, u"094014201"_s}, {u"Text27"_s, u"ναι"_s}, {u"Text28"_s, u"ΟΧΙ"_s}, {u"Text29"_s, u"0"_s},
      {u"Text30"_s, u"913000"_s}, {u"Text31"_s, u""_s}, {u"Text32"_s, u"101"_s}, {u"Text33_1"_s, u"02"_s},
      {u"Text33_2"_s, u"2002"_s}, {u"Text34"_s, u"__/__/____"_s}, {u"Text35"_s, u"28/02/2002"_s},
      {u"Text36"_s, u"01"_s}, {u"Text37"_s, u"25"_s}, {u"Text38"_s, u""_s}, {u"Text39"_s, u"1000,50"_s},
      {u"Text40"_s, u"160"_s}, {u"Text41"_s, u"280,5"_s}, {u"Text42"_s, u"440,5"_s}, {u"Text43"_s, u"1"_s},
      {u"Text44"_s, u"2"_s}, {u"Text45"_s, u"3"_s}, {u"Text46"_s, u"440,5"_s},
  };
  // clang-format on
}

class OvtForm2Test : public ScreenTest<OvtForm2> {
 protected:
  static constexpr int kId = 4;

  OvtForm2Test() {
    vars_.DeclarationId = kId;
    vars_.PeriodFrom = u"012002"_s;
    vars_.PeriodTo = u"032002"_s;
  }

  void TypeValidLine(const QString& insured_id = u"123456789"_s,
                     const QString& surname = u"Παπαδάκης"_s) {
    for (const auto& [name, text] : ValidCommonLine(insured_id, surname)) form_->Type(name, text);
  }

  // A line stored behind the screen, with its number, register number and
  // surname; the other columns as a valid typed line would store them.
  void StoreLine(int row_num, const QString& insured_id, const QString& surname,
                 const QString& month = u"01"_s, int id = kId) {
    EmployeeRow row = Filled<EmployeeRow>(row_num, {{"insured_id", insured_id},
                                                    {"surname", surname},
                                                    {"sal_month", month},
                                                    {"sal_year", u"2002"_s},
                                                    {"full_day", u"1"_s},
                                                    {"all_days", u"0"_s}});
    row.id = id;
    ASSERT_EQ(InsertRow(db_, row), 1);
  }

  // (row_num, insured_id, surname) of the declaration's lines by number.
  std::vector<std::tuple<int, QString, QString>> Stored() {
    std::vector<std::tuple<int, QString, QString>> lines;
    for (const auto& row : SelectLines<EmployeeRow>(db_, "QOR_EMPLOYEES", "row_num, rowid", kId))
      lines.emplace_back(row.row_num, row.insured_id.value_or(u"<null>"_s),
                         row.surname.value_or(u"<null>"_s));
    return lines;
  }

  // "browse", "new" or "edit", after checking that the buttons and fields
  // agree with it.
  QString Mode() const {
    const OvtForm2& form = *form_;
    const bool entry = form.At(u"OkCmd"_s).visible;
    const QStringList entry_only{u"OkCmd"_s, u"ClearCmd"_s, u"CancelCmd"_s};
    for (const QString& name : entry_only + QStringList{u"NewCmd"_s, u"UpDateCmd"_s})
      EXPECT_EQ(form.At(name).visible, entry == entry_only.contains(name)) << name.toStdString();
    for (const char* name : {"FirstCmd", "PrevCmd", "Nextcmd", "LastCmd", "SeekCmd", "DeleteCmd"})
      EXPECT_EQ(form.At(QString::fromLatin1(name)).enabled, !entry) << name;
    for (const LineField& field : form.Layout().fields)
      EXPECT_EQ(form.At(field.name).enabled, entry) << field.name.toStdString();
    EXPECT_TRUE(form.At(u"BackCmd"_s).visible && form.At(u"BackCmd"_s).enabled);
    if (!entry) return u"browse"_s;
    return form.EditMode() ? u"edit"_s : u"new"_s;
  }
};

}  // namespace veroxia::testing
