#include "store/database.h"

#include <sqlcipher/sqlite3.h>

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <set>
#include <string>
#include <unordered_map>

#include "store/texts.h"

namespace veroxia {

struct Database::Cache {
  std::unordered_map<std::string, std::unique_ptr<Statement>> statements;
};

namespace {

StoreError ErrorOf(sqlite3* db, int code) {
  const char* text = db != nullptr ? sqlite3_errmsg(db) : sqlite3_errstr(code);
  return StoreError{code, QString::fromUtf8(text), true};
}

}  // namespace

bool LooksEncrypted(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const qint64 size = file.size();
  const QByteArray page = file.read(1024);
  if (size < 1024 || size % 512 != 0 || page.startsWith("SQLite format 3")) return false;
  const std::set<char> distinct(page.begin(), page.end());
  return distinct.size() >= 200;
}

Database::Database(sqlite3* db) : db_(db), cache_(std::make_unique<Cache>()) {}

Database::~Database() {
  cache_.reset();  // statements first: the connection closes only when none is left
  sqlite3_close_v2(db_);
}

// Changes are appended to a write-ahead log beside the store and committed
// with one flush to disk, where a rollback journal needs several: a line is
// stored or deleted in a few milliseconds even on a slow disk. Closing the
// store writes the log back and removes it. Where the log cannot be made (a
// folder that cannot hold it) the rollback journal stays.
void Database::UseWriteAheadLog(Database& db) {
  try {
    db.Exec("PRAGMA journal_mode = WAL");
  } catch (const StoreError&) {
  }
}

std::unique_ptr<Database> Database::OpenWith(const QString& path, const QString& password,
                                             int flags) {
  sqlite3* raw = nullptr;
  const QByteArray file = path.toUtf8();
  const int rc = sqlite3_open_v2(file.constData(), &raw, flags, nullptr);
  if (rc != SQLITE_OK) {
    StoreError error = ErrorOf(raw, rc);
    sqlite3_close_v2(raw);
    throw error;
  }
  std::unique_ptr<Database> db(new Database(raw));
  const QByteArray key = password.toUtf8();
  if (sqlite3_key(raw, key.constData(), static_cast<int>(key.size())) != SQLITE_OK) db->Fail();
  sqlite3_busy_timeout(raw, 10'000);
  sqlite3_extended_result_codes(raw, 0);
  return db;
}

std::unique_ptr<Database> Database::Open(const QString& path, const QString& password,
                                         const std::function<void(Database&)>& prove) {
  const QFileInfo info(path);
  // A file the user marked read-only is refused before SQLite could quietly
  // open it for reading only (or, for root, write to it anyway).
  if (info.exists() && !(info.permissions() & QFileDevice::WriteOwner)) {
    throw StoreError{SQLITE_READONLY, QString::fromUtf8(sqlite3_errstr(SQLITE_READONLY)), true};
  }
  // SQLite takes an empty file for an empty database and would write one
  // into it at the first change.
  if (info.isFile() && info.size() == 0) {
    throw StoreError{SQLITE_NOTADB, QString::fromUtf8(sqlite3_errstr(SQLITE_NOTADB)), true};
  }
  auto db = OpenWith(path, password, SQLITE_OPEN_READWRITE);
  // The key is only tried on the first read: a wrong password or a file that
  // is no store fails here with "file is not a database".
  db->Exec("SELECT count(*) FROM sqlite_master");
  if (sqlite3_db_readonly(db->db_, "main") == 1) {
    throw StoreError{SQLITE_READONLY, QString::fromUtf8(sqlite3_errstr(SQLITE_READONLY)), true};
  }
  if (prove) prove(*db);
  UseWriteAheadLog(*db);
  return db;
}

std::unique_ptr<Database> Database::OpenReadOnly(const QString& path, const QString& password) {
  auto db = OpenWith(path, password, SQLITE_OPEN_READONLY);
  db->Exec("SELECT count(*) FROM sqlite_master");
  return db;
}

std::unique_ptr<Database> Database::Create(const QString& path, const QString& password) {
  if (QFileInfo::exists(path)) {
    throw StoreError{SQLITE_CANTOPEN, store_file_texts::kExistsAlready.arg(path)};
  }
  auto db = OpenWith(path, password, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  UseWriteAheadLog(*db);  // a new store is made in the mode it is opened in
  return db;
}

// Statement by statement, so that each one that writes passes WillWrite.
void Database::Exec(std::string_view sql) {
  const std::string text(sql);
  const char* rest = text.c_str();
  while (*rest != '\0') {
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db_, rest, -1, &stmt, &rest) != SQLITE_OK) Fail();
    if (stmt == nullptr) continue;  // blanks or a comment
    Statement(*this, stmt).Run();
  }
}

Statement& Database::Prepare(std::string_view sql) {
  const std::string key(sql);
  auto& slot = cache_->statements[key];
  if (!slot) {
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db_, key.c_str(), static_cast<int>(key.size()), &stmt, nullptr) !=
        SQLITE_OK) {
      cache_->statements.erase(key);
      Fail();
    }
    slot = std::make_unique<Statement>(*this, stmt);
  }
  return slot->Reset();
}

