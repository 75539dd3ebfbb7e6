#include "filing/create_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "filing/texts.h"
#include "shell/texts.h"
#include "support/fakes.h"
#include "support/store_rows.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;
using namespace filing_texts;

QByteArray Bytes(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
}

// One run of "Δημιουργία αρχείου" from the user's side: what is asked, what
// is told, what is written, and that the store is left as it was.
TEST(CreateFile, EveryWayOutOfARun) {
  const QString failed = kWriteFailed + u"\r\n"_s + texts::kErrorCode;
  const struct {
    const char* name;
    Text date;              // of the stored header; none: no header
    QString line_name;      // the stored surname of the one line
    const char* directory;  // the answer of the dialog: "" cancels, "out" the test's
    FileOutcome outcome;
    QString message;    // empty: no message; else how it starts
    bool asked;         // the directory was asked for
    QByteArray volume;  // how CSL01 starts afterwards ("old" from before)
  } cases[] = {
      {"NoHeader",
       {},
       u"Α"_s,
       "out",
       FileOutcome::kFailed,
       failed + u"0\r\n"_s + texts::kErrorDescription,
       false,
       "old"},
      {"NoDate", u" "_s, u"Α"_s, "out", FileOutcome::kNoDate,
       kNoDateLine1 + u"\r\n"_s + kNoDateLine2, false, "old"},
      {"Cancelled", u"05/03/2002"_s, u"Α"_s, " ", FileOutcome::kCancelled, {}, true, "old"},
      {"Written", u"05/03/2002"_s, u"Α"_s, "out", FileOutcome::kWritten, kWrittenIn + u"%1'."_s,
       true, "10101CSL01   01"},
      {"Unencodable", u"05/03/2002"_s, u"Ж"_s, "out", FileOutcome::kUnencodable,
       kUnencodableLine.arg(u"1"_s, u"123456789"_s, u"21"_s, u"Ж"_s) + u"\r\n"_s + kNothingWritten,
       true, "old"},
      {"NoSuchDirectory", u"05/03/2002"_s, u"Α"_s, "out/missing", FileOutcome::kFailed,
       failed + u"2\r\n"_s + texts::kErrorDescription + kDirectoryMissing, true, "old"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    testing::TempStore store;
    Database& db = store.Open();
    if (c.date) {
      EmployerRow header;
      header.id = 1;
      header.CreateFlDate = c.date;
      InsertRow(db, header);
    }
    EmployeeRow line;
    line.id = 1;
    line.row_num = 1;
    line.insured_id = u"123456789"_s;
    line.surname = c.line_name;
    InsertRow(db, line);
    QDir(store.Dir()).mkdir(u"out"_s);
    const QString out = store.Dir() + u"/out"_s;
    QFile old(out + u"/CSL01"_s);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    const QByteArray stored = Bytes(store.Path());

    testing::FakeDialogs dialogs;
    const QString directory = QString::fromLatin1(c.directory).replace(u"out"_s, out);
    dialogs.directories.push_back(directory);
    store.vars.DeclarationId = 1;
    EXPECT_EQ(CreateFile(store.vars, dialogs, Kind::Common), c.outcome);

    EXPECT_EQ(dialogs.directories_asked, c.asked ? 1 : 0);
    if (c.message.isEmpty()) {
      EXPECT_TRUE(dialogs.messages.empty());
    } else {
      ASSERT_EQ(dialogs.messages.size(), 1u);
      EXPECT_EQ(dialogs.messages[0].title, kFileTitle);
      const QString expected = c.message.contains(u"%1"_s) ? c.message.arg(directory) : c.message;
      EXPECT_TRUE(dialogs.messages[0].text.startsWith(expected))
          << dialogs.messages[0].text.toStdString();
    }
    EXPECT_TRUE(Bytes(out + u"/CSL01"_s).startsWith(c.volume));
    EXPECT_EQ(QDir(out).entryList(QDir::Files | QDir::Hidden), QStringList{u"CSL01"_s});
    EXPECT_FALSE(dialogs.busy);
    EXPECT_EQ(Bytes(store.Path()), stored);
  }
}

}  // namespace
}  // namespace veroxia
