#include "filing/create_file.h"

#include <gtest/gtest.h>

#include <QDir>

#include "filing/texts.h"
#include "filing/totals.h"
#include "filing/volume_files.h"
#include "header/box_captions.h"
#include "shell/texts.h"
#include "support/fakes.h"
#include "support/files.h"
#include "support/store_rows.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;
using namespace filing_texts;

// One run of "Δημιουργία αρχείου" from the user's side: what is asked, what
// is told, what is written, and that the store is left as it was.
TEST(CreateFile, EveryWayOutOfARun) {
  const QString failed = kWriteFailed + u"\r\n"_s + texts::kErrorCode, date = u"05/03/2002"_s;
  const QString ok = u"Α"_s, bad = u"Ж"_s;  // not in the code page
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
    TempStore store;
    Database& db = store.Open();
    // clang-format off
    if (c.date) InsertRow(db, Filled<EmployerRow>(0, {{"CreateFlDate", c.date}, {"employer_name", c.employer}}));
    AddLines(db, Kind::Common, 1, c.good_lines);
    InsertRow(db, Set(SampleLine<EmployeeRow>(1, c.good_lines + 1, u"123456789"_s), {{"surname", c.surname}}));
    // clang-format on
    const QString out = store.Dir() + u"/out"_s;
    ASSERT_TRUE(QDir().mkdir(out) && WriteFile(out + u"/CSL01"_s, "old"));
    const QByteArray stored = FileBytes(store.Path());

    FakeDialogs dialogs;
    const QString directory = QString::fromLatin1(c.directory).replace(u"out"_s, out);
    dialogs.directories.push_back(directory);
    dialogs.answers = {true, true};  // the totals (never agreeing here), the old CSL01: go on
    store.vars.DeclarationId = 1;
    EXPECT_EQ(CreateFile(store.vars, dialogs, Kind::Common), c.outcome);

    EXPECT_EQ(dialogs.directories_asked, c.asked ? 1 : 0);
    EXPECT_EQ(dialogs.questions.size(), c.asked ? 1u + (directory == out) : 0u);
    ASSERT_EQ(dialogs.messages.size(), c.message.isEmpty() ? 0u : 1u);
    const QString expected = c.message.contains(u"%1"_s) ? c.message.arg(directory) : c.message;
    for (const ShownMessage& m : dialogs.messages) {
      EXPECT_EQ(m.title, kFileTitle);
      EXPECT_TRUE(m.text.startsWith(expected)) << m.text.toStdString();
    }
    EXPECT_TRUE(FileBytes(out + u"/CSL01"_s).startsWith(c.volume));
    EXPECT_EQ(QDir(out).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"CSL01"_s});
    EXPECT_FALSE(dialogs.busy);
    EXPECT_EQ(FileBytes(store.Path()), stored);
  }
}

