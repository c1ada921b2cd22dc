// SPDX-License-Identifier: MIT
// Tests of the helpers for type text and qualified names.
#include "cfamily/type_text.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags {
namespace {

TEST(LooksLikeSimpleTypeName, AcceptsOnlyIdentifiers) {
  for (const char* yes : {"a", "_", "Z9", "_x_1", "size_t", "int", "azAZ09"}) {
    EXPECT_TRUE(LooksLikeSimpleTypeName(yes)) << yes;
  }
  for (const char* no : {"", "9a", "a b", "a::b", "a<b>", "a*", " a", "a ", "$a", "a$", "\xe4"}) {
    EXPECT_FALSE(LooksLikeSimpleTypeName(no)) << no;
  }
}

TEST(IsBuiltInType, KnowsThirteenTypes) {
  for (const char* yes : {"char", "char16_t", "char32_t", "wchar_t", "bool", "short", "int", "long",
                          "signed", "unsigned", "float", "double", "void"}) {
    EXPECT_TRUE(IsBuiltInType(yes)) << yes;
  }
  for (const char* no : {"", "char8_t", "Int", "long int", "int*", "size_t", "auto", "in"}) {
    EXPECT_FALSE(IsBuiltInType(no)) << no;
  }
}

TEST(IsWellKnownType, KnowsThreeTypes) {
  for (const char* yes : {"size_t", "ssize_t", "ptrdiff_t"}) EXPECT_TRUE(IsWellKnownType(yes));
  for (const char* no : {"", "int", "std::size_t", "intptr_t", "size_t "}) {
    EXPECT_FALSE(IsWellKnownType(no)) << no;
  }
}

TEST(SplitNameQualifier, SplitsAtTheLastColons) {
  const struct {
    const char *text, *name, *qualifier;
  } cases[] = {
      {"", "", ""},
      {"a", "a", ""},
      {"A::b", "b", "A"},
      {"A::B::c", "c", "A::B"},
      {"A::", "A::", ""},
      {"A::B::", "A::B::", ""},
      {"::a", "a", ""},
      {"::", "::", ""},
      {"A<B::C>", "C>", "A<B"},
      {"a:b", "a:b", ""},
  };
  for (const auto& c : cases) {
    std::string name = "old", qualifier = "old";
    SplitNameQualifier(c.text, name, qualifier);
    EXPECT_EQ(name, c.name) << c.text;
    EXPECT_EQ(qualifier, c.qualifier) << c.text;
  }
}

TEST(SplitNameQualifier, MayOverwriteItsInput) {
  std::string text = "A::b", qualifier;
  SplitNameQualifier(text, text, qualifier);
  EXPECT_EQ(text, "b");
  EXPECT_EQ(qualifier, "A");
}

TEST(AppendQualifier, JoinsBothOrBuildsAPrefix) {
  const struct {
    const char *text, *qualifier;
    bool always;
    const char* result;
  } cases[] = {
      {"", "", false, ""},       {"", "", true, ""},       {"A", "", false, "A"},
      {"A", "", true, "A::"},    {"", "B", false, "B"},    {"", "B", true, "B"},
      {"A", "B", false, "A::B"}, {"A", "B", true, "A::B"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(AppendQualifier(c.text, c.qualifier, c.always), c.result)
        << c.text << "," << c.qualifier << "," << c.always;
  }
}

TEST(TemplateArgumentText, ReplacesEachLineEndByABlank) {
  EXPECT_EQ(TemplateArgumentText("< int ,\n char >"), "< int ,  char >");
  EXPECT_EQ(TemplateArgumentText("<\r\na\n\n>"), "<  a  >");
  EXPECT_EQ(TemplateArgumentText("<a\t/* b */>"), "<a\t/* b */>");
}

TEST(TemplateParameterText, HasAPlaceholder) {
  EXPECT_EQ(TemplateParameterText("T"), "T");
  EXPECT_EQ(TemplateParameterText(""), "anon_value");
}

TEST(ValueParameterText, PrefersTheNameToABareType) {
  const struct {
    const char *type, *name, *result;
  } cases[] = {
      {"int", "N", "N"},
      {"Foo", "N", "N"},
      {"Foo", "", "Foo"},
      {"int", "", "anon_value"},
      {"size_t", "", "anon_value"},
      {"", "", "anon_value"},
      {"", "N", "N"},
      {"a::B", "", "anon_value"},
      {"Foo*", "", "anon_value"},
      {"ssize_t", "", "anon_value"},
      {"ptrdiff_t", "", "anon_value"},
  };
  for (const auto& c : cases) EXPECT_EQ(ValueParameterText(c.type, c.name), c.result) << c.type;
}

}  // namespace
}  // namespace vexltags
