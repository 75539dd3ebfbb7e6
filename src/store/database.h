#pragma once
// The one connection to the store file: SQLite encrypted with SQLCipher,
// behind small RAII classes. Every value reaches a statement as a bound
// parameter; only fixed table names are ever joined into statement text.

#include <QString>
#include <QtGlobal>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include <QByteArray>

struct sqlite3;
struct sqlite3_stmt;

namespace veroxia {

using Text = std::optional<QString>;  // a text column that may be Null

// A failure of the store: SQLite's result code and its description, ours
// or SQLite's own words, which are English and never shown to the user.
struct StoreError {
  int code = 0;
  QString description;
  bool sqlite_words = false;
};

class Statement;

// Whether the file looks like an encrypted store, of whatever password:
// whole pages, not SQLite's plain header, and a first page of bytes that
// look random.
bool LooksEncrypted(const QString& path);

class Database {
 public:
  // Opens an existing store file for reading and writing, keyed with the
  // password. Nothing is written to the file until the key is proven by a
  // read and `prove`, when given, has read what else must hold: a file that
  // fails (empty, another program's, of another password) is left as it
  // lies. Only then does the store take up its write-ahead log. Never
  // creates the file. Throws StoreError, SQLITE_NOTADB for an empty file.
  static std::unique_ptr<Database> Open(const QString& path, const QString& password,
                                        const std::function<void(Database&)>& prove = {});
  // Creates a new, empty, encrypted store file. Throws StoreError when the
  // file exists already or cannot be made.
  static std::unique_ptr<Database> Create(const QString& path, const QString& password);
  // Opens an existing store for reading only (a check of its health, a copy).
  static std::unique_ptr<Database> OpenReadOnly(const QString& path, const QString& password);

  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  // Runs a statement without parameters or results (schema, transactions).
  void Exec(std::string_view sql);
  // Prepares a statement, or hands back the one prepared earlier for the same
  // text (each statement shape is prepared once per connection).
  Statement& Prepare(std::string_view sql);
  Statement& Prepare(const char* sql) { return Prepare(std::string_view(sql)); }
  Statement& Prepare(const QByteArray& sql) {
    return Prepare(std::string_view(sql.constData(), static_cast<size_t>(sql.size())));
  }
  // Rows changed by the last INSERT, UPDATE or DELETE.
  int Changes() const;
  bool InTransaction() const;

  [[noreturn]] void Fail() const;  // throws the connection's last error

  // Runs `routine` right before the first statement that would change the
  // store (one SQLite does not call read-only: INSERT, UPDATE, DELETE, BEGIN
  // IMMEDIATE, a schema change) takes its first step, whichever routine
  // issues it. Once it returns it is done for the connection's life; while it
  // throws, the statement does not run and the routine waits for the next.
  void BeforeFirstWrite(std::function<void()> routine);
  // Makes the statement running on this connection fail with SQLITE_INTERRUPT
  // soon after `*stop` is set, from any thread. The flag must outlive the
  // connection.
  void StopWhen(const std::atomic<bool>* stop);
  // Writes the write-ahead log back into the store file, as closing does,
  // and empties the log; the statements under way end first. Throws
  // StoreError when part of the log stays unwritten (another connection
  // still reads an older state of the store, a failing disk): nothing is
  // lost then, the log stays beside the store and is applied when it is
  // next opened. Waits at most `wait_ms` for other connections.
  void WriteBack(int wait_ms);
  // The file the connection works on.
  QString FileName() const;
  // Copies the store, as committed, into a new file at `path` keyed with
  // `password`, with SQLite's online backup. Throws StoreError; the file may
  // then be left partly written.
  void CopyTo(const QString& path, const QString& password);

 private:
  friend class Statement;
  explicit Database(sqlite3* db);
  static void UseWriteAheadLog(Database& db);
  static std::unique_ptr<Database> OpenWith(const QString& path, const QString& password,
                                            int flags);
  void WillWrite();  // runs the routine given to BeforeFirstWrite, if any
  sqlite3* db_;
  struct Cache;
  std::unique_ptr<Cache> cache_;
  std::function<void()> before_first_write_;
  bool in_before_first_write_ = false;
};

// A prepared statement. Reset on every Run/Query so it can be reused.
class Statement {
 public:
  Statement(Database& db, sqlite3_stmt* stmt) : db_(db), stmt_(stmt) {}
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  Statement& Reset();  // clears bindings and the previous run
  Statement& Bind(int index, int value);
  Statement& Bind(int index, qint64 value);
  Statement& Bind(int index, std::optional<int> value);  // Null when empty
  Statement& Bind(int index, const QString& value);
  Statement& Bind(int index, const Text& value);

  // Runs to completion; answers the rows changed.
  int Run();
  // Steps to the next row; false when there is none.
  bool Next();
  bool IsNull(int column) const;
  int Int(int column) const;
  qint64 Int64(int column) const;
  Text Value(int column) const;  // any column as text, Null kept
  // The same as SQLite holds it, in UTF-8, valid until the next step.
  std::optional<std::string_view> Utf8(int column) const;
  int ColumnCount() const;
  QString ColumnName(int column) const;
  // The column of that name in the result; -1 when there is none.
  int ColumnIndex(const QString& name) const;

 private:
  Database& db_;
  sqlite3_stmt* stmt_;
};

// Rolls back unless committed.
class Transaction {
 public:
  explicit Transaction(Database& db);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void Commit();
  void Rollback();

 private:
  Database& db_;
  bool done_ = false;
};

}  // namespace veroxia
