// SPDX-License-Identifier: MIT
// Tests of evaluating the conditions of conditional directives.
#include "thorough/condition.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags::thorough {
namespace {

constexpr int kDeep = 100000;

std::string Repeat(const std::string& text, int count) {
  std::string result;
  for (int i = 0; i < count; ++i) result += text;
  return result;
}

Truth InHeader(std::string_view expression) {
  return EvaluateCondition(expression, Dialect::Unknown);
}

TEST(Condition, TakesTheDialectFromTheSuffix) {
  EXPECT_EQ(DialectOf("a.c"), Dialect::C);
  EXPECT_EQ(DialectOf("a.m"), Dialect::C);
  EXPECT_EQ(DialectOf("a.h"), Dialect::Unknown);
  EXPECT_EQ(DialectOf("a.cc"), Dialect::Cxx);
  EXPECT_EQ(DialectOf("a.mm"), Dialect::Cxx);
  EXPECT_EQ(DialectOf("include/vector"), Dialect::Cxx);
  EXPECT_EQ(DialectOf("v1.c/vector"), Dialect::Cxx) << "a folder has no say";
}

TEST(Condition, NegatesATruth) {
  EXPECT_EQ(Not(Truth::True), Truth::False);
  EXPECT_EQ(Not(Truth::Likely), Truth::Unlikely);
  EXPECT_EQ(Not(Truth::Unknown), Truth::Unknown);
  EXPECT_EQ(Not(Truth::Unlikely), Truth::Likely);
  EXPECT_EQ(Not(Truth::False), Truth::True);
}

struct Case {
  const char* expression;
  Truth truth;
};

TEST(Condition, EvaluatesExpressions) {
  const Case cases[] = {
      // Integers.
      {"0", Truth::False},
      {"1", Truth::True},
      {"42L", Truth::True},
      {"00", Truth::False},
      {"0x0", Truth::False},
      {"0xfF", Truth::True},
      {"0b0", Truth::False},
      {"0b1", Truth::True},
      {"true", Truth::True},
      {"false", Truth::False},
      {"(1)", Truth::True},
      {"((0))", Truth::False},
      {"-1", Truth::True},
      {"+0", Truth::False},
      {"99999999999999999999", Truth::Unknown},
      // Comparisons.
      {"1 == 1", Truth::True},
      {"1 != 1", Truth::False},
      {"0x10 == 16", Truth::True},
      {"0xA == 0Xa", Truth::True},
      {"010 == 8", Truth::True},
      {"0b101 == 5", Truth::True},
      {"1 < 2", Truth::True},
      {"2 < 1", Truth::False},
      {"2 <= 2", Truth::True},
      {"3 > 2", Truth::True},
      {"2 >= 3", Truth::False},
      {"-1 < 0", Truth::True},
      {"201103L >= 199711L", Truth::True},
      {"VERSION >= 2", Truth::Unknown},
      // Operators.
      {"!0", Truth::True},
      {"!1", Truth::False},
      {"!!2", Truth::True},
      {"!NAME", Truth::Unknown},
      {"1 && 1", Truth::True},
      {"1 && 0", Truth::False},
      {"NAME && 0", Truth::False},
      {"NAME && 1", Truth::Unknown},
      {"0 || 1", Truth::True},
      {"0 || 0", Truth::False},
      {"NAME || 1", Truth::True},
      {"NAME || 0", Truth::Unknown},
      {"1 || 0 && 0", Truth::True},
      {"(1 || 0) && 0", Truth::False},
      {"1 ? 0 : 1", Truth::False},
      {"0 ? 0 : 1", Truth::True},
      {"NAME ? 1 : 1", Truth::Unknown},
      {"0 ? 1 : 0 ? 1 : 0", Truth::False},
      {"0 ? 1 : 1 ? 1 : 0", Truth::True},
      // Arithmetic is not evaluated.
      {"1 + 1", Truth::Unknown},
      {"~0", Truth::Unknown},
      {"1 << 2", Truth::Unknown},
      // Names.
      {"NAME", Truth::Unknown},
      {"defined NAME", Truth::Unknown},
      {"defined(NAME)", Truth::Unknown},
      {"!defined ( NAME )", Truth::Unknown},
      {"defined(NAME) && 0", Truth::False},
      {"_WIN32", Truth::Unlikely},
      {"defined _WIN32", Truth::Unlikely},
      {"defined(_WIN32)", Truth::Unlikely},
      {"!defined(_WIN32)", Truth::Likely},
      {"defined(_WIN32) || defined(__CYGWIN__)", Truth::Unlikely},
      {"defined(_WIN32) && NAME", Truth::Unlikely},
      {"defined(_WIN32) || NAME", Truth::Unknown},
      {"_MSC_VER >= 1900", Truth::Unlikely},
      {"_MSC_VER < 1900", Truth::Unlikely},
      // Calls.
      {"__has_include(<a/b.h>)", Truth::Unknown},
      {"__has_include(<a>) && 0", Truth::False},
      {"__has_include(\"a\") || 1", Truth::True},
      {"VERSION_AT_LEAST(1, (2), 3) && 0", Truth::False},
      // Comments and continued lines.
      {"0 // 1", Truth::False},
      {"/* 0 */ 1 /* 0 */", Truth::True},
      {"0 \\\n || \\\r\n 1", Truth::True},
      {"1 /* never closed", Truth::True},
      // What is broken says nothing.
      {"", Truth::Unknown},
      {"(1", Truth::Unknown},
      {"1)", Truth::Unknown},
      {"1 1", Truth::Unknown},
      {"1 &&", Truth::Unknown},
      {"0 &&", Truth::Unknown},
      {"== 1", Truth::Unknown},
      {"1 ? 1", Truth::Unknown},
      {"0 ? : 1", Truth::Unknown},
      {"defined(NAME", Truth::Unknown},
      {"F(1", Truth::Unknown},
      {"1.5", Truth::Unknown},
      {"0 @", Truth::Unknown},
  };
  for (const Case& one : cases) EXPECT_EQ(InHeader(one.expression), one.truth) << one.expression;
}

TEST(Condition, KnowsTheLanguageStandardByDialect) {
  const struct {
    const char* expression;
    Truth cxx, c, unknown;
  } cases[] = {
      {"__cplusplus", Truth::True, Truth::False, Truth::Likely},
      {"!__cplusplus", Truth::False, Truth::True, Truth::Unlikely},
      {"defined(__cplusplus)", Truth::True, Truth::False, Truth::Likely},
      {"defined __cplusplus", Truth::True, Truth::False, Truth::Likely},
      {"__cplusplus >= 201103L", Truth::Likely, Truth::False, Truth::Likely},
      {"__cplusplus < 201103L", Truth::Unlikely, Truth::True, Truth::Unlikely},
      {"defined(__cplusplus) && __cplusplus > 201402L", Truth::Likely, Truth::False, Truth::Likely},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(EvaluateCondition(one.expression, Dialect::Cxx), one.cxx) << one.expression;
    EXPECT_EQ(EvaluateCondition(one.expression, Dialect::C), one.c) << one.expression;
    EXPECT_EQ(EvaluateCondition(one.expression, Dialect::Unknown), one.unknown) << one.expression;
  }
}

TEST(Condition, KnowsWhetherANameIsDefined) {
  EXPECT_EQ(IsDefined("__cplusplus", Dialect::Cxx), Truth::True);
  EXPECT_EQ(IsDefined("__cplusplus", Dialect::C), Truth::False);
  EXPECT_EQ(IsDefined("__cplusplus", Dialect::Unknown), Truth::Likely);
  EXPECT_EQ(IsDefined("__cplusplus // comment", Dialect::C), Truth::False);
  EXPECT_EQ(IsDefined("__cplusplus2", Dialect::C), Truth::Unknown);
  EXPECT_EQ(IsDefined("_MSC_VER", Dialect::Cxx), Truth::Unlikely);
  EXPECT_EQ(IsDefined("NAME", Dialect::Cxx), Truth::Unknown);
  EXPECT_EQ(IsDefined("", Dialect::Cxx), Truth::Unknown);
}

TEST(Condition, TakesWhatIsLackingForUnlikely) {
  EXPECT_EQ(IsDefined("A_NO_B", Dialect::Cxx), Truth::Unlikely);
  EXPECT_EQ(IsDefined("NO_B", Dialect::Cxx), Truth::Unlikely);
  EXPECT_EQ(IsDefined("A_NOB", Dialect::Cxx), Truth::Unknown);
  EXPECT_EQ(InHeader("!A_NO_B"), Truth::Likely);
}

TEST(Condition, TakesUnseenNamesForUnlikely) {
  NameSet names;
  names.Add("SEEN");
  EXPECT_EQ(EvaluateCondition("SEEN", Dialect::Cxx, &names), Truth::Unknown);
  EXPECT_EQ(EvaluateCondition("defined(UNSEEN)", Dialect::Cxx, &names), Truth::Unlikely);
  EXPECT_EQ(EvaluateCondition("defined(__GNUC__)", Dialect::Cxx, &names), Truth::Unknown);
  EXPECT_EQ(EvaluateCondition("defined(_GNU_SOURCE)", Dialect::Cxx, &names), Truth::Unknown);
}

TEST(Condition, BoundsNesting) {
  EXPECT_EQ(InHeader(Repeat("(", 20) + "1" + Repeat(")", 20)), Truth::True);
  EXPECT_EQ(InHeader(Repeat("(", kDeep) + "1" + Repeat(")", kDeep)), Truth::Unknown);
  EXPECT_EQ(InHeader(Repeat("!", kDeep) + "1"), Truth::Unknown);
  EXPECT_EQ(InHeader(Repeat("0 ? 0 : ", kDeep) + "1"), Truth::Unknown);
  EXPECT_EQ(InHeader(Repeat("1 ? ", kDeep) + "1" + Repeat(" : 0", kDeep)), Truth::Unknown);
  EXPECT_EQ(InHeader(Repeat("F(", kDeep)), Truth::Unknown);
}

TEST(Condition, ReadsLongChainsOfOperators) {
  EXPECT_EQ(InHeader(Repeat("1 && ", kDeep) + "0"), Truth::False);
  EXPECT_EQ(InHeader(Repeat("NAME || ", kDeep) + "1"), Truth::True);
}

}  // namespace
}  // namespace vexltags::thorough
