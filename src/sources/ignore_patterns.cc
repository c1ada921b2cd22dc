// SPDX-License-Identifier: MIT
// Matches component by component, each with fnmatch.
#include "sources/ignore_patterns.h"

#include <fnmatch.h>

#include <algorithm>
#include <cstddef>

namespace vexltags {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

/// Returns the offset of the `]` that closes the bracket expression at `start`; `kNone` if none
/// does.
std::size_t BracketEnd(std::string_view pattern, std::size_t start) {
  std::size_t i = start + 1;
  if (i < pattern.size() && (pattern[i] == '!' || pattern[i] == '^')) ++i;
  for (bool isFirst = true; i < pattern.size(); ++i, isFirst = false) {
    if (pattern[i] == '\\') {
      ++i;
    } else if (pattern.substr(i, 2) == "[:") {
      const std::size_t end = pattern.find(":]", i + 2);
      if (end != kNone) i = end + 1;
    } else if (pattern[i] == ']' && !isFirst) {
      return i;
    }
  }
  return kNone;
}

/// Splits a pattern at the slashes outside bracket expressions. False if one is not closed, or if
/// the pattern ends in a single backslash: such a pattern matches nothing.
bool Split(std::string_view pattern, std::vector<std::string>& components) {
  std::string component;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] == '\\') {
      if (i + 1 == pattern.size()) return false;
      if (pattern[i + 1] == '/') continue;
      component += pattern[i++];
      component += pattern[i];
    } else if (pattern[i] == '[') {
      const std::size_t end = BracketEnd(pattern, i);
      if (end == kNone) return false;
      component += pattern.substr(i, end - i + 1);
      i = end;
    } else if (pattern[i] == '/') {
      components.push_back(std::move(component));
      component.clear();
    } else {
      component += pattern[i];
    }
  }
  components.push_back(std::move(component));
  return true;
}

/// Returns whether a component of a pattern is `**`, any number of directories.
bool IsAnyDepth(const std::string& component) {
  return component.size() >= 2 && component.find_first_not_of('*') == component.npos;
}

bool MatchesName(const std::string& component, std::string_view name) {
  // fnmatch needs a terminator.
  return fnmatch(component.c_str(), std::string(name).c_str(), 0) == 0;
}

using Component = std::vector<std::string>::const_iterator;

/// Matches the components from `at` on with `path`, which is not empty.
bool MatchesFrom(Component at, Component end, std::string_view path) {
  for (; at != end; ++at) {
    if (IsAnyDepth(*at)) {
      if (at + 1 == end) return !path.empty();
      for (;;) {
        if (MatchesFrom(at + 1, end, path)) return true;
        const std::size_t slash = path.find('/');
        if (slash == kNone) return false;
        path.remove_prefix(slash + 1);
      }
    }
    if (path.empty()) return false;
    const std::size_t slash = path.find('/');
    if (!MatchesName(*at, path.substr(0, slash))) return false;
    path = slash == kNone ? std::string_view() : path.substr(slash + 1);
  }
  return path.empty();
}

}  // namespace

IgnorePattern::IgnorePattern(std::string_view pattern) {
  if (pattern.starts_with('!')) {
    negated = true;
    pattern.remove_prefix(1);
  }
  text = pattern;
  if (pattern.ends_with('/')) {
    directoriesOnly = true;
    pattern.remove_suffix(1);
  }
  anchored = pattern.find('/') != kNone;
  if (pattern.starts_with('/')) pattern.remove_prefix(1);
  valid = !pattern.empty() && Split(pattern, components);
}

bool IgnorePattern::Matches(std::string_view path, bool isDirectory) const {
  if (!valid || (directoriesOnly && !isDirectory)) return false;
  if (!anchored) return MatchesName(components[0], path.substr(path.rfind('/') + 1));
  return MatchesFrom(components.begin(), components.end(), path);
}

bool IgnorePattern::NamesFiles() const {
  return valid && !directoriesOnly && components.back().find_first_not_of("*?") != kNone;
}

const IgnorePattern* IgnorePatterns::Find(std::string_view path, bool isDirectory) const {
  const auto found = std::find_if(
      patterns.rbegin(), patterns.rend(),
      [&](const IgnorePattern& pattern) { return pattern.Matches(path, isDirectory); });
  return found == patterns.rend() ? nullptr : &*found;
}

}  // namespace vexltags
