// The shared field checks, check digits, number reading, text cleaning and
// formatters.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <clocale>

#include "rules/check_digits.h"
#include "rules/check_texts.h"
#include "rules/checks.h"
#include "rules/formats.h"
#include "rules/numbers.h"
#include "rules/texts.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using namespace check_texts;

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

const QString kField = u"F"_s;

TEST(NumberReading, WholeTextWithGreekSeparators) {
  for (const char* text :
       {"12", " 12 ", "1,5", "1.000", "1.234,56", "-5", "5-", "+5", "1E3", "1d3", "1,"}) {
    EXPECT_TRUE(IsNumeric(QString::fromUtf8(text))) << text;
  }
  for (const char* text : {"", "  ", "a", "1a", "-5-", "1,2,3", "1,5.0", ",", "'", "E3", "1E"}) {
    EXPECT_FALSE(IsNumeric(QString::fromUtf8(text))) << text;
  }
  const std::pair<const char*, double> leading[] = {
      {"05", 5}, {" 5", 5},  {"1 2", 12}, {"7x", 7},    {"x", 0},
      {"", 0},   {"-3", -3}, {"1,5", 1},  {"2.5", 2.5}, {"1E2", 100}};
  for (const auto& [text, value] : leading) {
    EXPECT_DOUBLE_EQ(LeadingValue(QString::fromUtf8(text)), value) << text;
  }
}

// Each text meets the first rule it breaks; nullopt: accepted.
struct CheckCase {
  const char* text;
  Fault decimal;  // CheckDecimal, at most 9 integer digits
  Fault integer;  // CheckInteger, exactly 9 digits
};

TEST(Checks, NumbersBreakTheirRulesInOrder) {
  const CheckCase cases[] = {
      {"", MustBeFilled(kField), MustBeFilled(kField)},
      {"   ", MustBeFilled(kField), MustBeFilled(kField)},
      {"abc", NumericTwoBlanks(kField), NumericOneBlank(kField)},
      {"1E3", NumericTwoBlanks(kField), NumericTwoBlanks(kField)},
      {"2d1", NumericTwoBlanks(kField), NumericTwoBlanks(kField)},
      {"5-", MustBeNumeric(kField), MustBeWhole(kField)},
      {"+5", MustBeNumeric(kField), MustBeWhole(kField)},
      {"1.000", kNoDots, MustBeWhole(kField)},
      {"12,0", std::nullopt, MustBeWhole(kField)},
      {"1,234", kTwoDecimals, MustBeWhole(kField)},
      {"12345678", std::nullopt, MustHaveDigits(kField, 9)},
      {"1234567890", IntegerPartTooLong(9), MustHaveDigits(kField, 9)},
      {"1234567890,5", IntegerPartTooLong(9), MustBeWhole(kField)},
      {"123456789", std::nullopt, std::nullopt},
      {" 123456789 ", std::nullopt, std::nullopt},
      {"123456789,99", std::nullopt, MustBeWhole(kField)},
  };
  for (const CheckCase& c : cases) {
    const QString text = QString::fromUtf8(c.text);
    EXPECT_EQ(CheckDecimal(text, kField, 9), c.decimal) << c.text;
    EXPECT_EQ(CheckInteger(text, kField, 9, true), c.integer) << c.text;
  }
  EXPECT_EQ(CheckInteger(u"1"_s, kField, 9, false), std::nullopt);
}

TEST(Checks, DatesAreRealDaysInDayMonthYearOrder) {
  for (const char* text : {"31/12/2002", "29/02/2004", " 01/01/2002 ", "05-03-2002"}) {
    EXPECT_EQ(CheckDate(QString::fromUtf8(text), kField), std::nullopt) << text;
  }
  for (const char* text :
       {"32/01/2002", "29/02/2001", "01/13/2002", "1/2/2002", "12/31/2002", "__/__/____",
        "12/05/____", "", "ab/cd/efgh", "31/04/2002", "01/02", "01/02/2002/3"}) {
    EXPECT_EQ(CheckDate(QString::fromUtf8(text), kField), DateWrong(kField)) << text;
  }
  EXPECT_EQ(CheckNoDigits(u"ΓΙΑΝΝΗΣ"_s, kField), std::nullopt);
  EXPECT_EQ(CheckNoDigits(u"ΓΙΑΝΝΗΣ 2"_s, kField), HasDigits(kField));
}

TEST(GreekUpper, CapitalsCarryNoAccent) {
  const std::pair<QString, QString> cases[] = {
      {u"  Άνοιξη Έρχεται "_s, u"ΑΝΟΙΞΗ ΕΡΧΕΤΑΙ"_s},
      {u"άέόίήύώΌΊΉΎΏ"_s, u"ΑΕΟΙΗΥΩΟΙΗΥΩ"_s},
      {u"Καΐρης"_s, u"ΚΑΪΡΗΣ"_s},
      {u"Προϋπολογισμός ΰ ϊϋ"_s, u"ΠΡΟΫΠΟΛΟΓΙΣΜΟΣ Ϋ ΪΫ"_s},
      {u"ᾠδὴ Ἀθῆναι ῥήτωρ"_s, u"ΩΔΗ ΑΘΗΝΑΙ ΡΗΤΩΡ"_s},
      {u"Abc 1"_s, u"ABC 1"_s},
      {u"   "_s, QString()},
  };
  for (const auto& [typed, stored] : cases) {
    EXPECT_EQ(GreekUpper(typed).toUpper(), stored) << typed.toStdString();
  }
  // Accented capitals become the plain small letters, as the screens always did.
  EXPECT_EQ(GreekUpper(u"ΆΐΏ"_s), u"αϊω"_s);
}

