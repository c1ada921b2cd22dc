// SPDX-License-Identifier: MIT
// Tests of running another program.
#include "sources/child_process.h"

#include <gtest/gtest.h>

#include <csignal>

#include "testing/scratch.h"

namespace vexltags {
namespace {

const std::vector<std::string> kNoVariables = {"PATH=/usr/bin:/bin"};

ChildResult Shell(const std::string& script, const std::vector<std::string>& environment) {
  return RunChild({"sh", "-c", script}, environment);
}

TEST(RunChild, ReadsOutputErrorsAndStatus) {
  const ChildResult result = Shell("echo out; echo err >&2; exit 3", kNoVariables);
  EXPECT_TRUE(result.started);
  EXPECT_EQ(result.output, "out\n");
  EXPECT_EQ(result.errors, "err\n");
  EXPECT_EQ(result.status, 3);
}

TEST(RunChild, ReadsBothPipesAtOnce) {
  // More than a pipe holds on each side, the second before the first.
  const ChildResult result =
      Shell("head -c 300000 /dev/zero >&2; head -c 300000 /dev/zero; head -c 300000 /dev/zero >&2",
            kNoVariables);
  EXPECT_EQ(result.output.size(), 300000U);
  EXPECT_EQ(result.errors.size(), 600000U);
  EXPECT_EQ(result.status, 0);
}

TEST(RunChild, GivesTheVariablesAndNoInput) {
  const ChildResult result =
      Shell("cat; echo \"$COLOR.$HOME\"", {"PATH=/usr/bin:/bin", "COLOR=a b"});
  EXPECT_EQ(result.output, "a b.\n");
}

TEST(RunChild, NoticesFailure) {
  EXPECT_FALSE(RunChild({"/nonexistent/program"}, kNoVariables).started);
  EXPECT_EQ(Shell("kill -9 $$", kNoVariables).status, -1);
}

TEST(RunChild, WorksWhereTheSystemDiscardsStatuses) {
  const int status = testing_support::RunInChild([] {
    std::signal(SIGCHLD, SIG_IGN);
    const ChildResult result = Shell("echo out", kNoVariables);
    return result.status == 0 && result.output == "out\n" ? 0 : 1;
  });
  EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace vexltags
