// SPDX-License-Identifier: MIT
// Applies patterns to paths and the directories that contain them.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "sources/ignore_patterns.h"

namespace vexltags {

/// What the patterns say about a path.
enum class PathVerdict : unsigned char {
  kPlain,     ///< Nothing, or a negated pattern matches a directory or any name.
  kExcluded,  ///< The path, or a directory that contains it, is left out.
  kNamed,     ///< A negated pattern matches the file by name.
};

/// Remembers what it found for each directory. `patterns` has to outlive it and stay as it is.
class PathFilter {
 public:
  explicit PathFilter(const IgnorePatterns& list) : patterns(list) {}

  /// Judges `path`, which is relative to the root and has no `.` or `..`. As in git, a file cannot
  /// be included if a directory that contains it is excluded.
  PathVerdict Judge(std::string_view path, bool isDirectory);

 private:
  bool ExcludesDirectory(std::string_view path);

  const IgnorePatterns& patterns;
  std::unordered_map<std::string, bool> directories;
};

}  // namespace vexltags
