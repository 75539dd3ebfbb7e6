#include "filing/create_file.h"

#include <gtest/gtest.h>

#include <QDir>

#include "filing/texts.h"
#include "filing/volume_files.h"
#include "shell/texts.h"
#include "support/fakes.h"
#include "support/files.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using namespace filing_texts;

// One run of "Δημιουργία αρχείου" from the user's side: what is asked, what
// is told, what is written, and that the store is left as it was.
TEST(CreateFile, EveryWayOutOfARun) {
  const QString failed = kWriteFailed + u"\r\n"_s + texts::kErrorCode;
  const QString ok = u"Α"_s;
  const QString bad = u"Ж"_s;  // not in the code page
  const QString date = u"05/03/2002"_s;
  const QString nothing = u"\r\n"_s + kNothingWritten;
  const struct {
    const char* name;
    Text date;              // of the stored header; none: no header
    QString employer;       // the stored employer's name
    int good_lines;         // lines of other persons before the one below
    QString surname;        // the stored surname of the last line
    const char* directory;  // the answer of the dialog: " " cancels, "out" the test's
    FileOutcome outcome;
    QString message;    // empty: no message; else how it starts
    bool asked;         // the directory was asked for
    QByteArray volume;  // how CSL01 starts afterwards ("old" from before)
  } cases[] = {
      // clang-format off
      {"NoHeader", {}, ok, 0, ok, "out", FileOutcome::kFailed, failed + u"0\r\n"_s + texts::kErrorDescription, false, "old"},
      {"NoDate", u" "_s, ok, 0, ok, "out", FileOutcome::kNoDate, kNoDateLine1 + u"\r\n"_s + kNoDateLine2, false, "old"},
      {"Cancelled", date, ok, 0, ok, " ", FileOutcome::kCancelled, {}, true, "old"},
      {"Written", date, ok, 0, ok, "out", FileOutcome::kWritten, kWrittenIn + u"%1'."_s, true, "10101CSL01   01"},
      {"UnencodableLine", date, ok, 0, bad, "out", FileOutcome::kUnencodable,
       kUnencodableLine.arg(u"1"_s, u"123456789"_s, u"21"_s, bad) + nothing, true, "old"},
      {"UnencodableInTheSecondVolume", date, ok, 4374, bad, "out", FileOutcome::kUnencodable,
       kUnencodableLine.arg(u"4375"_s, u"123456789"_s, u"21"_s, bad) + nothing, true, "old"},
      {"UnencodableHeader", date, bad, 0, ok, "out", FileOutcome::kUnencodable,
       kUnencodableHeader.arg(u"4"_s, bad) + nothing, true, "old"},
      {"NoSuchDirectory", date, ok, 0, ok, "out/missing", FileOutcome::kFailed,
       failed + u"2\r\n"_s + texts::kErrorDescription + kDirectoryMissing, true, "old"},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    testing::TempStore store;
    Database& db = store.Open();
    if (c.date) {
      EmployerRow header;
      header.id = 1;
      header.CreateFlDate = c.date;
      header.employer_name = c.employer;
      InsertRow(db, header);
    }
    testing::AddLines(db, Kind::Common, 1, c.good_lines);
    auto line = testing::SampleLine<EmployeeRow>(1, c.good_lines + 1, u"123456789"_s);
    line.surname = c.surname;
    InsertRow(db, line);
    QDir(store.Dir()).mkdir(u"out"_s);
    const QString out = store.Dir() + u"/out"_s;
    if (QFile old(out + u"/CSL01"_s); old.open(QIODevice::WriteOnly)) old.write("old");
    const QByteArray stored = testing::FileBytes(store.Path());

    testing::FakeDialogs dialogs;
    const QString directory = QString::fromLatin1(c.directory).replace(u"out"_s, out);
    dialogs.directories.push_back(directory);
    dialogs.answers = {true, true};  // the totals (never agreeing here), the old CSL01: go on
    store.vars.DeclarationId = 1;
    EXPECT_EQ(CreateFile(store.vars, dialogs, Kind::Common), c.outcome);

    EXPECT_EQ(dialogs.directories_asked, c.asked ? 1 : 0);
    EXPECT_EQ(dialogs.questions.size(), c.asked ? 1u + (directory == out) : 0u);
    if (c.message.isEmpty()) {
      EXPECT_TRUE(dialogs.messages.empty());
    } else {
      ASSERT_EQ(dialogs.messages.size(), 1u);
      EXPECT_EQ(dialogs.messages[0].title, kFileTitle);
      const QString expected = c.message.contains(u"%1"_s) ? c.message.arg(directory) : c.message;
      EXPECT_TRUE(dialogs.messages[0].text.startsWith(expected))
          << dialogs.messages[0].text.toStdString();
    }
    EXPECT_TRUE(testing::FileBytes(out + u"/CSL01"_s).startsWith(c.volume));
    EXPECT_EQ(QDir(out).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"CSL01"_s});
    EXPECT_FALSE(dialogs.busy);
    EXPECT_EQ(testing::FileBytes(store.Path()), stored);
  }
}

