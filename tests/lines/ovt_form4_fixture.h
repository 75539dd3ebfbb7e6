#pragma once
// A construction-works worker screen over its own temporary store, and a line
// that passes every check.

#include <utility>

#include "lines/ovt_form4.h"
#include "support/screen_test.h"

namespace veroxia::testing {

using namespace Qt::StringLiterals;

// A line that passes every check, field by field.
inline std::vector<std::pair<QString, QString>> ValidConLine(const QString& insured_id) {
  // clang-format off
  return {
      {u"Text21"_s, u""_s}, {u"Text22"_s, insured_id}, {u"Text23"_s, u""_s}, {u"Text24"_s, u"Καΐρης'; --"_s},
      {u"Text25"_s, u"γιώργος"_s}, {u"Text26"_s, u"Νίκος"_s}, {u"Text27"_s, u"Ελένη"_s},
      {u"Text28"_s, u"05/03/1970"_s}, {u"Text29"_s, u"094014201"_s}, {u"Text30"_s, u"εγγαμος"_s},
      {u"Text31"_s, u"2"_s}, {u"Text32"_s, u"0"_s}, {u"Text33"_s, u"913000"_s}, {u"Text34"_s, u""_s},
      {u"Text35"_s, u"101"_s}, {u"Text36"_s, u"__/__/____"_s}, {u"Text37"_s, u"28/02/2003"_s},
      {u"Text38"_s, u"01"_s}, {u"Text39"_s, u"25"_s}, {u"Text40"_s, u"40,5"_s}, {u"Text41"_s, u"1000,50"_s},
      {u"Text42"_s, u""_s}, {u"Text43"_s, u"0"_s}, {u"Text44"_s, u"160"_s}, {u"Text45"_s, u"280,5"_s},
      {u"Text46"_s, u"440,5"_s},
  };
  // clang-format on
}

class OvtForm4Test : public ScreenTest<OvtForm4> {
 protected:
  static constexpr int kId = 6;

  OvtForm4Test() { vars_.DeclarationId = kId; }

  void TypeValidLine(const QString& insured_id = u"123456789"_s) {
    for (const auto& [name, text] : ValidConLine(insured_id)) form_->Type(name, text);
  }
};

}  // namespace veroxia::testing
