// SPDX-License-Identifier: MIT
// Escapes and abbreviates paths and creates parent directories.
#include "base/paths.h"

#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "base/text.h"

namespace vexltags {

bool IsPathMeta::operator()(char c) const {
  static constexpr std::string_view kMeta = "\t\n\r \"'()*<>?[\\]^";
  return kMeta.find(c) != std::string_view::npos;
}

std::string EscapePath(const std::string& path) { return EscapeWithBackslash<IsPathMeta>(path); }

std::string CanonicalizeHome(const char* path, bool useTilde) {
  std::string result = path;
  if (!useTilde) return result;
  const char* home = std::getenv("HOME");
  if (home == nullptr) {
    std::fputs("No $HOME!\n", stderr);
    return result;
  }
  return ReplaceFirst(result, std::string(home) + "/", "~/");
}

void MakeParentDirForPathIfNeeded(const std::string& path) {
  // Skips a slash at the start of a component (the root or a doubled slash).
  for (std::size_t slash = path.find('/', 1); slash != std::string::npos;
       slash = path.find('/', slash + 2)) {
    mkdir(path.substr(0, slash).c_str(), 0777);
  }
}

}  // namespace vexltags
