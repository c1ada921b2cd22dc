// SPDX-License-Identifier: MIT
// Tests of the searches in bytes.
#include "base/byte_search.h"

#include <gtest/gtest.h>

#include <string_view>

namespace vexltags {
namespace {

std::ptrdiff_t LineEndLength(std::string_view text) {
  return PastLineEnd(text.data(), text.data() + text.size()) - text.data();
}

/// The offset past the first `*/`; -1 when there is none.
std::ptrdiff_t CommentClose(std::string_view text) {
  const char* found = PastCommentClose(text.data(), text.data() + text.size());
  return found == nullptr ? -1 : found - text.data();
}

TEST(FindByte, GivesTheFirstOrTheLimit) {
  const unsigned char bytes[] = {'a', 'b', 0, 'b', 0xff};
  EXPECT_EQ(FindByte('b', bytes, bytes + 5), bytes + 1);
  EXPECT_EQ(FindByte('b', bytes + 2, bytes + 5), bytes + 3);
  EXPECT_EQ(FindByte('\xff', bytes, bytes + 5), bytes + 4);
  EXPECT_EQ(FindByte('b', bytes + 2, bytes + 3), bytes + 3);
  EXPECT_EQ(FindByte('b', bytes, bytes), bytes);
}

TEST(PastLineEnd, TakesCrLfAsOne) {
  EXPECT_EQ(LineEndLength("\na"), 1);
  EXPECT_EQ(LineEndLength("\r\na"), 2);
  EXPECT_EQ(LineEndLength("\ra"), 1);
  EXPECT_EQ(LineEndLength("\r"), 1);
  EXPECT_EQ(LineEndLength("\n\r"), 1);
  EXPECT_EQ(LineEndLength("a\n"), 0);
  EXPECT_EQ(LineEndLength(""), 0);
}

TEST(PastCommentClose, FindsTheFirst) {
  EXPECT_EQ(CommentClose("a*/b*/"), 3);
  EXPECT_EQ(CommentClose("**/"), 3);
  EXPECT_EQ(CommentClose("* /*/"), 5);
  EXPECT_EQ(CommentClose("/*"), -1);
  EXPECT_EQ(CommentClose("a*"), -1);
  EXPECT_EQ(CommentClose(""), -1);
}

}  // namespace
}  // namespace vexltags
