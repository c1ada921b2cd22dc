// SPDX-License-Identifier: MIT
// Tests of the names of languages.
#include "formats/language_names.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

TEST(LanguageName, FollowsTheSuffix) {
  struct Case {
    const char* path;
    const char* language;
  };
  const Case cases[] = {
      {"a.c", "C"},           {"a.h", "C++"},         {"a.cc", "C++"},    {"a.m", "ObjectiveC"},
      {"a.mm", "ObjectiveC"}, {"a.swift", "Swift"},   {"a.py", "Python"}, {"a.pyx", "Python"},
      {"a.C", "C++"},         {"include/map", "C++"}, {"a.swift.c", "C"},
  };
  for (const Case& one : cases) EXPECT_EQ(LanguageName(one.path), one.language) << one.path;
}

}  // namespace
}  // namespace vexltags
