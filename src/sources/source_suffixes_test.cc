// SPDX-License-Identifier: MIT
// Tests of suffixes and names of languages.
#include "sources/source_suffixes.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

TEST(LanguagesOfSuffix, KnowsSources) {
  struct Case {
    const char* path;
    int languages;
  };
  const Case cases[] = {
      {"a.c", kC},         {"d.x/a.h", kAnyHeader}, {"a.cc", kCxx},       {"a.c++", kCxx},
      {"a.hpp", kCxx},     {"a.tcc", kCxx},         {"a.m", kObjectiveC}, {"a.mm", kObjectiveC},
      {"a.swift", kSwift}, {"a.py", kPython},       {"a.pyx", kPython},   {"a.C", kC | kCxx},
      {"a.H", kAnyHeader}, {"a.CPP", kCxx},         {".c", kC},           {"a.b.c", kC},
  };
  for (const Case& one : cases) EXPECT_EQ(LanguagesOfSuffix(one.path), one.languages) << one.path;
}

TEST(LanguagesOfSuffix, KnowsNothingElse) {
  // Stubs and upper case would be read as C, since the languages go by exact suffixes.
  for (const char* path : {"a", "a.", "c", "a.pyi", "a.PY", "a.Swift", "a.java", "a.c~", "a.c.orig",
                           "d.c/a", "a.txt", ""}) {
    EXPECT_EQ(LanguagesOfSuffix(path), 0) << path;
  }
}

TEST(HasNoSuffix, LooksAtTheLastComponent) {
  EXPECT_TRUE(HasNoSuffix("vector"));
  EXPECT_TRUE(HasNoSuffix("include.d/vector"));
  EXPECT_FALSE(HasNoSuffix("include/a.h"));
  EXPECT_FALSE(HasNoSuffix(".profile"));
}

TEST(ParseLanguages, TakesNamesInAnyCase) {
  LanguageSet set = 0;
  EXPECT_EQ(ParseLanguages("C", set), "");
  EXPECT_EQ(set, kC);
  EXPECT_EQ(ParseLanguages("c++,SWIFT,", set), "");
  EXPECT_EQ(set, kCxx | kSwift);
  EXPECT_EQ(ParseLanguages("ObjC", set), "");
  EXPECT_EQ(set, kObjectiveC);
  EXPECT_EQ(ParseLanguages("all", set), "");
  EXPECT_EQ(set, kAllLanguages);
}

TEST(ParseLanguages, ReturnsTheFirstUnknownName) {
  LanguageSet set = kSwift;
  EXPECT_EQ(ParseLanguages("C,Java,Go", set), "Java");
  EXPECT_EQ(ParseLanguages("", set), ",");
  EXPECT_EQ(ParseLanguages(",", set), ",");
  EXPECT_EQ(set, kSwift);
}

}  // namespace
}  // namespace vexltags
