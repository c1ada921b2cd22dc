// SPDX-License-Identifier: MIT
// Tests of the conversion to plain paths.
#include "portable/portable_path.h"

#include <gtest/gtest.h>

#include <string>

#include "base/paths.h"

namespace vexltags {
namespace {

TEST(PlainPath, RemovesEscapes) {
  struct Case {
    const char* field;
    const char* path;
  };
  const Case cases[] = {
      {"/a/b.c", "/a/b.c"},
      {"../b.c", "../b.c"},
      {"/a\\ b/c.c", "/a b/c.c"},
      {"/\\(\\)\\*\\<\\>\\?\\[\\]\\^\\\"\\'.c", "/()*<>?[]^\"'.c"},
      {"/a\\\tb\\\nc", "/a\tb\nc"},
      {"/a\\b.c", "/a\\b.c"},
      {"/a\\\\b.c", "/a\\\\b.c"},
      {"/a\\\\\\ b.c", "/a\\\\ b.c"},
      {"/a\\", "/a\\"},
      {"", ""},
  };
  for (const Case& one : cases) EXPECT_EQ(PlainPath(one.field, "/home/me"), one.path) << one.field;
}

TEST(PlainPath, ReversesEscapePath) {
  for (const std::string path : {"/a b/(c)/'d'", "/x\ty\nz", "/a\\\\b c", "/tail\\"}) {
    EXPECT_EQ(PlainPath(EscapePath(path), ""), path);
  }
}

TEST(PlainPath, ExpandsOnlyALeadingTilde) {
  EXPECT_EQ(PlainPath("~/a\\ b.c", "/home/me"), "/home/me/a b.c");
  EXPECT_EQ(PlainPath("~/b.c", "/h\\ o"), "/h\\ o/b.c");
  EXPECT_EQ(PlainPath("~/b.c", ""), "~/b.c");
  EXPECT_EQ(PlainPath("/x~/b.c", "/home/me"), "/x~/b.c");
  EXPECT_EQ(PlainPath("~me/b.c", "/home/me"), "~me/b.c");
}

TEST(FitsInLine, RejectsTabAndNewline) {
  EXPECT_TRUE(FitsInLine("/a b\r\\.c"));
  EXPECT_FALSE(FitsInLine("/a\tb"));
  EXPECT_FALSE(FitsInLine("/a\nb"));
}

}  // namespace
}  // namespace vexltags
