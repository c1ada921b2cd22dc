// SPDX-License-Identifier: MIT
// Tests of the memoisation of long predictions, with a simple automaton.
#include "engine/prediction_memo.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

// Looks ahead from `start` in state 0, then in state `middle` up to `stop`, where the state becomes
// 2. `Run` returns the number of steps, not counting memoised ones.
class Automaton {
 public:
  PredictionMemo memo;
  std::int32_t endState = -1;
  std::size_t endToken = 0;

  unsigned Run(std::size_t start, std::size_t stop, unsigned decision = 3,
               std::int32_t middle = 1) {
    std::int32_t state = 0;
    std::size_t token = start;
    for (unsigned steps = 1;; ++steps) {
      const bool isLate = steps > PredictionMemo::kFreeSteps;
      const bool isFirst = steps == PredictionMemo::kFreeSteps + 1;
      const bool joined = isLate && memo.Join(decision, isFirst, state, token);
      if (state == 2) {
        endState = state;
        endToken = token;
        if (isLate && !joined) memo.Keep(decision, state, token);
        return steps;
      }
      state = ++token == stop ? 2 : middle;
    }
  }
};

TEST(PredictionMemo, DoesNotMemoiseShortPaths) {
  Automaton automaton;
  EXPECT_EQ(automaton.Run(0, 20), 21U);
  EXPECT_EQ(automaton.Run(0, 20), 21U);
}

TEST(PredictionMemo, ALaterPathEndsLikeTheLastOne) {
  Automaton automaton;
  EXPECT_EQ(automaton.Run(0, 1000), 1001U);
  for (std::size_t start = 1; start < 900; ++start) {
    EXPECT_EQ(automaton.Run(start, 1000), PredictionMemo::kFreeSteps + 1);
    EXPECT_EQ(automaton.endState, 2);
    EXPECT_EQ(automaton.endToken, 1000U);
  }
}

TEST(PredictionMemo, DistinguishesStatesAndDecisions) {
  Automaton automaton;
  automaton.Run(0, 1000);
  EXPECT_EQ(automaton.Run(1, 1000, 3, 5), 1000U);
  EXPECT_EQ(automaton.Run(2, 1000, 4), 999U);
  EXPECT_EQ(automaton.Run(3, 1000, 4), PredictionMemo::kFreeSteps + 1);
  EXPECT_EQ(automaton.Run(3, 1000, 3, 5), PredictionMemo::kFreeSteps + 1);
}

TEST(PredictionMemo, KnowsNothingOutsideTheLastPath) {
  Automaton automaton;
  automaton.Run(500, 1000);
  EXPECT_EQ(automaton.Run(0, 400), 401U);
  EXPECT_EQ(automaton.Run(1200, 2000), 801U);
}

TEST(PredictionMemo, HasTheStateOfEachToken) {
  constexpr std::size_t kFirst = 100;
  PredictionMemo memo;
  for (std::size_t i = 0; i < 4; ++i) {
    auto state = static_cast<std::int32_t>(10 + i);
    std::size_t token = kFirst + i;
    EXPECT_FALSE(memo.Join(0, i == 0, state, token));
  }
  memo.Keep(0, 2, kFirst + 4);
  for (std::size_t i = 0; i < 4; ++i) {
    auto state = static_cast<std::int32_t>(10 + i);
    std::size_t token = kFirst + (i + 1) % 4;
    EXPECT_FALSE(memo.Join(0, true, state, token)) << i;
    token = kFirst + i;
    EXPECT_TRUE(memo.Join(0, true, state, token)) << i;
    EXPECT_EQ(state, 2);
    EXPECT_EQ(token, kFirst + 4);
  }
}

TEST(PredictionMemo, ResetClearsAllPaths) {
  Automaton automaton;
  automaton.Run(0, 1000);
  automaton.memo.Reset();
  EXPECT_EQ(automaton.Run(1, 1000), 1000U);
}

}  // namespace
}  // namespace vexltags
