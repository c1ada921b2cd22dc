// SPDX-License-Identifier: MIT
// Tests that messages arrive as they were sent.
#include "tree/messages.h"

#include <gtest/gtest.h>

namespace vexltags::tree {
namespace {

TEST(Messages, FramesAreTakenWhenComplete) {
  std::string bytes;
  AppendFrame(bytes, "head", "body");
  AppendFrame(bytes, "", "");
  for (std::size_t size = 0; size < 16; ++size) {
    std::string_view part = std::string_view(bytes).substr(0, size);
    Frame frame;
    EXPECT_FALSE(TakeFrame(part, frame)) << size;
    EXPECT_EQ(part.size(), size);
  }
  std::string_view rest = bytes;
  Frame frame;
  ASSERT_TRUE(TakeFrame(rest, frame));
  EXPECT_EQ(frame.head, "head");
  EXPECT_EQ(frame.body, "body");
  ASSERT_TRUE(TakeFrame(rest, frame));
  EXPECT_TRUE(rest.empty());
  EXPECT_TRUE(IsNoFrame("not a frame"));
  EXPECT_FALSE(IsNoFrame(bytes));
}

TEST(Messages, WhatIsSealedArrivesWholeOrNotAtAll) {
  const std::string sealed = Seal("some\nbytes");
  EXPECT_EQ(Unseal(sealed), "some\nbytes");
  EXPECT_EQ(Unseal(Seal("")), "");
  EXPECT_FALSE(Unseal(""));
  EXPECT_FALSE(Unseal(sealed + "x"));
  EXPECT_FALSE(Unseal(sealed + sealed));
  for (std::size_t i = 0; i < sealed.size(); ++i) {
    EXPECT_FALSE(Unseal(std::string_view(sealed).substr(0, i))) << i;
    std::string changed = sealed;
    changed[i] = static_cast<char>(changed[i] + 1);
    EXPECT_FALSE(Unseal(changed)) << i;
  }
}

TEST(Messages, RequestsAndAnswersAreReadAsTheyWereWritten) {
  Request request;
  request.index = 70000;
  request.forFacts = true;
  request.job = {"a\xff.c", 5, false};
  std::string bytes;
  AppendRequest(bytes, request);
  Answer answer;
  answer.index = 3;
  answer.result.info.stored = "a.c";
  answer.result.entries = std::string("entries");
  answer.result.lookups = std::string("lookups");
  answer.facts = std::string("facts");
  AppendAnswer(bytes, answer);

  std::string_view rest = bytes;
  Frame frame;
  ASSERT_TRUE(TakeFrame(rest, frame));
  Request gotRequest;
  ASSERT_TRUE(ReadRequest(frame, gotRequest));
  EXPECT_EQ(gotRequest.index, 70000U);
  EXPECT_TRUE(gotRequest.forFacts);
  EXPECT_EQ(gotRequest.job.path, "a\xff.c");
  EXPECT_EQ(gotRequest.job.anonStart, 5);
  EXPECT_FALSE(gotRequest.job.wantsLookups);
  Answer gotAnswer;
  EXPECT_FALSE(ReadAnswer(frame, gotAnswer)) << "it is a request";
  ASSERT_TRUE(TakeFrame(rest, frame));
  EXPECT_FALSE(ReadRequest(frame, gotRequest)) << "it is an answer";
  ASSERT_TRUE(ReadAnswer(frame, gotAnswer));
  EXPECT_EQ(gotAnswer.index, 3U);
  EXPECT_EQ(gotAnswer.result.info.stored, "a.c");
  EXPECT_EQ(gotAnswer.result.entries, "entries");
  EXPECT_EQ(gotAnswer.result.lookups, "lookups");
  EXPECT_EQ(gotAnswer.facts, "facts");
}

}  // namespace
}  // namespace vexltags::tree
