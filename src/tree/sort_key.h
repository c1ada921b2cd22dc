// SPDX-License-Identifier: MIT
// Eight bytes of a name as a number that compares as they do.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "tree/tag_sort.h"

namespace vexltags::tree {

/// Folds the letters among eight bytes; `first` is that of the letters to change, `isUp` whether
/// they are lower-case letters.
inline std::uint64_t Fold(std::uint64_t bytes, char first, bool isUp) {
  constexpr std::uint64_t kEach = 0x0101010101010101;
  const std::uint64_t from = static_cast<unsigned char>(first);
  const std::uint64_t low = bytes & kEach * 0x7F;
  const std::uint64_t fromFirst = low + kEach * (0x80 - from);
  const std::uint64_t aboveLast = low + kEach * (0x80 - from - 26);
  const std::uint64_t letters = (fromFirst & ~aboveLast & ~bytes & kEach * 0x80) >> 2;
  return isUp ? bytes - letters : bytes + letters;
}

inline std::uint64_t Mapped(std::uint64_t bytes, TagOrder order) {
  if (order == TagOrder::kFoldDown) return Fold(bytes, 'A', false);
  if (order == TagOrder::kFoldUp) return Fold(bytes, 'a', true);
  return bytes;
}

inline char Mapped(char c, TagOrder order) {
  if (order == TagOrder::kFoldDown && c >= 'A' && c <= 'Z') return static_cast<char>(c + 32);
  if (order == TagOrder::kFoldUp && c >= 'a' && c <= 'z') return static_cast<char>(c - 32);
  return c;
}

/// Eight bytes of `text` from `from` on as a number that compares as they do, zeros past its end.
/// `text` is part of memory that can be read up to `limit`.
inline std::uint64_t EightBytes(std::string_view text, std::size_t from, const char* limit,
                                TagOrder order) {
  if (from >= text.size()) return 0;
  const std::size_t size = std::min(sizeof(std::uint64_t), text.size() - from);
  const char* const start = text.data() + from;
  std::uint64_t bytes = 0;
  if (static_cast<std::size_t>(limit - start) >= sizeof bytes) {
    std::memcpy(&bytes, start, sizeof bytes);
  } else {
    std::memcpy(&bytes, start, size);
  }
  if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
  if (size < sizeof bytes) bytes &= ~(~std::uint64_t{0} >> size * 8);
  return Mapped(bytes, order);
}

/// Returns whether a tab, with which all names end, is among the eight bytes.
inline bool HasTab(std::uint64_t bytes) {
  constexpr std::uint64_t kEach = 0x0101010101010101;
  const std::uint64_t others = bytes ^ kEach * '\t';
  return ((others - kEach) & ~others & kEach * 0x80) != 0;
}

}  // namespace vexltags::tree
