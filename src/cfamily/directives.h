// SPDX-License-Identifier: MIT
// Recognises conditional directives and finds the end of a dropped conditional branch.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vexltags {

// Predicates. Each tests whether `ahead`, which may be the whole rest of a file, begins with a
// directive. Blanks are spaces and tabs. No predicate requires the word to end: `#elsewhere` is an
// `#else`.

/// True for `#`, blanks, `if`, at least one blank and the digit 0, whatever follows it.
bool IfZeroMatch(std::string_view ahead);

/// True for `#`, blanks, `ifdef`, at least one blank and the beginning of one of the two macros of
/// the C++ standard library headers that are known to be undefined.
bool IfDefinedWellKnownNegative(std::string_view ahead);

/// True for `#`, blanks, `elif`, at least one blank and the digit 0.
bool ElifZeroMatch(std::string_view ahead);

/// True for blanks, `#`, blanks and `endif`.
bool EndifMatch(std::string_view ahead);

/// True for blanks, `#`, blanks and `endif`, `else` or `elif`.
bool EndifOrElifOrElseMatch(std::string_view ahead);

/// Keeps results of earlier searches in one text, so that many openings that are never closed do
/// not each cost a search to the end. All calls must be about the same text.
class ConditionalMemo {
 public:
  /// Returns the offset of the first `*/` at or after `from`, or npos.
  std::size_t CommentClose(std::string_view text, std::size_t from);

  /// True when a scan for an `#endif` from `pos` is known to reach the end of the text.
  bool IsUnclosedFrom(std::size_t pos) const { return pos < unclosed_.size() && unclosed_[pos]; }
  /// Records that for each of `positions`, which are offsets in a text of `size` characters.
  void MarkUnclosed(const std::vector<std::size_t>& positions, std::size_t size);

 private:
  bool searched_ = false;
  std::size_t search_from_ = 0;  // The last search of CommentClose began here ...
  std::size_t search_hit_ = 0;   // ... and found this.
  std::vector<bool> unclosed_;   // By offset; empty until something turns out unclosed.
};

// Scans. Offsets count from the start of `text`, which is a whole file. A scan is a loop over
// lines, so deep nesting needs no stack and no rescan. A comment at the beginning of a line is
// skipped as a whole, and the text after it counts as the beginning of a line. A nested conditional
// counts only if its `#` is the first character of a line; an indented one is text, but an indented
// closing directive closes.

/// Returns the offset past the logical line at `pos`, which a backslash before a line end
/// continues. Includes one character of the line end, so of "\r\n" the "\n" remains. At most the
/// end of `text`.
std::size_t EndOfLogicalLine(std::string_view text, std::size_t pos);

/// Returns the offset past the comment at `pos`, npos when no complete comment begins there. The
/// line end of a `//` comment belongs to it and completes it.
std::size_t EndOfComment(std::string_view text, std::size_t pos, ConditionalMemo& memo);

/// Returns the offset past the `#endif` line that closes the conditional whose opening or `#else`
/// line ends at `pos`, npos when there is none.
std::size_t EndOfConditional(std::string_view text, std::size_t pos, ConditionalMemo& memo);

/// Returns the offset past the line that closes the dropped branch at `pos`: an `#endif`, `#else`
/// or
/// `#elif`. An `#elif 0` does not close it, but drops the next branch too. Npos when there is none.
std::size_t EndOfIfZeroBody(std::string_view text, std::size_t pos, ConditionalMemo& memo);

}  // namespace vexltags
