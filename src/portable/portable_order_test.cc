// SPDX-License-Identifier: MIT
// Tests of the sort orders.
#include "portable/portable_order.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexltags {
namespace {

std::vector<std::string> Sorted(const std::vector<std::string>& texts, char mark) {
  std::vector<NamedLine> lines;
  for (const std::string& text : texts) lines.push_back({text, text.find('\t')});
  SortForReaders(lines, mark);
  std::vector<std::string> result;
  for (const NamedLine& line : lines) result.push_back(line.text);
  return result;
}

using Lines = std::vector<std::string>;

TEST(SortForReaders, KeepsTheOrderOfAnUnsortedFile) {
  const Lines lines = {"b\t1", "a\t1", "B\t1"};
  EXPECT_EQ(Sorted(lines, '0'), lines);
}

TEST(SortForReaders, SortsNamesByBytes) {
  EXPECT_EQ(Sorted({"b\t1", "_\t1", "a\t2", "\xc3\t1", "B\t1", "a\t1", "a\x01\t1", "ab\t1"}, '1'),
            (Lines{"B\t1", "_\t1", "a\t1", "a\t2", "a\x01\t1", "ab\t1", "b\t1", "\xc3\t1"}));
}

TEST(SortForReaders, FoldsToUpperCase) {
  // The six characters between Z and a sort after every letter.
  EXPECT_EQ(
      Sorted({"_a\t1", "a_\t1", "ab\t1", "aB\t1", "AC\t1", "[\t1", "z\t1", "{\t1", "\xc3\t1"}, '2'),
      (Lines{"aB\t1", "ab\t1", "AC\t1", "a_\t1", "z\t1", "[\t1", "_a\t1", "{\t1", "\xc3\t1"}));
}

TEST(SortForReaders, SortsEqualNamesByLine) {
  EXPECT_EQ(Sorted({"a\tz", "A\ty", "a\tx", "A\tw"}, '2'), (Lines{"A\tw", "A\ty", "a\tx", "a\tz"}));
}

}  // namespace
}  // namespace vexltags
