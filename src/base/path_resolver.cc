// SPDX-License-Identifier: MIT
// Resolves the folder only when it changes, and checks each file for being a link.
#include "base/path_resolver.h"

#include <limits.h>
#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <string_view>

namespace vexltags {

std::string PathResolver::Resolve(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  const std::string_view name = slash == std::string::npos
                                    ? std::string_view(path)
                                    : std::string_view(path).substr(slash + 1);
  if (!name.empty() && name != "." && name != ".." && path.size() < PATH_MAX &&
      ResolveFolder(path.substr(0, path.size() - name.size()))) {
    std::string result = resolved;
    result += name;
    char target;
    // EINVAL means that the file exists and is not a link.
    if (result.size() < PATH_MAX && readlink(result.c_str(), &target, 1) < 0 && errno == EINVAL) {
      return result;
    }
  }
  char buffer[PATH_MAX];
  return realpath(path.c_str(), buffer) == nullptr ? path : buffer;
}

bool PathResolver::ResolveFolder(const std::string& path) {
  if (known && path == folder) return true;
  char buffer[PATH_MAX];
  if (realpath(path.empty() ? "." : path.c_str(), buffer) == nullptr) return false;
  known = true;
  folder = path;
  resolved = buffer;
  if (resolved.back() != '/') resolved += '/';
  return true;
}

}  // namespace vexltags
