// SPDX-License-Identifier: MIT
// Finds the lines of a text by their numbers.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace vexltags::tree {

/// A line of a text.
struct FoundLine {
  std::string_view text;   ///< Without its line end and without a byte order mark.
  std::size_t offset = 0;  ///< The byte offset of `text`.
};

/// Finds what `SourceLines` finds. Counts the lines of blocks of a text once, so that no list of
/// all lines is needed.
class LineFinder {
 public:
  /// To be called for each text, which has to outlive its use.
  void SetText(std::string_view newText);
  /// Returns the line with the 1-based `number`; an empty one, with offset 0, if there is none.
  FoundLine Line(std::int32_t number);

 private:
  /// The offset after newline number `count`, which is in block `block`.
  std::size_t AfterNewline(std::size_t block, std::uint32_t count) const;

  std::string_view text;
  std::vector<std::uint32_t> before;  ///< For each block, the newlines before it.
  std::size_t last = 0;               ///< The block of the last line.
  bool endsInCrLf = false;            ///< All lines end in CR LF.
};

}  // namespace vexltags::tree
