// SPDX-License-Identifier: MIT
// The names of the open scopes as one text.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vexltags {

/// Joins the names of the open scopes, outermost first. Opening a scope takes time in the length of
/// its name, not of the whole text, which matters for thousands of nested scopes.
class ScopeText {
 public:
  explicit ScopeText(std::string separatorText) : separator(std::move(separatorText)) {}

  void Open(const std::string& name);
  /// Closes the innermost scope. One must be open.
  void Close();

  /// The names, joined by the separator.
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
  bool afterBlank = false;    ///< A blank is due before the next character of `collapsed`.
  std::vector<Level> levels;  ///< The state before each open scope.
};

}  // namespace vexltags
