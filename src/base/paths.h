// SPDX-License-Identifier: MIT
// Leaf functions on paths: escaping, the home directory, missing parents.
#pragma once

#include <string>

namespace vexltags {

/// Accepts the characters that stand escaped in a tags file's path: tab, newline, carriage return,
/// blank, both quotes, `( ) * < > ? [ \ ] ^`.
struct IsPathMeta {
  bool operator()(char c) const;
};

/// Copies `text` with a backslash before each character that `Predicate` accepts. A backslash in
/// `text` is copied together with the character behind it, so that nothing is escaped twice.
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

/// `EscapeWithBackslash` with `IsPathMeta`: the form in which a path enters a tag line.
std::string EscapePath(const std::string& path);

/// Writes `~/` for the first `$HOME/` in `path`, wherever it stands, when `useTilde` is set. With
/// `HOME` unset it says so on standard error and returns `path`.
std::string CanonicalizeHome(const char* path, bool useTilde);

/// Makes every parent directory that `path` names, with mode 0777 less the umask. Reports nothing:
/// a parent that could not be made shows when the file itself is opened.
void MakeParentDirForPathIfNeeded(const std::string& path);

}  // namespace vexltags
