// SPDX-License-Identifier: MIT
// Numbers in as few bytes as they need.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vexltags::tree {

/// The most bytes that a number needs.
inline constexpr std::size_t kLongestVarint = 10;

/// Writes `value` to `out` in groups of seven bits, the lowest first; all bytes but the last have
/// the highest bit. Returns the place after it.
inline char* PutVarint(char* out, std::uint64_t value) {
  while (value >= 0x80) {
    *out++ = static_cast<char>(value | 0x80);
    value >>= 7;
  }
  *out++ = static_cast<char>(value);
  return out;
}

/// Appends `value` in the same form.
inline void AppendVarint(std::string& out, std::uint64_t value) {
  char bytes[kLongestVarint];
  out.append(bytes, static_cast<std::size_t>(PutVarint(bytes, value) - bytes));
}

/// Reads a number at `at` and sets `at` past it. A number that does not end gives 0 and sets `at`
/// past the end of `text`.
inline std::uint64_t ReadVarint(std::string_view text, std::size_t& at) {
  std::uint64_t value = 0;
  for (int shift = 0; at < text.size() && shift < 64; shift += 7) {
    const auto byte = static_cast<unsigned char>(text[at++]);
    value |= std::uint64_t{byte & 0x7FU} << shift;
    if (byte < 0x80) return value;
  }
  at = text.size() + 1;
  return 0;
}

}  // namespace vexltags::tree
