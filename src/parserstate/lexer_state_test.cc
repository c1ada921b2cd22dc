// SPDX-License-Identifier: MIT
// Tests of the filter set's hash and of the time limits.
#include "parserstate/lexer_state.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "base/clock.h"

namespace vexltags {
namespace {

constexpr long kHour = 3600L * 1000000;

void SpendMicroseconds(long long count) {
  for (const long long start = microseconds(); microseconds() - start < count;) {
  }
}

TEST(ConstCharHash, IsFnv1a) {
  // The published test vectors of the 64-bit hash.
  const struct {
    const char* text;
    std::size_t hash;
  } cases[] = {
      {"", 0xcbf29ce484222325},
      {"a", 0xaf63dc4c8601ec8c},
      {"foobar", 0x85944171f73967e8},
  };
  for (const auto& c : cases) EXPECT_EQ(TagsLexerState::constCharHash()(c.text), c.hash) << c.text;
}

TEST(ConstCharHash, TreatsCharactersAsUnsigned) {
  // One round by hand: (start ^ 0xff) * prime, modulo 2 to the 64.
  const std::size_t expected = (0xcbf29ce484222325 ^ 0xff) * std::size_t{0x100000001b3};
  EXPECT_EQ(TagsLexerState::constCharHash()("\xff"), expected);
}

TEST(FilterTokens, AreComparedByTheirCharacters) {
  TagsLexerState state("a.c", 0, 0);
  EXPECT_TRUE(state.filterTokens.empty());
  EXPECT_EQ(state.filterTokens.max_load_factor(), 1.0F);
  const std::string one = "FOO";
  const std::string same = "FOO";
  ASSERT_NE(one.c_str(), same.c_str());
  EXPECT_TRUE(state.filterTokens.insert(one.c_str()).second);
  EXPECT_FALSE(state.filterTokens.insert(same.c_str()).second);
  EXPECT_EQ(state.filterTokens.count("FOO"), 1U);
  EXPECT_EQ(state.filterTokens.count("foo"), 0U);
  EXPECT_EQ(state.filterTokens.count("FOOD"), 0U);
}

TEST(CheckRunningTooLong, NeverHappensWithoutALimit) {
  testing::internal::CaptureStderr();
  {
    const TagsLexerState state("a.c", 0, 0);
    SpendMicroseconds(100);
    EXPECT_FALSE(state.CheckRunningTooLong());
    EXPECT_FALSE(state.Aborted());
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(CheckRunningTooLong, IsFalseBelowTheLimit) {
  testing::internal::CaptureStderr();
  {
    const TagsLexerState state("a.c", kHour, kHour);
    EXPECT_FALSE(state.CheckRunningTooLong());
    EXPECT_FALSE(state.Aborted());
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(CheckWatchdog, ChecksTheLimitOnlyIfTold) {
  testing::internal::CaptureStderr();
  {
    TagsLexerState state("a.c", 0, 1000);
    SpendMicroseconds(1500);
    const auto form = [] { return std::string("1 x"); };
    EXPECT_FALSE(state.CheckWatchdog("1 x"));
    EXPECT_FALSE(state.CheckWatchdog(form));
    EXPECT_FALSE(state.Aborted());
    state.LimitEachItem();
    EXPECT_TRUE(state.CheckWatchdog(form));
    EXPECT_TRUE(state.CheckWatchdog("1 x"));
    EXPECT_TRUE(state.Aborted());
  }
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

TEST(CheckRunningTooLong, IsReportedOnce) {
  testing::internal::CaptureStderr();
  {
    const TagsLexerState state("~/a b.c", 1, 1000);
    SpendMicroseconds(1500);
    EXPECT_TRUE(state.CheckRunningTooLong());
    EXPECT_TRUE(state.Aborted());
    EXPECT_TRUE(state.CheckRunningTooLong());
  }
  const std::string message = testing::internal::GetCapturedStderr();
  const std::regex expected(
      "Have been parsing ~/a b\\.c for over ([0-9]+\\.[0-9]{4}) seconds -- skipping\n");
  std::smatch match;
  ASSERT_TRUE(std::regex_match(message, match, expected)) << message;
  EXPECT_GE(std::stod(match[1]), 0.0015);
}

TEST(TagsLexerState, ReportsAFileThatTookLong) {
  testing::internal::CaptureStderr();
  {
    const TagsLexerState state("b.py", 1000, kHour);
    SpendMicroseconds(1500);
    EXPECT_FALSE(state.CheckRunningTooLong());
  }
  const std::string message = testing::internal::GetCapturedStderr();
  std::smatch match;
  ASSERT_TRUE(
      std::regex_match(message, match, std::regex("Spent ([0-9]+\\.[0-9]{4}) parsing b\\.py\n")))
      << message;
  EXPECT_GE(std::stod(match[1]), 0.0015);
}

TEST(TagsLexerState, EachFileHasItsOwnLimit) {
  testing::internal::CaptureStderr();
  {
    const TagsLexerState slow("a.c", 0, 1);
    SpendMicroseconds(100);
    EXPECT_TRUE(slow.CheckRunningTooLong());
  }
  {
    const TagsLexerState next("b.c", 0, kHour);
    EXPECT_FALSE(next.CheckRunningTooLong());
  }
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

TEST(CheckWatchdog, IsAlwaysFalse) {
  const TagsLexerState state("a.c", 0, 1);
  SpendMicroseconds(100);
  for (const char* position : {"", "inputToken1"}) EXPECT_FALSE(state.CheckWatchdog(position));
}

}  // namespace
}  // namespace vexltags
