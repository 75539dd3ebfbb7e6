// veroxia-cli import and export-lines run as processes: the lines of each
// kind go out to a CSV file and come back the same; a file with a failing row
// stores nothing and tells every failing row.

#include <gtest/gtest.h>

#include <QProcess>

#include "lines/import_texts.h"
#include "lines/ovt_form2_fixture.h"
#include "lines/ovt_form4_fixture.h"
#include "support/files.h"
#include "support/lines_csv.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using namespace import_texts;

struct CliRun {
  int status = -1;
  QString err;
};

CliRun Cli(const QStringList& args) {
  QProcess process;
  process.start(QStringLiteral(VEROXIA_CLI), args);
  if (!process.waitForFinished(60'000)) return {};
  return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
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

}  // namespace
}  // namespace veroxia
