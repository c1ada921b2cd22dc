// SPDX-License-Identifier: MIT
// Tests of determining the type that encloses a tag.
#include "portable/swift_scopes.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags {
namespace {

void Add(SwiftScopes& scopes, const std::string& line) {
  TagLine tag;
  ASSERT_EQ(ParseTagLine(line, tag), LineForm::kTag);
  scopes.Add(tag.file, tag);
}

TEST(HasKey, RequiresLettersAndAColon) {
  for (const char* field : {"class:A", "scope:B.C", "x:"}) EXPECT_TRUE(HasKey(field)) << field;
  for (const char* field : {"", "A", "A.B", ":A", "A.B:c", "a1:b"})
    EXPECT_FALSE(HasKey(field)) << field;
}

TEST(IsSwift, ChecksTheSuffix) {
  EXPECT_TRUE(IsSwift("/a/b.swift"));
  EXPECT_FALSE(IsSwift("/a/b.Swift"));
  EXPECT_FALSE(IsSwift("/a/b.swift.c"));
}

TEST(SwiftScopes, HasAKeyForEachKindOfType) {
  SwiftScopes scopes;
  const std::pair<char, const char*> kinds[] = {
      {'c', "class"}, {'s', "struct"}, {'g', "enum"}, {'Y', "protocol"}, {'Z', "extension"}};
  for (const auto& [letter, key] : kinds) {
    Add(scopes, std::string("T") + letter + "\ta.swift\t3;\"\t" + letter);
    EXPECT_EQ(scopes.KeyOf("a.swift", std::string("T") + letter, 4), key);
  }
}

TEST(SwiftScopes, IgnoresTagsOfOtherKinds) {
  SwiftScopes scopes;
  Add(scopes, "f\ta.swift\t1;\"\tf");
  Add(scopes, "t\ta.swift\t1;\"\tt");
  EXPECT_EQ(scopes.KeyOf("a.swift", "f", 2), "scope");
  EXPECT_EQ(scopes.KeyOf("a.swift", "t", 2), "scope");
  EXPECT_EQ(scopes.KeyOf("a.swift", "missing", 2), "scope");
}

TEST(SwiftScopes, JoinsNamesOfNestedTypes) {
  SwiftScopes scopes;
  Add(scopes, "In\ta.swift\t2;\"\ts\tOut");
  Add(scopes, "E\ta.swift\t3;\"\tg\tclass:Out");
  Add(scopes, "A.B\ta.swift\t9;\"\tZ");
  EXPECT_EQ(scopes.KeyOf("a.swift", "Out.In", 2), "struct");
  EXPECT_EQ(scopes.KeyOf("a.swift", "Out.E", 3), "enum");
  EXPECT_EQ(scopes.KeyOf("a.swift", "A.B", 10), "extension");
  EXPECT_EQ(scopes.KeyOf("a.swift", "In", 2), "scope");
}

TEST(SwiftScopes, PrefersTheLastTypeBeforeTheTag) {
  SwiftScopes scopes;
  Add(scopes, "T\ta.swift\t20;\"\tZ");
  Add(scopes, "T\ta.swift\t3;\"\ts");
  EXPECT_EQ(scopes.KeyOf("a.swift", "T", 2), "scope");
  EXPECT_EQ(scopes.KeyOf("a.swift", "T", 3), "struct");
  EXPECT_EQ(scopes.KeyOf("a.swift", "T", 19), "struct");
  EXPECT_EQ(scopes.KeyOf("a.swift", "T", 20), "extension");
  EXPECT_EQ(scopes.KeyOf("b.swift", "T", 30), "scope");
  Add(scopes, "T\ta.swift\t20;\"\tg");
  EXPECT_EQ(scopes.KeyOf("a.swift", "T", 20), "enum");
  EXPECT_EQ(scopes.KeyOf("a.swift", "T", 99999), "enum");
}

}  // namespace
}  // namespace vexltags
