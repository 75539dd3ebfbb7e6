#include "filing/volume_writer.h"

#include <gtest/gtest.h>

#include <random>

#include "filing/plain_field.h"
#include "filing/volume_check.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

QByteArray Join(std::initializer_list<const char*> fields) {
  QByteArray joined;
  for (const char* field : fields) joined += field;
  return joined;
}

struct MemoryVolumes : VolumeSink {
  void Begin(const QString& name) override { volumes.push_back({name, {}}); }
  void Write(const QByteArray& bytes) override { volumes.back().second += bytes; }
  void Finish() override { finished = true; }
  void Abandon() override {}
  // The records of a volume, each ended by CR LF, without it.
  QList<QByteArray> Records(size_t volume) const {
    QList<QByteArray> records = volumes.at(volume).second.split('\n');
    EXPECT_TRUE(records.takeLast().isEmpty());
    for (QByteArray& record : records) {
      EXPECT_TRUE(record.endsWith('\r'));
      record.chop(1);
    }
    return records;
  }
  // The record types of a volume, "1" to "3" and "E" for EOF.
  QByteArray Types(size_t volume) const {
    QByteArray types;
    for (const QByteArray& record : Records(volume)) types += record.front();
    return types;
  }
  std::vector<std::pair<QString, QByteArray>> volumes;
  bool finished = false;
};

class VolumeWriterTest : public ::testing::Test {
 public:
  Database& db() { return store_.Open(); }
  // Writes declaration 1 with the header given, dated for submission.
  template <class Header>
  MemoryVolumes Write(Header header = {}) {
    constexpr Kind kind = std::is_same_v<Header, EmployerRow> ? Kind::Common : Kind::Construction;
    header.id = 1;
    if constexpr (kind == Kind::Common) {
      header.CreateFlDate = u"05/03/2002"_s;
    } else {
      header.createfldate = u"05/03/2002"_s;
    }
    InsertRow(db(), header);
    MemoryVolumes volumes;
    VolumeWriter(db(), kind, 1).Write(volumes);
    EXPECT_TRUE(volumes.finished);
    return volumes;
  }

  testing::TempStore store_;
};

TEST(VolumeFields, EachFormatAsTheFileHoldsIt) {
  using enum FieldFormat;
  const struct {
    FieldFormat format;
    int width;
    Text value;
    QString expected;
  } cases[] = {
      // clang-format off
      {kAmount, 10, u"1234,5"_s, u"0000123450"_s}, {kAmount, 10, u"100"_s, u"0000010000"_s},
      {kAmount, 12, u" 1.234,567 "_s, u"000000123457"_s}, {kAmount, 11, u"-5"_s, u"0000000-500"_s},
      {kAmount, 10, u"abc"_s, u"0000000abc"_s}, {kAmount, 4, u"123456"_s, u"12345600"_s},
      {kAmount, 10, std::nullopt, u"0000000000"_s}, {kAmount, 10, u""_s, u"0000000000"_s},
      {kDigits, 9, u" 12.345,6 "_s, u"000123456"_s}, {kDigits, 2, std::nullopt, u"00"_s},
      {kDigits, 2, u"123"_s, u"123"_s},
      {kText, 5, u" αβ "_s, u"αβ   "_s}, {kText, 3, std::nullopt, u"   "_s}, {kText, 2, u"abcd"_s, u"abcd"_s},
      {kText, 5, u" \tαβ "_s, u"\tαβ  "_s}, {kText, 4, u" a\t "_s, u"a\t  "_s},
      {kDate, 8, u"05/03/2002"_s, u"05032002"_s}, {kDate, 8, u"5/3/2002"_s, u"00532002"_s},
      {kDate, 8, u"  "_s, u"        "_s}, {kDate, 8, std::nullopt, u"        "_s},
      {kAmka, 11, u" "_s, u"           "_s}, {kAmka, 11, std::nullopt, u"           "_s},
      {kAmka, 11, u"1234"_s, u"00000001234"_s},
      {kMarried, 1, u"1"_s, u"2"_s}, {kMarried, 1, u"2"_s, u"1"_s}, {kMarried, 1, u" 1"_s, u"1"_s},
      {kMarried, 1, std::nullopt, u"1"_s},
      // clang-format on
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatField({0, 1, c.width, "x", c.format}, c.value), c.expected)
        << c.value.value_or(u"<Null>"_s).toStdString();
  }
}

