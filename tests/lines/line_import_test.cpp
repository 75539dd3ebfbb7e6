// Employee lines from CSV files: how a file is read, every row through the
// screen's own checks, all stored or none, and the road the user takes.

#include "lines/line_import.h"
#include "header/texts.h"
#include "lines/import_texts.h"
#include "lines/texts.h"
#include "ovt_form2_fixture.h"
#include "rules/check_texts.h"
#include "support/files.h"
#include "support/lines_csv.h"

namespace veroxia::testing {
namespace {

using namespace import_texts;
TEST(CsvReaderTest, ReadsTheFilesSpreadsheetsWrite) {
  const struct {
    QByteArray bytes;
    CsvEncoding encoding;
    char separator;
    std::vector<QStringList> records;
    std::vector<qint64> lines;
    QString fault;  // of the last record
    int fault_field = -1;
  } cases[] = {
      // clang-format off
      {"\xEF\xBB\xBF" "a,b\n\"x,\"\"y\"\"\",2\n", CsvEncoding::kUtf8Bom, ',', {{"a", "b"}, {"x,\"y\"", "2"}}, {1, 2}, {}},
      // The first and last leads of three- and four-byte sequences.
      {"a;b\n\xE0\xA4\x85\xE2\x82\xAC\xEF\xBC\xA1;\xF0\x9F\x98\x80\xF4\x80\x80\x80\n", CsvEncoding::kUtf8, ';', {{"a", "b"}, {u"अ€Ａ"_s, u"😀\U00100000"_s}}, {1, 2}, {}},
      {"a;b\r\n\xD0\xC1\xA0\xD0\xC1;\xE1\xDC\r\n", CsvEncoding::kWindows1253, ';', {{"a", "b"}, {u"ΠΑ\u00A0ΠΑ"_s, u"αά"_s}}, {1, 2}, {}},
      {"a;b\n\xD0\xC1\xD0\x81;1\n", CsvEncoding::kWindows1253, ';', {{"a", "b"}, {u"ΠΑΠ\uFFFD"_s, u"1"_s}}, {1, 2}, kBadBytes.arg(u"Windows-1253"_s, u"81"_s), 0},
      // A line break inside quotes; empty lines and lines of empty fields
      // passed over; the last line without its end.
      {"a;b\n\"1\r\n2\";3\n\n;\n4;5", CsvEncoding::kUtf8, ';', {{"a", "b"}, {"1\r\n2", "3"}, {"4", "5"}}, {1, 2, 6}, {}},
      // UTF-8 throughout but for an overlong form: that field is at fault.
      {"a;b\n\xCE\x91\xCE\xBB\xCE\xB1;\xC0\xAF\n", CsvEncoding::kUtf8, ';', {{"a", "b"}, {u"Αλα"_s, QString::fromUtf8("\xC0\xAF")}}, {1, 2}, kBadBytes.arg(u"UTF-8"_s, u"C0 AF"_s), 1},
      {"a;b\n1;\"2\n3;4\n", CsvEncoding::kUtf8, ';', {{"a", "b"}, {"1", "2\n3;4\n"}}, {1, 2}, kUnclosedQuote, 1},
      {"a;b\n\"1\"x;2\n", CsvEncoding::kUtf8, ';', {{"a", "b"}, {"1x", "2"}}, {1, 2}, kTextAfterQuote, 0},
      // A byte-order mark where two files were joined; a line with no end.
      {"a;b\n\xEF\xBB\xBF" "1;2\n", CsvEncoding::kUtf8, ';', {{"a", "b"}, {"1", "2"}}, {1, 2}, kBomInField, 0},
      {"a;b\n1;2\xEF\xBB\xBF\n", CsvEncoding::kUtf8, ';', {{"a", "b"}, {"1", u"2\uFEFF"_s}}, {1, 2}, kBomInField, 1},
      {"a;b\n" + QByteArray((1 << 20) + 1, 'x'), CsvEncoding::kUtf8, ';', {{"a", "b"}, {}}, {1, 2}, kRecordTooLong, -1},
      // clang-format on
  };
  QTemporaryDir dir;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.bytes.toStdString());
    const QString path = dir.filePath(u"a.csv"_s);
    ASSERT_TRUE(WriteFile(path, c.bytes));
    CsvReader reader(path);
    ASSERT_EQ(reader.Open(), QString());
    EXPECT_EQ(reader.Encoding(), c.encoding);
    EXPECT_EQ(reader.Separator(), c.separator);
    std::vector<QStringList> records;
    std::vector<qint64> lines;
    CsvRecord record;
    while (reader.Next(record)) {
      records.push_back(record.fields);
      lines.push_back(record.line);
    }
    EXPECT_EQ(records, c.records);
    EXPECT_EQ(lines, c.lines);
    EXPECT_EQ(record.fault, c.fault);
    EXPECT_EQ(record.fault_field, c.fault_field);
    EXPECT_EQ(reader.Position(), reader.Size());
  }
  // Files that are no text of either encoding are refused whole.
  // clang-format off
  const std::pair<QByteArray, QString> refused[] = {
      {QByteArray("\xFF\xFE" "a\0;\0", 6), u"UTF-16"_s},
      {QByteArray("a;b\n1\0;2", 8), kControlByte.arg(2).arg(u"00"_s)}};
  // clang-format on
  for (const auto& [bytes, why] : refused) {
    const QString path = dir.filePath(u"b.csv"_s);
    ASSERT_TRUE(WriteFile(path, bytes));
    EXPECT_EQ(CsvReader(path).Open(), kNotText.arg(path, why));
  }
}

