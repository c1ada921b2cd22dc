// SPDX-License-Identifier: MIT
// Tests of the patterns of --exclude.
#include "ctags/exclusion.h"

#include <gtest/gtest.h>

namespace vexltags::ctags {
namespace {

bool Excludes(const char* pattern, const char* path, const char* exception = "") {
  Settings settings;
  settings.exclusions = {pattern};
  settings.exceptions = {exception};
  return IsExcluded(path, settings);
}

TEST(Exclusion, MatchesBaseNames) {
  EXPECT_TRUE(Excludes("*.o", "a/b.o"));
  EXPECT_TRUE(Excludes("build", "a/build"));
  EXPECT_FALSE(Excludes("build", "a/builder"));
  EXPECT_FALSE(Excludes("build", "build/a.c"));
  EXPECT_TRUE(Excludes("build/", "build"));
}

TEST(Exclusion, MatchesWholePaths) {
  EXPECT_TRUE(Excludes("a/b.c", "a/b.c"));
  EXPECT_TRUE(Excludes("a/b.c", "./a/b.c"));
  EXPECT_TRUE(Excludes("./a/b.c", "a/b.c"));
  EXPECT_TRUE(Excludes("a/*.c", "a/x/b.c"));
  EXPECT_TRUE(Excludes("*/tmp/*", "/x/tmp/b.c"));
  EXPECT_FALSE(Excludes("b/c.c", "a/b/c.c"));
}

TEST(Exclusion, NeverMatchesTheFolderItself) {
  EXPECT_FALSE(Excludes(".", "."));
  EXPECT_FALSE(Excludes(".", "/a/."));
  EXPECT_FALSE(Excludes("", "a"));
}

TEST(Exclusion, HasExceptions) {
  EXPECT_FALSE(Excludes("*.c", "a/keep.c", "keep.*"));
  EXPECT_TRUE(Excludes("*.c", "a/other.c", "keep.*"));
}

TEST(Exclusion, HasDefaults) {
  const Settings settings;
  EXPECT_TRUE(IsExcluded("src/.git", settings));
  EXPECT_TRUE(IsExcluded("a.c~", settings));
  EXPECT_FALSE(IsExcluded("a.c", settings));
}

}  // namespace
}  // namespace vexltags::ctags
