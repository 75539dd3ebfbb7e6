// veroxia-cli run as a process on a store made here: the lines of each kind
// out to a CSV file and back, and every command with its output and status.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <optional>

#include "cli/texts.h"
#include "filing/texts.h"
#include "filing/totals.h"
#include "filing/volume_check.h"
#include "lines/import_texts.h"
#include "lines/ovt_form2_fixture.h"
#include "lines/ovt_form4_fixture.h"
#include "printing/texts.h"
#include "shell/store_texts.h"
#include "shell/texts.h"
#include "store/backups.h"
#include "store/store_lock.h"
#include "store/texts.h"
#include "support/fakes.h"
#include "support/files.h"
#include "support/lines_csv.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using namespace filing_texts;
using namespace import_texts;

struct CliRun {
  int status = -1;  // also when it did not end
  QString err;
  QString out;
};

CliRun Cli(const QStringList& args) {
  QProcess process;
  process.start(QStringLiteral(VEROXIA_CLI), args);
  if (!process.waitForFinished(60'000)) return {};
  return {process.exitCode(), QString::fromUtf8(process.readAllStandardError()),
          QString::fromUtf8(process.readAllStandardOutput())};
}

// Every row of a lines table without its declaration's id.
std::vector<std::vector<Text>> LinesOf(const QString& store, const char* table, int id) {
  std::vector<std::vector<Text>> rows;
  for (auto row : testing::DumpTable(*Database::Open(store, StorePassword()), table)) {
    if (row[0] != QString::number(id)) continue;
    row.erase(row.begin());
    rows.push_back(row);
  }
  return rows;
}

TEST(Cli, LinesGoOutToACsvFileAndComeBackTheSame) {
  testing::TempStore store;
  store.Open().Exec(
      "INSERT INTO QOR_EMPLOYERS (id, from_month, from_year, to_month, to_year) VALUES "
      "(1, '01', '2002', '03', '2002'), (2, '01', '2002', '03', '2002');"
      "INSERT INTO QOR_CON_EMPLOYERS (id, from_month, from_year) VALUES (1, '02', '2003'), "
      "(2, '02', '2003')");
  store.vars.StoreConnection.reset();
  const QString path = store.Path();
  const struct {
    const char* kind;
    const char* table;
    std::vector<testing::Line> lines;
    QString bad_field;
  } kinds[] = {
      {"common",
       "QOR_EMPLOYEES",
       {testing::ValidCommonLine(u"100000001"_s, u"Άλφα \"Α\"; Β"_s),
        testing::With(testing::ValidCommonLine(u"100000002"_s), u"Text27"_s, u"ΟΧΙ"_s),
        testing::ValidCommonLine(u"100000000"_s)},
       u"Text37"_s},
      {"construction",
       "QOR_CON_EMPLOYEES",
       {testing::ValidConLine(u"200000001"_s),
        testing::With(testing::ValidConLine(u"200000000"_s), u"Text30"_s, u"αγαμος"_s)},
       u"Text39"_s},
  };
  for (const auto& k : kinds) {
    SCOPED_TRACE(k.kind);
    const QString kind = QString::fromLatin1(k.kind);
    const QString in = store.Dir() + u"/in.csv"_s, out1 = store.Dir() + u"/out1.csv"_s,
                  out2 = store.Dir() + u"/out2.csv"_s, bad = store.Dir() + u"/bad.csv"_s;
    const Kind which = kind == u"common" ? Kind::Common : Kind::Construction;
    for (const auto& [file, csv] :
         {std::pair(in, testing::Csv(which, k.lines)),
          std::pair(bad, testing::Csv(which, {k.lines[0],
                                              testing::With(k.lines[0], k.bad_field, u"x"_s)}))}) {
      ASSERT_TRUE(testing::WriteFile(file, csv));
    }
    const int lines = static_cast<int>(k.lines.size());
    const CliRun imported = Cli({u"--store"_s, path, u"import"_s, kind, u"1"_s, in});
    EXPECT_EQ(imported.status, 0) << imported.err.toStdString();
    EXPECT_EQ(imported.err, kImported.arg(lines).arg(1).arg(lines) + u'\n');
    EXPECT_EQ(Cli({u"--store"_s, path, u"export-lines"_s, kind, u"2"_s, out2}).status, 0);
    EXPECT_EQ(testing::FileBytes(out2).count('\n'), 1);  // the names alone
    EXPECT_EQ(Cli({u"--store"_s, path, u"export-lines"_s, kind, u"1"_s, out1}).status, 0);
    EXPECT_EQ(Cli({u"--store"_s, path, u"import"_s, kind, u"2"_s, out1}).status, 0);
    EXPECT_EQ(Cli({u"--store"_s, path, u"export-lines"_s, kind, u"2"_s, out2}).status, 0);
    EXPECT_EQ(testing::FileBytes(out2), testing::FileBytes(out1));
    EXPECT_EQ(LinesOf(path, k.table, 2), LinesOf(path, k.table, 1));
    EXPECT_EQ(LinesOf(path, k.table, 1).size(), k.lines.size());

    // Into a declaration with lines only with an option: appended, rows
    // repeating stored lines are refused unless kept; replaced, the lines
    // come back as they were.
    const auto before = LinesOf(path, k.table, 1);
    const CliRun refused = Cli({u"--store"_s, path, u"import"_s, kind, u"1"_s, bad});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, kExistingLinesOption.arg(1).arg(lines) + u'\n');
    const CliRun failed = Cli({u"--store"_s, path, u"import"_s, kind, u"1"_s, bad, u"--append"_s});
    EXPECT_EQ(failed.status, 1);
    EXPECT_TRUE(failed.err.startsWith(kReportLine + u'\t')) << failed.err.toStdString();
    EXPECT_TRUE(failed.err.endsWith(kRowsFailed.arg(1).arg(2) + u'\n'));
    const QStringList again{u"--store"_s, path, u"import"_s, kind, u"1"_s, in, u"--append"_s};
    const CliRun repeated = Cli(again);
    EXPECT_EQ(repeated.status, 1);
    EXPECT_TRUE(repeated.err.endsWith(kRepeatsRefused.arg(lines) + u'\n'));
    EXPECT_EQ(Cli(again + QStringList{u"--keep-duplicates"_s}).status, 0);
    EXPECT_EQ(LinesOf(path, k.table, 1).size(), 2 * k.lines.size());
    EXPECT_EQ(Cli({u"--store"_s, path, u"import"_s, kind, u"1"_s, u"--replace"_s, in}).status, 0);
    EXPECT_EQ(LinesOf(path, k.table, 1), before);
  }
  EXPECT_EQ(Cli({u"--store"_s, path, u"import"_s, u"common"_s, u"one"_s, u"in.csv"_s}).status, 2);
  EXPECT_EQ(
      Cli({u"import"_s, u"common"_s, u"1"_s, u"in.csv"_s, u"--append"_s, u"--replace"_s}).status,
      2);
}

// A common declaration 3 of two lines, submitted, and a construction
// declaration 4 without lines or submission date. A backup of that store is
// restored last; files that are no such backup are refused before anything
// changes, and so is any restore while a program holds the store.
TEST(Cli, EveryCommandWithItsOutputAndStatus) {
  testing::TempStore store;
  Database& db = store.Open();
  db.Exec(
      "INSERT INTO QOR_EMPLOYERS (id, from_month, from_year, to_month, to_year, "
      "declaration_type, CreateFlDate, emp_employer_id, taxation_number, total_days, "
      "total_salaries, total_contributions) VALUES (3, '01', '2002', '03', '2002', '01', "
      "'05/03/2002', '1', '2', '50', '20,5', '1');"
      "INSERT INTO QOR_CON_EMPLOYERS (id, from_month, from_year, sum_days, sum_salaries, "
      "sum_contr) VALUES (4, '07', '2004', '0', '0', '1');"
      "INSERT INTO QOR_EMPLOYEES (id, row_num, insured_id, full_day, all_days, insurance_days, "
      "salary, payed_contr, sal_month, sal_year) VALUES (3, 1, '1', '1', '1', '25', '10,25', "
      "'0,5', '01', '2002'), (3, 2, '1', '0', '0', '25', '10,25', '0,5', '03', '2002')");
  const QString path = store.Path(), out = store.Dir() + u"/out"_s;
  const QString backup = MakeBackup(db, path, StorePassword(), QDateTime(QDate(2001, 2, 3), {}));
  const QString leftover = backup + u".part"_s;  // of a backup that was killed
  ASSERT_TRUE(testing::WriteFile(leftover, "x"));
  store.vars.StoreConnection.reset();
  ASSERT_TRUE(QDir().mkdir(out));
  const QString broken = store.Dir() + u"/broken"_s;  // a volume of one record cut short
  ASSERT_TRUE(QDir().mkdir(broken));
  if (QFile cut(broken + u"/CSL01"_s); cut.open(QIODevice::WriteOnly)) cut.write("1");
  const QString other_password = out + u"/other.mdb"_s, no_store = out + u"/notes.txt"_s,
                other_schema = out + u"/schema.mdb"_s;
  CreateStore(other_password, u"another password"_s);
  QFile notes(no_store);
  ASSERT_TRUE(notes.open(QIODevice::WriteOnly) && notes.write("Declarations to file.\n") > 0);
  notes.close();
  CreateStore(other_schema, StorePassword());
  Database::Open(other_schema, StorePassword())->Exec("DROP TABLE QOR_CON_EMPLOYEES");
  const QString usage = u"veroxia-cli: "_s;
  const auto refused = [](const QString& first_line) { return first_line + u'\n'; };
  const QString page1 = u"\n\n\n\n"_s, of = printing_texts::kOf;
  const QString pdf = store.Dir() + u"/declaration.pdf"_s;
  const struct {
    QStringList args;
    int status;
    QString out;        // how standard output starts; empty: nothing
    QString err;        // how standard error starts; empty: nothing, unless it failed
    bool held = false;  // another program holds the store meanwhile
  } cases[] = {
      // clang-format off
      {{u"list"_s, u"--store"_s, path}, 0, u"common\t3\t01/2002-03/2002\t01\t2\nconstruction\t4\t07/2004\t\t0\n"_s, {}},
      {{u"--store"_s, path, u"volumes"_s, u"common"_s, u"3"_s, out}, 0, {}, kWrittenIn + out + u"'.\n"_s},
      {{u"--store"_s, path, u"volumes"_s, u"common"_s, u"3"_s, out}, 0, {}, kOldVolumes.arg(out) + u'\n' + kOldVolumesReplaced.arg(u"CSL01"_s) + u'\n' + kOldVolumesQuestion + u'\n' + kWrittenIn + out + u"'.\n"_s},
      {{u"--store"_s, path, u"volumes"_s, u"construction"_s, u"4"_s, out}, 1, {}, kNoDateLine1 + u'\n' + kNoDateLine2 + u'\n'},
      {{u"--store"_s, path, u"volumes"_s, u"common"_s, u"1"_s, out}, 1, {}, kWriteFailed},
      {{u"--store"_s, path, u"volumes"_s, u"common"_s, u"32767"_s, out}, 1, {}, kWriteFailed},
      {{u"--store"_s, path, u"volumes"_s, u"common"_s, u"3"_s, out + u"/none"_s}, 1, {}, kWriteFailed},
      {{u"--store"_s, path + u"x"_s, u"list"_s}, 1, {}, texts::kStoreCritical + u'\n'},
      {{u"--store"_s, no_store, u"list"_s}, 1, {}, store_texts::kNotOurStore.arg(no_store) + u'\n'},
      {{u"--store"_s, path + u"x"_s, u"verify"_s, out}, 0, u"ΤΟΜΟΣ\t"_s, {}},
      {{u"--store"_s, path, u"verify"_s, out, u"--against"_s, u"common"_s, u"3"_s}, 0, u"ΤΟΜΟΣ\t"_s, {}},
      {{u"--store"_s, path, u"verify"_s, broken}, 1, u"ΤΟΜΟΣ\t"_s, kVolumesBroken + u'\n'},
      {{u"--store"_s, path, u"verify"_s, out, u"--against"_s, u"construction"_s, u"4"_s}, 1, u"ΤΟΜΟΣ\t"_s, kVolumesBroken + u'\n'},
      {{u"--store"_s, path, u"verify"_s, out, u"--against"_s, u"common"_s, u"1"_s}, 2, {}, usage + cli_texts::kNoDeclaration.arg(1) + u'\n'},
      {{u"--store"_s, path + u"x"_s, u"verify"_s, out, u"--against"_s, u"common"_s, u"3"_s}, 2, {}, texts::kStoreCritical},
      {{u"verify"_s, out + u"/none"_s}, 2, {}, usage + cli_texts::kNoDirectory.arg(out + u"/none"_s) + u'\n'},
      {{u"verify"_s, out, u"--against"_s, u"common"_s}, 2, {}, usage + cli_texts::kVerifyNeeds + u'\n'},
      {{u"--store"_s, path, u"check"_s, u"construction"_s, u"4"_s}, 1, u"ΣΤΟΙΧΕΙΟ\t"_s, kTotalsDisagree + u'\n'},
      {{u"--store"_s, path, u"check"_s, u"common"_s, u"3"_s}, 0, u"ΣΤΟΙΧΕΙΟ\t"_s, {}},
      {{u"--store"_s, path, u"check"_s, u"common"_s, u"1"_s}, 2, {}, usage + cli_texts::kNoDeclaration.arg(1) + u'\n'},
      {{u"--store"_s, path, u"print"_s, u"summary"_s, u"common"_s, u"3"_s, u"--text"_s}, 0, page1 + printing_texts::kSumTitle + u'\n', {}},
      {{u"--store"_s, path, u"print"_s, u"declaration"_s, u"common"_s, u"3"_s, u"--text"_s}, 0, page1 + printing_texts::kPage1 + u"1"_s + of + u"2\n"_s, {}},
      {{u"--store"_s, path, u"print"_s, u"declaration"_s, u"construction"_s, u"4"_s, u"--text"_s}, 0, page1 + printing_texts::kConPage1 + u"1"_s + of + u"1\n"_s, {}},
      {{u"--store"_s, path, u"print"_s, u"declaration"_s, u"common"_s, u"3"_s, u"--pdf"_s, pdf}, 0, {}, {}},
      {{u"--store"_s, path, u"print"_s, u"summary"_s, u"common"_s, u"1"_s, u"--text"_s}, 1, {}, printing_texts::kProblem + u'\n'},
      {{u"--store"_s, path, u"print"_s, u"summary"_s, u"common"_s, u"3"_s}, 2, {}, usage + cli_texts::kPrintNeeds + u'\n'},
      {{u"--store"_s, path, u"print"_s, u"form"_s, u"common"_s, u"3"_s, u"--text"_s}, 2, {}, usage + cli_texts::kPrintoutWords + u'\n'},
      {{u"--store"_s, path, u"volumes"_s, u"other"_s, u"3"_s, out}, 2, {}, usage + cli_texts::kKindWords + u'\n'},
      {{u"--store"_s, path, u"volumes"_s, u"common"_s, u"0"_s, out}, 2, {}, usage + cli_texts::kIdRange + u'\n'},
      {{u"--store"_s, path, u"volumes"_s, u"common"_s, u"32768"_s, out}, 2, {}, usage + cli_texts::kIdRange + u'\n'},
      {{u"--store"_s, path, u"volumes"_s, u"common"_s, u"3"_s}, 2, {}, usage + cli_texts::kNeedsKindIdAndDirectory.arg(u"volumes"_s) + u'\n'},
      {{u"list"_s, u"--store"_s}, 2, {}, usage + cli_texts::kStoreNeedsFile + u'\n'},
      {{u"list"_s, u"all"_s}, 2, {}, usage + cli_texts::kUnknownCommand + u"list all\n"_s},
      {{}, 2, {}, u"Χρήση: veroxia-cli"_s},
      {{u"--help"_s}, 0, u"Χρήση: veroxia-cli"_s, {}},
      {{u"--store"_s, path, u"backup"_s}, 0, BackupFolder(path) + u"/QorDb-"_s, {}},
      {{u"--store"_s, path, u"backup"_s, u"now"_s}, 2, {}, usage + cli_texts::kNoMoreWords.arg(u"backup"_s) + u'\n'},
      {{u"--store"_s, path + u"x"_s, u"backup"_s}, 1, {}, texts::kStoreCritical + u'\n'},
      {{u"--store"_s, path, u"restore"_s}, 2, {}, usage + cli_texts::kNeedsOneFile.arg(u"restore"_s) + u'\n'},
      {{u"--store"_s, path, u"restore"_s, other_password}, 1, {}, refused(store_texts::kRestoreOtherPassword.arg(other_password))},
      {{u"--store"_s, path, u"restore"_s, no_store}, 1, {}, refused(store_texts::kRestoreNotAStore.arg(no_store))},
      {{u"--store"_s, path, u"restore"_s, other_schema}, 1, {}, refused(store_texts::kRestoreOtherSchema.arg(other_schema)) + texts::kErrorDescription + store_file_texts::kTableNotOurs.arg(u"QOR_CON_EMPLOYEES"_s) + u'\n'},
      {{u"--store"_s, path, u"restore"_s, out + u"/none.mdb"_s}, 1, {}, refused(store_texts::kRestoreUnreadable.arg(out + u"/none.mdb"_s))},
      {{u"--store"_s, path, u"restore"_s, backup}, 1, {}, refused(store_texts::kRestoreHeld.arg(path)) + store_texts::kNothingChanged, true},
      {{u"--store"_s, path, u"restore"_s, backup}, 0, store_texts::kRestored.arg(path, backup) + u'\n' + store_texts::kReplacedKept.first(store_texts::kReplacedKept.indexOf(u'%')) + BackupFolder(path) + u"/QorDb-"_s, {}},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.args.join(u' ').toStdString());
    std::optional<StoreLock> lock;
    if (c.held) {
      ASSERT_EQ(lock.emplace(path).Take(), StoreLock::Outcome::kHeld);
    }
    const QByteArray before = testing::FileBytes(path);
    const CliRun run = Cli(c.args);
    EXPECT_EQ(run.status, c.status) << run.err.toStdString();
    EXPECT_TRUE(run.out.startsWith(c.out) && run.out.isEmpty() == c.out.isEmpty());
    EXPECT_TRUE(run.err.startsWith(c.err)) << run.err.toStdString();
    EXPECT_EQ(run.err.isEmpty(), c.err.isEmpty() && c.status == 0);
    // Only a restore that went through changes the store.
    const bool restored = c.args.contains(u"restore"_s) && c.status == 0;
    EXPECT_TRUE(restored || testing::FileBytes(path) == before);
    // Pages are parted by form feeds: two pages of the declaration with lines.
    const bool two_pages = c.args.contains(u"3"_s) && c.args.contains(u"declaration"_s);
    EXPECT_TRUE(!c.args.contains(u"--text"_s) || run.out.count(u'\f') == two_pages);
  }
  EXPECT_TRUE(testing::FileBytes(pdf).startsWith("%PDF"));
  // The backup made first, the one of the command, and the store replaced.
  EXPECT_EQ(ListBackups(path).size(), 3);
  EXPECT_EQ(ListBackups(path).last(), backup);
  EXPECT_FALSE(QFileInfo::exists(leftover));
  EXPECT_EQ(testing::FileBytes(path).size(), testing::FileBytes(backup).size());
  EXPECT_EQ(QDir(out).entryList(QDir::Files),
            (QStringList{u"CSL01"_s, u"notes.txt"_s, u"other.mdb"_s, u"schema.mdb"_s}));
  QFile volume(out + u"/CSL01"_s);
  ASSERT_TRUE(volume.open(QIODevice::ReadOnly));
  const QByteArray bytes = volume.readAll();
  EXPECT_EQ(bytes.size(), 416 + 180 + 2 * 140 + 5);
  EXPECT_TRUE(bytes.endsWith("\r\nEOF\r\n"));
}

