// SPDX-License-Identifier: MIT
// Finds the next character of a C-family text at which something begins or ends.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "base/character_class.h"

namespace vexltags::thorough {

/// What a character can begin or end.
enum class Mark : std::uint8_t { None, Curly, Parenthesis, Slash, Quote, Apostrophe, Hash };

constexpr ByteTable<Mark> MakeMarks() {
  ByteTable<Mark> marks{};
  for (const char c : {'{', '}'}) marks[static_cast<unsigned char>(c)] = Mark::Curly;
  for (const char c : {'(', ')'}) marks[static_cast<unsigned char>(c)] = Mark::Parenthesis;
  marks['/'] = Mark::Slash;
  marks['"'] = Mark::Quote;
  marks['\''] = Mark::Apostrophe;
  marks['#'] = Mark::Hash;
  return marks;
}
inline constexpr ByteTable<Mark> kMarks = MakeMarks();

/// Whether a search stops at parentheses, or passes them.
enum class Parentheses : bool { Pass, Stop };

/// Returns the offset of the first mark from `from` on; the size of the text for none.
template <Parentheses parentheses>
std::size_t NextMark(std::string_view text, std::size_t from) {
  std::size_t place = from;
#ifdef __SSE2__
  // Of these characters some differ in one bit only: `"` and `#`, `(` and `)`, `'` and `/`.
  const auto all = [](char c) { return _mm_set1_epi8(c); };
  for (; place + sizeof(__m128i) <= text.size(); place += sizeof(__m128i)) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text.data() + place));
    const __m128i withBit0 = _mm_or_si128(bytes, all(1));
    __m128i found = _mm_cmpeq_epi8(withBit0, all('#'));
    found = _mm_or_si128(found, _mm_cmpeq_epi8(_mm_or_si128(bytes, all(8)), all('/')));
    found = _mm_or_si128(found, _mm_cmpeq_epi8(bytes, all('{')));
    found = _mm_or_si128(found, _mm_cmpeq_epi8(bytes, all('}')));
    if constexpr (parentheses == Parentheses::Stop) {
      found = _mm_or_si128(found, _mm_cmpeq_epi8(withBit0, all(')')));
    }
    const auto mask = static_cast<unsigned>(_mm_movemask_epi8(found));
    if (mask != 0) return place + static_cast<std::size_t>(std::countr_zero(mask));
  }
#endif
  for (; place < text.size(); ++place) {
    const Mark mark = kMarks[static_cast<unsigned char>(text[place])];
    if (mark == Mark::None) continue;
    if (parentheses == Parentheses::Stop || mark != Mark::Parenthesis) break;
  }
  return place;
}

}  // namespace vexltags::thorough
