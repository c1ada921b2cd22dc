// SPDX-License-Identifier: MIT
// What earlier runs found out about the files of a tree.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cache/database.h"

namespace vexltags {

/// What the cache knows of one file, apart from its blobs.
struct CachedFile {
  std::int64_t id = 0;  ///< Identifies the file in the cache; 0 for a new one.
  std::string path;
  std::int64_t device = 0;
  std::int64_t inode = 0;
  std::int64_t size = 0;
  std::int64_t modifiedAt = 0;   ///< Nanoseconds since 1970.
  bool isDoubtful = false;       ///< It may have changed since without a change of the above.
  std::uint64_t factsHash = 0;   ///< Of the content that the facts are of.
  std::uint64_t resultHash = 0;  ///< Of the content that the result is of.
  std::string info;              ///< What the caller wants to know of each file at once.
};

/// The large items of a file.
enum class BlobKind : std::uint8_t { kFacts, kResult, kLookups };

/// A cache in one database file, of one tree and one set of options. The calls between `Begin` and
/// `Commit` take effect together or not at all, also if the process is killed. Several processes
/// can use the same file; only the first of those that began with the same state can commit.
///
/// If anything fails, later calls do nothing: reads find nothing, and `Commit` fails. `Error`
/// gives the reason.
class ResultCache {
 public:
  ResultCache() = default;
  ~ResultCache();
  ResultCache(const ResultCache&) = delete;
  ResultCache& operator=(const ResultCache&) = delete;

  /// Opens the cache at `path`, which is empty if there is none. A damaged file, or one that was
  /// written with another `identity`, is removed first. Returns false if there can be no cache.
  bool Open(const std::string& path, const std::string& identity);
  /// Whether the file was there but damaged.
  bool WasDamaged() const { return wasDamaged; }
  /// Whether there are no results of earlier runs.
  bool IsNew() const { return isNew; }

  std::vector<CachedFile> Files();
  std::string Blob(std::int64_t id, BlobKind kind);
  /// Calls `take` for each file that has a blob of this kind, in the order of the ids. The view is
  /// good until it returns.
  void ForEachBlob(BlobKind kind, const std::function<void(std::int64_t, std::string_view)>& take);
  /// A value of the whole tree; empty if there is none.
  std::string State(std::string_view key);

  /// Starts to change the cache. Returns false if it cannot be changed, or if another process has
  /// changed it since it was opened.
  bool Begin();
  /// Stores a file, which gets an id if it has none.
  void Put(CachedFile& file);
  void PutBlob(std::int64_t id, BlobKind kind, std::string_view bytes);
  void PutState(std::string_view key, std::string_view value);
  void Remove(std::int64_t id);
  /// Makes all changes since `Begin` permanent.
  bool Commit();

  DatabaseError Error() const { return database.Error(); }
  const std::string& Message() const { return database.Message(); }
  /// Closes the cache and removes its file, unless another one has taken its place.
  void RemoveFile();
  void Close() { database.Close(); }

 private:
  bool OpenExisting(const std::string& identity);
  bool CreateNew();

  Database database;
  std::string path;
  std::uint64_t openedInode = 0;
  std::string newPath;  ///< Of a new file until it takes its place; empty if there is none.
  std::string identity;
  std::int64_t version = 0;  ///< Counts the commits.
  bool isNew = true;
  bool wasDamaged = false;
};

}  // namespace vexltags
