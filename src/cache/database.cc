// SPDX-License-Identifier: MIT
// A database file of SQLite with the few operations that the cache needs.
#include "cache/database.h"

#include <sqlite3.h>

namespace vexltags {
namespace {

/// How long to wait for another process that writes.
constexpr int kPatienceMilliseconds = 20000;

}  // namespace

Statement::Statement(Database& owner, sqlite3_stmt* prepared)
    : database(owner), statement(prepared) {}

Statement::~Statement() {
  if (statement == nullptr) return;
  sqlite3_reset(statement);
  sqlite3_clear_bindings(statement);
}

Statement& Statement::Bind(std::int64_t value) {
  if (statement != nullptr) database.Check(sqlite3_bind_int64(statement, ++bound, value));
  return *this;
}

Statement& Statement::BindText(std::string_view text) {
  if (statement != nullptr) {
    database.Check(sqlite3_bind_text64(statement, ++bound,
                                       text.data() == nullptr ? "" : text.data(), text.size(),
                                       SQLITE_STATIC, SQLITE_UTF8));
  }
  return *this;
}

Statement& Statement::BindBlob(std::string_view bytes) {
  if (statement != nullptr) {
    database.Check(sqlite3_bind_blob64(statement, ++bound,
                                       bytes.data() == nullptr ? "" : bytes.data(), bytes.size(),
                                       SQLITE_STATIC));
  }
  return *this;
}

bool Statement::Step() {
  if (statement == nullptr || !database.IsOpen()) return false;
  const int code = sqlite3_step(statement);
  return database.Check(code) && code == SQLITE_ROW;
}

bool Statement::Run() {
  if (statement == nullptr || !database.IsOpen()) return false;
  return database.Check(sqlite3_step(statement));
}

std::int64_t Statement::Number(int column) const { return sqlite3_column_int64(statement, column); }

std::string_view Statement::Text(int column) const {
  const void* const bytes = sqlite3_column_blob(statement, column);
  const int size = sqlite3_column_bytes(statement, column);
  if (bytes == nullptr || size <= 0) return {};
  return {static_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

bool Database::Open(const std::string& path, bool isNew) {
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (isNew ? SQLITE_OPEN_CREATE : 0);
  if (!Check(sqlite3_open_v2(path.c_str(), &handle, flags, nullptr))) return false;
  sqlite3_busy_timeout(handle, kPatienceMilliseconds);
  return true;
}

bool Database::Close() {
  for (const auto& [sql, statement] : statements) sqlite3_finalize(statement);
  statements.clear();
  if (handle != nullptr && sqlite3_close(handle) != SQLITE_OK && error == DatabaseError::kNone) {
    error = DatabaseError::kOther;
  }
  handle = nullptr;
  return error == DatabaseError::kNone;
}

void Database::Reset() {
  Close();
  error = DatabaseError::kNone;
  message.clear();
}

bool Database::Execute(const char* sql) {
  return IsOpen() && Check(sqlite3_exec(handle, sql, nullptr, nullptr, nullptr));
}

Statement Database::Prepare(const char* sql) {
  if (!IsOpen()) return {*this, nullptr};
  const auto [place, isNew] = statements.emplace(sql, nullptr);
  if (isNew) {
    Check(sqlite3_prepare_v3(handle, sql, -1, SQLITE_PREPARE_PERSISTENT, &place->second, nullptr));
  }
  return {*this, place->second};
}

void Database::SetDamaged(const std::string& what) {
  if (error != DatabaseError::kNone) return;
  error = DatabaseError::kDamaged;
  message = what;
}

bool Database::Check(int code) {
  if (code == SQLITE_OK || code == SQLITE_ROW || code == SQLITE_DONE) return true;
  if (error != DatabaseError::kNone) return false;
  const int kind = code & 0xFF;
  // An SQL error means that a table is missing or has other columns.
  const bool isDamaged = kind == SQLITE_CORRUPT || kind == SQLITE_NOTADB || kind == SQLITE_ERROR ||
                         kind == SQLITE_FORMAT || kind == SQLITE_MISMATCH;
  error = isDamaged ? DatabaseError::kDamaged : DatabaseError::kOther;
  message = handle != nullptr ? sqlite3_errmsg(handle) : sqlite3_errstr(code);
  return false;
}

}  // namespace vexltags