// The file is read a piece at a time: a record cut by the end of a piece,
// even between the two quotes of a doubled one, reads whole.
TEST(CsvReaderTest, RecordsAcrossThePiecesReadWhole) {
  QTemporaryDir dir;
  const QByteArray record = "\"q\"\"q\";1\r\n";
  const int records = (1 << 20) / record.size() + 2;
  for (int shift = 0; shift < record.size(); ++shift) {
    const QString path = dir.filePath(u"c.csv"_s);
    ASSERT_TRUE(
        WriteFile(path, "a" + QByteArray(shift, 'x') + ";b\r\n" + record.repeated(records)));
    CsvReader reader(path);
    ASSERT_EQ(reader.Open(), QString());
    CsvRecord read;
    int count = 0;
    bool whole = reader.Next(read);
    while (reader.Next(read)) {
      whole = whole && read.fields == QStringList{u"q\"q"_s, u"1"_s} && read.fault.isEmpty();
      ++count;
    }
    EXPECT_TRUE(whole) << shift;
    EXPECT_EQ(count, records) << shift;
  }
}

class LineImportTest : public ScreenTest<OvtForm2> {
 protected:
  LineImportTest() {
    vars_.PeriodFrom = u"012002"_s;
    vars_.PeriodTo = u"032002"_s;
    db_.Exec(
        "INSERT INTO QOR_EMPLOYERS (id) VALUES (1), (2); "
        "INSERT INTO QOR_EMPLOYEES (id, row_num, insured_id) VALUES (1, 1, '1')");
  }

  // Imports the CSV text into declaration `id` of the common kind through
  // the fake person (the lines it has kept unless `mode` says otherwise, or
  // asked about); true when lines were stored.
  bool Import(const QByteArray& csv, int id = 1,
              std::optional<ImportMode> mode = ImportMode::kAppend) {
    const QString path = dir_.filePath(u"lines.csv"_s);
    EXPECT_TRUE(WriteFile(path, csv));
    vars_.DeclarationId = static_cast<std::int16_t>(id);
    dialogs_.files.push_back(path);
    const auto form = MakeLinesForm(Kind::Common, vars_, dialogs_, screens_);
    return ImportLines(*form, dialogs_, {}, {}, ImportAnswers{mode, std::nullopt});
  }

  std::vector<std::vector<Text>> Stored() { return DumpTable(db_, "QOR_EMPLOYEES"); }

  QTemporaryDir dir_;
};

