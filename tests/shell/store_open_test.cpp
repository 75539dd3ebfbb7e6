// Opening the store beside the program once, and what the user is told when
// it cannot be opened.

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>

#include "shell/start_form.h"
#include "shell/store_open.h"
#include "shell/texts.h"
#include "store/schema.h"
#include "store/store_file.h"
#include "support/fakes.h"
#include "support/printers.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

QByteArray Bytes(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class OpenStoreTest : public ::testing::Test {
 protected:
  void ExpectClosedAfterOneMessage(const QString& text) {
    EXPECT_FALSE(OpenStore(store_.vars, dialogs_));
    EXPECT_FALSE(store_.vars.StoreOpen);
    EXPECT_EQ(store_.vars.StoreConnection, nullptr);
    ASSERT_EQ(dialogs_.messages.size(), 1u);
    EXPECT_EQ(dialogs_.messages[0].title, texts::kAppTitle);
    EXPECT_TRUE(dialogs_.messages[0].text.startsWith(text)) << dialogs_.LastMessage().toStdString();
  }

  testing::TempStore store_{false};
  testing::FakeDialogs dialogs_;
};

TEST_F(OpenStoreTest, OpensOnceAndThenReusesTheConnection) {
  CreateStore(store_.Path(), StorePassword());
  ASSERT_TRUE(OpenStore(store_.vars, dialogs_));
  EXPECT_TRUE(store_.vars.StoreOpen);
  const Database* first = store_.vars.StoreConnection.get();
  ASSERT_NE(first, nullptr);
  // The file going away is not noticed: nothing is opened a second time.
  ASSERT_TRUE(QFile::remove(store_.Path()));
  EXPECT_TRUE(OpenStore(store_.vars, dialogs_));
  EXPECT_EQ(store_.vars.StoreConnection.get(), first);
  EXPECT_TRUE(dialogs_.messages.empty());

  CloseStore(store_.vars);
  EXPECT_FALSE(store_.vars.StoreOpen);
  EXPECT_EQ(store_.vars.StoreConnection, nullptr);
}

TEST_F(OpenStoreTest, MissingFileIsToldAsMissing) {
  ExpectClosedAfterOneMessage(texts::kStoreMissing);
  EXPECT_EQ(dialogs_.LastMessage(), texts::kStoreMissing);
}

TEST_F(OpenStoreTest, DirectoryOfTheStoreNameIsToldAsMissing) {
  ASSERT_TRUE(QDir(store_.Dir()).mkdir(StoreFileName()));
  ExpectClosedAfterOneMessage(texts::kStoreMissing);
  EXPECT_EQ(dialogs_.LastMessage(), texts::kStoreMissing);
}

TEST_F(OpenStoreTest, WrongPasswordIsACriticalErrorWithSqlitesCode) {
  CreateStore(store_.Path(), u"another password"_s);
  const QByteArray before = Bytes(store_.Path());
  ExpectClosedAfterOneMessage(texts::kStoreCritical + u'\r' + texts::kErrorCode +
                              QString::number(SQLITE_NOTADB) + u'\r');
  EXPECT_EQ(dialogs_.LastMessage(), texts::kStoreCritical + u'\r' + texts::kErrorCode + u"26\r"_s +
                                        texts::kStoreNotADatabase);
  EXPECT_EQ(Bytes(store_.Path()), before);
}

TEST_F(OpenStoreTest, StoreWithoutItsTablesIsACriticalError) {
  CreateStore(store_.Path(), StorePassword());
  Database::Open(store_.Path(), StorePassword())->Exec("DROP TABLE QOR_TEMP_EMPLOYEES");
  ExpectClosedAfterOneMessage(texts::kStoreCritical + u'\r' + texts::kErrorCode + u"1\r"_s);
}

TEST_F(OpenStoreTest, StartScreenEndsTheProgramOnAnUnreadableStore) {
  CreateStore(store_.Path(), u"another password"_s);
  testing::FakeScreens screens;
  StartForm form(store_.vars, dialogs_, screens);
  EXPECT_FALSE(form.Load());
  EXPECT_EQ(screens.quit_status, 1);
  EXPECT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_TRUE(screens.shown.isEmpty());
}

}  // namespace
}  // namespace veroxia
