// SPDX-License-Identifier: MIT
// Tests of the stack of follow sets.
#include "parserstate/follow_stack.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

class FollowStackTest : public testing::Test {
 protected:
  ANTLR3_BITWORD lowBits[1] = {0x12};
  ANTLR3_BITWORD highBits[3] = {0x1, 0x0, 0x80};
  ANTLR3_BITSET_LIST low{lowBits, 1};
  ANTLR3_BITSET_LIST high{highBits, 3};
  FollowStack stack;
};

TEST_F(FollowStackTest, IsEmptyAtFirst) {
  EXPECT_EQ(stack.Size(), 0U);
  EXPECT_EQ(stack.All(), (FollowStack::Union{0, 0, 0}));
}

TEST_F(FollowStackTest, UnitesSetsOfAnyLength) {
  stack.Push(&low);
  EXPECT_EQ(stack.All(), (FollowStack::Union{0x12, 0, 0}));
  stack.Push(&high);
  EXPECT_EQ(stack.All(), (FollowStack::Union{0x13, 0, 0x80}));
}

TEST_F(FollowStackTest, ForgetsWhatWasPopped) {
  stack.Push(&low);
  stack.Push(&high);
  EXPECT_EQ(stack.All(), (FollowStack::Union{0x13, 0, 0x80}));
  stack.Pop();
  EXPECT_EQ(stack.All(), (FollowStack::Union{0x12, 0, 0}));
  stack.Pop();
  stack.Push(&high);
  EXPECT_EQ(stack.All(), (FollowStack::Union{0x1, 0, 0x80}));
}

TEST_F(FollowStackTest, GoesDeep) {
  for (int i = 0; i < 100000; ++i) stack.Push(&low);
  stack.Push(&high);
  for (int i = 0; i < 100000; ++i) {
    EXPECT_EQ(stack.All()[2], 0x80U * (i == 0));
    stack.Pop();
  }
  EXPECT_EQ(stack.Size(), 1U);
}

}  // namespace
}  // namespace vexltags
