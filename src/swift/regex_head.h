// SPDX-License-Identifier: MIT
// Distinguishes the slash of a regular expression from a division, by the characters around it.
#pragma once

#include <cstddef>
#include <string_view>

namespace vexltags {

/// The characters around the next character of a lexer. Does not own them.
///
/// Offsets count as in the runtime: 1 is the next character and 2 the one after it, 0 is the last
/// character consumed and -1 the one before that.
class CharacterWindow {
 public:
  /// What `At` returns outside the buffer; no character has these values.
  static constexpr int kBeforeStart = -2;
  static constexpr int kEnd = -1;

  /// A window on the bytes [begin, end) at `next`, which is one of them or `end`.
  CharacterWindow(const void* begin, const void* next, const void* end)
      : begin_(static_cast<const unsigned char*>(begin)),
        next_(static_cast<const unsigned char*>(next)),
        end_(static_cast<const unsigned char*>(end)) {}

  /// Returns the byte at `offset`, 0 to 255, or one of the two values above.
  int At(std::ptrdiff_t offset) const {
    if (offset - 1 < begin_ - next_) return kBeforeStart;
    if (offset - 1 >= end_ - next_) return kEnd;
    return next_[offset - 1];
  }

 private:
  const unsigned char* begin_;
  const unsigned char* next_;
  const unsigned char* end_;
};

/// True when `text` begins at `offset`; always for an empty text. Nothing matches the edges of the
/// buffer or a NUL character.
bool PostfixedBy(const CharacterWindow& window, std::ptrdiff_t offset, std::string_view text);

/// True when the last character of `text` is at `offset` and the others are before it; always for
/// an empty text. Nothing matches the edges of the buffer or a NUL character.
bool PrefixedBy(const CharacterWindow& window, std::ptrdiff_t offset, std::string_view text);

/// True when the characters before the next one allow an expression to start there: apart from
/// white space they end in one of `=(,:`, or in "case" or "in", even as part of a longer word.
/// False at the start of the file.
bool StartsExpression(const CharacterWindow& window);

/// True when the next character, a slash, opens a regular expression: an expression may start
/// there, and the slash is not followed by white space, a closing parenthesis or a star.
bool IsRegexHead(const CharacterWindow& window);

}  // namespace vexltags
