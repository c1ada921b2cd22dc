// SPDX-License-Identifier: MIT
// Walks through the text of a C-family file from directive to directive.
#pragma once

#include <cstdint>
#include <string_view>

#include "thorough/source_marks.h"

namespace vexltags::thorough {

enum class DirectiveKind : std::uint8_t {
  If,
  Ifdef,
  Ifndef,
  Elif,
  Elifdef,
  Elifndef,
  Else,
  Endif,
  Define,
  Undef,
  Include,
  Error,
  Other,
};

/// The kind of the directive whose name is `word`.
DirectiveKind DirectiveKindOf(std::string_view word);

/// True if a string that begins in `line`, a part of a line from its beginning, is still open at
/// its end.
bool EndsInString(std::string_view line);

/// A preprocessor directive: a line whose first character that is not blank is `#`.
struct Directive {
  DirectiveKind kind = DirectiveKind::Other;
  std::uint32_t begin = 0;  ///< The offset of its `#`.
  /// One past its last character. A backslash continues the line, a comment that begins on it
  /// belongs to it whole, and its line end does not.
  std::uint32_t end = 0;
  /// What follows the directive's name and blanks, up to the end.
  std::string_view argument;
};

/// Reads a text once from its beginning, past comments, strings and character literals.
class SourceText {
 public:
  explicit SourceText(std::string_view text) : text(text) {}

  /// Goes on to the next directive, which `Found` then returns; false at the end of the text.
  /// Calls `take` with what is on the way, without comments: each parenthesis and curly brace, the
  /// opening quote of each string or character literal, and other text that neither begins nor ends
  /// with a blank or a line end.
  template <class Take>
  bool NextDirective(Take take);

  const Directive& Found() const { return found; }

  /// Returns the offset of the `}` that closes the `{` at `open`. Returns npos if there is none,
  /// and where only a lexer can tell: after a directive that defines a macro or drops text, and
  /// where a comment or a raw string has no end. `Position` is then where that turned out.
  std::size_t FindBlockEnd(std::size_t open);

  /// Everything before this offset has been read.
  std::size_t Position() const { return at; }

 private:
  Mark MarkAt(std::size_t place) const { return kMarks[static_cast<unsigned char>(text[place])]; }
  static bool IsSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
  }
  /// The directive whose `#` is at `begin`.
  Directive ReadDirective(std::size_t begin);
  /// One past the last character of the logical line at `from`, comments taken whole, without its
  /// line end.
  std::size_t EndOfDirective(std::size_t from);
  /// True when a backslash takes away the line end at `newline`.
  bool IsContinued(std::size_t newline) const;
  /// True for a directive that the lexer leaves out with nothing else: not for one that defines a
  /// macro, for one that begins or ends a branch that is not read, and for unknown ones.
  bool HidesItsLineOnly(const Directive& directive) const;
  /// One past the comment at `from`, or `from` if none begins there.
  std::size_t SkipComment(std::size_t from);
  /// One past the string or character literal at `from`, which may be raw.
  std::size_t SkipLiteral(std::size_t from);
  /// True when the prefix of a character literal, as in `u8'a'`, ends just before `end`.
  bool IsPrefix(std::size_t end) const;
  /// One past the next end of a comment from `from` on, or npos.
  std::size_t CommentClose(std::size_t from);

  std::string_view text;
  std::size_t at = 0;
  bool isLineStart = true;  ///< Whether nothing but blanks and comments precedes `at` in its line.
  // Whether an earlier search ended without a result; it is not repeated.
  bool noCommentCloses = false;
  bool noRawStringCloses = false;
  Directive found;
};

template <class Take>
bool SourceText::NextDirective(Take take) {
  while (at < text.size()) {
    const std::size_t begin = at;
    at = NextMark<Parentheses::Stop>(text, begin);
    std::size_t end = at;
    while (end > begin && IsSpace(text[end - 1])) --end;
    if (end > begin) {
      std::size_t first = begin;
      while (IsSpace(text[first])) ++first;
      take(text.substr(first, end - first));
      isLineStart = false;
    }
    if (at == text.size()) break;
    const auto setLineStart = [&] {
      const std::string_view blanks = text.substr(end, at - end);
      isLineStart = isLineStart || blanks.find('\n') != std::string_view::npos;
    };
    switch (MarkAt(at)) {
      case Mark::Slash: {
        setLineStart();
        const std::size_t past = SkipComment(at);
        if (past != at) {
          at = past;
          continue;
        }
        break;
      }
      case Mark::Quote:
      case Mark::Apostrophe:
        take(text.substr(at, 1));
        at = SkipLiteral(at);
        isLineStart = false;
        continue;
      case Mark::Hash:
        setLineStart();
        if (isLineStart) {
          found = ReadDirective(at);
          at = found.end;
          return true;
        }
        break;
      default:
        break;
    }
    take(text.substr(at, 1));
    isLineStart = false;
    ++at;
  }
  return false;
}

}  // namespace vexltags::thorough
