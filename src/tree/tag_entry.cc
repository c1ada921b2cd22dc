// SPDX-License-Identifier: MIT
// The tags of one file in a compact form, from which every output format can be written.
#include "tree/tag_entry.h"

#include <cstring>

#include "tree/varint.h"

namespace vexltags::tree {
namespace {

constexpr std::string_view kAnon = "__anon";
constexpr unsigned kFlagBits = 3;
constexpr std::size_t kMostNumbers = 4 * kLongestVarint;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The offset of the next made-up name in `text`; npos if there is none. Faster than `find`, which
/// stops at each underscore.
std::size_t FindAnon(std::string_view text, std::size_t from) {
  if (from >= text.size()) return std::string_view::npos;
  const void* const found =
      memmem(text.data() + from, text.size() - from, kAnon.data(), kAnon.size());
  if (found == nullptr) return std::string_view::npos;
  return static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

std::string Renumbered(std::string_view text, std::int32_t base) {
  std::string result;
  std::size_t from = 0;
  for (std::size_t at; (at = text.find(kAnon, from)) != std::string_view::npos;) {
    at += kAnon.size();
    result += text.substr(from, at - from);
    std::int64_t number = 0;
    from = at;
    while (from < text.size() && IsDigit(text[from]) && from - at < 10) {
      number = number * 10 + (text[from++] - '0');
    }
    if (from > at) result += std::to_string(number + base);
  }
  result += text.substr(from);
  return result;
}

}  // namespace

// An entry is the size of what follows, then that of the name, the name with a tab, and the rest.
void AppendEntry(std::string& entries, const TagEntry& entry) {
  char numbers[kMostNumbers];
  char* end = PutVarint(numbers, entry.rest.size() << kFlagBits | (entry.isWhole ? 1U : 0U) |
                                     (entry.hasTab ? 0U : 2U) | (entry.isPlain ? 4U : 0U));
  end = PutVarint(end, entry.text.size());
  end = PutVarint(end, entry.scopeKind.size());
  end = PutVarint(end, entry.offset);
  const auto numbersSize = static_cast<std::size_t>(end - numbers);
  char nameSize[kLongestVarint];
  const std::string_view name(
      nameSize, static_cast<std::size_t>(PutVarint(nameSize, entry.name.size()) - nameSize));
  AppendVarint(entries, name.size() + entry.name.size() + 1 + numbersSize + entry.rest.size() +
                            entry.text.size() + entry.scopeKind.size());
  entries += name;
  entries += entry.name;
  entries += '\t';
  entries.append(numbers, numbersSize);
  entries += entry.rest;
  entries += entry.text;
  entries += entry.scopeKind;
}

bool SkipEntry(std::string_view entries, std::size_t& at) {
  const std::uint64_t size = ReadVarint(entries, at);
  if (at >= entries.size() || size > entries.size() - at) {
    at = entries.size();
    return false;
  }
  at += size;
  return true;
}

bool ReadEntry(std::string_view entries, std::size_t& at, TagEntry& entry) {
  std::size_t next = at;
  if (!SkipEntry(entries, next)) {
    at = next;
    return false;
  }
  ReadVarint(entries, at);
  const std::string_view all = entries.substr(0, next);
  const std::uint64_t nameSize = ReadVarint(all, at);
  if (at > all.size() || nameSize >= all.size() - at) {
    at = entries.size();
    return false;
  }
  entry.name = all.substr(at, nameSize);
  at += nameSize + 1;
  const std::uint64_t restSize = ReadVarint(all, at);
  entry.isWhole = (restSize & 1U) != 0;
  entry.hasTab = (restSize & 2U) == 0;
  entry.isPlain = (restSize & 4U) != 0;
  const std::uint64_t textSize = ReadVarint(all, at);
  const std::uint64_t kindSize = ReadVarint(all, at);
  entry.offset = ReadVarint(all, at);
  if (at > all.size() || (restSize >> kFlagBits) + textSize + kindSize != all.size() - at) {
    at = entries.size();
    return false;
  }
  entry.rest = all.substr(at, restSize >> kFlagBits);
  entry.text = all.substr(at + entry.rest.size(), textSize);
  entry.scopeKind = all.substr(at + entry.rest.size() + textSize, kindSize);
  at = next;
  return true;
}

void AppendRawLine(std::string& out, const TagEntry& entry, std::string_view stored) {
  out += entry.name;
  if (entry.hasTab) out += '\t';
  if (!entry.isWhole) {
    out += stored;
    out += '\t';
  }
  out += entry.rest;
  out += '\n';
}

void SplitRawLine(std::string_view line, std::string_view stored, TagEntry& entry) {
  const std::size_t tab = line.find('\t');
  entry.hasTab = tab != std::string_view::npos;
  entry.name = line.substr(0, tab);
  entry.rest = entry.hasTab ? line.substr(tab + 1) : std::string_view();
  entry.isWhole = entry.rest.size() <= stored.size() || !entry.rest.starts_with(stored) ||
                  entry.rest[stored.size()] != '\t';
  if (!entry.isWhole) entry.rest.remove_prefix(stored.size() + 1);
}

std::string_view NameWithTab(std::string_view entries, std::size_t at) {
  ReadVarint(entries, at);
  const std::uint64_t size = ReadVarint(entries, at);
  return at < entries.size() ? entries.substr(at, size + 1) : std::string_view();
}

std::int32_t LineOf(std::string_view rest) {
  std::int64_t number = 0;
  for (std::size_t i = 0; i < rest.size() && IsDigit(rest[i]); ++i) {
    if (number > INT32_MAX) return 0;
    number = number * 10 + (rest[i] - '0');
  }
  return number > INT32_MAX ? 0 : static_cast<std::int32_t>(number);
}

std::string RenumberAnon(std::string_view entries, std::int32_t base) {
  std::string result;
  result.reserve(entries.size() + entries.size() / 16);
  std::size_t copied = 0;
  std::size_t at = 0;
  for (std::size_t anon; (anon = FindAnon(entries, at)) != std::string_view::npos;) {
    std::size_t begin = at;
    while (at <= anon) {
      begin = at;
      if (!SkipEntry(entries, at)) return result;
    }
    result += entries.substr(copied, begin - copied);
    copied = at;
    TagEntry entry;
    if (!ReadEntry(entries, begin, entry)) return result;
    const std::string name = Renumbered(entry.name, base);
    const std::string rest = Renumbered(entry.rest, base);
    entry.name = name;
    entry.rest = rest;
    AppendEntry(result, entry);
  }
  result += entries.substr(copied);
  return result;
}

}  // namespace vexltags::tree
