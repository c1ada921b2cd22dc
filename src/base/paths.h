// SPDX-License-Identifier: MIT
// Functions on paths: escaping, abbreviating the home directory, creating parent directories.
#pragma once

#include <string>

namespace vexltags {

/// Matches the characters that are escaped in the paths of a tags file: tab, newline, carriage
/// return, blank, both quotes and `( ) * < > ? [ \ ] ^`.
struct IsPathMeta {
  bool operator()(char c) const;
};

/// Returns `text` with a backslash before each character that `Predicate` matches. A backslash in
/// `text` is copied together with the next character, so nothing is escaped twice.
template <class Predicate>
std::string EscapeWithBackslash(const std::string& text) {
  const Predicate isMeta{};
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\') {
      result += text[i];
      if (i + 1 < text.size()) result += text[++i];
      continue;
    }
    if (isMeta(text[i])) result += '\\';
    result += text[i];
  }
  return result;
}

/// Escapes a path for a tag line: `EscapeWithBackslash` with `IsPathMeta`.
std::string EscapePath(const std::string& path);

/// If `useTilde` is set, returns `path` with the first `$HOME/` at any position replaced by `~/`.
/// If `HOME` is not set, reports that to standard error and returns `path`.
std::string CanonicalizeHome(const char* path, bool useTilde);

/// Creates the missing parent directories of `path`, with mode 0777 less the umask. Does not report
/// errors: opening the file then fails.
void MakeParentDirForPathIfNeeded(const std::string& path);

}  // namespace vexltags
