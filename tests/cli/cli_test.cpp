// veroxia-cli run as a process on stores made here.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include "filing/texts.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

struct Outcome {
  int status;
  QString out;
  QString err;
};

Outcome Cli(const QStringList& args) {
  QProcess process;
  process.start(QStringLiteral(VEROXIA_CLI), args);
  EXPECT_TRUE(process.waitForFinished(60'000));
  return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
          QString::fromUtf8(process.readAllStandardError())};
}

class CliTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Database& db = store_.Open();
    EmployerRow header;
    header.id = 3;
    header.from_month = u"01"_s;
    header.from_year = u"2002"_s;
    header.to_month = u"03"_s;
    header.to_year = u"2002"_s;
    header.declaration_type = u"01"_s;
    header.CreateFlDate = u"05/03/2002"_s;
    InsertRow(db, header);
    ConEmployerRow con;
    con.id = 4;
    con.from_month = u"07"_s;
    con.from_year = u"2004"_s;
    InsertRow(db, con);  // no submission date
    for (int row = 1; row <= 2; ++row) {
      EmployeeRow line;
      line.id = 3;
      line.row_num = row;
      line.insured_id = u"123456789"_s;
      InsertRow(db, line);
    }
    store_.vars.StoreConnection.reset();
  }
  QString Out() const { return store_.Dir() + u"/out"_s; }
  testing::TempStore store_;
};

TEST_F(CliTest, ListsTheDeclarationsOfBothKinds) {
  const Outcome run = Cli({u"list"_s, u"--store"_s, store_.Path()});
  EXPECT_EQ(run.status, 0) << run.err.toStdString();
  EXPECT_EQ(run.out, u"common\t3\t01/2002-03/2002\t01\t2\nconstruction\t4\t07/2004\t\t0\n"_s);
}

TEST_F(CliTest, WritesTheVolumesAndTellsTheOutcome) {
  QDir(store_.Dir()).mkdir(u"out"_s);
  const Outcome written = Cli({u"--store"_s, store_.Path(), u"volumes"_s, u"common"_s, u"3"_s, Out()});
  EXPECT_EQ(written.status, 0);
  EXPECT_EQ(written.err, filing_texts::kWrittenIn + Out() + u"'.\n"_s);
  QFile volume(Out() + u"/CSL01"_s);
  ASSERT_TRUE(volume.open(QIODevice::ReadOnly));
  const QByteArray bytes = volume.readAll();
  EXPECT_EQ(bytes.size(), 416 + 180 + 2 * 140 + 5);
  EXPECT_TRUE(bytes.endsWith("\r\nEOF\r\n"));

  const Outcome no_date =
      Cli({u"--store"_s, store_.Path(), u"volumes"_s, u"construction"_s, u"4"_s, Out()});
  EXPECT_EQ(no_date.status, 1);
  EXPECT_EQ(no_date.err, filing_texts::kNoDateLine1 + u'\n' + filing_texts::kNoDateLine2 + u'\n');
  EXPECT_FALSE(QFile::exists(Out() + u"/CSC01"_s));
}

TEST_F(CliTest, EveryFailureEndsWithAStatusOtherThanZero) {
  const QString store = store_.Path();
  const struct {
    QStringList args;
    int status;
    QString err;  // how standard error starts
  } cases[] = {
      {{u"--store"_s, store, u"volumes"_s, u"common"_s, u"9"_s, Out()},
       1,
       filing_texts::kWriteFailed},
      {{u"--store"_s, store, u"volumes"_s, u"common"_s, u"3"_s, Out() + u"/none"_s},
       1,
       filing_texts::kWriteFailed},
      {{u"--store"_s, store + u"x"_s, u"list"_s}, 1, {}},
      {{u"--store"_s, store, u"volumes"_s, u"other"_s, u"3"_s, Out()}, 2, u"veroxia-cli: "_s},
      {{u"--store"_s, store, u"volumes"_s, u"common"_s, u"0"_s, Out()}, 2, u"veroxia-cli: "_s},
      {{u"send"_s}, 2, u"veroxia-cli: "_s},
      {{}, 2, u"Usage"_s},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.args.join(u' ').toStdString());
    const Outcome run = Cli(c.args);
    EXPECT_EQ(run.status, c.status);
    EXPECT_FALSE(run.err.isEmpty());
    EXPECT_TRUE(run.err.startsWith(c.err)) << run.err.toStdString();
  }
  EXPECT_EQ(Cli({u"--help"_s}).status, 0);
}

}  // namespace
}  // namespace veroxia
