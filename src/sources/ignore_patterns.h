// SPDX-License-Identifier: MIT
// Patterns of paths as in .gitignore.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexltags {

/// A pattern with the rules of gitignore(5), except that a blank at the end and a `#` at the start
/// are part of it: `!` negates, `/` at the end restricts it to directories, another `/` anchors it
/// at the root, `**` is any number of directories. Case-sensitive, by bytes.
class IgnorePattern {
 public:
  explicit IgnorePattern(std::string_view text);

  /// Returns whether the pattern matches `path`, which is relative to the root, without regard to
  /// the directories that contain it.
  bool Matches(std::string_view path, bool isDirectory) const;
  bool IsNegated() const { return negated; }
  /// Returns whether the pattern has to match the whole path, not only its last component.
  bool IsAnchored() const { return anchored; }
  /// Returns whether the last component of the pattern says more than "any name", so that a file
  /// which it matches is meant by name.
  bool NamesFiles() const;
  /// The text without `!`.
  const std::string& Text() const { return text; }

 private:
  std::string text;
  bool negated = false;
  bool directoriesOnly = false;
  bool anchored = false;
  bool valid = true;
  std::vector<std::string> components;
};

/// A list of patterns, of which the last that matches decides.
class IgnorePatterns {
 public:
  void Add(std::string_view pattern) { patterns.emplace_back(pattern); }
  bool Empty() const { return patterns.empty(); }
  const std::vector<IgnorePattern>& All() const { return patterns; }
  /// Returns the last pattern that matches; null if none does.
  const IgnorePattern* Find(std::string_view path, bool isDirectory) const;

 private:
  std::vector<IgnorePattern> patterns;
};

}  // namespace vexltags
