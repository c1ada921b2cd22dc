// SPDX-License-Identifier: MIT
// Tests of the memoised outcomes.
#include "engine/trial_table.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

using Outcome = TrialTable::Outcome;

/// The outcome of a trial that succeeded after `tokens` tokens from `token` on.
Outcome Success(std::size_t token, std::size_t tokens, bool matched = true) {
  return {true, true, matched, token + tokens, token + tokens};
}
Outcome Failure(std::size_t token, std::size_t tokens, bool matched = true) {
  return {true, false, matched, token, token + tokens};
}

void ExpectSame(const Outcome& found, const Outcome& kept) {
  EXPECT_TRUE(found.known);
  EXPECT_EQ(found.success, kept.success);
  EXPECT_EQ(found.matched, kept.matched);
  EXPECT_EQ(found.end, kept.end);
  EXPECT_EQ(found.reach, kept.reach);
}

TEST(TrialTable, IsInitiallyEmpty) {
  TrialTable table;
  EXPECT_FALSE(table.Find(0, 0).known);
  EXPECT_FALSE(table.Find(TrialTable::kNumbers - 1, 1000000).known);
}

TEST(TrialTable, DistinguishesNumbersAndTokens) {
  for (const std::size_t length : {std::size_t{0}, std::size_t{3}, TrialTable::kShort - 1,
                                   TrialTable::kShort, std::size_t{1000000}}) {
    TrialTable table;
    table.Keep(4, 10, Success(10, length, true));
    table.Keep(5, 10, Failure(10, length, false));
    table.Keep(4, 11, Failure(11, length, true));
    table.Keep(TrialTable::kNumbers - 1, 5000, Success(5000, length, false));
    ExpectSame(table.Find(4, 10), Success(10, length, true));
    ExpectSame(table.Find(5, 10), Failure(10, length, false));
    ExpectSame(table.Find(4, 11), Failure(11, length, true));
    ExpectSame(table.Find(TrialTable::kNumbers - 1, 5000), Success(5000, length, false));
    EXPECT_FALSE(table.Find(6, 10).known);
    EXPECT_FALSE(table.Find(TrialTable::kNumbers - 1, 4999).known);
    EXPECT_FALSE(table.Find(4, 10 + TrialTable::kWindow).known);
  }
}

TEST(TrialTable, KeepsAWholeWindowOfShortTrials) {
  TrialTable table;
  for (unsigned number = 0; number < TrialTable::kNumbers; ++number) {
    for (std::size_t token = 0; token < TrialTable::kWindow; ++token) {
      table.Keep(number, token, Success(token, (token + number) % TrialTable::kShort));
    }
  }
  for (unsigned number = 0; number < TrialTable::kNumbers; ++number) {
    for (std::size_t token = 0; token < TrialTable::kWindow; ++token) {
      EXPECT_EQ(table.Find(number, token).end, token + (token + number) % TrialTable::kShort);
    }
  }
}

TEST(TrialTable, KeepsLongTrialsUntilTheParseHasPassedAll) {
  TrialTable table;
  for (std::size_t token = 0; token < 10000; ++token) table.Keep(7, token, Failure(token, 100));
  table.Commit(9999);
  for (std::size_t token = 0; token < 10000; ++token) {
    ASSERT_TRUE(table.Find(7, token).known) << token;
  }
  table.Commit(10000);
  for (std::size_t token = 0; token < 10000; ++token) {
    ASSERT_FALSE(table.Find(7, token).known) << token;
  }
  table.Keep(7, 10000, Success(10000, 200));
  ExpectSame(table.Find(7, 10000), Success(10000, 200));
}

TEST(TrialTable, IgnoresACommitToAnEarlierToken) {
  TrialTable table;
  table.Commit(1000);
  table.Keep(0, 1000, Success(1000, 500));
  table.Commit(5);
  EXPECT_TRUE(table.Find(0, 1000).known);
}

TEST(TrialTable, ResetClearsTheTable) {
  TrialTable table;
  for (int file = 0; file < 3; ++file) {
    EXPECT_FALSE(table.Find(0, 7).known);
    EXPECT_FALSE(table.Find(0, 8).known);
    table.Keep(0, 7, Success(7, 2));
    table.Keep(0, 8, Success(8, 200));
    table.SetGivenUp(true);
    table.Keep(0, 7, Success(7, 2));
    table.Reset();
  }
}

TEST(TrialTable, AbortingTheFileClearsTheTableOnce) {
  TrialTable table;
  table.Keep(0, 7, Success(7, 1));
  table.Keep(0, 8, Success(8, 100));
  table.SetGivenUp(false);
  EXPECT_TRUE(table.Find(0, 7).known);
  table.SetGivenUp(true);
  EXPECT_FALSE(table.Find(0, 7).known);
  EXPECT_FALSE(table.Find(0, 8).known);
  table.Keep(0, 7, Failure(7, 1));
  table.SetGivenUp(true);
  EXPECT_TRUE(table.Find(0, 7).known);
}

}  // namespace
}  // namespace vexltags
