// The volumes as written, field by field and record by record, where they
// break, how a set is put in place, and the check of a set against the store.

#include <gtest/gtest.h>

#include <QDir>
#include <functional>
#include <random>

#include "filing/plain_field.h"
#include "filing/volume_check.h"
#include "filing/volume_files.h"
#include "filing/volume_writer.h"
#include "support/fakes.h"
#include "support/files.h"
#include "support/store_rows.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;
using enum VolumeFault;

void Write(const QString& path, const QByteArray& bytes) { ASSERT_TRUE(WriteFile(path, bytes)); }

// Declaration 1 of the kind with a header of a Greek name (to month 03 and
// wages 1234,5; or AMOE 77 and 25 days) and `lines` lines (one person from
// line `shared` on), written by the program into `dir`.
int WriteDeclaration(Database& db, Kind kind, int lines, int shared, const QString& dir) {
  // clang-format off
  db.Exec(kind == Kind::Common ? "INSERT INTO QOR_EMPLOYERS (id, CreateFlDate, employer_name, to_month, total_salaries) "
                                 "VALUES (1, '05/03/2002', 'ΠΑΠΑΔΟΠΟΥΛΟΣ', '03', '1234,5')"
                               : "INSERT INTO QOR_CON_EMPLOYERS (id, createfldate, emp_name, amoe, sum_days) "
                                 "VALUES (1, '05/03/2002', 'ΠΑΠΑΔΟΠΟΥΛΟΣ', '77', '25')");
  // clang-format on
  AddLines(db, kind, 1, lines, shared);
  VolumeFiles files(dir);
  return VolumeWriter(db, kind, 1).Write(files);
}

// Copies of three written volumes, each broken in one way, and where the
// finding must be.
class BrokenVolumes : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QDir().mkdir(written()));
    ASSERT_EQ(WriteDeclaration(store_.Open(), Kind::Common, 15'000, 4'000, written()), 3);
  }
  QString written() const { return store_.Dir() + u"/written"_s; }
  // A fresh copy of the volumes, changed.
  QString Copy(const QString& name, const std::function<void(const QString&)>& change) {
    const QString dir = store_.Dir() + u'/' + name;
    EXPECT_TRUE(QDir().mkdir(dir));
    for (const QString& volume : QDir(written()).entryList(QDir::Files)) {
      EXPECT_TRUE(QFile::copy(written() + u'/' + volume, dir + u'/' + volume));
    }
    change(dir + u"/CSL"_s);
    return dir;
  }
  TempStore store_;
};

