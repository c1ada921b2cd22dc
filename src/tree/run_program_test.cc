// SPDX-License-Identifier: MIT
// Tests that programs run, and that none of them runs for ever.
#include "tree/run_program.h"

#include <gtest/gtest.h>

#include <chrono>

#include "testing/scratch.h"

namespace vexltags::tree {
namespace {

using testing_support::ReadFile;
using testing_support::ScratchFolder;

bool GoOn() { return true; }

TEST(RunProgram, KeepsTheOutput) {
  const ScratchFolder scratch;
  const std::string output = scratch.Path("output");
  EXPECT_TRUE(RunProgram({"sh", "-c", "cat; echo $0; echo error >&2", "x y"}, output, 60, GoOn));
  EXPECT_EQ(ReadFile(output), "x y\n");
}

TEST(RunProgram, ReportsAMissingProgram) {
  const ScratchFolder scratch;
  EXPECT_FALSE(RunProgram({"/no/such/program"}, scratch.Path("output"), 60, GoOn));
}

TEST(RunProgram, EndsWhatTakesTooLong) {
  const ScratchFolder scratch;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(RunProgram({"sleep", "600"}, scratch.Path("output"), 0, GoOn));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

TEST(RunProgram, KillsWhatDoesNotEndWhenTold) {
  const ScratchFolder scratch;
  const std::string output = scratch.Path("output");
  int ticks = 0;
  EXPECT_TRUE(
      RunProgram({"sh", "-c", "trap 'echo told' TERM; echo ready; while :; do sleep 0.1; done"},
                 output, 600, [&] {
                   ++ticks;
                   return ReadFile(output).value_or("").empty();
                 }));
  EXPECT_EQ(ReadFile(output), "ready\ntold\ntold\n");
  EXPECT_GT(ticks, 0);
}

}  // namespace
}  // namespace vexltags::tree
