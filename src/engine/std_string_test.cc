// SPDX-License-Identifier: MIT
// Tests of the conversion of the runtime's strings and tokens.
#include "engine/std_string.h"

#include <gtest/gtest.h>

#include <string>

#include "engine/token_test_support.h"

namespace vexltags {
namespace {

// Returns the text that the runtime's own function returns.
std::string RuntimeText(pANTLR3_COMMON_TOKEN token) { return stdString(token->getText(token)); }

std::string Text(pANTLR3_COMMON_TOKEN token) {
  std::string text = "untouched";
  return TokenText(token, text) ? text : "(none)";
}

TEST(StdString, ConvertsFromRuntimeStrings) {
  const pANTLR3_STRING_FACTORY factory = antlr3StringFactoryNew(ANTLR3_ENC_8BIT);
  std::string source("a\0b\xe4", 4);
  const pANTLR3_STRING text =
      factory->newPtr8(factory, reinterpret_cast<pANTLR3_UINT8>(source.data()), 4);
  EXPECT_EQ(stdString(text), source);
  EXPECT_EQ(stdString(factory->newRaw(factory)), "");
  EXPECT_EQ(stdString(static_cast<pANTLR3_STRING>(nullptr)), "");

  stdString assigned = "former";
  assigned = text;
  EXPECT_EQ(assigned, source);
  assigned = static_cast<pANTLR3_STRING>(nullptr);
  EXPECT_EQ(assigned, "");
  factory->close(factory);
}

TEST(StdString, AssignsAndAppendsStandardStrings) {
  stdString text = "a";
  text += std::string("b");
  text += "c";
  text += stdString("d");
  EXPECT_EQ(text, "abcd");
  text = "e";
  EXPECT_EQ(text, "e");
  const std::string standard = "f";
  text = standard;
  EXPECT_EQ(text, "f");
  text = std::string("g");
  EXPECT_EQ(text, "g");
  const stdString other = "h";
  text = other;
  EXPECT_EQ(text, "h");
}

TEST(TokenText, IsTheRangeOfTheInput) {
  const std::string source("one t\xe4o \0three\n", 14);
  TokenMaker tokens(source);
  const struct {
    std::size_t offset;
    std::size_t length;
  } cases[] = {{0, 3}, {0, 0}, {3, 1}, {4, 3}, {8, 6}, {13, 1}, {14, 0}, {0, 14}};
  for (const auto& c : cases) {
    const pANTLR3_COMMON_TOKEN token = tokens.Span(c.offset, c.length, 1);
    EXPECT_EQ(Text(token), source.substr(c.offset, c.length)) << c.offset;
    EXPECT_EQ(Text(token), RuntimeText(token)) << c.offset;
  }
}

TEST(TokenText, AllocatesNoRuntimeString) {
  TokenMaker tokens("one two");
  const pANTLR3_COMMON_TOKEN token = tokens.Span(4, 3, 1);
  const unsigned before = tokens.Input()->strFactory->index;
  for (int i = 0; i < 100; ++i) EXPECT_EQ(Text(token), "two");
  EXPECT_EQ(tokens.Input()->strFactory->index, before);
}

TEST(TokenText, PrefersTheReplacedText) {
  TokenMaker tokens("one");
  std::string made = "<missing ID>";
  const pANTLR3_COMMON_TOKEN token = tokens.WithText(made, 1);
  EXPECT_EQ(Text(token), made);
  EXPECT_EQ(Text(token), made) << "the first call converts it to another form";
  const pANTLR3_COMMON_TOKEN spanning = tokens.Span(0, 3, 1);
  spanning->setText(spanning, token->getText(token));
  EXPECT_EQ(Text(spanning), made);
}

TEST(TokenText, AgreesWithTheRuntimeOnStartValues) {
  TokenMaker tokens("one");
  EXPECT_EQ(Text(tokens.Plain(1)), RuntimeText(tokens.Plain(1)));
  EXPECT_EQ(Text(tokens.Plain(1)), "");
  const pANTLR3_COMMON_TOKEN fromFront = tokens.Span(0, 2, 1);
  fromFront->start = static_cast<ANTLR3_MARKER>(-1);
  EXPECT_EQ(Text(fromFront), "on");
  EXPECT_EQ(RuntimeText(fromFront), "on");
}

TEST(TokenText, IsSpecialAtTheEndOfTheFile) {
  TokenMaker tokens("one");
  for (const std::size_t length : {0, 3}) {
    const pANTLR3_COMMON_TOKEN token = tokens.Span(0, length, 1);
    token->setType(token, ANTLR3_TOKEN_EOF);
    EXPECT_EQ(Text(token), "<EOF>");
    EXPECT_EQ(RuntimeText(token), "<EOF>");
    EXPECT_EQ(Text(token), "<EOF>");
  }
}

TEST(TokenText, IsMissingWithoutATokenOrAnInput) {
  TokenMaker tokens("one");
  const pANTLR3_COMMON_TOKEN nullText = tokens.Span(0, 3, 1);
  nullText->setText(nullText, nullptr);
  for (const pANTLR3_COMMON_TOKEN token :
       {pANTLR3_COMMON_TOKEN{}, tokens.WithoutText(1), nullText}) {
    std::string text = "untouched";
    EXPECT_FALSE(TokenText(token, text));
    EXPECT_EQ(text, "untouched");
    EXPECT_FALSE(TokenView(token).has_value());
  }
}

TEST(TokenLine, IsTheLineOfTheToken) {
  TokenMaker tokens("one");
  EXPECT_EQ(TokenLine(tokens.Span(0, 1, 17)), 17);
  EXPECT_EQ(TokenLine(nullptr), -1);
}

}  // namespace
}  // namespace vexltags
