// SPDX-License-Identifier: MIT
// Judges the directories of a path from the root down.
#include "sources/path_filter.h"

#include <cstddef>

namespace vexltags {

PathVerdict PathFilter::Judge(std::string_view path, bool isDirectory) {
  if (patterns.Empty()) return PathVerdict::kPlain;
  const std::size_t slash = path.rfind('/');
  if (slash != path.npos && ExcludesDirectory(path.substr(0, slash))) return PathVerdict::kExcluded;
  const IgnorePattern* pattern = patterns.Find(path, isDirectory);
  if (pattern == nullptr) return PathVerdict::kPlain;
  if (!pattern->IsNegated()) return PathVerdict::kExcluded;
  return !isDirectory && pattern->NamesFiles() ? PathVerdict::kNamed : PathVerdict::kPlain;
}

bool PathFilter::ExcludesDirectory(std::string_view path) {
  const auto known = directories.find(std::string(path));
  if (known != directories.end()) return known->second;
  const bool isExcluded = Judge(path, true) == PathVerdict::kExcluded;
  directories.emplace(path, isExcluded);
  return isExcluded;
}

}  // namespace vexltags
