// The program itself, started beside stores it cannot use: it says why in one
// message, ends with status 1 before showing a window, and leaves the store
// exactly as it found it.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <functional>

#include "shell/texts.h"
#include "store/database.h"
#include "store/schema.h"
#include "store/store_file.h"

namespace veroxia::testing {
namespace {

constexpr int kTimeoutMs = 30'000;

struct Outcome {
  int status = -1;
  QStringList lines;  // what the program wrote on standard output, line by line
};

// A copy of the program in a directory of its own, where it looks for the store.
class ProgramDir {
 public:
  ProgramDir() {
    program_ = dir_.filePath(QStringLiteral("veroxia"));
    EXPECT_TRUE(QFile::copy(QStringLiteral(VEROXIA_BINARY), program_));
    QFile::setPermissions(program_, QFile::permissions(program_) | QFile::ExeOwner);
  }
  QString Store() const { return StorePath(dir_.path()); }
  QStringList Entries() const {
    return QDir(dir_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  Outcome Start() const {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("VEROXIA_UNATTENDED"), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    process.start(program_, {});
    Outcome run;
    if (!process.waitForFinished(kTimeoutMs)) {
      process.kill();
      process.waitForFinished();
      ADD_FAILURE() << "the program did not end";
      return run;
    }
    run.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.lines = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    return run;
  }

 private:
  QTemporaryDir dir_;
  QString program_;
};

void WriteFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray ReadFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What stands where the store should be, and what the program must say of it.
struct BrokenStore {
  const char* name;
  std::function<void(const QString& path)> make;
  bool critical;  // the critical-error message; otherwise the missing-file one
};

void PrintTo(const BrokenStore& c, std::ostream* os) { *os << c.name; }

const QString kMissingLine = texts::kAppTitle + u'\t' + texts::kStoreMissing;
const QString kCriticalStart =
    texts::kAppTitle + u'\t' + texts::kStoreCritical + QStringLiteral("\\n") + texts::kErrorCode;

class BrokenStoreTest : public ::testing::TestWithParam<BrokenStore> {};

TEST_P(BrokenStoreTest, TheProgramSaysWhyEndsWithOneAndLeavesTheStoreAlone) {
  ProgramDir dir;
  GetParam().make(dir.Store());
  const QFileInfo before_info(dir.Store());
  const QByteArray before = before_info.isFile() ? ReadFile(dir.Store()) : QByteArray();
  const QStringList entries = dir.Entries();

  const Outcome run = dir.Start();

  EXPECT_EQ(run.status, 1);
  ASSERT_EQ(run.lines.size(), 1) << run.lines.join(u'\n').toStdString();
  if (GetParam().critical) {
    EXPECT_TRUE(run.lines[0].startsWith(kCriticalStart)) << run.lines[0].toStdString();
    EXPECT_GT(run.lines[0].size(), kCriticalStart.size() + 2);  // a number and a description
  } else {
    EXPECT_EQ(run.lines[0], kMissingLine);
  }
  EXPECT_EQ(dir.Entries(), entries);
  const QFileInfo after_info(dir.Store());
  EXPECT_EQ(after_info.exists(), before_info.exists());
  EXPECT_EQ(after_info.isDir(), before_info.isDir());
  EXPECT_EQ(after_info.permissions(), before_info.permissions());
  if (before_info.isFile()) {
    EXPECT_EQ(ReadFile(dir.Store()), before);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Stores, BrokenStoreTest,
    ::testing::Values(BrokenStore{"NoStore", [](const QString&) {}, false},
                      BrokenStore{"OtherPassword",
                                  [](const QString& path) {
                                    auto db = Database::Create(path, QStringLiteral("other"));
                                    db->Exec("CREATE TABLE QOR_EMPLOYERS (id INTEGER)");
                                    db->Exec("INSERT INTO QOR_EMPLOYERS VALUES (1)");
                                  },
                                  true},
                      BrokenStore{"RandomBytes",
                                  [](const QString& path) {
                                    QRandomGenerator random(20020401);
                                    QByteArray bytes(16384, Qt::Uninitialized);
                                    for (char& byte : bytes)
                                      byte = static_cast<char>(random.bounded(256));
                                    WriteFile(path, bytes);
                                  },
                                  true},
                      BrokenStore{"Directory",
                                  [](const QString& path) { ASSERT_TRUE(QDir().mkpath(path)); },
                                  false},
                      BrokenStore{"ReadOnly",
                                  [](const QString& path) {
                                    CreateStore(path, StorePassword());
                                    QFile::setPermissions(path, QFile::ReadOwner |
                                                                    QFile::ReadGroup |
                                                                    QFile::ReadOther);
                                  },
                                  true}),
    [](const ::testing::TestParamInfo<BrokenStore>& info) { return info.param.name; });

}  // namespace
}  // namespace veroxia::testing