// Plain values are made straight from their bytes, exactly as the formats
// make them.
TEST(VolumeFields, PlainValuesAsTheFormatsMakeThem) {
  const std::string alphabet = "0123456789,. -/+Ea\t";
  std::mt19937 random(7);
  int plain = 0;
  for (int i = 0; i < 20'000; ++i) {
    std::string value(random() % 7, ' ');
    for (char& c : value) c = alphabet[random() % alphabet.size()];
    const VolumeField field{0, 1, static_cast<int>(random() % 6), "x",
                            static_cast<FieldFormat>(random() % 6)};
    const bool null = random() % 10 == 0;
    QByteArray out = "<";
    if (!AppendPlainField(out, field,
                          null ? std::nullopt : std::optional<std::string_view>(value))) {
      EXPECT_EQ(out, "<");
      continue;
    }
    ++plain;
    const Text text = null ? Text() : QString::fromStdString(value);
    ASSERT_EQ(out, "<" + FormatField(field, text).toLatin1()) << value << " as " << field.width;
  }
  EXPECT_GT(plain, 10'000);
  // A Greek text through the table, trimmed and padded; a character the table
  // lacks goes to the encoder.
  QByteArray out;
  EXPECT_TRUE(AppendPlainField(out, {0, 1, 4, "x", FieldFormat::kText}, " \xCE\xB1\xCF\x8C "));
  EXPECT_EQ(out, "\xE1\xFC  ");                                                         // "αό"
  EXPECT_FALSE(AppendPlainField(out, {0, 1, 4, "x", FieldFormat::kText}, "\xD0\xAF"));  // "Я"
  EXPECT_EQ(out.size(), 4);
}

// Each field starts where the one before it ends.
TEST(VolumeFields, StartsFollowTheWidths) {
  for (const Kind kind : {Kind::Common, Kind::Construction}) {
    const VolumeLayout& layout = VolumeLayoutOf(kind);
    for (const auto& [fields, start] :
         {std::pair{&layout.header, 16}, {&layout.person, 2}, {&layout.line, 2}}) {
      int next = start;
      for (const VolumeField& field : *fields) {
        EXPECT_EQ(field.start, next) << field.column;
        next = field.start + field.width;
      }
    }
  }
}

TEST_F(VolumeWriterTest, RecordsOfAHandMadeCommonDeclaration) {
  // The surname is written as stored, lower case and accents too; the paid
  // contributions are longer than their field and are written whole.
  // clang-format off
  InsertRow(db(), testing::Filled<EmployeeRow>(1, {
      {"emp_branch_id", u"12"_s}, {"kad", u"5221"_s}, {"insured_id", u"123456789"_s},
      {"amka", u""_s}, {"surname", u"Παπαδόπουλος"_s}, {"father_name", u"ΙΩΑΝΝΗΣ"_s},
      {"birth_date", u"5/3/1970"_s}, {"taxation_id", u"12345678"_s}, {"full_day", u"1"_s},
      {"all_days", u"0"_s}, {"sundays_sum", u"2"_s}, {"insur_categ_code", u"913120"_s},
      {"covcod_cover_code", u"101"_s}, {"sal_month", u"3"_s}, {"sal_year", u"2002"_s},
      {"sal_from", u"01/03/2002"_s}, {"sal_to", u""_s}, {"wage_code", u"1"_s},
      {"insurance_days", u"25"_s}, {"daily_wages", u"1234,5"_s}, {"salary", u"100"_s},
      {"insured_contr", u"30,87"_s}, {"total_contr", u"-5"_s}, {"subsidy_amount", u"0,125"_s},
      {"emp_subsidy_percent", u"12,5"_s}, {"emp_subsidy_amount", u"abc"_s},
      {"payed_contr", u"12345678901,5"_s}}));
  // clang-format on
  EmployerRow header;
  header.declaration_type = u"1"_s;
  header.orgbra_branch_code = u"51"_s;
  header.orgbra_branch_descr = u" Αθηνών "_s;
  header.total_salaries = u"1234,5"_s;
  header.stop_date = u""_s;
  const MemoryVolumes volumes = Write(header);

  ASSERT_EQ(volumes.volumes.size(), 1u);
  EXPECT_EQ(volumes.volumes[0].first, u"CSL01"_s);
  EXPECT_EQ(volumes.Types(0), "123E");
  const QList<QByteArray> records = volumes.Records(0);
  EXPECT_EQ(records[0].size(), 414);
  for (const auto& [start, expected] : std::initializer_list<std::pair<int, QByteArray>>{
           {1, "10101CSL01   01"},
           {16, "01051"},
           {21, "\xC1\xE8\xE7\xED\xFE\xED" + QByteArray(44, ' ')},  // "Αθηνών"
           {337, "00000000000000123450"},                           // no days, then the wages
           {369, "05032002        "},                               // submitted, never stopped
           {385, QByteArray(30, ' ')}}) {
    EXPECT_EQ(records[0].mid(start - 1, expected.size()), expected) << start;
  }
  // "Παπαδόπουλος" and "ΙΩΑΝΝΗΣ" in the Greek code page
  EXPECT_EQ(records[1], "2123456789" + QByteArray(11, ' ') +
                            "\xD0\xE1\xF0\xE1\xE4\xFC\xF0\xEF\xF5\xEB\xEF\xF2" +
                            QByteArray(68, ' ') + "\xC9\xD9\xC1\xCD\xCD\xC7\xD3" +
                            QByteArray(53, ' ') + "00531970" + "012345678");
  EXPECT_EQ(records[2], Join({"3",          "0012",       "5221",       "1",
                              "0",          "2",          "913120",     "00",
                              "0101",       "03",         "2002",       "01032002",
                              "        ",   "01",         "025",        "0000123450",
                              "0000010000", "0000003087", "0000000000", "0000000-500",
                              "0000000013", "01250",      "0000000abc", "1234567890150"}));
  EXPECT_EQ(records[3], "EOF");
}

TEST_F(VolumeWriterTest, RecordsOfAHandMadeConstructionDeclaration) {
  // Three digits of days: the record grows by one.
  // clang-format off
  InsertRow(db(), testing::Filled<ConEmployeeRow>(1, {
      {"ovt_code", u"51"_s}, {"insured_id", u"123456789"_s}, {"amka", u"12345678901"_s},
      {"married_status", u"1"_s}, {"triennium_num", u"2"_s}, {"categ_code", u"1"_s},
      {"sal_from", u"01/03/2002"_s}, {"wage_code", u"3"_s}, {"insurance_days", u"125"_s},
      {"daily_wages", u"50"_s}, {"phase_code", u"7"_s}, {"costing_days", u"20"_s},
      {"total_contr", u"1,1"_s}}));
  // clang-format on
  ConEmployerRow header;
  header.sum_salaries = u"2"_s;
  header.sum_days = u"3"_s;
  const MemoryVolumes volumes = Write(header);

  const QList<QByteArray> records = volumes.Records(0);
  EXPECT_EQ(volumes.volumes[0].first, u"CSC01"_s);
  EXPECT_EQ(records[0].size(), 613);
  EXPECT_EQ(records[0].mid(535, 32),
            "000000000200"
            "00000003"
            "000000000000");
  EXPECT_EQ(records[1].mid(10, 11), "12345678901");
  EXPECT_EQ(records[1].size(), 179);
  EXPECT_EQ(records[1].back(), '2');  // married
  EXPECT_EQ(records[2], Join({"3", "051", "2", "0", "000001", "00", "0000", "01032002", "        ",
                              "03", "125", "0000005000", "0000000000", "07", "20", "0000000000",
                              "0000000000", "00000000110"}));
}

// A record "2" opens a group at every change of the stored id against the
// trimmed id before it; an empty id opens one and so does the line after it.
// The persons the volumes are checked against are those groups.
TEST_F(VolumeWriterTest, GroupsFollowTheStoredInsuredId) {
  int row = 0;
  for (const Text& id : std::initializer_list<Text>{
           u"111"_s, u"111"_s,            // one group of two lines
           u"222"_s,                      // another person
           u"333 "_s, u"333 "_s,          // blanks after the id: each line opens a group
           u"444"_s, u""_s, u"444"_s}) {  // an empty id between
    InsertRow(db(), testing::SampleLine<EmployeeRow>(1, ++row, *id));
  }
  // reading order: "", "111", "111", "222", "333 ", "333 ", "444", "444"
  EXPECT_EQ(Write<EmployerRow>().Types(0),
            "1"
            "23"
            "233"
            "23"
            "23"
            "23"
            "233"
            "E");
  const std::optional<VolumeCounts> counts = ExpectedCounts(db(), Kind::Common, 1);
  ASSERT_TRUE(counts);
  EXPECT_EQ(counts->persons, 6);
  EXPECT_EQ(counts->lines, 8);
  EXPECT_FALSE(ExpectedCounts(db(), Kind::Common, 2));
  EXPECT_FALSE(ExpectedCounts(db(), Kind::Construction, 1));
}

// A line starts a new volume when it could take the volume past 1,400,000
// bytes; the volume count in every header is the estimate made beforehand,
// and ten and more are named in plain decimal.
TEST_F(VolumeWriterTest, CommonVolumesBreakAtTheirSize) {
  testing::AddLines(db(), Kind::Common, 1, 4373 * 9 + 1);
  const MemoryVolumes volumes = Write<EmployerRow>();
  ASSERT_EQ(volumes.volumes.size(), 10u);
  EXPECT_EQ(volumes.volumes[0].second.size(), 416 + 4373 * (180 + 140) + 5);
  EXPECT_EQ(volumes.Records(0).size(), 1 + 2 * 4373 + 1);
  EXPECT_EQ(volumes.volumes[8].first, u"CSL09"_s);
  EXPECT_EQ(volumes.volumes[9].first, u"CSL10"_s);
  EXPECT_EQ(volumes.Types(9), "123E");
  EXPECT_EQ(volumes.Records(0)[0].left(10), "10901CSL01");
  EXPECT_EQ(volumes.Records(9)[0].left(10), "10910CSL10");  // the estimate says 9
  EXPECT_EQ(volumes.Records(0)[0].mid(10), volumes.Records(9)[0].mid(10));
}

// A line that brings the volume to exactly 1,400,000 bytes with its margin
// still goes into it: 615 + 40 * 181 + 14651 * 95 + 300 = 1,400,000; and a
// person whose lines go on in the next volume is named again at its top.
TEST_F(VolumeWriterTest, ConstructionVolumesBreakAtTheirMargin) {
  testing::AddLines(db(), Kind::Construction, 1, 14'653, 40);
  const MemoryVolumes volumes = Write<ConEmployerRow>();
  ASSERT_EQ(volumes.volumes.size(), 2u);
  EXPECT_EQ(volumes.volumes[0].second.size(), 1'400'000 - 300 + 95 + 5);
  EXPECT_EQ(volumes.Types(0).count('3'), 14'652);
  EXPECT_EQ(volumes.Types(1), "123E");
  EXPECT_EQ(volumes.Records(0)[0].left(10), "10301CSC01");
  EXPECT_EQ(volumes.Records(1)[0].left(10), "10302CSC02");
}

}  // namespace
}  // namespace veroxia
