// SPDX-License-Identifier: MIT
// Reverses `EscapePath` and `CanonicalizeHome`.
#include "portable/portable_path.h"

#include <cstddef>

#include "base/paths.h"

namespace vexltags {

std::string PlainPath(std::string_view field, const std::string& home) {
  std::string path;
  if (field.starts_with("~/") && !home.empty()) {
    path = home;
    field.remove_prefix(1);
  }
  const IsPathMeta isMeta{};
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] == '\\' && i + 1 < field.size()) {
      ++i;
      // Backslashes are never escaped, so two of them are two in the path.
      if (field[i] == '\\' || !isMeta(field[i])) path += '\\';
    }
    path += field[i];
  }
  return path;
}

bool FitsInLine(std::string_view path) { return path.find_first_of("\t\n") == path.npos; }

}  // namespace vexltags
