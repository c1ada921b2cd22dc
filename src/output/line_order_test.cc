// SPDX-License-Identifier: MIT
// Tests of the orders of tag lines.
#include "output/line_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace vexltags {
namespace {

// Sorts strings: the NUL byte that the order needs follows each of them.
void Sort(std::vector<std::string>& lines, std::int32_t sort) {
  std::vector<std::string_view> views(lines.begin(), lines.end());
  SortLines(views, sort);
  lines = std::vector<std::string>(views.begin(), views.end());
}

TEST(CaseCompare, OrdersNamesThenLines) {
  const struct {
    const char* why;
    std::string first;
    std::string second;
  } cases[] = {
      {"case is folded", "abc\tx", "ABD\ty"},
      {"upper case first among case-equal names", "Abc\tz", "abc\ta"},
      {"upper case first decides before the file", "ABC\tz\n", "aBC\ta\n"},
      {"a shorter name comes first", "abc\tz", "abcd\ta"},
      {"a tab sorts before an underscore", "abc\tz", "abc_d\ta"},
      {"also when the longer name is in upper case", "abc\tz", "ABCD\ta"},
      {"an underscore sorts before a folded letter", "a_b\t", "aBb\t"},
      {"equal names fall to the file", "abc\ta.c\t9", "abc\tb.c\t1"},
      {"after the name case is not folded", "abc\tB", "abc\ta"},
      {"line numbers compare as text", "abc\ta.c\t10;\"", "abc\ta.c\t9;\""},
      {"a line that is a prefix comes first", "abc\ta", "abc\tab"},
      {"a line without a tab is all name", "ABC\tx", "abc"},
      {"a line without a tab against a longer name", "ab\n", "abc\t"},
      {"bytes above ASCII are unsigned", "az\t", "a\xc3\xa4\t"},
      {"bytes above ASCII are not folded", "\xc3\x84\t", "\xc3\xa4\t"},
      {"an empty name", "\ta", "a\t"},
      {"a NUL byte ends the text", std::string("a\0b\t", 4), "a\t"},
  };
  for (const auto& c : cases) {
    EXPECT_TRUE(CaseCompare()(c.first, c.second)) << c.why;
    EXPECT_FALSE(CaseCompare()(c.second, c.first)) << c.why;
    std::vector<std::string> lines = {c.second, c.first};
    Sort(lines, 2);
    EXPECT_EQ(lines, (std::vector<std::string>{c.first, c.second})) << c.why;
  }
}

TEST(CaseCompare, IsFalseForEqualLines) {
  for (const char* line : {"", "abc", "abc\tx\n"}) EXPECT_FALSE(CaseCompare()(line, line));
}

TEST(SortLines, KeepsTheOrderFor0) {
  const std::vector<std::string> lines = {"b\t\n", "a\t\n", "C\t\n"};
  std::vector<std::string> sorted = lines;
  Sort(sorted, 0);
  EXPECT_EQ(sorted, lines);
}

TEST(SortLines, SortsByBytesFor1) {
  std::vector<std::string> lines = {"\xc3\xa4\t\n",
                                    "abcdefgh_\t\n",
                                    "b\t\n",
                                    "abcdefgh\t\n",
                                    "abcdefghB\t\n",
                                    "_\t\n",
                                    "B\t\n",
                                    "a\t\n",
                                    "ab\t\n",
                                    "",
                                    "a"};
  Sort(lines, 1);
  EXPECT_EQ(lines,
            (std::vector<std::string>{"", "B\t\n", "_\t\n", "a", "a\t\n", "ab\t\n", "abcdefgh\t\n",
                                      "abcdefghB\t\n", "abcdefgh_\t\n", "b\t\n", "\xc3\xa4\t\n"}));
}

TEST(SortLines, KeepsDuplicates) {
  std::vector<std::string> lines = {"b\t\n", "a\t\n", "b\t\n"};
  Sort(lines, 2);
  EXPECT_EQ(lines, (std::vector<std::string>{"a\t\n", "b\t\n", "b\t\n"}));
}

// Names of lengths around multiples of eight, of letters that are close to each other in one order
// and far apart in the other.
TEST(SortLines, AgreesWithThePlainComparators) {
  std::mt19937 random(20250316);
  const std::string letters("aAbB_\t\n\xe4\0", 9);
  std::vector<std::string> lines(3000);
  for (std::string& line : lines) {
    const std::size_t length = random() % 12;
    const std::size_t equal[] = {0, 8, 21, 300};
    line.assign(equal[random() % 4], 'a');
    for (std::size_t i = 0; i < length; ++i) line += letters[random() % letters.size()];
    line += "\tf\n";
  }
  std::vector<std::string> sorted = lines;
  Sort(sorted, 2);
  EXPECT_TRUE(std::is_sorted(sorted.begin(), sorted.end(), CaseCompare()));
  EXPECT_TRUE(std::is_permutation(sorted.begin(), sorted.end(), lines.begin(), lines.end()));

  sorted.push_back("ab");
  Sort(sorted, 2);
  EXPECT_TRUE(std::is_sorted(sorted.begin(), sorted.end(), CaseCompare()));

  std::vector<std::string> byBytes = lines;
  Sort(byBytes, 1);
  std::sort(lines.begin(), lines.end());
  EXPECT_EQ(byBytes, lines);
}

}  // namespace
}  // namespace vexltags