// Every row that fails is reported with its line, column, value and the
// check's own message, and nothing at all is stored; without those rows the
// same file is stored whole, numbered on, its values cleaned as the screen
// cleans them.
TEST_F(LineImportTest, AllRowsOrNoneAndEveryFailingRowReported) {
  const Line good = ValidCommonLine(u"123456780"_s, u"Καΐρης; \"Γ\""_s);
  Line few = good;
  few.pop_back();
  const std::vector<std::pair<Line, ImportFault>> rows{
      {good, {}},
      {With(good, u"Text39"_s, u"12,345"_s),
       {3, u"salary"_s, u"12,345"_s, check_texts::kTwoDecimals}},
      {With(good, u"Text21"_s, QString(51, u'Α')),
       {4, u"surname"_s, QString(51, u'Α'), kTooLong.arg(51).arg(50)}},
      {With(good, u"Text25"_s, u"5/3/1970"_s), {5, u"birth_date"_s, u"5/3/1970"_s, kDateShape}},
      {With(good, u"Text22"_s, u"Жора"_s),
       {6, u"name"_s, u"Жора"_s,
        header_texts::kNotInCodePage.arg(lines_texts::kLbl22, u"Ж"_s, u"0416"_s)}},
      {few, {7, {}, {}, kFieldCount.arg(30).arg(31)}},
      // Thousands parted by dots (another person: the same one would be a
      // line twice).
      {With(With(good, u"Text39"_s, u"12.345,6"_s), u"Text19"_s, u"123456781"_s), {}},
  };
  std::vector<Line> lines;
  std::vector<ImportFault> expected;
  for (const auto& [line, fault] : rows) {
    lines.push_back(line);
    if (fault.line > 0) expected.push_back(fault);
  }
  const auto before = Stored();
  EXPECT_FALSE(Import(Csv(Kind::Common, lines)));
  EXPECT_EQ(Stored(), before);
  ASSERT_EQ(dialogs_.reports.size(), 1u);
  const Report& report = dialogs_.reports[0];
  EXPECT_EQ(report.verdict, kRowsFailed.arg(5).arg(7));
  ASSERT_EQ(report.rows.size(), expected.size());
  for (size_t i = 0; i < expected.size(); ++i) {
    const ImportFault& f = expected[i];
    EXPECT_EQ(report.rows[i].cells,
              (QStringList{QString::number(f.line), f.column, f.value, f.message}));
  }

  lines = {rows[0].first, rows[6].first};
  EXPECT_TRUE(Import(Csv(Kind::Common, lines)));
  EXPECT_EQ(dialogs_.LastMessage(), kImported.arg(2).arg(2).arg(3));
  const auto stored = SelectLines<EmployeeRow>(db_, "QOR_EMPLOYEES", "row_num", 1);
  ASSERT_EQ(stored.size(), 3u);
  const EmployeeRow& last = stored[2];
  EXPECT_EQ(last.surname, u"ΚΑΪΡΗΣ; \"Γ\""_s);
  EXPECT_EQ(last.salary, u"12345,6"_s);
}

