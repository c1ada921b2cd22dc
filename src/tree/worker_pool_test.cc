// SPDX-License-Identifier: MIT
// Tests of distributing files among workers.
#include "tree/worker_pool.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <fstream>
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

/// The processes that this one has started.
std::vector<pid_t> Children() {
  std::vector<pid_t> children;
  const std::string task = "/proc/self/task/" + std::to_string(getpid()) + "/children";
  std::ifstream file(task);
  for (pid_t child; file >> child;) children.push_back(child);
  return children;
}

TEST_F(WorkerPoolTest, AWorkerThatDiesCostsOneFile) {
  for (int i = 0; i < 80; ++i) {
    std::string text;
    for (int j = 0; j < 1000; ++j) text += "int a" + std::to_string(j) + ";\n";
    Add(std::to_string(i) + ".c", text);
  }
  for (const int count : {1, 3}) {
    answers.clear();
    std::size_t kills = 0;
    PoolEvents events;
    events.onAnswer = [this](Answer&& answer) {
      EXPECT_TRUE(answers.emplace(answer.index, answer.result.info).second) << answer.index;
    };
    events.onTick = [&kills, this] {
      const std::vector<pid_t> children = Children();
      if (kills < 5 && answers.size() > kills * 15 && !children.empty()) {
        ++kills;
        kill(children.back(), SIGKILL);
      }
      return true;
    };
    AnswerStores stores;
    ASSERT_TRUE(RunInWorkers(requests, count, nullptr, stores, events));
    EXPECT_GT(kills, 0U);
    ASSERT_EQ(answers.size(), requests.size());
    std::size_t dead = 0;
    for (const auto& [index, info] : answers) {
      dead += info.status == FileStatus::kDied ? 1 : 0;
      EXPECT_EQ(info.tagCount, info.status == FileStatus::kRead ? 1000U : 0U) << index;
    }
    EXPECT_LE(dead, kills);
  }
}

TEST_F(WorkerPoolTest, AnswersThatTheStoreDoesNotTakeComeThroughThePipe) {
  for (int i = 0; i < 20; ++i) Add(std::to_string(i) + ".c", "int a" + std::to_string(i) + ";\n");
  const pid_t process = fork();
  if (process == 0) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit none{0, 0};
    const bool isDone = setrlimit(RLIMIT_FSIZE, &none) == 0 && Run(2);
    const bool isRead = std::all_of(answers.begin(), answers.end(), [](const auto& answer) {
      return answer.second.status == FileStatus::kRead && answer.second.tagCount == 1;
    });
    _exit(isDone && isRead && answers.size() == requests.size() ? 0 : 1);
  }
  int status = -1;
  waitpid(process, &status, 0);
  EXPECT_EQ(status, 0);
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
