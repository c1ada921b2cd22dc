// SPDX-License-Identifier: MIT
// Keeps text lines one after another in large blocks.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace vexltags {

/// Stores lines without an allocation for each. A stored line never moves, and a NUL byte follows
/// it, so that C functions can read it in place.
class LineStore {
 public:
  void Add(std::string_view line);

  /// The lines in the order of their addition, until the caller sorts them.
  std::vector<std::string_view>& Lines() { return lines; }
  const std::vector<std::string_view>& Lines() const { return lines; }

 private:
  std::vector<std::unique_ptr<char[]>> blocks;
  char* next = nullptr;
  std::size_t room = 0;
  std::vector<std::string_view> lines;
};

}  // namespace vexltags
