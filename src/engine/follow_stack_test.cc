// SPDX-License-Identifier: MIT
// Tests of the stack of follow sets.
#include "engine/follow_stack.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

class FollowStackTest : public testing::Test {
 protected:
  ANTLR3_BITWORD lowBits[1] = {0x12};
  ANTLR3_BITWORD highBits[4] = {0x1, 0x0, 0x80, 0x2};
  ANTLR3_BITSET_LIST low{lowBits, 1};
  ANTLR3_BITSET_LIST high{highBits, 4};
  FollowStack stack;
};

TEST_F(FollowStackTest, IsInitiallyEmpty) {
  EXPECT_EQ(stack.Size(), 0U);
  EXPECT_EQ(stack.All(), (FollowStack::Union{}));
}

TEST_F(FollowStackTest, SetsContainTokenTypes) {
  FollowStack::Union set{};
  FollowStack::Add(set, low);
  FollowStack::Add(set, high);
  for (const unsigned type : {0U, 1U, 4U, 135U, 193U})
    EXPECT_TRUE(FollowStack::Has(set, type)) << type;
  for (const unsigned type : {2U, 64U, 134U, 191U, 192U, 256U, 100000U}) {
    EXPECT_FALSE(FollowStack::Has(set, type)) << type;
  }
  EXPECT_FALSE(FollowStack::Has(set, ANTLR3_TOKEN_EOF));
  FollowStack::Remove(set, 4);
  EXPECT_FALSE(FollowStack::Has(set, 4));
  EXPECT_TRUE(FollowStack::Has(set, 1));
}

TEST_F(FollowStackTest, UnitesSetsOfAnyLength) {
  stack.Push(&low);
  EXPECT_EQ(stack.All(), (FollowStack::Union{0x12}));
  stack.Push(&high);
  EXPECT_EQ(stack.All(), (FollowStack::Union{0x13, 0, 0x80, 0x2}));
}

TEST_F(FollowStackTest, ExcludesPoppedSets) {
  stack.Push(&low);
  stack.Push(&high);
  EXPECT_EQ(stack.All(), (FollowStack::Union{0x13, 0, 0x80, 0x2}));
  stack.Pop();
  EXPECT_EQ(stack.All(), (FollowStack::Union{0x12}));
  stack.Pop();
  stack.Push(&high);
  EXPECT_EQ(stack.All(), (FollowStack::Union{0x1, 0, 0x80, 0x2}));
}

TEST_F(FollowStackTest, SupportsDeepStacks) {
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