// Totals that do not agree ask first; No writes nothing and asks no more.
TEST(CreateFile, TotalsThatDoNotAgreeAskFirst) {
  testing::TempStore store;
  Database& db = store.Open();
  db.Exec(
      "INSERT INTO QOR_EMPLOYERS (id, CreateFlDate, total_days, total_salaries, "
      "total_contributions) VALUES (1, '05/03/2002', '25', '100', '10');"
      "INSERT INTO QOR_EMPLOYEES (id, row_num, insurance_days, salary, payed_contr) "
      "VALUES (1, 1, '25', '100', '10')");
  store.vars.DeclarationId = 1;
  for (const bool agree : {true, false}) {
    if (!agree) db.Exec("UPDATE QOR_EMPLOYEES SET salary = '100,01'");
    testing::FakeDialogs dialogs;
    EXPECT_EQ(CreateFile(store.vars, dialogs, Kind::Common), FileOutcome::kCancelled);
    EXPECT_EQ(dialogs.questions.size(), agree ? 0u : 1u);
    EXPECT_EQ(dialogs.directories_asked, agree ? 1 : 0);
    if (!agree) {
      EXPECT_EQ(dialogs.questions[0].text, kTotalsQuestion);
      EXPECT_EQ(dialogs.questions[0].title, kFileTitle);
      EXPECT_EQ(dialogs.last_style, AskStyle::Question);
    }
  }
}

// The volumes of an earlier run in the directory, of the kind and of the
// other kind, are named in one question before anything is written: No keeps
// them and tells nothing more, Yes leaves the new set in their place beside
// the other files. A write cut short there (taking CSL03 away) is finished
// first.
TEST(CreateFile, OldVolumesAreNamedFirst) {
  const struct {
    Kind kind;
    const char* before;  // the files in the directory
    bool unfinished;
    bool yes;
    const char* named;  // of the kind, then of the other kind; none: no question
    const char* after;
  } cases[] = {
      // clang-format off
      {Kind::Common, "CSC01 CSL01 CSL02 CSL03 CSL1 x", true, false, "CSL01, CSL02|CSC01", "CSC01 CSL01 CSL02 CSL1 x"},
      {Kind::Common, "CSC01 CSL01 CSL02 CSL1 x", false, true, "CSL01, CSL02|CSC01", "CSL01 CSL1 x"},
      {Kind::Construction, "CSC02 CSL01", false, true, "CSC02|CSL01", "CSC01"},
      {Kind::Common, "x", false, true, nullptr, "CSL01 x"},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.before);
    testing::TempStore store;
    Database& db = store.Open();
    db.Exec(  // totals that do not agree: asked about first
        "INSERT INTO QOR_EMPLOYERS (id, CreateFlDate, total_days) VALUES (1, '05/03/2002', '1');"
        "INSERT INTO QOR_CON_EMPLOYERS (id, createfldate, sum_days) VALUES (1, '05/03/2002', '1')");
    const QString out = store.Dir() + u"/out"_s;
    ASSERT_TRUE(QDir().mkdir(out));
    for (const QString& name : QString::fromLatin1(c.before).split(u' ')) {
      ASSERT_TRUE(testing::WriteFile(out + u'/' + name, name.toLatin1()));
    }
    if (c.unfinished) {
      VolumeFiles files(out, {u"CSL03"_s});
      files.before_step = [](int step) { step == 1 ? throw step : void(); };
      EXPECT_THROW(VolumeWriter(db, Kind::Common, 1).Write(files), int);
    }
    testing::FakeDialogs dialogs;
    dialogs.directories.push_back(out);
    dialogs.answers = {true, c.yes};
    store.vars.DeclarationId = 1;
    EXPECT_EQ(CreateFile(store.vars, dialogs, c.kind),
              c.yes ? FileOutcome::kWritten : FileOutcome::kCancelled);
    ASSERT_EQ(dialogs.questions.size(), c.named ? 2u : 1u);
    if (c.named) {
      const QStringList named = QString::fromLatin1(c.named).split(u'|');
      EXPECT_EQ(dialogs.questions[1].text,
                QStringList({kOldVolumes.arg(out), kOldVolumesReplaced.arg(named[0]),
                             kOldVolumesOtherKind.arg(named[1]), kOldVolumesQuestion})
                    .join(u"\r\n"_s));
    }
    EXPECT_EQ(dialogs.messages.size(), c.yes ? 1u : 0u);
    EXPECT_EQ(
        QDir(out).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).join(u' '),
        QLatin1StringView(c.after));
    const QString first = c.kind == Kind::Common ? u"CSL01"_s : u"CSC01"_s;
    EXPECT_TRUE(testing::FileBytes(out + u'/' + first).startsWith("10101" + first.toLatin1()));
  }
}

}  // namespace
}  // namespace veroxia