// Totals that do not agree ask first, and No writes nothing and asks no more.
// The volumes of an earlier run in the directory, of the kind and of the
// other kind, are named in one question before anything is written: No keeps
// them and tells nothing more, Yes leaves the new set in their place beside
// the other files. A write cut short there (taking CSL03 away) is finished
// first.
TEST(CreateFile, DisagreeingTotalsAndOldVolumesAreAskedAboutFirst) {
  const struct {
    Kind kind;
    const char* before;  // the files in the directory
    bool unfinished;
    int totals;  // 0: they agree; else they do not and the answer is Yes (1) or No (-1)
    bool yes;
    const char* named;  // of the kind, then of the other kind; none: no question
    const char* after;
  } cases[] = {
      // clang-format off
      {Kind::Common, "CSC01 CSL01 CSL02 CSL03 CSL1 x", true, 1, false, "CSL01, CSL02|CSC01", "CSC01 CSL01 CSL02 CSL1 x"},
      {Kind::Common, "CSC01 CSL01 CSL02 CSL1 x", false, 1, true, "CSL01, CSL02|CSC01", "CSL01 CSL1 x"},
      {Kind::Construction, "CSC02 CSL01", false, 1, true, "CSC02|CSL01", "CSC01"},
      {Kind::Common, "x", false, 0, true, nullptr, "CSL01 x"},
      {Kind::Common, "CSL01 x", false, -1, false, nullptr, "CSL01 x"},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.before);
    TempStore store;
    Database& db = store.Open();
    // clang-format off
    db.Exec(QStringLiteral("INSERT INTO QOR_EMPLOYERS (id, CreateFlDate, total_days, total_salaries, total_contributions) "
                           "VALUES (1, '05/03/2002', '%1', '%1', '%1'); INSERT INTO QOR_CON_EMPLOYERS (id, createfldate, "
                           "sum_days) VALUES (1, '05/03/2002', '%1')").arg(c.totals != 0).toStdString());
    // clang-format on
    const QString out = store.Dir() + u"/out"_s;
    ASSERT_TRUE(QDir().mkdir(out));
    for (const QString& name : QString::fromLatin1(c.before).split(u' ')) {
      ASSERT_TRUE(WriteFile(out + u'/' + name, name.toLatin1()));
    }
    if (c.unfinished) {
      VolumeFiles files(out, {u"CSL03"_s});
      files.before_step = [](int step) { step == 1 ? throw step : void(); };
      EXPECT_THROW(VolumeWriter(db, Kind::Common, 1).Write(files), int);
    }
    FakeDialogs dialogs;
    dialogs.directories.push_back(out);
    dialogs.answers = {c.yes};
    if (c.totals != 0) dialogs.answers.push_front(c.totals > 0);
    store.vars.DeclarationId = 1;
    EXPECT_EQ(CreateFile(store.vars, dialogs, c.kind),
              c.yes ? FileOutcome::kWritten : FileOutcome::kCancelled);
    EXPECT_EQ(dialogs.directories_asked, c.totals >= 0 ? 1 : 0);
    QStringList asked;  // the title and text of each question
    if (c.totals != 0) asked << kFileTitle << kTotalsQuestion;
    if (c.named) {
      const QStringList named = QString::fromLatin1(c.named).split(u'|');
      asked << kFileTitle
            << QStringList({kOldVolumes.arg(out), kOldVolumesReplaced.arg(named[0]),
                            kOldVolumesOtherKind.arg(named[1]), kOldVolumesQuestion})
                   .join(u"\r\n"_s);
    }
    EXPECT_EQ(FakeDialogs::Told(dialogs.questions), asked);
    EXPECT_EQ(dialogs.last_style, asked.isEmpty() ? AskStyle::Plain : AskStyle::Question);
    EXPECT_EQ(dialogs.messages.size(), c.yes ? 1u : 0u);
    EXPECT_EQ(
        QDir(out).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).join(u' '),
        QLatin1StringView(c.after));
    const QString first = c.kind == Kind::Common ? u"CSL01"_s : u"CSC01"_s;
    EXPECT_EQ(FileBytes(out + u'/' + first).startsWith("10101" + first.toLatin1()), c.totals >= 0);
  }
}

// Each row as "label | header | lines | difference | agrees".
QStringList Rows(const TotalsReport& report) {
  QStringList rows;
  for (const TotalsRow& r : report.rows) {
    rows << QStringList{r.label, r.header, r.lines, r.difference, r.agrees ? u"="_s : u"≠"_s}.join(
        u" | "_s);
  }
  return rows;
}

