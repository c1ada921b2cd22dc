// SPDX-License-Identifier: MIT
// Tests that another machine gets its task as it was sent.
#include "tree/host_worker.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags::tree {
namespace {

TEST(HostTask, IsReadAsItWasWritten) {
  HostTask task;
  task.folder = "/a b\xff";
  task.sendsFiles = true;
  task.learned = 70000;
  std::string bytes;
  AppendHostTask(bytes, task);
  std::string_view rest = bytes;
  Frame frame;
  ASSERT_TRUE(TakeFrame(rest, frame));
  const std::optional<HostTask> got = ReadHostTask(frame);
  ASSERT_TRUE(got);
  EXPECT_EQ(got->folder, "/a b\xff");
  EXPECT_FALSE(got->isExact);
  EXPECT_TRUE(got->sendsFiles);
  EXPECT_EQ(got->learned, 70000U);
}

TEST(HostTask, OfAnotherVersionIsRefused) {
  std::string bytes;
  AppendHostTask(bytes, HostTask());
  std::string_view rest = bytes;
  Frame frame;
  ASSERT_TRUE(TakeFrame(rest, frame));
  ASSERT_TRUE(ReadHostTask(frame));
  // The version comes first, after its length.
  std::string head(frame.head);
  ++head[1];
  EXPECT_FALSE(ReadHostTask({head, frame.body}));
  EXPECT_FALSE(ReadHostTask({frame.head.substr(0, frame.head.size() - 1), frame.body}));
  EXPECT_FALSE(ReadHostTask({std::string(frame.head) + "x", frame.body}));
  EXPECT_FALSE(ReadHostTask({"", ""}));
}

}  // namespace
}  // namespace vexltags::tree
