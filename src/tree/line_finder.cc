// SPDX-License-Identifier: MIT
// Finds the lines of a text by their numbers.
#include "tree/line_finder.h"

#include <algorithm>

namespace vexltags::tree {
namespace {

/// Small enough for a count in one byte.
constexpr std::size_t kBlock = 64;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::uint32_t CountNewlines(const char* bytes, std::size_t size) {
  std::uint8_t count = 0;
  for (std::size_t i = 0; i < size; ++i) count += bytes[i] == '\n' ? 1 : 0;
  return count;
}

/// True if every newline of `text` follows a carriage return. Mostly the first one decides.
bool EndsInCrLf(std::string_view text) {
  for (std::size_t at = 0; (at = text.find('\n', at)) != std::string_view::npos; ++at) {
    if (at == 0 || text[at - 1] != '\r') return false;
  }
  return true;
}

}  // namespace

void LineFinder::SetText(std::string_view newText) {
  text = newText;
  endsInCrLf = EndsInCrLf(text);
  last = 0;
  before.resize(text.size() / kBlock + 2);
  std::uint32_t count = 0;
  std::size_t block = 0;
  for (std::size_t at = 0; at < text.size(); at += kBlock) {
    before[block++] = count;
    count += at + kBlock <= text.size() ? CountNewlines(text.data() + at, kBlock)
                                        : CountNewlines(text.data() + at, text.size() - at);
  }
  before.resize(block + 1);
  before[block] = count;
}

FoundLine LineFinder::Line(std::int32_t number) {
  if (number < 1 || static_cast<std::uint32_t>(number) > before.back() + 1) return {};
  std::size_t begin = 0;
  if (number == 1) {
    if (text.starts_with(kByteOrderMark)) begin = kByteOrderMark.size();
  } else {
    const auto count = static_cast<std::uint32_t>(number - 1);
    // Tags mostly follow each other closely.
    const bool isNear = before[last] < count && last + 1 < before.size();
    std::size_t block = isNear ? last : 0;
    const std::size_t limit = isNear ? std::min(before.size() - 1, last + 8) : 0;
    while (block < limit && before[block + 1] < count) ++block;
    if (!isNear || block == limit) {
      const auto first = before.begin() + static_cast<std::ptrdiff_t>(block);
      block =
          static_cast<std::size_t>(std::lower_bound(first, before.end(), count) - before.begin()) -
          1;
    }
    last = block;
    begin = AfterNewline(block, count);
  }
  if (begin >= text.size()) return {};
  std::string_view line = text.substr(begin);
  line = line.substr(0, line.find('\n'));
  if (endsInCrLf && line.ends_with('\r')) line.remove_suffix(1);
  return {line, begin};
}

std::size_t LineFinder::AfterNewline(std::size_t block, std::uint32_t count) const {
  std::size_t at = block * kBlock;
  for (std::uint32_t seen = before[block]; seen < count; ++seen) at = text.find('\n', at) + 1;
  return at;
}

}  // namespace vexltags::tree
