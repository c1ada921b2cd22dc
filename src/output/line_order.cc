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

std::size_t NameLength(const std::string& line) { return std::min(line.find('\t'), line.size()); }

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
std::uint64_t FoldedLead(const std::string& line) {
  const std::size_t end = std::min(NameLength(line) + 1, line.size());
  return LeadingBytes(line.data(), strnlen(line.data(), end), FoldAscii);
}

std::uint64_t ByteLead(const std::string& line) {
  return LeadingBytes(line.data(), line.size(), [](char c) { return c; });
}

// Sorts by a leading number that agrees with `before`, and by `before` where the numbers are equal;
// most comparisons then touch no line.
template <class Lead, class Before>
void SortByLead(std::vector<std::string>& lines, Lead lead, Before before) {
  std::vector<std::pair<std::uint64_t, std::string*>> keyed;
  keyed.reserve(lines.size());
  for (std::string& line : lines) keyed.emplace_back(lead(line), &line);
  std::sort(keyed.begin(), keyed.end(), [&before](const auto& a, const auto& b) {
    return a.first != b.first ? a.first < b.first : before(*a.second, *b.second);
  });
  std::vector<std::string> sorted;
  sorted.reserve(lines.size());
  for (const auto& [number, line] : keyed) sorted.push_back(std::move(*line));
  lines = std::move(sorted);
}

}  // namespace

bool CaseCompare::operator()(const std::string& a, const std::string& b) const {
  const std::size_t n = std::max(NameLength(a), NameLength(b));
  int order = strncasecmp(a.c_str(), b.c_str(), n);
  if (order == 0) order = std::strncmp(a.c_str(), b.c_str(), n);
  if (order == 0) order = std::strcmp(a.c_str(), b.c_str());
  return order < 0;
}

void SortLines(std::vector<std::string>& lines, std::int32_t sort) {
  if (sort == 1) SortByLead(lines, ByteLead, std::less<>());
  if (sort != 2) return;
  // A line without a tab may end where the other line has its tab. That is no difference between
  // the names, so case comes first, which the leading bytes cannot tell.
  const bool haveNames = std::all_of(lines.begin(), lines.end(), [](const std::string& line) {
    return line.find('\t') != std::string::npos;
  });
  if (haveNames) {
    SortByLead(lines, FoldedLead, CaseCompare());
  } else {
    std::sort(lines.begin(), lines.end(), CaseCompare());
  }
}

}  // namespace vexltags
