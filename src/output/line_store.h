// SPDX-License-Identifier: MIT
// Keeps text lines one behind the other in large blocks.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace vexltags {

/// Holds lines without an allocation for each. A stored line never moves and has a NUL byte behind
/// it, so that C functions can read it where it lies.
class LineStore {
 public:
  void Add(std::string_view line);

  /// The lines in the order of addition; sorting may change that order.
  std::vector<std::string_view>& Lines() { return lines; }
  const std::vector<std::string_view>& Lines() const { return lines; }

 private:
  std::vector<std::unique_ptr<char[]>> blocks;
  char* next = nullptr;
  std::size_t room = 0;
  std::vector<std::string_view> lines;
};

}  // namespace vexltags
