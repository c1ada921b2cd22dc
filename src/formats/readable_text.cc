// SPDX-License-Identifier: MIT
// Decodes UTF-8 as RFC 3629 defines it.
#include "formats/readable_text.h"

#include <cstdint>
#include <cstring>

namespace vexltags {
namespace {

unsigned char At(std::string_view text, std::size_t i) {
  return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
}

bool Continues(std::string_view text, std::size_t from, std::size_t count) {
  for (std::size_t i = from; i < from + count; ++i) {
    if ((At(text, i) & 0xC0) != 0x80) return false;
  }
  return true;
}

/// Returns the length of the character at the start of `text`, which is not ASCII; 0 if it is not
/// valid: overlong, a surrogate, beyond U+10FFFF or incomplete.
std::size_t CharacterLength(std::string_view text) {
  const unsigned char first = At(text, 0);
  const unsigned char second = At(text, 1);
  if (first >= 0xC2 && first <= 0xDF) return Continues(text, 1, 1) ? 2 : 0;
  if (first >= 0xE0 && first <= 0xEF) {
    const bool isAllowed = (first != 0xE0 || second >= 0xA0) && (first != 0xED || second < 0xA0);
    return isAllowed && Continues(text, 1, 2) ? 3 : 0;
  }
  if (first >= 0xF0 && first <= 0xF4) {
    const bool isAllowed = (first != 0xF0 || second >= 0x90) && (first != 0xF4 || second < 0x90);
    return isAllowed && Continues(text, 1, 3) ? 4 : 0;
  }
  return 0;
}

}  // namespace

std::size_t Utf8Length(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size()) {
    std::uint64_t word = 0;
    if (i + sizeof word <= text.size()) {
      std::memcpy(&word, text.data() + i, sizeof word);
      if ((word & 0x8080808080808080) == 0) {
        i += sizeof word;
        continue;
      }
    }
    if (At(text, i) < 0x80) {
      ++i;
      continue;
    }
    const std::size_t length = CharacterLength(text.substr(i));
    if (length == 0) break;
    i += length;
  }
  return i;
}

std::string_view ReadableText(std::string_view line) {
  // Two searches for one character are faster than one for a set.
  line = line.substr(0, line.find('\0'));
  line = line.substr(0, line.find('\r'));
  return line.substr(0, Utf8Length(line));
}

}  // namespace vexltags
