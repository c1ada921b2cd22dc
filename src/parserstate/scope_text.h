// SPDX-License-Identifier: MIT
// The names of the open scopes as one text, kept up to date as scopes open and close.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vexltags {

/// Joins the names of the open scopes, outermost first. Opening a scope costs the length of its
/// name and not that of the whole text, which matters where thousands stand in each other.
class ScopeText {
 public:
  explicit ScopeText(std::string separatorText) : separator(std::move(separatorText)) {}

  void Open(const std::string& name);
  /// To be called for an open scope only.
  void Close();

  /// The names with the separator between them.
  const std::string& Joined() const { return joined; }
  /// The same after `CollapseWhitespace` with a blank.
  const std::string& Collapsed() const { return collapsed; }

 private:
  struct Level {
    std::size_t joined, collapsed;
    bool afterBlank;
  };

  void Append(const std::string& text);

  std::string separator;
  std::string joined;
  std::string collapsed;
  bool afterBlank = false;    ///< White space is owed to `collapsed`.
  std::vector<Level> levels;  ///< What each open scope found when it opened.
};

}  // namespace vexltags
