// SPDX-License-Identifier: MIT
// Keeps the cache in four tables. A new cache is written to a file of another name first, without a
// journal, which takes half the time.
#include "cache/result_cache.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/paths.h"
#include "cache/content_hash.h"

namespace vexltags {
namespace {

constexpr char kSchema[] = R"(
CREATE TABLE state(key TEXT PRIMARY KEY, value BLOB) WITHOUT ROWID;
CREATE TABLE file(id INTEGER PRIMARY KEY, path BLOB, device INTEGER, inode INTEGER, size INTEGER,
                  modified_at INTEGER, is_doubtful INTEGER, facts_hash INTEGER,
                  result_hash INTEGER, info BLOB);
CREATE TABLE facts(id INTEGER PRIMARY KEY, data BLOB);
CREATE TABLE result(id INTEGER PRIMARY KEY, data BLOB);
CREATE TABLE lookups(id INTEGER PRIMARY KEY, data BLOB);
)";

struct BlobQueries {
  const char* get;
  const char* all;
  const char* put;
  const char* remove;
};
constexpr BlobQueries kBlobQueries[] = {
    {"SELECT data FROM facts WHERE id = ?", "SELECT id, data FROM facts",
     "INSERT OR REPLACE INTO facts VALUES(?, ?)", "DELETE FROM facts WHERE id = ?"},
    {"SELECT data FROM result WHERE id = ?", "SELECT id, data FROM result",
     "INSERT OR REPLACE INTO result VALUES(?, ?)", "DELETE FROM result WHERE id = ?"},
    {"SELECT data FROM lookups WHERE id = ?", "SELECT id, data FROM lookups",
     "INSERT OR REPLACE INTO lookups VALUES(?, ?)", "DELETE FROM lookups WHERE id = ?"},
};
const BlobQueries& QueriesOf(BlobKind kind) { return kBlobQueries[static_cast<int>(kind)]; }

// Values end in a hash of the rest and of what they belong to, so that damage which SQLite does not
// see is found.
std::string Sealed(std::string_view bytes, std::uint64_t owner) {
  const std::uint64_t hash = ContentHash(bytes) ^ owner;
  std::string sealed;
  sealed.reserve(bytes.size() + sizeof hash);
  sealed += bytes;
  sealed.append(reinterpret_cast<const char*>(&hash), sizeof hash);
  return sealed;
}

std::string_view Unsealed(std::string_view sealed, std::uint64_t owner, Database& database) {
  std::uint64_t hash = 0;
  if (sealed.size() >= sizeof hash) {
    const std::string_view bytes = sealed.substr(0, sealed.size() - sizeof hash);
    std::memcpy(&hash, sealed.data() + bytes.size(), sizeof hash);
    if ((ContentHash(bytes) ^ owner) == hash) return bytes;
  }
  database.SetDamaged("a stored value has changed");
  return {};
}

std::uint64_t OwnerOf(std::int64_t id) {
  return static_cast<std::uint64_t>(id) * 0x9E3779B97F4A7C15;
}

/// A hash of all columns of a row but `info`.
std::uint64_t OwnerOf(const CachedFile& file) {
  std::string all = file.path;
  for (const auto number :
       {file.device, file.inode, file.size, file.modifiedAt, std::int64_t{file.isDoubtful},
        static_cast<std::int64_t>(file.factsHash), static_cast<std::int64_t>(file.resultHash)}) {
    all.append(reinterpret_cast<const char*>(&number), sizeof number);
  }
  return ContentHash(all);
}

/// The inode of the file at `path`; 0 if there is none.
std::uint64_t InodeOf(const std::string& path) {
  struct stat status;
  return lstat(path.c_str(), &status) == 0 ? status.st_ino : 0;
}

}  // namespace

bool ResultCache::Open(const std::string& cachePath, const std::string& wantedIdentity) {
  path = cachePath;
  identity = wantedIdentity;
  MakeParentDirForPathIfNeeded(path);
  openedInode = InodeOf(path);
  if (openedInode == 0) return CreateNew();
  if (OpenExisting(identity)) return true;
  if (database.Error() == DatabaseError::kOther) return false;
  wasDamaged = database.Error() == DatabaseError::kDamaged;
  return CreateNew();
}

bool ResultCache::OpenExisting(const std::string& wanted) {
  if (!database.Open(path, false)) return false;
  // After a loss of power, the checks of the content are what counts.
  database.Execute("PRAGMA synchronous = OFF");
  database.Execute("PRAGMA journal_mode = WAL");
  database.Execute("BEGIN");  // All reads see the same state.
  const std::string found = State("identity");
  const std::string number = State("version");
  if (!database.IsOpen()) return false;
  if (found != wanted) return false;
  version = std::atoll(number.c_str());
  isNew = false;
  return true;
}

bool ResultCache::CreateNew() {
  RemoveFile();
  newPath = path + ".new-" + std::to_string(getpid());
  std::remove(newPath.c_str());
  return database.Open(newPath, true) && database.Execute("PRAGMA page_size = 16384") &&
         database.Execute("PRAGMA journal_mode = OFF") &&
         database.Execute("PRAGMA synchronous = OFF") &&
         database.Execute("PRAGMA locking_mode = EXCLUSIVE") && database.Execute("BEGIN") &&
         database.Execute(kSchema);
}