int Database::Changes() const { return sqlite3_changes(db_); }

bool Database::InTransaction() const { return sqlite3_get_autocommit(db_) == 0; }

void Database::Fail() const { throw ErrorOf(db_, sqlite3_errcode(db_)); }

void Database::BeforeFirstWrite(std::function<void()> routine) {
  before_first_write_ = std::move(routine);
}

void Database::WillWrite() {
  // The routine may itself use the connection; it does not run into itself.
  if (!before_first_write_ || in_before_first_write_) return;
  struct Running {
    bool& flag;
    explicit Running(bool& f) : flag(f) { flag = true; }
    ~Running() { flag = false; }
  } running(in_before_first_write_);
  before_first_write_();
  before_first_write_ = nullptr;
}

void Database::StopWhen(const std::atomic<bool>* stop) {
  sqlite3_progress_handler(
      db_, 1000,
      [](void* flag) -> int { return static_cast<const std::atomic<bool>*>(flag)->load() ? 1 : 0; },
      const_cast<std::atomic<bool>*>(stop));
}

void Database::WriteBack(int wait_ms) {
  // A statement under way holds a read of the store, which a write-back
  // from the same connection cannot pass.
  for (sqlite3_stmt* stmt = sqlite3_next_stmt(db_, nullptr); stmt != nullptr;
       stmt = sqlite3_next_stmt(db_, stmt)) {
    sqlite3_reset(stmt);
  }
  sqlite3_busy_timeout(db_, wait_ms);
  int frames = 0;
  int written = 0;
  const int rc =
      sqlite3_wal_checkpoint_v2(db_, "main", SQLITE_CHECKPOINT_TRUNCATE, &frames, &written);
  sqlite3_busy_timeout(db_, 10'000);
  // Busy with every frame written: only the emptying of the log waits for
  // another connection's read, and the store file holds everything.
  if (rc == SQLITE_OK || (rc == SQLITE_BUSY && written == frames)) return;
  throw ErrorOf(db_, rc);
}

QString Database::FileName() const { return QString::fromUtf8(sqlite3_db_filename(db_, "main")); }

// The copy is written without a journal: a copy that fails half-way is
// thrown away, never repaired. Its pages pass through the store's key and
// the copy's own (a salt of its own, the same password).
void Database::CopyTo(const QString& path, const QString& password) {
  auto copy = OpenWith(path, password, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  copy->Exec("PRAGMA journal_mode = OFF");
  sqlite3_backup* backup = sqlite3_backup_init(copy->db_, "main", db_, "main");
  if (backup == nullptr) copy->Fail();
  const int rc = sqlite3_backup_step(backup, -1);
  sqlite3_backup_finish(backup);  // reports the failure of a step on the copy's connection
  if (rc != SQLITE_DONE) throw ErrorOf(copy->db_, rc);
}

Statement::~Statement() { sqlite3_finalize(stmt_); }

Statement& Statement::Reset() {
  sqlite3_reset(stmt_);
  sqlite3_clear_bindings(stmt_);
  return *this;
}

Statement& Statement::Bind(int index, int value) {
  if (sqlite3_bind_int(stmt_, index, value) != SQLITE_OK) db_.Fail();
  return *this;
}

Statement& Statement::Bind(int index, qint64 value) {
  if (sqlite3_bind_int64(stmt_, index, value) != SQLITE_OK) db_.Fail();
  return *this;
}

Statement& Statement::Bind(int index, std::optional<int> value) {
  if (!value) {
    if (sqlite3_bind_null(stmt_, index) != SQLITE_OK) db_.Fail();
    return *this;
  }
  return Bind(index, *value);
}

Statement& Statement::Bind(int index, const QString& value) {
  const QByteArray utf8 = value.toUtf8();
  if (sqlite3_bind_text(stmt_, index, utf8.constData(), static_cast<int>(utf8.size()),
                        SQLITE_TRANSIENT) != SQLITE_OK) {
    db_.Fail();
  }
  return *this;
}

Statement& Statement::Bind(int index, const Text& value) {
  if (!value) {
    if (sqlite3_bind_null(stmt_, index) != SQLITE_OK) db_.Fail();
    return *this;
  }
  return Bind(index, *value);
}

int Statement::Run() {
  while (Next()) {
  }
  return db_.Changes();
}

bool Statement::Next() {
  if (sqlite3_stmt_busy(stmt_) == 0 && sqlite3_stmt_readonly(stmt_) == 0) db_.WillWrite();
  const int rc = sqlite3_step(stmt_);
  if (rc == SQLITE_ROW) return true;
  if (rc == SQLITE_DONE) return false;
  StoreError error = ErrorOf(sqlite3_db_handle(stmt_), rc);
  sqlite3_reset(stmt_);
  throw error;
}

bool Statement::IsNull(int column) const {
  return sqlite3_column_type(stmt_, column) == SQLITE_NULL;
}

int Statement::Int(int column) const { return sqlite3_column_int(stmt_, column); }

qint64 Statement::Int64(int column) const { return sqlite3_column_int64(stmt_, column); }

Text Statement::Value(int column) const {
  if (IsNull(column)) return std::nullopt;
  const auto* data = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, column));
  return QString::fromUtf8(data, sqlite3_column_bytes(stmt_, column));
}

