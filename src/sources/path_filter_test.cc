// SPDX-License-Identifier: MIT
// Tests of judging paths with the directories that contain them.
#include "sources/path_filter.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

IgnorePatterns Patterns(std::initializer_list<const char*> texts) {
  IgnorePatterns patterns;
  for (const char* text : texts) patterns.Add(text);
  return patterns;
}

TEST(PathFilter, LeavesOutWhatIsBelowAnExcludedDirectory) {
  const IgnorePatterns patterns = Patterns({"out/", "!a.c"});
  PathFilter filter(patterns);
  EXPECT_EQ(filter.Judge("out", true), PathVerdict::kExcluded);
  EXPECT_EQ(filter.Judge("out", false), PathVerdict::kPlain);
  EXPECT_EQ(filter.Judge("out/a.c", false), PathVerdict::kExcluded);
  EXPECT_EQ(filter.Judge("x/out/y/z.c", false), PathVerdict::kExcluded);
  EXPECT_EQ(filter.Judge("x/out.c", false), PathVerdict::kPlain);
}

TEST(PathFilter, ReportsFilesThatPatternsName) {
  const IgnorePatterns patterns = Patterns({"!*.inc", "!gen/", "!lib/**", "!doc/*", "!/x/table"});
  PathFilter filter(patterns);
  EXPECT_EQ(filter.Judge("a.inc", false), PathVerdict::kNamed);
  EXPECT_EQ(filter.Judge("x/table", false), PathVerdict::kNamed);
  EXPECT_EQ(filter.Judge("x/table", true), PathVerdict::kPlain);
  EXPECT_EQ(filter.Judge("y/table", false), PathVerdict::kPlain);
  EXPECT_EQ(filter.Judge("gen/a.png", false), PathVerdict::kPlain);
  EXPECT_EQ(filter.Judge("lib/a.png", false), PathVerdict::kPlain);
  EXPECT_EQ(filter.Judge("doc/a.png", false), PathVerdict::kPlain);
}

TEST(PathFilter, WithoutPatternsTakesEverything) {
  const IgnorePatterns patterns;
  PathFilter filter(patterns);
  EXPECT_EQ(filter.Judge("a/b.c", false), PathVerdict::kPlain);
}

}  // namespace
}  // namespace vexltags