TEST_F(BrokenVolumes, EachFaultIsFoundInItsVolume) {
  using Edit = std::function<void(const QString&)>;
  const auto change = [](const char* volume, const std::function<void(QByteArray&)>& edit) {
    return Edit([=](const QString& prefix) {
      QByteArray bytes = FileBytes(prefix + QLatin1StringView(volume));
      edit(bytes);
      Write(prefix + QLatin1StringView(volume), bytes);
    });
  };
  const qsizetype line3 = 416 + 180;  // the first record "3" of volumes 2 and 3
  const struct {
    const char* name;
    Edit edit;
    int volume;  // where the finding is (0: the set as a whole)
    VolumeFault fault;
    int record;      // where in it; -1: anywhere
    int findings;    // all kept
    QString told{};  // a part of the report's text
  } cases[] = {
      // clang-format off
      {"Truncated", change("03", [](QByteArray& b) { b.chop(70); }), 3, kCut, -1, 2, u"είναι κομμένη: δεν τελειώνει σε CR LF."_s},
      {"LfLineEnds", change("02", [](QByteArray& b) { b.replace("\r\n", "\n"); }), 2, kBareLf, 1, kKeptFindings, u"τελειώνει σε LF χωρίς CR."_s},
      // 0xAE is the registered sign; 0xFF is left undefined.
      {"ForeignByte", change("02", [&](QByteArray& b) {
         b[line3 + 10 * 140 + 20] = '\xAE', b[line3 + 11 * 140 + 20] = '\xFF'; }), 2, kForeignByte, 14, 1},
      {"CrInARecord", change("02", [&](QByteArray& b) { b[line3 + 5 * 140 + 30] = '\r'; }), 2, kBareCr, 8, 1},
      {"MissingInTheMiddle", [](const QString& p) { QFile::remove(p + u"02"_s); }, 2, kMissing, 0, 2, u"Λείπει ο τόμος CSL02."_s},
      {"ExtraAfterTheLast", [](const QString& p) {
         Write(p + u"04"_s, FileBytes(p + u"03"_s).replace(3, 7, "04CSL04")); }, 4, kExtra, 0, 1},
      {"HeaderChanged", change("02", [](QByteArray& b) { b[99] = 'X'; }), 2, kHeaderDiffers, 1, 1},
      {"LineWithoutPerson", change("03", [&](QByteArray& b) { b.remove(416, 180); }), 3, kLineWithoutPerson, 2, 1},
      {"NoEof", change("03", [](QByteArray& b) { b.chop(5); }), 3, kNoEof, 0, 1, u"δεν τελειώνει με EOF."_s},
      {"BothKinds", [](const QString& p) { Write(p.chopped(3) + u"CSC01"_s, "1"); }, 0, kBothKinds, 0, 1},
      {"Misnamed", [](const QString& p) { Write(p + u"1"_s, "1"); }, 0, kBadName, 0, 1},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const VolumeCheck check = VerifyVolumes(Copy(QLatin1StringView(c.name), c.edit));
    const QString text = ReportText(VolumeCheckWindow(check)).join(u'\n');
    EXPECT_EQ(check.findings.size(), static_cast<size_t>(c.findings)) << text.toStdString();
    EXPECT_TRUE(text.contains(c.told)) << text.toStdString();
    EXPECT_TRUE(std::any_of(check.findings.begin(), check.findings.end(), [&](const auto& f) {
      return f.volume == c.volume && f.fault == c.fault && (c.record < 0 || f.record == c.record);
    })) << text.toStdString();
    for (const VolumeFinding& f : check.findings) {
      EXPECT_TRUE(f.volume == c.volume || f.volume == 0) << text.toStdString();
    }
    // A finding of a volume is told with its name and record; of each volume
    // the first kKeptFindings only.
    if (c.volume > 0 && c.record > 0) {
      EXPECT_TRUE(text.contains(u"Τόμος CSL0%1, εγγραφή %2: "_s.arg(c.volume).arg(c.record)));
    }
    for (const VolumeSummary& volume : check.volumes) {
      EXPECT_EQ(std::count_if(check.findings.begin(), check.findings.end(),
                              [&](const auto& f) { return f.volume == volume.number; }),
                std::min(volume.faults, kKeptFindings));
    }
  }
}