// A quarter with one disagreement in each quantity: the days of January, the
// wages of February, the whole of the contributions. A line of another month
// counts in the whole only; a wage that is no number is reported, not summed.
TEST(Totals, CommonQuarterAndConstructionMonthAgainstTheirLines) {
  TempStore store;
  Database& db = store.Open();
  db.Exec(
      "INSERT INTO QOR_EMPLOYERS (id, taxation_number, from_month, from_year, to_month, to_year, "
      "saldate1, saldate2, saldate3, total_days1, total_days2, total_days3, total_days, "
      "total_salaries1, total_salaries2, total_salaries3, total_salaries, total_contributions1, "
      "total_contributions2, total_contributions3, total_contributions) VALUES (1, '123456789', "
      "'01', '2026', '03', '2026', '01/2026', '02/2026', '03/2026', '26', '20', '0', '55', "
      "'1000,5', '999', '0', '2000,5', '100', '100', '0', '200,01');INSERT INTO QOR_EMPLOYEES "
      "(id, row_num, sal_month, sal_year, insurance_days, salary, payed_contr, amka, "
      "taxation_id) VALUES (1, 1, '01', '2026', '25', '1000,50', '100', '12345678901', "
      "'094014201'), (1, 2, '2', '2026', '20', '1000', '100', '12345678903', '090000044'), (1, "
      "3, '12', '2025', '10', 'x', '0', NULL, NULL), (1, 4, '01', '2026', ' 0 ', '0,004', NULL, "
      "'', '')");
  const auto report = CompareTotals(db, Kind::Common, 1);
  ASSERT_TRUE(report);
  // clang-format off
  EXPECT_EQ(Rows(*report), (QStringList{
      u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ 01/2026 | 26 | 25 | 1 | ≠"_s, u"ΑΠΟΔΟΧΕΣ 01/2026 | 1.000,50 | 1.000,50 | 0,00 | ="_s,
      u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ 01/2026 | 100,00 | 100,00 | 0,00 | ="_s, u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ 02/2026 | 20 | 20 | 0 | ="_s,
      u"ΑΠΟΔΟΧΕΣ 02/2026 | 999,00 | 1.000,00 | -1,00 | ≠"_s, u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ 02/2026 | 100,00 | 100,00 | 0,00 | ="_s,
      u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ 03/2026 | 0 | 0 | 0 | ="_s, u"ΑΠΟΔΟΧΕΣ 03/2026 | 0,00 | 0,00 | 0,00 | ="_s,
      u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ 03/2026 | 0,00 | 0,00 | 0,00 | ="_s, u"ΗΜΕΡΕΣ ΑΣΦΑΛΙΣΗΣ ΣΥΝΟΛΟ | 55 | 55 | 0 | ="_s,
      u"ΑΠΟΔΟΧΕΣ ΣΥΝΟΛΟ | 2.000,50 | 2.000,50 | 0,00 | ="_s, u"ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ ΣΥΝΟΛΟ | 200,01 | 200,00 | 0,01 | ≠"_s}));
  // clang-format on
  // The notes name the boxes and values, in the order of the lines; line 3's payroll
  // month lies outside the period. The report is offered under the
  // declaration's name.
  store.vars.DeclarationId = 1;
  store.vars.PeriodFrom = u"012026"_s;
  store.vars.PeriodTo = u"032026"_s;
  FakeDialogs dialogs;
  ShowTotals(store.vars, dialogs, Kind::Common, BoxCaptionsOf(Kind::Common));
  const Report& shown = dialogs.reports.at(0);
  QStringList boxes;  // each note up to its box, and the value it names
  for (const QString& note : shown.notes)
    boxes << note.section(u'\'', 0, 1) + u" = "_s + note.section(u'\'', 3, 3);
  EXPECT_EQ(boxes,
            (QStringList{u"Η επικεφαλίδα έχει στο πεδίο 'Α.Φ.Μ. (6) = 123456789"_s,
                         u"Η γραμμή 1 έχει στο πεδίο 'Α.Μ.Κ.Α (20) = 12345678901"_s,
                         u"Η γραμμή 2 έχει στο πεδίο 'Α.Φ.Μ. (26) = 090000044"_s,
                         u"Η γραμμή 3 έχει στο πεδίο 'ΜΙΣΘΟΛ. ΠΕΡΙΟΔΟΣ (33) MM/EEEE = 12/2025"_s,
                         u"Η γραμμή 3 έχει στο πεδίο 'ΑΠΟΔΟΧΕΣ (39) = x"_s,
                         u"Η γραμμή 4 έχει στο πεδίο 'ΚΑΤΑΒΛ. ΕΙΣΦΟΡΕΣ (46) = "_s}));
  EXPECT_TRUE(shown.notes[3].endsWith(u"έξω από την περίοδο της δήλωσης (01/2026 έως 03/2026)."_s));
  EXPECT_EQ(shown.file_name, u"OVT-common-1-2026-01_2026-03.txt"_s);
  EXPECT_FALSE(shown.rows.back().holds);
  EXPECT_EQ(shown.verdict, kTotalsDisagree);
  // A construction declaration: the whole of each quantity only.
  db.Exec(
      "INSERT INTO QOR_CON_EMPLOYERS (id, sum_days, sum_salaries, sum_contr) VALUES (1, '44', "
      "'2882', 'y');INSERT INTO QOR_CON_EMPLOYEES (id, row_num, insurance_days, salary, "
      "total_contr) VALUES (1, 1, '22', '1441', '650,86'), (1, 2, '22', '1441,00', '650,86')");
  const auto construction = CompareTotals(db, Kind::Construction, 1);
  ASSERT_TRUE(construction);
  EXPECT_EQ(Rows(*construction), (QStringList{u"ΗΜΕΡΕΣ ΑΠΑΣΧΟΛΗΣΗΣ ΣΥΝΟΛΟ | 44 | 44 | 0 | ="_s,
                                              u"ΑΠΟΔΟΧΕΣ ΣΥΝΟΛΟ | 2.882,00 | 2.882,00 | 0,00 | ="_s,
                                              u"ΕΙΣΦΟΡΕΣ ΣΥΝΟΛΟ | y | 1.301,72 |  | ≠"_s}));
  EXPECT_FALSE(CompareTotals(db, Kind::Construction, 2));
}

}  // namespace
}  // namespace veroxia::testing
