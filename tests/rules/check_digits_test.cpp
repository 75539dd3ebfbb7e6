#include "rules/check_digits.h"

#include <gtest/gtest.h>

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

TEST(CheckDigits, KnownNumbers) {
  const struct {
    const char* afm;
    bool holds;
  } afms[] = {{"090000045", true},  {"094014201", true},   {"094000000", true},
              {"090000044", false}, {"123456789", false},  {"000000000", false},
              {"09000004", false},  {"0900000450", false}, {"09000004x", false}};
  for (const auto& c : afms) {
    EXPECT_EQ(AfmCheckDigitHolds(QString::fromLatin1(c.afm)), c.holds) << c.afm;
  }
  const struct {
    const char* amka;
    bool holds;
  } amkas[] = {{"01010100012", true},   {"15038001234", true},  {"12345678903", true},
               {"01010100013", false},  {"12345678901", false}, {"1503800123", false},
               {"150380012345", false}, {"1503800123a", false}};
  for (const auto& c : amkas) {
    EXPECT_EQ(AmkaCheckDigitHolds(QString::fromLatin1(c.amka)), c.holds) << c.amka;
  }
}

TEST(CheckDigits, WarningOnlyForAWholeNumberWithAWrongDigit) {
  const struct {
    const char* column;
    const char* text;
    bool warns;
  } cases[] = {
      {"taxation_number", " 123456789 ", true},
      {"afm", "123456789", true},
      {"taxation_id", "123456789", true},
      {"taxation_id", "090000045", false},
      {"taxation_id", "12345678", false},
      {"taxation_id", "", false},
      {"amka", "12345678901", true},
      {"amka", "12345678903", false},
      {"amka", "123", false},
      {"insured_id", "123456789", false},
  };
  for (const auto& c : cases) {
    const auto warning =
        CheckDigitWarning(QString::fromLatin1(c.column), QString::fromLatin1(c.text));
    EXPECT_EQ(warning.has_value(), c.warns) << c.column << " " << c.text;
    EXPECT_TRUE(!warning || warning->contains(QString::fromLatin1(c.text).trimmed()));
  }
}

}  // namespace
}  // namespace veroxia
