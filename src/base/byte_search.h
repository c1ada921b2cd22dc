// SPDX-License-Identifier: MIT
// Searches in the bytes of a source, which may be `char` or `unsigned char`.
#pragma once

#include <cstddef>
#include <cstring>

#include "base/character_class.h"

namespace vexltags {

/// The first `c` in [from, limit); `limit` when there is none.
template <class Byte>
const Byte* FindByte(char c, const Byte* from, const Byte* limit) {
  const void* found = std::memchr(from, c, static_cast<std::size_t>(limit - from));
  return found == nullptr ? limit : static_cast<const Byte*>(found);
}

/// Past the line end at `at`, of which "\r\n" is one; `at` itself when there is none.
template <class Byte>
const Byte* PastLineEnd(const Byte* at, const Byte* end) {
  if (at == end || !IsLineEnd(*at)) return at;
  return *at == '\r' && end - at > 1 && at[1] == '\n' ? at + 2 : at + 1;
}

/// Past the first `*/` in [from, end); null when there is none.
template <class Byte>
const Byte* PastCommentClose(const Byte* from, const Byte* end) {
  for (;;) {
    const Byte* star = FindByte('*', from, end);
    if (end - star < 2) return nullptr;
    if (star[1] == '/') return star + 2;
    from = star + 1;
  }
}

}  // namespace vexltags
