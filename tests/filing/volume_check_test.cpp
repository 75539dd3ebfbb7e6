#include "filing/volume_check.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <functional>

#include "filing/volume_files.h"
#include "filing/volume_writer.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using enum VolumeFault;

void Write(const QString& path, const QByteArray& bytes) {
  ASSERT_TRUE(testing::WriteFile(path, bytes));
}

// Declaration 1 of the kind with a header of a Greek name and `lines` lines
// (one person from line `shared` on), written by the program into `dir`.
int WriteDeclaration(Database& db, Kind kind, int lines, int shared, const QString& dir) {
  db.Exec(kind == Kind::Common ? "INSERT INTO QOR_EMPLOYERS (id, CreateFlDate, employer_name) "
                                 "VALUES (1, '05/03/2002', 'ΠΑΠΑΔΟΠΟΥΛΟΣ')"
                               : "INSERT INTO QOR_CON_EMPLOYERS (id, createfldate, emp_name) "
                                 "VALUES (1, '05/03/2002', 'ΠΑΠΑΔΟΠΟΥΛΟΣ')");
  if (lines > 0) testing::AddLines(db, kind, 1, lines, shared);
  VolumeFiles files(dir);
  return VolumeWriter(db, kind, 1).Write(files);
}

// Volumes written by the program hold, of both kinds, one volume or several
// with a person going on across the break, and their counts are the store's.
TEST(VolumeCheck, VolumesAsWrittenHold) {
  const struct {
    Kind kind;
    int lines, shared, volumes, persons;
  } cases[] = {
      {Kind::Common, 0, 0, 1, 0},
      {Kind::Construction, 0, 0, 1, 0},
      {Kind::Common, 3, 2, 1, 2},
      {Kind::Common, 15'000, 4'000, 3, 4'000},
      {Kind::Construction, 14'753, 40, 2, 40},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.lines);
    testing::TempStore store;
    Database& db = store.Open();
    const QString dir = store.Dir() + u"/out"_s;
    ASSERT_TRUE(QDir().mkdir(dir));
    ASSERT_EQ(WriteDeclaration(db, c.kind, c.lines, c.shared, dir), c.volumes);
    const std::optional<VolumeCounts> expected = ExpectedCounts(db, c.kind, 1);
    ASSERT_TRUE(expected);
    EXPECT_EQ(expected->lines, c.lines);
    EXPECT_EQ(expected->persons, c.persons);
    const VolumeCheck check = VerifyVolumes(dir, expected);
    EXPECT_TRUE(check.AllHold()) << ReportText(VolumeCheckWindow(check)).join(u'\n').toStdString();
    EXPECT_EQ(check.kind, c.kind);
    EXPECT_EQ(check.volumes.size(), static_cast<size_t>(c.volumes));
    EXPECT_EQ(check.lines, c.lines);
    EXPECT_EQ(check.persons, c.persons);
    // A heading, a line per volume, the totals, the declaration's counts, a
    // heading and a line per header field, and the verdict.
    const QStringList text = ReportText(VolumeCheckWindow(check));
    EXPECT_EQ(text.size(), c.volumes + 5 + static_cast<int>(expected->header.size()));
    EXPECT_TRUE(text.value(1).startsWith(check.volumes[0].name + u'\t'));
  }
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
  testing::TempStore store_;
};

TEST_F(BrokenVolumes, EachFaultIsFoundInItsVolume) {
  using Edit = std::function<void(const QString&)>;
  const auto change = [](const char* volume, const std::function<void(QByteArray&)>& edit) {
    return Edit([=](const QString& prefix) {
      QByteArray bytes = testing::FileBytes(prefix + QLatin1StringView(volume));
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
    int record;    // where in it; -1: anywhere
    int findings;  // all kept
  } cases[] = {
      {"Truncated", change("03", [](QByteArray& b) { b.chop(70); }), 3, kCut, -1, 2},
      {"LfLineEnds", change("02", [](QByteArray& b) { b.replace("\r\n", "\n"); }), 2, kBareLf, 1,
       kKeptFindings},
      // 0xAE is the registered sign; 0xFF is left undefined.
      {"ForeignByte",
       change("02",
              [&](QByteArray& b) {
                b[line3 + 10 * 140 + 20] = '\xAE';
                b[line3 + 11 * 140 + 20] = '\xFF';
              }),
       2, kForeignByte, 14, 1},
      {"CrInARecord", change("02", [&](QByteArray& b) { b[line3 + 5 * 140 + 30] = '\r'; }), 2,
       kBareCr, 8, 1},
      {"MissingInTheMiddle", [](const QString& p) { QFile::remove(p + u"02"_s); }, 2, kMissing, 0,
       2},
      {"ExtraAfterTheLast",
       [](const QString& p) {
         QByteArray bytes = testing::FileBytes(p + u"03"_s);
         bytes.replace(3, 7, "04CSL04");
         Write(p + u"04"_s, bytes);
       },
       4, kExtra, 0, 1},
      {"HeaderChanged", change("02", [](QByteArray& b) { b[99] = 'X'; }), 2, kHeaderDiffers, 1, 1},
      {"LineWithoutPerson", change("03", [&](QByteArray& b) { b.remove(416, 180); }), 3,
       kLineWithoutPerson, 2, 1},
      {"NoEof", change("03", [](QByteArray& b) { b.chop(5); }), 3, kNoEof, 0, 1},
      {"BothKinds", [](const QString& p) { Write(p.chopped(3) + u"CSC01"_s, "1"); }, 0, kBothKinds,
       0, 1},
      {"Misnamed", [](const QString& p) { Write(p + u"1"_s, "1"); }, 0, kBadName, 0, 1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const VolumeCheck check = VerifyVolumes(Copy(QLatin1StringView(c.name), c.edit));
    const QString text = ReportText(VolumeCheckWindow(check)).join(u'\n');
    EXPECT_FALSE(check.AllHold());
    EXPECT_EQ(check.findings.size(), static_cast<size_t>(c.findings)) << text.toStdString();
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
  EXPECT_EQ(check.findings[0].fault, kLineCount);
  EXPECT_EQ(check.findings[0].found, 15'000);
  EXPECT_EQ(check.findings[0].wanted, 15'001);
  EXPECT_EQ(check.findings[1].fault, kPersonCount);
  EXPECT_EQ(check.findings[1].wanted, 4'001);
  EXPECT_EQ(VerifyVolumes(written(), VolumeCounts{Kind::Construction, 4'000, 15'000, {}})
                .findings.at(0)
                .fault,
            kOtherKind);
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
      {0, false, "CSC01 CSL01 CSL02 notes.txt", true, false},
      {1, false, "CSC01 CSL01 CSL02 notes.txt", true, true},  // the journal written
      {2, false, "CSL01 CSL02 notes.txt", true, true},
      {3, false, "CSL01 notes.txt", true, true},  // the old CSL01
      {4, false, "notes.txt", true, true},
      {5, false, "CSL01 notes.txt", true, true},  // the new CSL01
      {3, true, "CSC01 CSL01 CSL02 notes.txt", false, false},
      {-1, false, "CSL01 notes.txt", false, true},
  };
  testing::TempStore store;
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
    const QStringList now =
        QDir(dir).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    EXPECT_EQ(now, c.is_new ? QStringList({u"CSL01"_s, u"notes.txt"_s}) : old);
    EXPECT_EQ(VerifyVolumes(dir).AllHold(), c.is_new);
    EXPECT_EQ(testing::FileBytes(dir + u"/CSL01"_s) == "CSL01", !c.is_new);
  }
}

// The header of the volumes against the stored declaration's, field by field
// as the writer writes it: a value stored in another form agrees, a changed
// one is a row that does not hold and a note. The report is offered under
// the declaration's name.
TEST(VolumeCheck, HeaderFieldsAgainstTheStore) {
  const struct {
    Kind kind;
    const char* change;  // of the stored header, after the volumes were written
    const char* row;     // of the field that differs; none: all agree
  } cases[] = {
      // clang-format off
      {Kind::Common, "total_salaries = '1.234,50'", nullptr},
      {Kind::Common, "total_salaries = '1234,51'", "ΣΥΝΟΛΟ ΑΠΟΔΟΧΩΝ (15)\t000000123450\t000000123451\t\tΔΙΑΦΕΡΕΙ"},
      {Kind::Common, "to_month = '2'", "ΕΩΣ ΜΗΝΑ (12)\t03\t02\t\tΔΙΑΦΕΡΕΙ"},
      {Kind::Construction, "amoe = ''", "Α.Μ.Ο.Ε. (11)\t0000000077\t0000000000\t\tΔΙΑΦΕΡΕΙ"},
      {Kind::Construction, "sum_days = '26'", "ΣΥΝΟΛΟ ΗΜΕΡΩΝ ΑΠΑΣΧΟΛΗΣΗΣ (19)\t00000025\t00000026\t\tΔΙΑΦΕΡΕΙ"},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.change);
    testing::TempStore store;
    Database& db = store.Open();
    const bool common = c.kind == Kind::Common;
    db.Exec(common ? "INSERT INTO QOR_EMPLOYERS (id, CreateFlDate, to_month, total_salaries) "
                     "VALUES (1, '05/03/2002', '03', '1234,5')"
                   : "INSERT INTO QOR_CON_EMPLOYERS (id, createfldate, amoe, sum_days) "
                     "VALUES (1, '05/03/2002', '77', '25')");
    {
      VolumeFiles files(store.Dir());
      VolumeWriter(db, c.kind, 1).Write(files);
    }
    db.Exec(std::string(common ? "UPDATE QOR_EMPLOYERS SET " : "UPDATE QOR_CON_EMPLOYERS SET ") +
            c.change);
    testing::FakeDialogs dialogs;
    dialogs.directories.push_back(store.Dir());
    store.vars.DeclarationId = 1;
    store.vars.PeriodFrom = u"012002"_s;
    CheckVolumes(store.vars, dialogs, c.kind);
    ASSERT_EQ(dialogs.reports.size(), 1u);
    const Report& report = dialogs.reports[0];
    const QStringList text = ReportText(report);
    EXPECT_EQ(text.filter(u"ΔΙΑΦΕΡΕΙ"_s).join(u'\n'), QString::fromUtf8(c.row ? c.row : ""));
    EXPECT_EQ(text.filter(u"ΣΥΜΦΩΝΕΙ"_s).size(), (common ? 11 : 10) - (c.row ? 1 : 0));
    EXPECT_EQ(report.notes.size(), c.row ? 1 : 0);
    EXPECT_EQ(report.file_name,
              common ? u"OVT-common-1-2002-01.txt"_s : u"OVT-construction-1-2002-01.txt"_s);
  }
}

}  // namespace
}  // namespace veroxia
