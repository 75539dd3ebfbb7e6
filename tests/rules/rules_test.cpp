// The shared field checks and formatters.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <clocale>

#include "rules/checks.h"
#include "rules/formats.h"
#include "rules/numbers.h"
#include "rules/texts.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

const QString kField = u"ΠΕΔΙΟ"_s;
const QString kFilled = u"ΠΡΟΣΟΧΗ!! To πεδίο '"_s + kField + u"' πρέπει να συμπληρωθεί."_s;
const QString kNumericTwoBlanks = u"ΠΡΟΣΟΧΗ!! To πεδίο '"_s + kField + u"'  είναι αριθμητικό."_s;
const QString kNumericOneBlank = u"ΠΡΟΣΟΧΗ!! To πεδίο '"_s + kField + u"' είναι αριθμητικό."_s;
const QString kMustBeNumeric = u"ΠΡΟΣΟΧΗ!! To πεδίο '"_s + kField + u"' πρέπει να είναι αριθμητικό."_s;
const QString kWhole = u"ΠΡΟΣΟΧΗ!! To πεδίο '"_s + kField + u"' πρέπει να είναι ακέραιος αριθμός."_s;
const QString kDots = u"ΠΡΟΣΟΧΗ!! Τα δεκαδικό μέρος χωρίζεται με ',' και δεν επιτρέπεται να βάζετε τελείες στον αριθμό."_s;
const QString kTwoDecimals = u"ΠΡΟΣΟΧΗ!! Δεν επιτρέπεται να βάζετε περισσότερα απο δύο δεκαδικά ψηφία."_s;
QString IntLength(int n) { return u"ΠΡΟΣΟΧΗ!! Tο μήκος του ακέραιου μέρους του αριθμού δεν πρέπει να είναι μεγαλύτερο απο "_s + QString::number(n) + u" ψηφία."_s; }

struct Case {
  const char* text;
  std::optional<QString> fault;
};

TEST(NumberReading, WholeTextWithGreekSeparators) {
  const std::vector<std::pair<const char*, bool>> cases = {
      {"12", true},    {" 12 ", true}, {"1,5", true},  {"1.000", true}, {"1.234,56", true},
      {"-5", true},    {"5-", true},   {"+5", true},   {"1E3", true},   {"1d3", true},
      {"1,", true},    {"", false},    {"  ", false},  {"a", false},    {"1a", false},
      {"-5-", false},  {"1,2,3", false}, {"1,5.0", false}, {",", false}, {"'", false},
      {"E3", false},   {"1E", false}};
  for (const auto& [text, numeric] : cases) {
    EXPECT_EQ(IsNumeric(QString::fromUtf8(text)), numeric) << text;
  }
}

TEST(NumberReading, LeadingValueSkipsBlanksAndStopsAtTheFirstOtherCharacter) {
  const std::vector<std::pair<const char*, double>> cases = {
      {"05", 5}, {" 5", 5}, {"1 2", 12}, {"7x", 7}, {"x", 0}, {"", 0}, {"-3", -3},
      {"1,5", 1}, {"2.5", 2.5}, {"1E2", 100}};
  for (const auto& [text, value] : cases) {
    EXPECT_DOUBLE_EQ(LeadingValue(QString::fromUtf8(text)), value) << text;
  }
}

TEST(CheckDecimal, RulesInOrder) {
  const std::vector<Case> cases = {
      {"", kFilled},
      {"   ", kFilled},
      {"abc", kNumericTwoBlanks},
      {"1E3", kNumericTwoBlanks},
      {"2d1", kNumericTwoBlanks},
      {"5-", kMustBeNumeric},
      {"-5", kMustBeNumeric},
      {"+5", kMustBeNumeric},
      {"1.000", kDots},
      {"1,234", kTwoDecimals},
      {"1234567890", IntLength(9)},
      {"1234567890,5", IntLength(9)},
      {"123456789,99", std::nullopt},
      {" 12,5 ", std::nullopt},
      {"0", std::nullopt},
      {"12,", std::nullopt},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(CheckDecimal(QString::fromUtf8(c.text), kField, 9), c.fault) << c.text;
  }
}

