// SPDX-License-Identifier: MIT
// Tables over the 256 byte values, for scanners.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace vexltags {

/// One value per byte.
template <class Value>
using ByteTable = std::array<Value, 256>;

/// A table that is true for the letters A to Z and a to z, `_` and, where asked for, the digits:
/// the words of every language here. Bytes above 127 are never part of a word.
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

/// Behind the last letter or digit of the word that goes on at `at`.
inline const unsigned char* EndOfWord(const unsigned char* at, const unsigned char* end) {
  while (at < end && kLettersAndDigits[*at]) ++at;
  return at;
}

}  // namespace vexltags