TEST_F(BrokenVolumes, CountsAgainstTheStore) {
  Database& db = store_.Open();
  db.Exec("INSERT INTO QOR_EMPLOYEES (id, row_num, insured_id) VALUES (1, 15001, '1')");
  const VolumeCheck check = VerifyVolumes(written(), ExpectedCounts(db, Kind::Common, 1));
  ASSERT_EQ(check.findings.size(), 2u);
  const VolumeFinding &lines = check.findings[0], &persons = check.findings[1];
  EXPECT_EQ(std::tuple(lines.fault, lines.found, lines.wanted, persons.fault, persons.wanted),
            std::tuple(kLineCount, 15'000, 15'001, kPersonCount, 4'001));
  const VolumeCounts other{Kind::Construction, 4'000, 15'000, {}};
  EXPECT_EQ(VerifyVolumes(written(), other).findings.at(0).fault, kOtherKind);
  EXPECT_EQ(VerifyVolumes(store_.Dir() + u"/none"_s).findings.at(0).fault, kNoDirectory);
  EXPECT_EQ(VerifyVolumes(store_.Dir()).findings.at(0).fault, kNoVolumes);
}

// Putting a set in place stopped before each of its steps, as a kill would
// stop it, or failing there: three older volumes and a note, one new volume.
// Until the next write finishes it the check refuses the directory; then it
// holds the old set (stopped before the journal, or undone) or the new one.
TEST(VolumeFilesPutInPlace, StoppedAtEachStep) {
  const QStringList old{u"CSC01"_s, u"CSL01"_s, u"CSL02"_s, u"notes.txt"_s};
  const struct {
    int step;          // -1: not stopped
    bool fails;        // a failure there, not a kill
    const char* left;  // the directory's files when stopped
    bool refused;      // by the check, as a write cut short
    bool is_new;       // once finished
  } cases[] = {
      // clang-format off
      {0, false, "CSC01 CSL01 CSL02 notes.txt", true, false},
      {1, false, "CSC01 CSL01 CSL02 notes.txt", true, true},  // the journal written
      {2, false, "CSL01 CSL02 notes.txt", true, true}, {3, false, "CSL01 notes.txt", true, true},  // the old CSL01
      {4, false, "notes.txt", true, true}, {5, false, "CSL01 notes.txt", true, true},  // the new CSL01
      {3, true, "CSC01 CSL01 CSL02 notes.txt", false, false}, {-1, false, "CSL01 notes.txt", false, true},
      // clang-format on
  };
  TempStore store;
  Database& db = store.Open();
  db.Exec("INSERT INTO QOR_EMPLOYERS (id, CreateFlDate) VALUES (1, '05/03/2002')");
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    const QString dir = store.Dir() + u"/out"_s + QString::number(&c - cases);
    ASSERT_TRUE(QDir().mkdir(dir));
    for (const QString& name : old) Write(dir + u'/' + name, name.toLatin1());
    VolumeFiles files(dir, old.first(3));
    files.before_step = [&](int step) {
      if (step == c.step && c.fails) throw FileError{EIO, {}};
      if (step == c.step) throw step;
    };
    try {
      VolumeWriter(db, Kind::Common, 1).Write(files);
    } catch (int) {
    } catch (const FileError&) {
    }
    EXPECT_EQ(QDir(dir).entryList(QDir::Files).join(u' '), QLatin1StringView(c.left));
    const VolumeCheck check = VerifyVolumes(dir);
    EXPECT_EQ(!check.findings.empty() && check.findings[0].fault == kUnfinished, c.refused);
    FinishUnfinishedWrites(dir);
    EXPECT_EQ(QDir(dir).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              c.is_new ? QStringList({u"CSL01"_s, u"notes.txt"_s}) : old);
    EXPECT_EQ(VerifyVolumes(dir).AllHold(), c.is_new);
    EXPECT_EQ(FileBytes(dir + u"/CSL01"_s) == "CSL01", !c.is_new);
  }
}

// Volumes written by the program hold, of both kinds, one volume or several
// with a person going on across the break, and their counts are the store's.
// Their header against the stored declaration's, field by field as the writer
// writes it: a value stored in another form agrees, a changed one is a row
// that does not hold and a note. The report is offered under the
// declaration's name.
TEST(VolumeCheck, WrittenVolumesAgainstTheStore) {
  const struct {
    Kind kind;
    int lines, shared, volumes, persons;
    const char* change;  // of the stored header, after the volumes were written
    const char* row;     // of the field that differs; none: all agree
  } cases[] = {
      // clang-format off
      {Kind::Common, 3, 2, 1, 2, "total_salaries = '1.234,50'", nullptr},
      {Kind::Common, 0, 0, 1, 0, "total_salaries = '1234,51'", "ΣΥΝΟΛΟ ΑΠΟΔΟΧΩΝ (15)\t000000123450\t000000123451\t\tΔΙΑΦΕΡΕΙ"},
      {Kind::Common, 0, 0, 1, 0, "to_month = '2'", "ΕΩΣ ΜΗΝΑ (12)\t03\t02\t\tΔΙΑΦΕΡΕΙ"},
      {Kind::Construction, 14'753, 40, 2, 40, "amoe = '77'", nullptr},
      {Kind::Construction, 0, 0, 1, 0, "amoe = ''", "Α.Μ.Ο.Ε. (11)\t0000000077\t0000000000\t\tΔΙΑΦΕΡΕΙ"},
      {Kind::Construction, 0, 0, 1, 0, "sum_days = '26'", "ΣΥΝΟΛΟ ΗΜΕΡΩΝ ΑΠΑΣΧΟΛΗΣΗΣ (19)\t00000025\t00000026\t\tΔΙΑΦΕΡΕΙ"},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.change);
    TempStore store;
    Database& db = store.Open();
    const bool common = c.kind == Kind::Common;
    ASSERT_EQ(WriteDeclaration(db, c.kind, c.lines, c.shared, store.Dir()), c.volumes);
    db.Exec(std::string(common ? "UPDATE QOR_EMPLOYERS SET " : "UPDATE QOR_CON_EMPLOYERS SET ") +
            c.change);
    const std::optional<VolumeCounts> expected = ExpectedCounts(db, c.kind, 1);
    ASSERT_TRUE(expected);
    EXPECT_EQ(std::pair(expected->lines, expected->persons), std::pair(c.lines, c.persons));
    const VolumeCheck check = VerifyVolumes(store.Dir(), expected);
    EXPECT_EQ(check.AllHold(), !c.row);
    EXPECT_EQ(std::tuple(check.kind, check.volumes.size(), check.lines, check.persons),
              std::tuple(c.kind, size_t(c.volumes), c.lines, c.persons));
    FakeDialogs dialogs;
    dialogs.directories.push_back(store.Dir());
    store.vars.DeclarationId = 1;
    store.vars.PeriodFrom = u"012002"_s;
    CheckVolumes(store.vars, dialogs, c.kind);
    const Report& report = dialogs.reports.at(0);
    const QStringList text = ReportText(report);
    // A heading, a line per volume, the totals, the declaration's counts, a
    // heading and a line per header field, the note of a field that differs,
    // and the verdict.
    EXPECT_EQ(text.size(), c.volumes + 5 + int(expected->header.size()) + (c.row ? 1 : 0));
    EXPECT_TRUE(text.value(1).startsWith(check.volumes[0].name + u'\t'));
    EXPECT_EQ(text.filter(u"ΔΙΑΦΕΡΕΙ"_s).join(u'\n'), QString::fromUtf8(c.row ? c.row : ""));
    EXPECT_EQ(text.filter(u"ΣΥΜΦΩΝΕΙ"_s).size(), (common ? 11 : 10) - (c.row ? 1 : 0));
    EXPECT_EQ(report.file_name,
              common ? u"OVT-common-1-2002-01.txt"_s : u"OVT-construction-1-2002-01.txt"_s);
  }
}

// The bytes, the '|' between fields left out.
QByteArray Join(const char* fields) { return QByteArray(fields).replace('|', ""); }

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
    InsertRow(db(),
              Set(header, {{"CreateFlDate", u"05/03/2002"_s}, {"createfldate", u"05/03/2002"_s}}));
    MemoryVolumes volumes;
    VolumeWriter(db(), kind, 1).Write(volumes);
    EXPECT_TRUE(volumes.finished);
    return volumes;
  }

  TempStore store_;
};

