// SPDX-License-Identifier: MIT
// Tells conditional directives from plain text and finds the end of a dropped conditional branch.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vexltags {

// Predicates. Each is a prefix test of the characters ahead, which may be the whole rest of a file.
// Blanks are space and tab. No predicate asks for the end of a word: `#elsewhere` is an `#else`.

/// `#`, blanks, `if`, at least one blank, then the digit 0, whatever follows it. The `#` comes
/// first.
bool IfZeroMatch(std::string_view ahead);

/// `#`, blanks, `ifdef`, at least one blank, then the beginning of one of the two macros of the C++
/// standard library headers that are known to be undefined. The `#` comes first.
bool IfDefinedWellKnownNegative(std::string_view ahead);

/// `#`, blanks, `elif`, at least one blank, then the digit 0. The `#` comes first.
bool ElifZeroMatch(std::string_view ahead);

/// Blanks, `#`, blanks, `endif`.
bool EndifMatch(std::string_view ahead);

/// Blanks, `#`, blanks, then `endif`, `else` or `elif`.
bool EndifOrElifOrElseMatch(std::string_view ahead);

/// What earlier searches in one text have shown, so that openings that are never closed, however
/// many, are not searched for again and again. Has to be asked about one and the same text.
class ConditionalMemo {
 public:
  /// The offset of the first `*/` at or behind `from`, or npos.
  std::size_t CommentClose(std::string_view text, std::size_t from);

  /// True when a scan for an `#endif` that begins at `pos` is known to meet the end of the text.
  bool IsUnclosedFrom(std::size_t pos) const { return pos < unclosed_.size() && unclosed_[pos]; }
  /// Remembers that for each of `positions`, offsets into a text of `size` characters.
  void MarkUnclosed(const std::vector<std::size_t>& positions, std::size_t size);

 private:
  bool searched_ = false;
  std::size_t search_from_ = 0;  // CommentClose was asked from here ...
  std::size_t search_hit_ = 0;   // ... and found this.
  std::vector<bool> unclosed_;   // By offset; empty until something is unclosed.
};

// Scans. Offsets count from the start of `text`, which is a whole file. A scan goes line by line
// in a loop, so depth of nesting costs no call stack and no second look. A comment at the beginning
// of a line is taken whole and what follows it counts as the beginning of a line. A nested
// conditional counts only where its `#` is the first character of a line; indented ones are plain
// text, but an indented closing directive closes.

/// The offset behind the rest of the logical line at `pos`: a backslash before a line end continues
/// the line; one line-end character is taken, so of "\r\n" the "\n" stays. Stops at the end of
/// text.
std::size_t EndOfLogicalLine(std::string_view text, std::size_t pos);

/// The offset behind the comment that begins at `pos`, npos when none that is complete begins
/// there. A `//` comment is complete with its line end, which belongs to it.
std::size_t EndOfComment(std::string_view text, std::size_t pos, ConditionalMemo& memo);

/// The offset behind the `#endif` line that closes the conditional whose opening or `#else` line
/// ends at `pos`; npos when there is none.
std::size_t EndOfConditional(std::string_view text, std::size_t pos, ConditionalMemo& memo);

/// The offset behind the line that closes a dropped branch that begins at `pos`: an `#endif`,
/// `#else` or `#elif`. Behind `#elif 0` the next branch is dropped as well. Npos when there is
/// none.
std::size_t EndOfIfZeroBody(std::string_view text, std::size_t pos, ConditionalMemo& memo);

}  // namespace vexltags