TEST(CheckInteger, RulesInOrder) {
  const QString nine = u"ΠΡΟΣΟΧΗ!! To πεδίο '"_s + kField + u"' πρέπει να είναι έχει "_s + u"9"_s + u" ψηφία."_s;
  EXPECT_TRUE(nine.endsWith(u"9 ψηφία."_s));
  const std::vector<Case> cases = {
      {"", kFilled},
      {"x1", kNumericOneBlank},
      {"1E3", kNumericTwoBlanks},
      {"5-", kWhole},
      {"-5", kWhole},
      {"12,0", kWhole},
      {"1.000", kWhole},
      {"12345678", nine},
      {"1234567890", nine},
      {"123456789", std::nullopt},
      {" 123456789 ", std::nullopt},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(CheckInteger(QString::fromUtf8(c.text), kField, 9, true), c.fault) << c.text;
  }
  EXPECT_EQ(CheckInteger(u"12345678"_s, kField, 9, false), std::nullopt);
  EXPECT_EQ(CheckInteger(u"1"_s, kField, 9, false), std::nullopt);
}

TEST(CheckDate, RealDatesInDayMonthYearOrder) {
  const QString wrong = u"ΛΑΘΟΣ!! H ημ/νία του πεδίου '"_s + kField + u"'  δεν είναι σωστή."_s;
  const std::vector<std::pair<const char*, bool>> cases = {
      {"31/12/2002", true}, {"29/02/2004", true}, {" 01/01/2002 ", true}, {"05-03-2002", true},
      {"32/01/2002", false}, {"29/02/2001", false}, {"01/13/2002", false}, {"1/2/2002", false},
      {"12/31/2002", false}, {"__/__/____", false}, {"12/05/____", false}, {"", false},
      {"ab/cd/efgh", false}, {"31/04/2002", false}};
  for (const auto& [text, valid] : cases) {
    const Fault fault = CheckDate(QString::fromUtf8(text), kField);
    EXPECT_EQ(fault, valid ? std::nullopt : std::optional<QString>(wrong)) << text;
  }
}

TEST(CheckNoDigits, RefusesAnyDigit) {
  const QString fault = u"Το πεδίο '"_s + kField + u"' περιέχει μη αποδεκτούς αριθμητικούς χαρακτήρες."_s;
  EXPECT_EQ(CheckNoDigits(u"ΓΙΑΝΝΗΣ"_s, kField), std::nullopt);
  EXPECT_EQ(CheckNoDigits(u"ΓΙΑΝΝΗΣ 2"_s, kField), fault);
  EXPECT_EQ(CheckNoDigits(u"0"_s, kField), fault);
}

TEST(GreekUpper, RemovesAccentsAndKeepsDiaeresis) {
  EXPECT_EQ(GreekUpper(u"Άνοιξη Έρχεται"_s).toUpper(), u"ΑΝΟΙΞΗ ΕΡΧΕΤΑΙ"_s);
  EXPECT_EQ(GreekUpper(u"  άέόίήύώ  "_s), u"αεοιηυω"_s);
  EXPECT_EQ(GreekUpper(u"ΌΊΉΎΏ"_s), u"οιηυω"_s);
  EXPECT_EQ(GreekUpper(u"ϊϋΐΰ"_s), u"ϊϋΐΰ"_s);
  EXPECT_EQ(GreekUpper(u"Abc"_s), u"Abc"_s);
  EXPECT_EQ(GreekUpper(u"   "_s), QString());
}

TEST(StoredValues, NullAndTrimming) {
  EXPECT_EQ(FieldText(std::nullopt), QString());
  EXPECT_EQ(FieldText(u" a "_s), u"a"_s);
  EXPECT_EQ(FieldNumber(std::nullopt), u"0"_s);
  EXPECT_EQ(FieldNumber(u" 5 "_s), u" 5 "_s);
}