// Nulls and the plain values of each format are held to these by the random
// values below.
TEST(VolumeFields, EachFormatAsTheFileHoldsIt) {
  using enum FieldFormat;
  const struct {
    FieldFormat format;
    int width;
    Text value;
    QString expected;
  } cases[] = {
      // clang-format off
      {kAmount, 10, u"1234,5"_s, u"0000123450"_s}, {kAmount, 10, std::nullopt, u"0000000000"_s},
      {kAmount, 12, u" 1.234,567 "_s, u"000000123457"_s}, {kAmount, 11, u"-5"_s, u"0000000-500"_s},
      {kAmount, 10, u"abc"_s, u"0000000abc"_s}, {kAmount, 4, u"123456"_s, u"12345600"_s},
      {kDigits, 9, u" 12.345,6 "_s, u"000123456"_s}, {kDigits, 2, std::nullopt, u"00"_s},
      {kDigits, 2, u"123"_s, u"123"_s},
      {kText, 5, u" αβ "_s, u"αβ   "_s}, {kText, 3, std::nullopt, u"   "_s}, {kText, 2, u"abcd"_s, u"abcd"_s},
      {kText, 5, u" \tαβ "_s, u"\tαβ  "_s}, {kText, 4, u" a\t "_s, u"a\t  "_s},
      {kDate, 8, u"05/03/2002"_s, u"05032002"_s}, {kDate, 8, u"5/3/2002"_s, u"00532002"_s},
      {kDate, 8, u"  "_s, u"        "_s},
      {kAmka, 11, u" "_s, u"           "_s}, {kAmka, 11, u"1234"_s, u"00000001234"_s},
      {kMarried, 1, u"1"_s, u"2"_s}, {kMarried, 1, u"2"_s, u"1"_s}, {kMarried, 1, u" 1"_s, u"1"_s},
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
    const VolumeField field{0, 1, int(random() % 6), "x", FieldFormat(random() % 6)};
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
}

TEST_F(VolumeWriterTest, RecordsOfAHandMadeCommonDeclaration) {
  // The surname is written as stored, lower case and accents too; the paid
  // contributions are longer than their field and are written whole.
  // clang-format off
  InsertRow(db(), Filled<EmployeeRow>(1, {
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
  const MemoryVolumes volumes = Write(Set(EmployerRow{}, {
      {"declaration_type", u"1"_s}, {"orgbra_branch_code", u"51"_s},
      {"orgbra_branch_descr", u" Αθηνών "_s}, {"total_salaries", u"1234,5"_s}, {"stop_date", u""_s}}));
  // clang-format on

  EXPECT_EQ(volumes.Types(0), "123E");
  const QList<QByteArray> records = volumes.Records(0);
  EXPECT_EQ(records[0].size(), 414);
  // "Αθηνών"; no days, then the wages; submitted, never stopped
  // clang-format off
  for (const auto& [start, expected] : std::initializer_list<std::pair<int, QByteArray>>{
           {1, "10101CSL01   01"}, {16, "01051"}, {21, "\xC1\xE8\xE7\xED\xFE\xED" + QByteArray(44, ' ')},
           {337, "00000000000000123450"}, {369, "05032002        "}, {385, QByteArray(30, ' ')}}) {
    EXPECT_EQ(records[0].mid(start - 1, expected.size()), expected) << start;
  }
  // "Παπαδόπουλος" and "ΙΩΑΝΝΗΣ" in the Greek code page
  EXPECT_EQ(records[1], "2123456789" + QByteArray(11, ' ') + "\xD0\xE1\xF0\xE1\xE4\xFC\xF0\xEF\xF5\xEB\xEF\xF2" +
                            QByteArray(68, ' ') + "\xC9\xD9\xC1\xCD\xCD\xC7\xD3" + QByteArray(53, ' ') + "00531970012345678");
  // clang-format on
  EXPECT_EQ(records[2], Join("3|0012|5221|1|0|2|913120|00|0101|03|2002|01032002|        |01|025|"
                             "0000123450|0000010000|0000003087|0000000000|0000000-500|"
                             "0000000013|01250|0000000abc|1234567890150"));
  EXPECT_EQ(records[3], "EOF");
}

TEST_F(VolumeWriterTest, RecordsOfAHandMadeConstructionDeclaration) {
  // Three digits of days: the record grows by one.
  // clang-format off
  InsertRow(db(), Filled<ConEmployeeRow>(1, {
      {"ovt_code", u"51"_s}, {"insured_id", u"123456789"_s}, {"amka", u"12345678901"_s},
      {"married_status", u"1"_s}, {"triennium_num", u"2"_s}, {"categ_code", u"1"_s},
      {"sal_from", u"01/03/2002"_s}, {"wage_code", u"3"_s}, {"insurance_days", u"125"_s},
      {"daily_wages", u"50"_s}, {"phase_code", u"7"_s}, {"costing_days", u"20"_s},
      {"total_contr", u"1,1"_s}}));
  // clang-format on
  const MemoryVolumes volumes =
      Write(Set(ConEmployerRow{}, {{"sum_salaries", u"2"_s}, {"sum_days", u"3"_s}}));

  const QList<QByteArray> records = volumes.Records(0);
  EXPECT_EQ(records[0].size(), 613);
  EXPECT_EQ(records[0].mid(535, 32), Join("000000000200|00000003|000000000000"));
  EXPECT_EQ(records[1].size(), 179);  // AMKA, married
  EXPECT_EQ(records[1].mid(10, 11) + records[1].back(), "123456789012");
  EXPECT_EQ(records[2], Join("3|051|2|0|000001|00|0000|01032002|        |03|125|0000005000|"
                             "0000000000|07|20|0000000000|0000000000|00000000110"));
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
    InsertRow(db(), SampleLine<EmployeeRow>(1, ++row, *id));
  }
  // reading order: "", "111", "111", "222", "333 ", "333 ", "444", "444"
  EXPECT_EQ(Write<EmployerRow>().Types(0), Join("1|23|233|23|23|23|233|E"));
  const std::optional<VolumeCounts> counts = ExpectedCounts(db(), Kind::Common, 1);
  ASSERT_TRUE(counts);
  EXPECT_EQ(std::pair(counts->persons, counts->lines), std::pair(6, 8));
  EXPECT_FALSE(ExpectedCounts(db(), Kind::Common, 2));
  EXPECT_FALSE(ExpectedCounts(db(), Kind::Construction, 1));
}

// A line starts a new volume when it could take the volume past 1,400,000
// bytes; the volume count in every header is the estimate made beforehand,
// and ten and more are named in plain decimal.
TEST_F(VolumeWriterTest, CommonVolumesBreakAtTheirSize) {
  AddLines(db(), Kind::Common, 1, 4373 * 9 + 1);
  const MemoryVolumes volumes = Write<EmployerRow>();
  ASSERT_EQ(volumes.volumes.size(), 10u);
  EXPECT_EQ(volumes.volumes[0].second.size(), 416 + 4373 * (180 + 140) + 5);
  EXPECT_EQ(volumes.volumes[8].first + volumes.volumes[9].first, u"CSL09CSL10"_s);
  EXPECT_EQ(volumes.Types(9), "123E");
  // the estimate says 9
  EXPECT_EQ(volumes.Records(0)[0].left(10) + volumes.Records(9)[0].left(10),
            "10901CSL0110910CSL10");
  EXPECT_EQ(volumes.Records(0)[0].mid(10), volumes.Records(9)[0].mid(10));
}

// A line that brings the volume to exactly 1,400,000 bytes with its margin
// still goes into it: 615 + 40 * 181 + 14651 * 95 + 300 = 1,400,000; and a
// person whose lines go on in the next volume is named again at its top.
TEST_F(VolumeWriterTest, ConstructionVolumesBreakAtTheirMargin) {
  AddLines(db(), Kind::Construction, 1, 14'653, 40);
  const MemoryVolumes volumes = Write<ConEmployerRow>();
  ASSERT_EQ(volumes.volumes.size(), 2u);
  EXPECT_EQ(volumes.volumes[0].second.size(), 1'400'000 - 300 + 95 + 5);
  EXPECT_EQ(volumes.Types(0).count('3'), 14'652);
  EXPECT_EQ(volumes.Types(1), "123E");
  EXPECT_EQ(volumes.Records(0)[0].left(10) + volumes.Records(1)[0].left(10),
            "10301CSC0110302CSC02");
}

}  // namespace
}  // namespace veroxia::testing
