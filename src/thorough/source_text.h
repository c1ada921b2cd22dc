// SPDX-License-Identifier: MIT
// Walks through the text of a C-family file from directive to directive.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/character_class.h"

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

/// What a character can begin, for a walk through the text.
enum class CharacterClass : std::uint8_t {
  Plain,
  Blank,
  Bracket,
  LineEnd,
  Slash,
  Quote,
  Apostrophe,
  Hash,
};

constexpr ByteTable<CharacterClass> MakeCharacterClasses() {
  ByteTable<CharacterClass> classes{};
  for (const char c : {' ', '\t', '\v', '\f', '\r'}) {
    classes[static_cast<unsigned char>(c)] = CharacterClass::Blank;
  }
  for (const char c : {'(', ')', '{', '}'}) {
    classes[static_cast<unsigned char>(c)] = CharacterClass::Bracket;
  }
  classes['\n'] = CharacterClass::LineEnd;
  classes['/'] = CharacterClass::Slash;
  classes['"'] = CharacterClass::Quote;
  classes['\''] = CharacterClass::Apostrophe;
  classes['#'] = CharacterClass::Hash;
  return classes;
}
inline constexpr ByteTable<CharacterClass> kCharacterClasses = MakeCharacterClasses();

/// Reads a text once from its beginning, past comments, strings and character literals.
class SourceText {
 public:
  explicit SourceText(std::string_view text) : text(text) {}

  /// Goes on to the next directive, which `Found` then returns; false at the end of the text.
  /// Calls `take` with what is on the way, without comments: each parenthesis and curly brace, the
  /// opening quote of each string or character literal, and other text that is on one line and
  /// neither begins nor ends with a blank.
  template <class Take>
  bool NextDirective(Take take);

  const Directive& Found() const { return found; }

 private:
  CharacterClass ClassAt(std::size_t place) const {
    return kCharacterClasses[static_cast<unsigned char>(text[place])];
  }
  /// The first character from `from` on that is neither plain nor blank.
  std::size_t EndOfPlain(std::size_t from) const {
    const auto bits = [this](std::size_t place) { return static_cast<unsigned>(ClassAt(place)); };
    constexpr auto kLast = static_cast<unsigned>(CharacterClass::Blank);
    std::size_t end = from;
    // Of the two classes only one has a bit, so that four characters need one comparison.
    while (end + 4 <= text.size() &&
           (bits(end) | bits(end + 1) | bits(end + 2) | bits(end + 3)) <= kLast) {
      end += 4;
    }
    while (end < text.size() && bits(end) <= kLast) ++end;
    return end;
  }
  /// The directive whose `#` is at `begin`.
  Directive ReadDirective(std::size_t begin);
  /// One past the last character of the logical line at `from`, comments taken whole, without its
  /// line end.
  std::size_t EndOfDirective(std::size_t from);
  /// True when a backslash takes away the line end at `newline`.
  bool IsContinued(std::size_t newline) const;
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
  bool isLineStart = true;
  // Whether an earlier search ended without a result; it is not repeated.
  bool noCommentCloses = false;
  bool noRawStringCloses = false;
  Directive found;
};

template <class Take>
bool SourceText::NextDirective(Take take) {
  while (at < text.size()) {
    switch (ClassAt(at)) {
      case CharacterClass::LineEnd:
        isLineStart = true;
        [[fallthrough]];
      case CharacterClass::Blank:
        do {
          ++at;
        } while (at < text.size() && ClassAt(at) == CharacterClass::Blank);
        continue;
      case CharacterClass::Slash: {
        const std::size_t past = SkipComment(at);
        if (past != at) {
          at = past;
          continue;
        }
        break;
      }
      case CharacterClass::Quote:
      case CharacterClass::Apostrophe:
        take(text.substr(at, 1));
        at = SkipLiteral(at);
        isLineStart = false;
        continue;
      case CharacterClass::Hash:
        if (isLineStart) {
          found = ReadDirective(at);
          at = found.end;
          return true;
        }
        break;
      case CharacterClass::Bracket:
        break;
      case CharacterClass::Plain: {
        const std::size_t begin = at;
        at = EndOfPlain(begin);
        std::size_t past = at;
        while (ClassAt(past - 1) == CharacterClass::Blank) --past;
        take(text.substr(begin, past - begin));
        isLineStart = false;
        continue;
      }
    }
    take(text.substr(at, 1));
    isLineStart = false;
    ++at;
  }
  return false;
}

}  // namespace vexltags::thorough