void ResultCache::RemoveFile() {
  database.Reset();
  isNew = true;
  version = 0;
  if (!newPath.empty()) std::remove(newPath.c_str());
  newPath.clear();
  if (openedInode == 0 || InodeOf(path) != openedInode) return;
  openedInode = 0;
  for (const char* suffix : {"", "-wal", "-shm", "-journal"}) std::remove((path + suffix).c_str());
}

ResultCache::~ResultCache() {
  database.Close();
  if (!newPath.empty()) std::remove(newPath.c_str());
}

std::vector<CachedFile> ResultCache::Files() {
  std::vector<CachedFile> files;
  if (isNew) return files;
  Statement rows = database.Prepare(
      "SELECT id, path, device, inode, size, modified_at, is_doubtful, facts_hash, result_hash, "
      "info FROM file");
  while (rows.Step()) {
    CachedFile file;
    file.id = rows.Number(0);
    file.path = rows.Text(1);
    file.device = rows.Number(2);
    file.inode = rows.Number(3);
    file.size = rows.Number(4);
    file.modifiedAt = rows.Number(5);
    file.isDoubtful = rows.Number(6) != 0;
    file.factsHash = static_cast<std::uint64_t>(rows.Number(7));
    file.resultHash = static_cast<std::uint64_t>(rows.Number(8));
    file.info = Unsealed(rows.Text(9), OwnerOf(file), database);
    files.push_back(std::move(file));
  }
  if (!database.IsOpen()) files.clear();
  return files;
}

std::string ResultCache::Blob(std::int64_t id, BlobKind kind) {
  if (isNew) return {};
  Statement rows = database.Prepare(QueriesOf(kind).get);
  if (!rows.Bind(id).Step()) {
    database.SetDamaged("a stored value is missing");
    return {};
  }
  return std::string(Unsealed(rows.Text(0), OwnerOf(id), database));
}

void ResultCache::ForEachBlob(BlobKind kind,
                              const std::function<void(std::int64_t, std::string_view)>& take) {
  if (isNew) return;
  Statement rows = database.Prepare(QueriesOf(kind).all);
  while (rows.Step()) {
    const std::string_view bytes = Unsealed(rows.Text(1), OwnerOf(rows.Number(0)), database);
    if (!database.IsOpen()) return;
    take(rows.Number(0), bytes);
  }
}

std::string ResultCache::State(std::string_view key) {
  if (!database.IsOpen()) return {};
  Statement rows = database.Prepare("SELECT value FROM state WHERE key = ?");
  if (!rows.BindText(key).Step()) return {};
  return std::string(Unsealed(rows.Text(0), ContentHash(key), database));
}

bool ResultCache::Begin() {
  if (!database.IsOpen()) return false;
  if (isNew) {
    PutState("identity", identity);
    return database.IsOpen();
  }
  database.Execute("COMMIT");
  if (!database.Execute("BEGIN IMMEDIATE")) return false;
  if (std::atoll(State("version").c_str()) != version) {
    database.Execute("ROLLBACK");
    return false;
  }
  return database.IsOpen();
}

void ResultCache::Put(CachedFile& file) {
  Statement row = database.Prepare(
      "INSERT OR REPLACE INTO file VALUES(nullif(?, 0), ?, ?, ?, ?, ?, ?, ?, ?, ?) RETURNING id");
  const std::string info = Sealed(file.info, OwnerOf(file));
  row.Bind(file.id).BindBlob(file.path).Bind(file.device).Bind(file.inode).Bind(file.size);
  row.Bind(file.modifiedAt).Bind(file.isDoubtful ? 1 : 0);
  row.Bind(static_cast<std::int64_t>(file.factsHash));
  row.Bind(static_cast<std::int64_t>(file.resultHash)).BindBlob(info);
  if (row.Step()) file.id = row.Number(0);
}

void ResultCache::PutBlob(std::int64_t id, BlobKind kind, std::string_view bytes) {
  const std::string sealed = Sealed(bytes, OwnerOf(id));
  database.Prepare(QueriesOf(kind).put).Bind(id).BindBlob(sealed).Run();
}

void ResultCache::PutState(std::string_view key, std::string_view value) {
  const std::string sealed = Sealed(value, ContentHash(key));
  database.Prepare("INSERT OR REPLACE INTO state VALUES(?, ?)")
      .BindText(key)
      .BindBlob(sealed)
      .Run();
}

void ResultCache::Remove(std::int64_t id) {
  database.Prepare("DELETE FROM file WHERE id = ?").Bind(id).Run();
  for (const BlobQueries& queries : kBlobQueries) database.Prepare(queries.remove).Bind(id).Run();
}

bool ResultCache::Commit() {
  PutState("version", std::to_string(++version));
  if (!database.Execute("COMMIT")) {
    if (!newPath.empty()) std::remove(newPath.c_str());
    return false;
  }
  if (newPath.empty()) return true;
  const bool isWritten = database.Close();
  // Another process may have been faster; its file is as good.
  if (isWritten && link(newPath.c_str(), path.c_str()) == 0) isNew = false;
  std::remove(newPath.c_str());
  newPath.clear();
  return isWritten;
}

}  // namespace vexltags
