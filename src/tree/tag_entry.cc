// SPDX-License-Identifier: MIT
// The tags of one file in a compact form, from which every output format can be written.
#include "tree/tag_entry.h"

#include <algorithm>
#include <cstdlib>

#include "tree/varint.h"

namespace vexltags::tree {
namespace {

constexpr std::string_view kAnon = "__anon";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

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

void AppendEntry(std::string& entries, const TagEntry& entry) {
  AppendVarint(entries, entry.line.size() << 1U | (entry.isWhole ? 1U : 0U));
  AppendVarint(entries, entry.nameLength);
  AppendVarint(entries, entry.text.size());
  AppendVarint(entries, entry.scopeKind.size());
  AppendVarint(entries, entry.offset);
  entries += entry.line;
  entries += entry.text;
  entries += entry.scopeKind;
}

bool ReadEntry(std::string_view entries, std::size_t& at, TagEntry& entry) {
  if (at >= entries.size()) return false;
  const std::uint64_t lineSize = ReadVarint(entries, at);
  entry.isWhole = (lineSize & 1U) != 0;
  entry.nameLength = ReadVarint(entries, at);
  const std::uint64_t textSize = ReadVarint(entries, at);
  const std::uint64_t kindSize = ReadVarint(entries, at);
  entry.offset = ReadVarint(entries, at);
  const std::uint64_t size = (lineSize >> 1U) + textSize + kindSize;
  if (at > entries.size() || size > entries.size() - at || entry.nameLength > lineSize >> 1U) {
    at = entries.size();
    return false;
  }
  entry.line = entries.substr(at, lineSize >> 1U);
  entry.text = entries.substr(at + entry.line.size(), textSize);
  entry.scopeKind = entries.substr(at + entry.line.size() + textSize, kindSize);
  at += size;
  return true;
}

void AppendRawLine(std::string& out, const TagEntry& entry, std::string_view stored) {
  if (entry.isWhole) {
    out += entry.line;
  } else {
    out += entry.Name();
    out += '\t';
    out += stored;
    out += entry.line.substr(entry.nameLength);
  }
  out += '\n';
}

void SplitRawLine(std::string_view line, std::string_view stored, std::string& joined,
                  TagEntry& entry) {
  const std::size_t tab = std::min(line.find('\t'), line.size());
  const std::size_t after = tab + 1 + stored.size();
  entry.nameLength = tab;
  entry.isWhole =
      after >= line.size() || line.substr(tab + 1, stored.size()) != stored || line[after] != '\t';
  if (entry.isWhole) {
    joined = line;
  } else {
    joined = line.substr(0, tab);
    joined += line.substr(after);
  }
  entry.line = joined;
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
  TagEntry entry;
  for (std::size_t at = 0; ReadEntry(entries, at, entry);) {
    if (entry.line.find(kAnon) == std::string_view::npos) {
      AppendEntry(result, entry);
      continue;
    }
    const std::string name = Renumbered(entry.Name(), base);
    const std::string line = name + Renumbered(entry.line.substr(entry.nameLength), base);
    TagEntry renumbered = entry;
    renumbered.line = line;
    renumbered.nameLength = name.size();
    AppendEntry(result, renumbered);
  }
  return result;
}

}  // namespace vexltags::tree
