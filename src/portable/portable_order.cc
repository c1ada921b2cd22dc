// SPDX-License-Identifier: MIT
// Compares names as the binary searches of other readers do.
#include "portable/portable_order.h"

#include <algorithm>
#include <string_view>

namespace vexltags {
namespace {

std::string_view NameOf(const NamedLine& line) {
  return std::string_view(line.text).substr(0, line.nameLength);
}

unsigned char FoldUpwards(char c) {
  return static_cast<unsigned char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
}

bool LessFolded(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(
      a.begin(), a.end(), b.begin(), b.end(),
      [](char left, char right) { return FoldUpwards(left) < FoldUpwards(right); });
}

bool LessByBytes(const NamedLine& a, const NamedLine& b) {
  const int order = NameOf(a).compare(NameOf(b));
  return order != 0 ? order < 0 : a.text < b.text;
}

bool LessByFoldedNames(const NamedLine& a, const NamedLine& b) {
  if (LessFolded(NameOf(a), NameOf(b))) return true;
  if (LessFolded(NameOf(b), NameOf(a))) return false;
  return LessByBytes(a, b);
}

}  // namespace

void SortForReaders(std::vector<NamedLine>& lines, char mark) {
  if (mark == '1') std::sort(lines.begin(), lines.end(), LessByBytes);
  if (mark == '2') std::sort(lines.begin(), lines.end(), LessByFoldedNames);
}

}  // namespace vexltags
