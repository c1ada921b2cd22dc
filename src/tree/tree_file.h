// SPDX-License-Identifier: MIT
// What a run knows of each file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "cache/result_cache.h"
#include "sources/source_list.h"
#include "tree/file_result.h"

namespace vexltags::tree {

/// A source, or a file from which only macros are learned.
struct TreeFile {
  std::string path;
  FileStamp stamp;
  CachedFile row;                    ///< What the cache knows of it; new if it has no id.
  bool isListed = true;              ///< It is a source, not only a file that one includes.
  bool learns = false;               ///< Macros are learned from it.
  bool isDoubtful = false;           ///< It may still change without a change of its stamp.
  bool hasFacts = false;             ///< The cache has its facts.
  bool hasResult = false;            ///< The cache has its result.
  std::optional<Bytes> facts;        ///< New facts.
  std::uint64_t factsHash = 0;       ///< Of the content that they are of.
  bool isScanned = false;            ///< A worker has looked for new facts.
  std::optional<FileResult> result;  ///< A new result.

  /// What is known of the result.
  InfoHead Head() const { return result ? HeadOf(result->info) : DecodeHead(row.info); }
  /// Whether there are tags of it.
  bool IsRead() const { return result ? result->info.status == FileStatus::kRead : hasResult; }
};

/// Returns whether macros are learned from a file of this name.
bool LearnsFrom(std::string_view path);

/// Returns the stamp of the regular file at `path`; nothing if there is none.
std::optional<FileStamp> StampOf(const std::string& path);

/// Joins texts, each with a NUL after it, and splits them again.
std::string JoinPaths(const std::vector<std::string>& paths);
std::vector<std::string> SplitPaths(std::string_view joined);

}  // namespace vexltags::tree
