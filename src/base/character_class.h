// SPDX-License-Identifier: MIT
// Character classes, for scanners. Bytes above 127 are in none of them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace vexltags {

/// One value per byte.
template <class Value>
using ByteTable = std::array<Value, 256>;

/// Returns a table of the characters that words consist of in every supported language: A to Z, a
/// to z, `_` and, if `withDigits` is set, the digits.
constexpr ByteTable<bool> MakeWordTable(bool withDigits) {
  ByteTable<bool> table{};
  for (unsigned c = 'A'; c <= 'Z'; ++c) table[c] = true;
  for (unsigned c = 'a'; c <= 'z'; ++c) table[c] = true;
  table['_'] = true;
  for (unsigned c = '0'; withDigits && c <= '9'; ++c) table[c] = true;
  return table;
}

inline constexpr ByteTable<bool> kLetters = MakeWordTable(false);
inline constexpr ByteTable<bool> kLettersAndDigits = MakeWordTable(true);

constexpr bool IsDigit(int c) { return c >= '0' && c <= '9'; }
constexpr bool IsHexDigit(int c) {
  return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}
/// True for a space or a tab.
constexpr bool IsBlank(int c) { return c == ' ' || c == '\t'; }
/// True for a character of a line end: "\n", "\r" or "\r\n".
constexpr bool IsLineEnd(int c) { return c == '\n' || c == '\r'; }

/// Returns the end of the run of word characters at `at`.
inline const unsigned char* EndOfWord(const unsigned char* at, const unsigned char* end) {
  // Four characters need one comparison with the end.
  for (; end - at >= 4; at += 4) {
    if (!kLettersAndDigits[at[0]]) return at;
    if (!kLettersAndDigits[at[1]]) return at + 1;
    if (!kLettersAndDigits[at[2]]) return at + 2;
    if (!kLettersAndDigits[at[3]]) return at + 3;
  }
  while (at < end && kLettersAndDigits[*at]) ++at;
  return at;
}

}  // namespace vexltags