// The road through the dialogs: what the user is shown and asked at each
// step, and that only the last step stores anything.
TEST_F(LineImportTest, TheUserCanStopAtEveryStepWithNothingStored) {
  const QByteArray valid = Csv(Kind::Common, {ValidCommonLine(), ValidCommonLine(u"123456781"_s)});
  const auto before = Stored();

  EXPECT_FALSE(Import("insured_id;19;nothing\n1;2;3\n"));
  const QString columns = dialogs_.LastMessage();
  EXPECT_TRUE(columns.startsWith(kColumnsWrong.arg(dir_.filePath(u"lines.csv"_s))));
  EXPECT_TRUE(columns.contains(kColumnsUnknown.arg(u"nothing"_s)));
  EXPECT_TRUE(columns.contains(kColumnsRepeated.arg(u"19"_s)));
  EXPECT_TRUE(
      columns.contains(kColumnsMissing.arg(u"emp_branch_id (18_1), kad (18_2), amka (20),"_s)));
  EXPECT_FALSE(Import(valid.left(valid.indexOf('\n') + 1)));
  EXPECT_EQ(dialogs_.LastMessage(), kHeaderOnly.arg(dir_.filePath(u"lines.csv"_s)));
  EXPECT_FALSE(Import(valid, 7));
  EXPECT_EQ(dialogs_.LastMessage(), kNoHeader.arg(7));

  dialogs_.confirms.push_back(false);  // the preview, declined
  EXPECT_FALSE(Import(valid));
  ASSERT_FALSE(dialogs_.confirmed.empty());
  EXPECT_EQ(dialogs_.confirmed.back().rows.size(), 2u);
  EXPECT_EQ(dialogs_.confirm_captions.back(), kPreviewGo);
  EXPECT_TRUE(dialogs_.progress_texts.isEmpty());

  dialogs_.stop_at = 1;  // the cancel button of the progress bar
  EXPECT_FALSE(Import(valid));
  EXPECT_EQ(dialogs_.LastMessage(), kCancelled);
  dialogs_.stop_at = 0;

  // The store fails at the second row: the first is taken back too.
  db_.Exec(
      "CREATE TRIGGER full BEFORE INSERT ON QOR_EMPLOYEES WHEN NEW.row_num = 3 "
      "BEGIN SELECT RAISE(ABORT, 'database or disk is full'); END");
  EXPECT_FALSE(Import(valid));
  EXPECT_TRUE(dialogs_.LastMessage().startsWith(lines_texts::kStoreProblem));
  EXPECT_TRUE(dialogs_.LastMessage().endsWith(kNothingStored));
  EXPECT_EQ(Stored(), before);
  db_.Exec("DROP TRIGGER full");

  // A tax number with a wrong check digit is shown and asked about once.
  const QByteArray warned =
      Csv(Kind::Common,
          {ValidCommonLine(), With(ValidCommonLine(u"123456781"_s), u"Text26"_s, u"094014202"_s)});
  EXPECT_FALSE(Import(warned));
  EXPECT_EQ(dialogs_.reports.back().rows.size(), 1u);
  EXPECT_EQ(dialogs_.reports.back().rows[0].cells.first(2),
            (QStringList{u"3"_s, u"taxation_id"_s}));
  EXPECT_EQ(dialogs_.LastMessage(), kNothingStored);
  EXPECT_EQ(Stored(), before);
  dialogs_.answers.push_back(true);
  EXPECT_TRUE(Import(warned));
  EXPECT_EQ(dialogs_.questions.size(), 2u);
  EXPECT_EQ(Stored().size(), before.size() + 2);
}

// On the screen: the import waits for new or browse mode, and the first
// line brought in is shown, in browse mode, before the user is told.
TEST_F(LineImportTest, TheScreenShowsTheFirstLineBroughtIn) {
  vars_.DeclarationId = 2;
  OvtForm2& form = Open();
  EXPECT_TRUE(form.At(u"ImportCmd"_s).enabled && form.NewMode());
  const QString path = dir_.filePath(u"lines.csv"_s);
  ASSERT_TRUE(WriteFile(path, Csv(Kind::Common, {ValidCommonLine(u"200000000"_s, u"Άλφα"_s)})));
  dialogs_.files.push_back(path);
  form.ImportCmd_Click();
  EXPECT_EQ(form.Text(u"Text21"_s), u"ΑΛΦΑ"_s);
  EXPECT_TRUE(form.At(u"NewCmd"_s).visible && !form.At(u"Text21"_s).enabled);
  form.UpDateCmd_Click();
  EXPECT_FALSE(form.At(u"ImportCmd"_s).enabled || form.At(u"ExportCmd"_s).enabled);
}

