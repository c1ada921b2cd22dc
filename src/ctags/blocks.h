// SPDX-License-Identifier: MIT
// The blocks in braces of a C-family file, and the access labels in them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vexltags::ctags {

/// Finds what is between braces in a text, apart from comments, strings and, of each conditional,
/// all branches but the first that is not `#if 0`.
class Blocks {
 public:
  /// A block. Offsets are those of the braces in the text.
  struct Block {
    std::size_t open = 0;
    std::size_t close = 0;   ///< `npos` if the block has no end.
    std::size_t parent = 0;  ///< The index of the block around it; `npos` if there is none.
  };

  static constexpr std::size_t npos = std::string_view::npos;

  /// `text` must outlive the object.
  explicit Blocks(std::string_view text);

  /// Returns the block of the type whose name is at `offset`: the next one, before any semicolon.
  /// Null if it has none.
  const Block* OfType(std::size_t offset) const;

  /// Returns the body of the function whose parameters end before `offset`: only words, blanks and
  /// types may come before it, not a list of initializers. Null if it has none.
  const Block* OfFunction(std::size_t offset) const;

  /// Returns the innermost block around `offset`; null if there is none.
  const Block* Around(std::size_t offset) const;

  /// Returns the 1-based line of `offset`.
  long LineOf(std::size_t offset) const;

  /// Returns the last access label before `offset` that is in `block` and in no block within it:
  /// "public", "protected" or "private"; empty if there is none.
  std::string_view AccessAt(const Block& block, std::size_t offset) const;

 private:
  struct Label {
    std::size_t offset = 0;
    std::size_t block = 0;  ///< In `blocks`.
    std::string_view access;
  };

  std::size_t SkipDirective(std::size_t at);
  std::size_t SkipBranches(std::size_t at) const;
  std::size_t SkipQuoted(std::size_t at) const;
  std::size_t AddWord(std::size_t at, const std::vector<std::size_t>& open);
  const Block* BlockAt(std::size_t open) const;

  std::string_view text;
  std::vector<Block> blocks;  ///< By their opening braces.
  std::vector<Label> labels;  ///< By offset.
  std::vector<std::size_t> newlines;
};

}  // namespace vexltags::ctags
