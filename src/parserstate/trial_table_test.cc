// SPDX-License-Identifier: MIT
// Tests of the kept trial outcomes.
#include "parserstate/trial_table.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

TEST(TrialTable, KnowsNothingAtFirst) {
  TrialTable table;
  EXPECT_FALSE(table.Find(0, 0).known);
  EXPECT_FALSE(table.Find(TrialTable::kPredicates - 1, 1000000).known);
}

TEST(TrialTable, KeepsEachOutcomeApart) {
  TrialTable table;
  table.Keep(4, 10, true, true);
  table.Keep(5, 10, false, false);
  table.Keep(4, 11, false, true);
  table.Keep(4, 5000, true, false);
  EXPECT_TRUE(table.Find(4, 10).success);
  EXPECT_TRUE(table.Find(4, 10).matched);
  EXPECT_TRUE(table.Find(5, 10).known);
  EXPECT_FALSE(table.Find(5, 10).success);
  EXPECT_FALSE(table.Find(5, 10).matched);
  EXPECT_FALSE(table.Find(4, 11).success);
  EXPECT_TRUE(table.Find(4, 11).matched);
  EXPECT_TRUE(table.Find(4, 5000).success);
  EXPECT_FALSE(table.Find(4, 5000).matched);
  EXPECT_FALSE(table.Find(6, 10).known);
  EXPECT_FALSE(table.Find(4, 4999).known);
}

TEST(TrialTable, KeepsWhereRulesEnd) {
  TrialTable table;
  EXPECT_FALSE(table.FindRule(0, 10).known);
  table.KeepRule(0, 10, true, true, 25);
  table.KeepRule(1, 10, true, false, 10);
  table.KeepRule(2, 10, false, true, 0);
  table.KeepRule(3, 10, false, false, 0);
  EXPECT_TRUE(table.FindRule(0, 10).success);
  EXPECT_TRUE(table.FindRule(0, 10).matched);
  EXPECT_EQ(table.FindRule(0, 10).end, 25U);
  EXPECT_TRUE(table.FindRule(1, 10).success);
  EXPECT_FALSE(table.FindRule(1, 10).matched);
  EXPECT_EQ(table.FindRule(1, 10).end, 10U);
  EXPECT_TRUE(table.FindRule(2, 10).known);
  EXPECT_FALSE(table.FindRule(2, 10).success);
  EXPECT_TRUE(table.FindRule(2, 10).matched);
  EXPECT_TRUE(table.FindRule(3, 10).known);
  EXPECT_FALSE(table.FindRule(3, 10).matched);
  EXPECT_FALSE(table.FindRule(4, 10).known);
  EXPECT_FALSE(table.FindRule(0, 11).known);
  table.KeepRule(5, 11, true, true, 0);
  EXPECT_EQ(table.FindRule(5, 11).end, 0U);
}

TEST(TrialTable, ForgetsBlocksInFrontOfTheCommittedToken) {
  TrialTable table;
  table.Keep(1, 3, true, true);
  table.Keep(1, 4000, true, true);
  table.Commit(4000);
  EXPECT_FALSE(table.Find(1, 3).known);
  EXPECT_TRUE(table.Find(1, 4000).known);
  table.Keep(1, 4001, false, true);
  EXPECT_TRUE(table.Find(1, 4001).known);
}

TEST(TrialTable, ReusedBlocksAreEmpty) {
  TrialTable table;
  for (std::size_t token = 0; token < 10000; token += 7) {
    table.Commit(token);
    EXPECT_FALSE(table.Find(2, token).known) << token;
    table.Keep(2, token, true, true);
    EXPECT_TRUE(table.Find(2, token).known) << token;
  }
}

TEST(TrialTable, CommitBackwardsChangesNothing) {
  TrialTable table;
  table.Commit(1000);
  table.Keep(0, 1000, true, false);
  table.Commit(5);
  EXPECT_TRUE(table.Find(0, 1000).known);
}

TEST(TrialTable, GivingTheFileUpForgetsOnce) {
  TrialTable table;
  table.Keep(0, 7, true, true);
  table.SetGivenUp(false);
  EXPECT_TRUE(table.Find(0, 7).known);
  table.KeepRule(0, 7, true, true, 9);
  table.SetGivenUp(true);
  EXPECT_FALSE(table.Find(0, 7).known);
  EXPECT_FALSE(table.FindRule(0, 7).known);
  table.Keep(0, 7, false, false);
  table.SetGivenUp(true);
  EXPECT_TRUE(table.Find(0, 7).known);
}

TEST(TrialTable, ResetStartsAFreshFile) {
  TrialTable table;
  table.Commit(5000);
  table.Keep(0, 5000, true, true);
  table.SetGivenUp(true);
  table.Reset();
  EXPECT_FALSE(table.Find(0, 5000).known);
  table.Keep(0, 3, true, true);
  table.SetGivenUp(false);
  EXPECT_TRUE(table.Find(0, 3).known);
}

}  // namespace
}  // namespace vexltags
