// SPDX-License-Identifier: MIT
// Compares and sorts tag lines.
#include "output/line_order.h"

#include <strings.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <functional>
#include <utility>

namespace vexltags {

namespace {

std::size_t NameLength(std::string_view line) { return std::min(line.find('\t'), line.size()); }

char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// The first eight bytes of a text as a number, zeros behind a shorter one: two different numbers
// compare as the texts do, byte by byte and unsigned.
template <class Map>
std::uint64_t LeadingBytes(const char* text, std::size_t length, Map map) {
  std::uint64_t result = 0;
  for (std::size_t i = 0; i < sizeof result; ++i) {
    result = result << 8 | (i < length ? static_cast<unsigned char>(map(text[i])) : 0U);
  }
  return result;
}

// The folded name with its tab. Two lines that differ there differ within the longer name, and that
// decides their folded order; but see below for lines without a tab.
std::uint64_t FoldedLead(std::string_view line) {
  const std::size_t end = std::min(NameLength(line) + 1, line.size());
  return LeadingBytes(line.data(), strnlen(line.data(), end), FoldAscii);
}

std::uint64_t ByteLead(std::string_view line) {
  return LeadingBytes(line.data(), line.size(), [](char c) { return c; });
}

// Sorts by a leading number that agrees with `before`, and by `before` where the numbers are equal;
// most comparisons then touch no line.
template <class Lead, class Before>
void SortByLead(std::vector<std::string_view>& lines, Lead lead, Before before) {
  std::vector<std::pair<std::uint64_t, std::string_view>> keyed;
  keyed.reserve(lines.size());
  for (const std::string_view line : lines) keyed.emplace_back(lead(line), line);
  std::sort(keyed.begin(), keyed.end(), [&before](const auto& a, const auto& b) {
    return a.first != b.first ? a.first < b.first : before(a.second, b.second);
  });
  for (std::size_t i = 0; i < keyed.size(); ++i) lines[i] = keyed[i].second;
}

}  // namespace

bool CaseCompare::operator()(std::string_view a, std::string_view b) const {
  const std::size_t n = std::max(NameLength(a), NameLength(b));
  int order = strncasecmp(a.data(), b.data(), n);
  if (order == 0) order = std::strncmp(a.data(), b.data(), n);
  if (order == 0) order = std::strcmp(a.data(), b.data());
  return order < 0;
}

void SortLines(std::vector<std::string_view>& lines, std::int32_t sort) {
  if (sort == 1) SortByLead(lines, ByteLead, std::less<>());
  if (sort != 2) return;
  // A line without a tab may end where the other line has its tab. That is no difference between
  // the names, so case comes first, which the leading bytes cannot tell.
  const bool haveNames = std::all_of(lines.begin(), lines.end(), [](std::string_view line) {
    return line.find('\t') != std::string_view::npos;
  });
  if (haveNames) {
    SortByLead(lines, FoldedLead, CaseCompare());
  } else {
    std::sort(lines.begin(), lines.end(), CaseCompare());
  }
}

}  // namespace vexltags