// A declaration with lines asks what becomes of them: closed or Άκυρο does
// nothing, Append numbers the file's rows on, Replace all puts them in the
// place of every stored line, all or nothing. Rows repeating a stored line
// (on Append) or an earlier row are listed before anything is kept, and
// stored only on the list's button; rows without a register number repeat
// nothing.
TEST_F(LineImportTest, StoredLinesAreKeptOrReplacedAsAnsweredAndRepeatsAsked) {
  db_.Exec(
      "INSERT INTO QOR_EMPLOYEES (id, row_num, insured_id, sal_month, sal_year, wage_code) "
      "VALUES (1, 2, '200000001', '02', '2002', '01')");
  using lines_texts::kLbl19, lines_texts::kLbl33, lines_texts::kLbl36;
  const QString same = kLbl19 + u", "_s + kLbl33.left(kLbl33.indexOf(u')') + 1) + kAnd + kLbl36;
  const QByteArray clean =
      Csv(Kind::Common, {ValidCommonLine(u"300000001"_s), ValidCommonLine(u"300000002"_s)});
  const Line nobody = With(ValidCommonLine(), u"Text19"_s, {});
  const QByteArray repeats = Csv(
      Kind::Common, {ValidCommonLine(u"200000001"_s), ValidCommonLine(u"300000001"_s),
                     With(ValidCommonLine(u"300000001"_s), u"Text36"_s, u"1"_s), nobody, nobody});
  const QStringList before{u"1 1"_s, u"2 200000001"_s};
  const QStringList file{u"1 300000001"_s, u"2 300000002"_s};
  const QString in_file = u"4 "_s + kDuplicateInFile.arg(3);
  const struct {
    int id, choice;  // the choice answers the question; -1: the box closed
    const QByteArray& csv;
    bool keep;  // the answer to the list of repeated rows
    // The declaration's lines (number and register number), and the rows
    // listed (line of the file and message).
    QStringList after, repeats;
  } cases[] = {
      // clang-format off
      {2, -1, clean, false, file, {}}, {1, -1, clean, false, before, {}}, {1, 2, clean, false, before, {}},
      {1, 0, repeats, false, before, {u"2 "_s + kDuplicateOfStored.arg(2), in_file}},
      {1, 1, repeats, false, before, {in_file}},
      {1, 0, clean, false, before + QStringList{u"3 300000001"_s, u"4 300000002"_s}, {}},
      {1, 1, repeats, true, {u"1 200000001"_s, u"2 300000001"_s, u"3 300000001"_s, u"4 "_s, u"5 "_s}, {in_file}},
      // clang-format on
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.choice);
    dialogs_.choices.clear();
    if (c.choice >= 0) dialogs_.choices.push_back(c.choice);
    dialogs_.confirms = {true, c.keep};
    const size_t asked = dialogs_.choice_buttons.size();
    const size_t previews = dialogs_.confirmed.size();
    const bool stored = Import(c.csv, c.id, std::nullopt);
    EXPECT_EQ(dialogs_.choice_buttons.size() - asked, c.id == 1 ? 1u : 0u);
    const bool goes_on = c.choice == 0 || c.choice == 1 || c.id != 1;
    EXPECT_EQ(dialogs_.confirmed.size() - previews,
              goes_on ? 1u + (c.repeats.isEmpty() ? 0u : 1u) : 0u);
    QStringList lines;
    for (const auto& line : SelectLines<EmployeeRow>(db_, "QOR_EMPLOYEES", "row_num", c.id))
      lines << QString::number(line.row_num) + u' ' + line.insured_id.value_or(QString());
    EXPECT_EQ(lines, c.after);
    QStringList listed;
    if (dialogs_.confirmed.size() - previews == 2) {
      for (const ReportRow& row : dialogs_.confirmed.back().rows)
        listed << row.cells[0] + u' ' + row.cells[3];
      EXPECT_EQ(dialogs_.confirm_captions.back(), kRepeatsGo);
      EXPECT_EQ(dialogs_.confirmed.back().about, QStringList{kRepeatsAbout.arg(same)});
    }
    EXPECT_EQ(listed, c.repeats);
    EXPECT_EQ(stored, goes_on && (c.repeats.isEmpty() || c.keep));
  }
  EXPECT_EQ(dialogs_.choice_buttons.back(),
            (QStringList{kAppendAnswer, kReplaceAnswer, kCancelAnswer}));
  EXPECT_EQ(dialogs_.LastMessage(), kImported.arg(5).arg(1).arg(5) + u' ' + kReplaced.arg(4));
}

}  // namespace
}  // namespace veroxia::testing
