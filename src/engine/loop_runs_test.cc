// SPDX-License-Identifier: MIT
// Tests of the memoisation of long loops.
#include "engine/loop_runs.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace vexltags {
namespace {

// A parser that consists of one loop, which consumes all tokens up to `stop`.
struct FakeParser {
  struct State {
    int failed = 0;
    int errorRecovery = 1;
  };
  struct Recognizer {
    State* state;
  };
  struct Parser {
    Recognizer* rec;
  };
  struct Tokens {
    std::size_t position = 0;
    std::size_t Position() const { return position; }
    void Seek(std::size_t index) { position = index; }
  };

  State state;
  Recognizer recognizer{&state};
  Parser parser{&recognizer};
  Tokens table;
  struct Trials {
    std::size_t reach = 0;
  };
  struct FileState {
    bool aborted = false;
    bool Aborted() const { return aborted; }
  };
  LoopRuns runs;
  Trials tried;
  FileState file;
  Parser* pParser = &parser;
  Tokens* tokens = &table;
  LoopRuns* loops = &runs;
  Trials* trials = &tried;
  FileState* fileState = &file;

  // Runs the loop from `start`. Returns the number of its iterations.
  unsigned Loop(std::size_t start, std::size_t stop, bool fails = false) {
    unsigned rounds = 0;
    table.position = start;
    state.failed = 0;
    LoopMemo<FakeParser> memo(this, 5);
    for (;; ++rounds) {
      if (memo.JoinsKnownRun()) return rounds;
      if (table.position == stop) {
        state.failed = fails;
        return rounds;
      }
      ++table.position;
    }
  }
};

TEST(LoopMemo, DoesNotMemoiseShortLoops) {
  FakeParser parser;
  EXPECT_EQ(parser.Loop(0, 20), 20U);
  EXPECT_EQ(parser.Loop(0, 20), 20U);
}

TEST(LoopMemo, ReachesTheEndOfAJoinedRun) {
  FakeParser parser;
  parser.Loop(0, 1000);
  parser.tried.reach = 7;
  parser.Loop(1, 1000);
  EXPECT_EQ(parser.tried.reach, 1000U);
}

TEST(LoopMemo, JoinsTheLastRunFromALaterToken) {
  FakeParser parser;
  EXPECT_EQ(parser.Loop(0, 1000), 1000U);
  EXPECT_EQ(parser.Loop(1, 1000), LoopRuns::kFreeRounds);
  EXPECT_EQ(parser.table.position, 1000U);
  EXPECT_EQ(parser.state.failed, 0);
  EXPECT_EQ(parser.state.errorRecovery, 0);
}

TEST(LoopMemo, JoinsTheLastRunFromEarlierTokens) {
  FakeParser parser;
  parser.Loop(900, 1000);
  for (std::size_t start = 899; start > 0; --start) {
    EXPECT_LE(parser.Loop(start, 1000), LoopRuns::kFreeRounds + 1) << start;
    EXPECT_EQ(parser.table.position, 1000U);
  }
}

TEST(LoopMemo, RepeatsAFailure) {
  FakeParser parser;
  parser.Loop(0, 1000, true);
  EXPECT_EQ(parser.Loop(10, 1000), LoopRuns::kFreeRounds);
  EXPECT_EQ(parser.state.failed, 1);
}

TEST(LoopMemo, AbortingTheFileClearsTheLastRun) {
  FakeParser parser;
  parser.Loop(0, 1000);
  parser.file.aborted = true;
  EXPECT_EQ(parser.Loop(1, 1000), 999U);
  EXPECT_EQ(parser.Loop(1, 1000), LoopRuns::kFreeRounds);
}

TEST(LoopMemo, AnotherRunReplacesTheLastOne) {
  FakeParser parser;
  parser.Loop(0, 100);
  parser.Loop(200, 300);
  EXPECT_EQ(parser.Loop(0, 100), 100U);
}

}  // namespace
}  // namespace vexltags
