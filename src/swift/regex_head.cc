// SPDX-License-Identifier: MIT
// Compares the characters around a slash.
#include "swift/regex_head.h"

#include "base/character_class.h"

namespace vexltags {
namespace {

bool IsWhitespace(int character) { return IsBlank(character) || IsLineEnd(character); }

/// True when the character at `offset` is `expected` and no NUL.
bool Holds(const CharacterWindow& window, std::ptrdiff_t offset, char expected) {
  const int found = window.At(offset);
  return found > 0 && found == static_cast<unsigned char>(expected);
}

}  // namespace

bool PostfixedBy(const CharacterWindow& window, std::ptrdiff_t offset, std::string_view text) {
  for (const char expected : text) {
    if (!Holds(window, offset++, expected)) return false;
  }
  return true;
}

bool PrefixedBy(const CharacterWindow& window, std::ptrdiff_t offset, std::string_view text) {
  for (std::size_t i = text.size(); i > 0; --i) {
    if (!Holds(window, offset--, text[i - 1])) return false;
  }
  return true;
}

bool StartsExpression(const CharacterWindow& window) {
  std::ptrdiff_t offset = 0;
  while (IsWhitespace(window.At(offset))) --offset;
  const int before = window.At(offset);
  if (before == '=' || before == '(' || before == ',' || before == ':') return true;
  return PrefixedBy(window, offset, "case") || PrefixedBy(window, offset, "in");
}

bool IsRegexHead(const CharacterWindow& window) {
  if (!StartsExpression(window)) return false;
  const int after = window.At(2);
  if (IsWhitespace(after) || after == ')') return false;
  return !PostfixedBy(window, 2, "*");
}

}  // namespace vexltags