TEST(FileExists, OrdinaryVisibleFilesOnly) {
  QTemporaryDir dir;
  QFile file(dir.filePath(u"a.gif"_s));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  QFile hidden(dir.filePath(u".hidden"_s));
  ASSERT_TRUE(hidden.open(QIODevice::WriteOnly));
  hidden.close();
  QDir(dir.path()).mkdir(u"sub"_s);
  EXPECT_TRUE(FileExists(dir.filePath(u"a.gif"_s)));
  EXPECT_FALSE(FileExists(dir.filePath(u".hidden"_s)));
  EXPECT_FALSE(FileExists(dir.filePath(u"sub"_s)));
  EXPECT_FALSE(FileExists(dir.filePath(u"none"_s)));
  EXPECT_FALSE(FileExists(QString()));
}

TEST(Formats, AmountsWithGreekSeparators) {
  const std::vector<std::pair<const char*, const char*>> amounts = {
      {"1234,5", "1.234,50"}, {"0", "0,00"},       {"12,5", "12,50"},
      {"2,345", "2,35"},      {"2,344", "2,34"},   {"1234567,891", "1.234.567,89"},
      {"999,995", "1.000,00"}, {"-5", "-5,00"},    {"1E3", "1.000,00"},
      {"", ""},               {"abc", "abc"},      {"0,004", "0,00"},
      {"-0,001", "0,00"},     {"1.234,5", "1.234,50"}};
  for (const auto& [text, formatted] : amounts) {
    EXPECT_EQ(FormatAmount(QString::fromUtf8(text)), QString::fromUtf8(formatted)) << text;
  }
  EXPECT_EQ(AmountDigits(u"12,5"_s, 12, false), u"000000001250"_s);
  EXPECT_EQ(AmountDigits(QString(), 12, false), u"000000000000"_s);
  EXPECT_EQ(AmountDigits(u"1.234,5"_s, 12, true), u"000000012345"_s);
  EXPECT_EQ(AmountDigits(u"1234567890123"_s, 4, false), u"123456789012300"_s);
  EXPECT_EQ(AmountText(u"1234,5"_s, 12, false), u"    1.234,50"_s);
  EXPECT_EQ(AmountText(u"1234,5"_s, 12, true), u"1.234,50"_s);
  EXPECT_EQ(AmountText(u"1234,5"_s, 3, false), u"1.234,50"_s);
}

TEST(Formats, AmountsIgnoreTheMachineLocale) {
  const char* previous = std::setlocale(LC_ALL, nullptr);
  const std::string saved = previous != nullptr ? previous : "C";
  std::setlocale(LC_ALL, "C.UTF-8");
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  EXPECT_EQ(FormatAmount(u"1234,5"_s), u"1.234,50"_s);
  EXPECT_TRUE(IsNumeric(u"1,5"_s));
  EXPECT_EQ(CheckDecimal(u"1.5"_s, kField, 9), kDots);
  QLocale::setDefault(QLocale::c());
  std::setlocale(LC_ALL, saved.c_str());
}

TEST(Formats, PaddingDatesAndWrapping) {
  EXPECT_EQ(PadText(u" ABC "_s, 5, true), u"ABC  "_s);
  EXPECT_EQ(PadText(u"ABC"_s, 5, false), u"  ABC"_s);
  EXPECT_EQ(PadText(u"ABCDEF"_s, 3, true), u"ABCDEF"_s);
  EXPECT_EQ(DateDigits(QString()), QString(8, u' '));
  EXPECT_EQ(DateDigits(u"05/03/2002"_s), u"05032002"_s);
  EXPECT_EQ(DateDigits(u"5/3/2002"_s), u"00532002"_s);

  const QString short_text(60, u'x');
  EXPECT_EQ(WrapText(short_text, true), short_text);
  // A 70-character text whose last blank at or before position 60 is at 52.
  const QString text = QString(51, u'a') + u' ' + QString(18, u'b');
  ASSERT_EQ(text.size(), 70);
  EXPECT_EQ(WrapText(text, false), text.left(52) + u"\r\n"_s + QString(27, u' ') + QString(18, u'b'));
  EXPECT_EQ(WrapText(text, true), text.left(52) + u"\r\n"_s + QString(17, u' ') + QString(18, u'b'));
  // No blank late enough: the break falls at position 45.
  const QString solid(70, u'z');
  EXPECT_EQ(WrapText(solid, true), solid.left(45) + u"\r\n"_s + QString(17, u' ') + solid.mid(45));
}

}  // namespace
}  // namespace veroxia
