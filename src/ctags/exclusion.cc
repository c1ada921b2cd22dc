// SPDX-License-Identifier: MIT
// Decides which files and folders the patterns of --exclude leave out.
#include "ctags/exclusion.h"

#include <fnmatch.h>

#include <cstddef>
#include <vector>

namespace vexltags::ctags {
namespace {

/// The patterns can also name the folders that they begin with: `build/` is `build`.
bool MatchesAny(const std::vector<std::string>& patterns, const std::string& path) {
  const std::string plain = path.starts_with("./") ? path.substr(2) : path;
  const std::size_t slash = plain.rfind('/');
  const std::string base = slash == std::string::npos ? plain : plain.substr(slash + 1);
  for (std::string pattern : patterns) {
    while (pattern.size() > 1 && pattern.ends_with('/')) pattern.pop_back();
    if (pattern.starts_with("./")) pattern.erase(0, 2);
    if (pattern.empty() || pattern == ".") continue;
    if (fnmatch(pattern.c_str(), base.c_str(), 0) == 0) return true;
    if (fnmatch(pattern.c_str(), plain.c_str(), 0) == 0) return true;
  }
  return false;
}

}  // namespace

bool IsExcluded(const std::string& path, const Settings& settings) {
  return MatchesAny(settings.exclusions, path) && !MatchesAny(settings.exceptions, path);
}

}  // namespace vexltags::ctags
