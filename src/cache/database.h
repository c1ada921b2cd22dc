// SPDX-License-Identifier: MIT
// A database file of SQLite with the few operations that the cache needs.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

namespace vexltags {

/// What can go wrong with a database.
enum class DatabaseError : std::uint8_t {
  kNone,
  kDamaged,  ///< The file is no database, or not a sound one.
  kOther,    ///< Such as a full disk or missing permissions.
};

/// A prepared statement, ready for a new execution.
class Statement {
 public:
  Statement(class Database& database, sqlite3_stmt* statement);
  /// Resets the statement; values that `Text` returned are then no longer valid.
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  /// Bind the next parameter. Texts are not copied and must exist until the statement has run.
  Statement& Bind(std::int64_t value);
  Statement& BindText(std::string_view text);
  Statement& BindBlob(std::string_view bytes);
  /// Goes to the next row and returns whether there is one.
  bool Step();
  /// Runs a statement without rows; false if it fails.
  bool Run();
  std::int64_t Number(int column) const;
  /// The bytes of a text or blob, good until the next `Step`.
  std::string_view Text(int column) const;

 private:
  Database& database;
  sqlite3_stmt* statement;
  int bound = 0;
};

/// An open database. The first error ends its use: later calls do nothing and fail.
class Database {
 public:
  Database() = default;
  ~Database() { Close(); }
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  /// Opens the file at `path`, or creates it if `isNew`. False if that fails.
  bool Open(const std::string& path, bool isNew);
  /// Closes the file; false if this or anything before failed.
  bool Close();
  /// Closes the file and forgets any error.
  void Reset();
  bool IsOpen() const { return handle != nullptr && error == DatabaseError::kNone; }

  /// Runs SQL without parameters; false if it fails.
  bool Execute(const char* sql);
  /// Prepares `sql`, or takes it from earlier use. `sql` is a string constant.
  Statement Prepare(const char* sql);

  DatabaseError Error() const { return error; }
  /// What SQLite says about the error.
  const std::string& Message() const { return message; }
  /// Records a fault that the caller found in the content.
  void SetDamaged(const std::string& what);

 private:
  friend class Statement;
  /// Records the error `code` unless it is one of success; returns whether it was.
  bool Check(int code);

  sqlite3* handle = nullptr;
  std::unordered_map<const char*, sqlite3_stmt*> statements;
  DatabaseError error = DatabaseError::kNone;
  std::string message;
};

}  // namespace vexltags