// A restore onto a full disk says that the disk is full, and the store stays
// as it was, with nothing left beside it: whether the copy does not fit or
// the disk is full already (no lock file either). The disk is a small file
// system of its own, mounted in a namespace of the test's own where the
// system allows.
TEST(Cli, RestoreOnAFullDiskSaysSo) {
  testing::TempStore store, big;
  testing::AddLines(big.Open(), Kind::Common, 1, 5000);
  big.vars.StoreConnection.reset();
  const QString script =
      u"mount -t tmpfs -o size=256k tmpfs \"$1\" || exit 99\n"
      "echo mounted; cp \"$2\" \"$1\"/QorDb.mdb || exit 98\n"
      "[ -z \"$5\" ] || dd if=/dev/zero of=\"$1\"/$5 bs=4k 2>/dev/null\n"
      "\"$3\" --store \"$1\"/QorDb.mdb restore \"$4\"; status=$?\n"
      "cmp -s \"$2\" \"$1\"/QorDb.mdb && echo unchanged; ls -A \"$1\"; exit $status"_s;
  for (const QString& filler : {QString(), u"filler"_s}) {
    SCOPED_TRACE(filler.toStdString());
    const QString disk = store.Dir() + u"/disk"_s + filler;
    ASSERT_TRUE(QDir().mkdir(disk));
    QProcess process;
    process.start(u"unshare"_s, {u"-rm"_s, u"sh"_s, u"-c"_s, script, u"sh"_s, disk, store.Path(),
                                 QStringLiteral(VEROXIA_CLI), big.Path(), filler});
    ASSERT_TRUE(process.waitForFinished(60'000));
    const QString out = QString::fromUtf8(process.readAllStandardOutput());
    if (!out.startsWith(u"mounted\n"_s)) GTEST_SKIP() << "no file system of the test's own here";
    EXPECT_EQ(out,
              u"mounted\nunchanged\nQorDb.mdb\n"_s + (filler.isEmpty() ? u""_s : filler + u'\n'));
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_EQ(QString::fromUtf8(process.readAllStandardError()),
              store_texts::kRestoreDiskFull.arg(big.Path()) + u'\n' + store_texts::kNothingChanged +
                  u'\n');
  }
}

}  // namespace
}  // namespace veroxia
