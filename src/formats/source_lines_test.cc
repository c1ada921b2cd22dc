// SPDX-License-Identifier: MIT
// Tests of finding lines by number.
#include "formats/source_lines.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

TEST(SourceLines, FindsLinesWithTheirOffsets) {
  const SourceLines lines("one\n\nthree\r\nfour\rstill four");
  EXPECT_EQ(lines.Line(1).text, "one");
  EXPECT_EQ(lines.Line(1).offset, 0U);
  EXPECT_EQ(lines.Line(2).text, "");
  EXPECT_EQ(lines.Line(2).offset, 4U);
  EXPECT_EQ(lines.Line(3).text, "three\r");
  EXPECT_EQ(lines.Line(3).offset, 5U);
  EXPECT_EQ(lines.Line(4).text, "four\rstill four");
  EXPECT_EQ(lines.Line(4).offset, 12U);
}

TEST(SourceLines, LeavesOutCarriageReturnsIfEveryLineHasOne) {
  const SourceLines lines("one\r\n\r\nthree\r\nlast");
  EXPECT_EQ(lines.Line(1).text, "one");
  EXPECT_EQ(lines.Line(2).text, "");
  EXPECT_EQ(lines.Line(2).offset, 5U);
  EXPECT_EQ(lines.Line(3).text, "three");
  EXPECT_EQ(lines.Line(4).text, "last");
  EXPECT_EQ(SourceLines("one\r\n\nthree\r\n").Line(1).text, "one\r");
}

TEST(SourceLines, HasNoLineOutsideTheText) {
  const SourceLines lines("one\n");
  for (const long number : {-1L, 0L, 2L, 1000000000000L}) {
    EXPECT_EQ(lines.Line(number).text, "") << number;
    EXPECT_EQ(lines.Line(number).offset, 0U) << number;
  }
  EXPECT_EQ(SourceLines("").Line(1).text, "");
  EXPECT_EQ(SourceLines("\n").Line(1).text, "");
}

TEST(SourceLines, LeavesOutAByteOrderMark) {
  const SourceLines lines("\xEF\xBB\xBFone\n\xEF\xBB\xBFtwo");
  EXPECT_EQ(lines.Line(1).text, "one");
  EXPECT_EQ(lines.Line(1).offset, 3U);
  EXPECT_EQ(lines.Line(2).text, "\xEF\xBB\xBFtwo");
}

}  // namespace
}  // namespace vexltags