TEST(GreekUpper, EveryGreekLetterFitsTheGreekCodePage) {
  const std::pair<char16_t, char16_t> blocks[] = {{0x0386, 0x03CE}, {0x1F00, 0x1FFC}};
  for (const auto& [first, last] : blocks) {
    for (char16_t u = first; u <= last; ++u) {
      const QChar letter(u);
      if (!letter.isLetter()) continue;
      QStringEncoder encoder("windows-1253");
      encoder.encode(GreekUpper(QString(letter)).toUpper());
      EXPECT_FALSE(encoder.hasError()) << std::hex << static_cast<int>(u);
    }
  }
}

TEST(StoredValues, NullTrimmingAndFiles) {
  EXPECT_EQ(FieldText(std::nullopt), QString());
  EXPECT_EQ(FieldText(u" a "_s), u"a"_s);
  EXPECT_EQ(FieldNumber(std::nullopt), u"0"_s);
  EXPECT_EQ(FieldNumber(u" 5 "_s), u" 5 "_s);

  QTemporaryDir dir;
  for (const QString& name : {u"a.gif"_s, u".hidden"_s}) {
    QFile file(dir.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  QDir(dir.path()).mkdir(u"sub"_s);
  EXPECT_TRUE(FileExists(dir.filePath(u"a.gif"_s)));
  for (const QString& path :
       {dir.filePath(u".hidden"_s), dir.filePath(u"sub"_s), dir.filePath(u"none"_s), QString()}) {
    EXPECT_FALSE(FileExists(path)) << path.toStdString();
  }
}

// The fixed-width forms of amounts, texts and dates are proven with the
// submission file's fields.
TEST(Formats, AmountsWithGreekSeparators) {
  // clang-format off
  const std::pair<const char*, const char*> amounts[] = {
      {"1234,5", "1.234,50"}, {"0", "0,00"}, {"2,345", "2,35"}, {"2,344", "2,34"},
      {"1234567,891", "1.234.567,89"}, {"999,995", "1.000,00"}, {"-5", "-5,00"},
      {"1E3", "1.000,00"}, {"", ""}, {"abc", "abc"}, {"-0,001", "0,00"}, {"1.234,5", "1.234,50"}};
  // clang-format on
  for (const auto& [text, formatted] : amounts) {
    EXPECT_EQ(FormatAmount(QString::fromUtf8(text)), QString::fromUtf8(formatted)) << text;
  }
  EXPECT_EQ(AmountText(u"1234,5"_s, 12, false), u"    1.234,50"_s);
  EXPECT_EQ(AmountText(u"1234,5"_s, 12, true), u"1.234,50"_s);
  EXPECT_EQ(AmountText(u"1234,5"_s, 3, false), u"1.234,50"_s);
  EXPECT_EQ(PadText(u"ABC"_s, 5, false), u"  ABC"_s);
}

TEST(Formats, AmountsIgnoreTheMachineLocale) {
  const char* previous = std::setlocale(LC_ALL, nullptr);
  const std::string saved = previous != nullptr ? previous : "C";
  std::setlocale(LC_ALL, "C.UTF-8");
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  EXPECT_EQ(FormatAmount(u"1234,5"_s), u"1.234,50"_s);
  EXPECT_TRUE(IsNumeric(u"1,5"_s));
  EXPECT_EQ(CheckDecimal(u"1.5"_s, kField, 9), kNoDots);
  QLocale::setDefault(QLocale::c());
  std::setlocale(LC_ALL, saved.c_str());
}

TEST(Formats, LongTextsWrapAtALateBlank) {
  const QString short_text(60, u'x');
  EXPECT_EQ(WrapText(short_text, true), short_text);
  // 70 characters whose last blank at or before position 60 is at 52.
  const QString text = QString(51, u'a') + u' ' + QString(18, u'b');
  EXPECT_EQ(WrapText(text, false),
            text.left(52) + u"\r\n"_s + QString(27, u' ') + QString(18, u'b'));
  EXPECT_EQ(WrapText(text, true),
            text.left(52) + u"\r\n"_s + QString(17, u' ') + QString(18, u'b'));
  // No blank late enough: the break falls at position 45.
  const QString solid(70, u'z');
  EXPECT_EQ(WrapText(solid, true), solid.left(45) + u"\r\n"_s + QString(17, u' ') + solid.mid(45));
}

// Stored values lose only the blanks at their ends: a tab or a no-break space
// another program stored stays in the volumes and the printouts.
TEST(Formats, OnlyBlanksAreTrimmed) {
  EXPECT_EQ(FieldText(u" \tA\u00A0 "_s) + PadText(u" A\t "_s, 4, false), u"\tA\u00A0  A\t"_s);
  EXPECT_EQ(DateDigits(u" \t5/3/2002 "_s) + AmountDigits(u" 1\t "_s, 4, true), u"0\t532002001\t"_s);
  EXPECT_EQ(AmountText(u" x\t "_s, 4, false), u"  x\t"_s);
}

}  // namespace
}  // namespace veroxia
