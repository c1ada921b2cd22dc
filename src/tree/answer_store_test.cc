// SPDX-License-Identifier: MIT
// Tests that what one process appends is what another one reads.
#include "tree/answer_store.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string>

namespace vexltags::tree {
namespace {

/// Runs `work` in a process of its own, and returns its exit status.
template <class Work>
int InChild(Work work) {
  const pid_t process = fork();
  if (process == 0) _exit(work());
  int status = 0;
  waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(AnswerStore, GivesWhatAnotherProcessAppended) {
  AnswerStore store;
  ASSERT_TRUE(store.Create());
  EXPECT_EQ(store.From(0), "");
  std::string all;
  // Larger than what is mapped at once, so that views are in several parts.
  const std::string large(std::size_t{1} << 24, 'x');
  std::string_view first;
  for (int i = 0; i < 9; ++i) {
    const std::string bytes = "answer " + std::to_string(i) + large;
    EXPECT_EQ(InChild([&] { return store.Append(bytes) ? 0 : 1; }), 0);
    const std::string_view read = store.From(all.size());
    EXPECT_TRUE(read == bytes) << i;
    if (i == 0) first = read;
    all += bytes;
  }
  EXPECT_EQ(store.From(all.size()), "");
  store.Close();
  EXPECT_TRUE(first.starts_with("answer 0x")) << "earlier views stay good";
  EXPECT_EQ(store.From(0), "");
}

TEST(AnswerStore, TakesNothingMoreAfterAFailure) {
  AnswerStore store;
  ASSERT_TRUE(store.Create());
  const int status = InChild([&store] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{100, 100};
    if (setrlimit(RLIMIT_FSIZE, &small) != 0 || !store.Append(std::string(60, 'a'))) return 1;
    return store.Append(std::string(60, 'b')) || store.Append("c") ? 2 : 0;
  });
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(store.From(0).starts_with(std::string(60, 'a')));
  EXPECT_EQ(store.From(0).find('c'), std::string_view::npos);
}

TEST(AnswerStore, TakesNothingWithoutAFile) {
  AnswerStore store;
  EXPECT_FALSE(store.Append("x"));
  EXPECT_EQ(store.From(0), "");
}

}  // namespace
}  // namespace vexltags::tree
