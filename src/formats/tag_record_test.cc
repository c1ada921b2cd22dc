// SPDX-License-Identifier: MIT
// Tests of taking tag lines apart.
#include "formats/tag_record.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

TEST(ReadRawTag, TakesFieldsApart) {
  struct Case {
    const char* line;
    const char* name;
    std::int32_t number;
    char kind;
    const char* scopeKind;
    const char* scope;
    const char* typeref;
  };
  const Case cases[] = {
      {"f\ta.c\t12;\"\tf", "f", 12, 'f', "", "", ""},
      {"x\ta.h\t3;\"\tm\tclass:A::B\ttyperef:struct:geo::P", "x", 3, 'm', "class", "A::B",
       "struct:geo::P"},
      {"p\ta.c\t3;\"\tv\ttyperef:struct:__anon1", "p", 3, 'v', "", "", "struct:__anon1"},
      {"operator ==\ta.h\t3;\"\tp\tnamespace:a", "operator ==", 3, 'p', "namespace", "a", ""},
      {"setWidth:height:\ta.m\t3;\"\to\timplementation:View(Extra)", "setWidth:height:", 3, 'o',
       "implementation", "View(Extra)", ""},
      {"move(to:)\ta.swift\t7;\"\tf\tBody.Part", "move(to:)", 7, 'f', "", "Body.Part", ""},
      {"red\ta.swift\t7;\"\te\tenum:Body.Color", "red", 7, 'e', "enum", "Body.Color", ""},
      {"i\ta b/\\\tc.c\t-1;\"\ti", "i", -1, 'i', "", "", ""},
  };
  for (const Case& one : cases) {
    TagRecord tag;
    tag.scope = "old";
    tag.path = "kept";
    ASSERT_TRUE(ReadRawTag(one.line, tag)) << one.line;
    EXPECT_EQ(tag.name, one.name);
    EXPECT_EQ(tag.line, one.number);
    EXPECT_EQ(tag.kind, one.kind);
    EXPECT_EQ(tag.scopeKind, one.scopeKind);
    EXPECT_EQ(tag.scope, one.scope);
    EXPECT_EQ(tag.typeref, one.typeref);
    EXPECT_EQ(tag.path, "kept");
  }
}

TEST(ReadRawTag, RefusesOtherLines) {
  TagRecord tag;
  tag.name = "kept";
  for (const char* line : {"", "a", "!_TAG_FILE_FORMAT\t2\t/extended format/ ", "a\tb.c\t12",
                           "a\tb.c\t12;\"", "a\tb.c\t12;\"\tfunction", "a\tb.c\t/^a$/;\"\tf"}) {
    EXPECT_FALSE(ReadRawTag(line, tag)) << line;
    EXPECT_EQ(tag.name, "kept");
  }
}

}  // namespace
}  // namespace vexltags
