// The program itself, started beside stores it cannot use: it says why in one
// message, ends with status 1 before showing a window, and leaves the store
// exactly as it found it.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>

#include "shell/texts.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

QByteArray ReadFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(Program, EndsWithOneOnAStoreItCannotUseAndLeavesItAlone) {
  const auto read_only = [](const QString& path) {
    CreateStore(path, StorePassword());
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
  };
  const struct {
    const char* name;
    std::function<void(const QString& path)> make;  // what stands where the store should be
    bool critical;  // the critical-error message; otherwise the missing-file one
  } cases[] = {
      {"NoStore", [](const QString&) {}, false},
      {"Directory", [](const QString& path) { ASSERT_TRUE(QDir().mkpath(path)); }, false},
      {"OtherPassword", [](const QString& path) { CreateStore(path, u"other"_s); }, true},
      {"ReadOnly", read_only, true},
  };
  const QString missing = texts::kAppTitle + u'\t' + texts::kStoreMissing;
  const QString critical =
      texts::kAppTitle + u'\t' + texts::kStoreCritical + u"\\n"_s + texts::kErrorCode;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
  environment.insert(u"VEROXIA_UNATTENDED"_s, u"1"_s);
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    QTemporaryDir dir;
    const QString program = dir.filePath(u"veroxia"_s), store = StorePath(dir.path());
    ASSERT_TRUE(QFile::copy(QStringLiteral(VEROXIA_BINARY), program));
    c.make(store);
    const auto entries = [&dir] {
      return QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    };
    const QStringList entries_before = entries();
    const QFileInfo before(store);
    const QByteArray bytes = ReadFile(store);

    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, {});
    if (!process.waitForFinished(30'000)) {
      process.kill();
      process.waitForFinished();
      FAIL() << "the program did not end";
    }
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    const QStringList lines =
        QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 1) << lines.join(u'\n').toStdString();
    if (c.critical) {
      EXPECT_TRUE(lines[0].startsWith(critical)) << lines[0].toStdString();
      EXPECT_GT(lines[0].size(), critical.size() + 2);  // a number and a description
    } else {
      EXPECT_EQ(lines[0], missing);
    }
    EXPECT_EQ(entries(), entries_before);
    const QFileInfo after(store);
    EXPECT_EQ(after.isDir(), before.isDir());
    EXPECT_EQ(after.permissions(), before.permissions());
    EXPECT_EQ(ReadFile(store), bytes);
  }
}

}  // namespace
}  // namespace veroxia