std::optional<std::string_view> Statement::Utf8(int column) const {
  if (IsNull(column)) return std::nullopt;
  const auto* data = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, column));
  return std::string_view(data, static_cast<size_t>(sqlite3_column_bytes(stmt_, column)));
}

int Statement::ColumnCount() const { return sqlite3_column_count(stmt_); }

QString Statement::ColumnName(int column) const {
  return QString::fromUtf8(sqlite3_column_name(stmt_, column));
}

int Statement::ColumnIndex(const QString& name) const {
  for (int column = 0; column < ColumnCount(); ++column) {
    if (ColumnName(column) == name) return column;
  }
  return -1;
}

Transaction::Transaction(Database& db) : db_(db) { db_.Exec("BEGIN IMMEDIATE"); }

Transaction::~Transaction() {
  if (!done_ && db_.InTransaction()) {
    try {
      db_.Exec("ROLLBACK");
    } catch (const StoreError&) {
      // Nothing more can be done from a destructor; SQLite has already
      // abandoned the transaction when ROLLBACK itself fails.
    }
  }
}

void Transaction::Rollback() {
  done_ = true;
  db_.Exec("ROLLBACK");
}

void Transaction::Commit() {
  db_.Exec("COMMIT");
  done_ = true;
}

}  // namespace veroxia
