// SPDX-License-Identifier: MIT
// Tests of parsing tag lines, including ambiguous paths.
#include "portable/tag_line.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags {
namespace {

TEST(ParseTagLine, ParsesLinesOfVexltags) {
  struct Case {
    const char* line;
    const char* name;
    const char* file;
    const char* address;
    const char* fields;
  };
  const Case cases[] = {
      {"a\tb.c\t12;\"\tf", "a", "b.c", "12", "\tf"},
      {"a\tb.c\t12;\"\tm\tclass:A::B\ttyperef:struct:C", "a", "b.c", "12",
       "\tm\tclass:A::B\ttyperef:struct:C"},
      {"operator ==\tb.c\t3;\"\tp", "operator ==", "b.c", "3", "\tp"},
      {"!(a:)\tb.swift\t3;\"\tf", "!(a:)", "b.swift", "3", "\tf"},
      {"\tb.c\t1;\"\tc", "", "b.c", "1", "\tc"},
      {"a\tb.c\t-1;\"\ti", "a", "b.c", "-1", "\ti"},
      {"a\tb.c\t12;\"", "a", "b.c", "12", ""},
      {"a\t/d\\\te/b.c\t12;\"\tf", "a", "/d\\\te/b.c", "12", "\tf"},
      {"a\t/d\\\n1/b.c\t12;\"\tf", "a", "/d\\\n1/b.c", "12", "\tf"},
      {"a\t/d\\\t7/b.c\t12;\"\tf", "a", "/d\\\t7/b.c", "12", "\tf"},
  };
  for (const Case& one : cases) {
    TagLine tag;
    ASSERT_EQ(ParseTagLine(one.line, tag), LineForm::kTag) << one.line;
    EXPECT_EQ(tag.name, one.name);
    EXPECT_EQ(tag.file, one.file);
    EXPECT_EQ(tag.address, one.address);
    EXPECT_EQ(tag.fields, one.fields);
    EXPECT_TRUE(tag.numbered);
  }
}

TEST(ParseTagLine, ParsesLinesOfOtherPrograms) {
  TagLine tag;
  ASSERT_EQ(ParseTagLine("a\tb.c\t/^int a;\tx$/;\"\tv\ttyperef:typename:int", tag), LineForm::kTag);
  EXPECT_FALSE(tag.numbered);
  EXPECT_EQ(tag.file, "b.c");
  EXPECT_EQ(tag.address, "/^int a;\tx$/");
  EXPECT_EQ(tag.fields, "\tv\ttyperef:typename:int");
  ASSERT_EQ(ParseTagLine("a\tb.c\t?x?", tag), LineForm::kTag);
  EXPECT_EQ(tag.address, "?x?");
  EXPECT_EQ(tag.fields, "");
  ASSERT_EQ(ParseTagLine("a\tb.c\t12", tag), LineForm::kTag);
  EXPECT_FALSE(tag.numbered);
}

TEST(ParseTagLine, RejectsLinesThatAreNotTags) {
  TagLine tag;
  for (const char* line :
       {"", "a", "a\t", "a\tb", "a\tb\t", "a\tb\tc", "a\tb\\\\", "int main() {"}) {
    EXPECT_EQ(ParseTagLine(line, tag), LineForm::kNoTag) << line;
  }
}

TEST(ParseTagLine, RecognizesAnUnfinishedPath) {
  TagLine tag;
  for (const char* line : {"a\tb\\", "a\tb\\\\\\", "a\tb\\\tc\\"}) {
    EXPECT_EQ(ParseTagLine(line, tag), LineForm::kOpenPath) << line;
  }
}

TEST(LineNumber, ReadsTheAddress) {
  TagLine tag;
  for (const auto& [text, number] : {std::pair{"12", 12L}, {"-1", -1L}, {"0", 0L}}) {
    tag.address = text;
    EXPECT_EQ(LineNumber(tag), number);
  }
  tag.address = "99999999999999999999";
  EXPECT_EQ(LineNumber(tag), 0);
}

TEST(Field, CountsFromZero) {
  const std::string fields = "\tf\tclass:A\t\tx";
  EXPECT_EQ(Field(fields, 0), "f");
  EXPECT_EQ(Field(fields, 1), "class:A");
  EXPECT_EQ(Field(fields, 2), "");
  EXPECT_EQ(Field(fields, 3), "x");
  EXPECT_EQ(Field(fields, 4), "");
  EXPECT_EQ(Field("", 0), "");
}

}  // namespace
}  // namespace vexltags
