// SPDX-License-Identifier: MIT
// Implements the functions on strings by simple loops over the characters.
#include "base/text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace vexltags {

bool EndsWith(const std::string& text, const std::string& suffix) { return text.ends_with(suffix); }

std::string& ReplaceFirst(std::string& text, const std::string& from, const std::string& to) {
  const std::size_t position = text.find(from);
  if (position != std::string::npos) text.replace(position, from.size(), to);
  return text;
}

std::string& ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  if (from.empty()) return text;
  std::string result;
  std::size_t copied = 0;
  for (std::size_t found = text.find(from); found != std::string::npos;
       found = text.find(from, copied)) {
    result.append(text, copied, found - copied).append(to);
    copied = found + from.size();
  }
  if (copied != 0) text = result.append(text, copied);
  return text;
}

bool HasWhitespace(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
  // Most names have no byte up to the blank, which shows eight bytes at a time: only for such a
  // byte does subtracting `!` borrow from a highest bit that was clear.
  constexpr std::uint64_t kEach = 0x0101010101010101;
  std::uint64_t bytes = 0;
  for (; text.size() >= sizeof bytes; text.remove_prefix(sizeof bytes)) {
    std::memcpy(&bytes, text.data(), sizeof bytes);
    const bool mayBeBlank = ((bytes - kEach * '!') & ~bytes & kEach * 0x80) != 0;
    if (mayBeBlank && std::any_of(text.begin(), text.begin() + sizeof bytes, isBlank)) return true;
  }
  return std::any_of(text.begin(), text.end(), isBlank);
}

std::string CollapseWhitespace(std::string_view text, const std::string& separator) {
  std::string result;
  result.reserve(text.size());
  bool afterBlank = false;
  for (const char c : text) {
    if (c == '\t' || c == '\n' || c == '\r' || c == ' ') {
      afterBlank = true;
      continue;
    }
    if (afterBlank) result += separator;
    afterBlank = false;
    result += c;
  }
  return result;
}

}  // namespace vexltags
