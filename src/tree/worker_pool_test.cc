// SPDX-License-Identifier: MIT
// Tests of distributing files among workers.
#include "tree/worker_pool.h"

#include <gtest/gtest.h>

#include <map>

#include "testing/scratch.h"

namespace vexltags::tree {
namespace {

using testing_support::ScratchFolder;
using testing_support::WriteFile;

class WorkerPoolTest : public testing::Test {
 protected:
  void Add(const std::string& name, const std::string& text) {
    WriteFile(scratch.Path(name), text);
    PooledRequest request;
    request.request.index = static_cast<std::uint32_t>(requests.size() * 10);
    request.request.job.path = scratch.Path(name);
    request.cost = static_cast<std::int64_t>(text.size());
    requests.push_back(request);
  }
  bool Run(int count) {
    answers.clear();
    PoolEvents events;
    events.onAnswer = [this](Answer&& answer) {
      EXPECT_TRUE(answers.emplace(answer.index, answer.result.info).second) << answer.index;
    };
    events.onTick = [] { return true; };
    AnswerStores stores;
    return RunInWorkers(requests, count, nullptr, stores, events);
  }

  const ScratchFolder scratch;
  std::vector<PooledRequest> requests;
  std::map<std::uint32_t, FileInfo> answers;
};

TEST_F(WorkerPoolTest, AnswersEachRequestOnce) {
  for (int i = 0; i < 300; ++i) {
    std::string text;
    for (int j = 0; j <= i; ++j) text += "int a" + std::to_string(j) + ";\n";
    Add(std::to_string(i) + ".c", text);
  }
  for (const int count : {1, 3}) {
    ASSERT_TRUE(Run(count));
    ASSERT_EQ(answers.size(), 300U);
    for (std::uint32_t i = 0; i < 300; ++i) EXPECT_EQ(answers[i * 10].tagCount, i + 1);
  }
}

TEST_F(WorkerPoolTest, ReportsFilesThatCannotBeRead) {
  Add("a.c", "int a;\n");
  Add("b.c", "int b;\n");
  requests[0].request.job.path = scratch.Path("missing.c");
  ASSERT_TRUE(Run(2));
  EXPECT_EQ(answers[0].status, FileStatus::kUnreadable);
  EXPECT_EQ(answers[10].status, FileStatus::kRead);
}

TEST_F(WorkerPoolTest, EndsWhenItIsTold) {
  for (int i = 0; i < 50; ++i) Add(std::to_string(i) + ".c", std::string(100000, ';'));
  PoolEvents events;
  int count = 0;
  events.onAnswer = [&count](Answer&&) { ++count; };
  events.onTick = [] { return false; };
  AnswerStores stores;
  EXPECT_FALSE(RunInWorkers(requests, 2, nullptr, stores, events));
  EXPECT_LT(count, 50);
}

}  // namespace
}  // namespace vexltags::tree
