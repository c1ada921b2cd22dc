// SPDX-License-Identifier: MIT
// Tells the slash that opens a regular expression from a division, by the characters around it.
#pragma once

#include <cstddef>
#include <string_view>

namespace vexltags {

/// The characters around the place where a lexer stands. Does not own them.
///
/// Offsets count as the recogniser runtime's: 1 is the next unconsumed character, 2 the one behind
/// it, 0 the character just consumed, -1 the one before that.
class CharacterWindow {
 public:
  /// What `At` gives outside the buffer; no character has these values.
  static constexpr int kBeforeStart = -2;
  static constexpr int kEnd = -1;

  /// A window over the bytes from `begin` to before `end`, at `next`, which lies among them or is
  /// `end`.
  CharacterWindow(const void* begin, const void* next, const void* end)
      : begin_(static_cast<const unsigned char*>(begin)),
        next_(static_cast<const unsigned char*>(next)),
        end_(static_cast<const unsigned char*>(end)) {}

  /// The byte at `offset`, 0 to 255, or one of the two values above.
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

/// True when `text` stands at `offset` and the following places. An empty text always does. The
/// edges of the buffer and NUL characters match nothing.
bool PostfixedBy(const CharacterWindow& window, std::ptrdiff_t offset, std::string_view text);

/// True when `text` ends at `offset`: its last character stands there, the others before it. An
/// empty text always does. The edges of the buffer and NUL characters match nothing.
bool PrefixedBy(const CharacterWindow& window, std::ptrdiff_t offset, std::string_view text);

/// True when what stands before the next character lets an expression start there: behind blanks
/// and line ends, one of `=(,:`, or text that ends in "case" or "in", be it as part of a longer
/// word. False when there is nothing before it.
bool StartsExpression(const CharacterWindow& window);

/// True when the next character, a slash, opens a regular expression: an expression may start
/// there, and what follows the slash is no blank, line end, closing parenthesis or star.
bool IsRegexHead(const CharacterWindow& window);

}  // namespace vexltags
