// SPDX-License-Identifier: MIT
// A token of a declaration while it is prepared for the parser.
#pragma once

#include <cstdint>
#include <string_view>

namespace vexltags::thorough {

/// A token of the source, a run of them that is passed on as it is, or a token that a macro made.
struct Word {
  Word() = default;
  Word(unsigned type, std::string_view text, unsigned line, std::int32_t index, std::uint32_t span)
      : text(text), type(type), line(line), index(index), span(span) {}

  std::string_view text;  ///< First, so that there are no gaps.
  unsigned type = 0;
  unsigned line = 0;        ///< 1-based.
  std::int32_t index = -1;  ///< In the token table; -1 for a token that a macro made.
  /// How many tokens of the table it covers; 0 for an empty block, a pair of braces that a macro
  /// made.
  std::uint32_t span = 1;
};

}  // namespace vexltags::thorough
