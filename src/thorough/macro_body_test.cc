// SPDX-License-Identifier: MIT
// Tests of reading the bodies of macros into tokens.
#include "thorough/macro_body.h"

#include <gtest/gtest.h>

#include <string>

#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

/// The tokens of a body joined by blanks, each with `$` and the number of the parameter it names.
std::string Tokens(std::string_view parameters, std::string_view text) {
  MacroDefinition definition;
  definition.parameters = parameters;
  definition.body = text;
  definition.isFunction = true;
  MacroBodies bodies;
  std::string result;
  for (const BodyToken& token : bodies.Of(definition).tokens) {
    if (!result.empty()) result += ' ';
    result += token.text;
    if (token.parameter >= 0) result += '$' + std::to_string(token.parameter);
  }
  return result;
}

TEST(MacroBody, ReadsTokens) {
  EXPECT_EQ(Tokens("", "class A{int b;};"), "class A { int b ; } ;");
  EXPECT_EQ(Tokens("", ""), "");
  EXPECT_EQ(Tokens("", "int \\\n a /* b */ ; // c"), "int a ;");
  EXPECT_EQ(Tokens("", "A(\"b \\\" c\") '\\\\' d"), "A ( \"b \\\" c\" ) '\\\\' d");
}

TEST(MacroBody, NumbersParameters) {
  EXPECT_EQ(Tokens("x, y", "int x(y);"), "int x$0 ( y$1 ) ;");
  EXPECT_EQ(Tokens("x, \\\n y", "y xy x"), "y$1 xy x$0");
  EXPECT_EQ(Tokens("...", "f(__VA_ARGS__)"), "f ( __VA_ARGS__$0 )");
  EXPECT_EQ(Tokens("x, ...", "__VA_ARGS__ x"), "__VA_ARGS__$1 x$0");
  EXPECT_EQ(Tokens("x, rest...", "rest x"), "rest$1 x$0");
}

TEST(MacroBody, CountsParameters) {
  const struct {
    const char* parameters;
    std::size_t count;
    bool isVariadic;
  } cases[] = {{"", 0, false},   {"x", 1, false},     {"x, y", 2, false},
               {"...", 1, true}, {"x, ...", 2, true}, {"x, y...", 2, true}};
  for (const auto& one : cases) {
    MacroDefinition definition;
    definition.parameters = one.parameters;
    MacroBodies bodies;
    const MacroBody& body = bodies.Of(definition);
    EXPECT_EQ(body.parameterCount, one.count) << one.parameters;
    EXPECT_EQ(body.isVariadic, one.isVariadic) << one.parameters;
  }
}

TEST(MacroBody, MarksTheOperators) {
  MacroDefinition definition;
  definition.body = "a##b #c";
  MacroBodies bodies;
  const MacroBody& body = bodies.Of(definition);
  ASSERT_EQ(body.tokens.size(), 5U);
  EXPECT_EQ(body.tokens[1].type, kMacroPaste);
  EXPECT_EQ(body.tokens[3].type, kMacroHash);
}

TEST(MacroBody, ReadsABodyOnce) {
  MacroDefinition definition;
  definition.body = "int";
  MacroBodies bodies;
  EXPECT_EQ(&bodies.Of(definition), &bodies.Of(definition));
}

TEST(MacroBody, TypesText) {
  MacroBodies bodies;
  EXPECT_EQ(bodies.TypeOf("name"), kMainId);
  EXPECT_EQ(bodies.TypeOf("("), kMainLParen);
  EXPECT_EQ(bodies.TypeOf(","), kMainComma);
  EXPECT_EQ(bodies.TypeOf(""), kMainId);
}

}  // namespace
}  // namespace vexltags::thorough
