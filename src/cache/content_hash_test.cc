// SPDX-License-Identifier: MIT
// Tests that hashes are those of XXH3.
#include "cache/content_hash.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

TEST(ContentHash, IsTheSameOnEveryMachine) {
  EXPECT_EQ(ContentHash(""), 0x2D06800538D394C2U);  // The published value for no input.
  EXPECT_NE(ContentHash("a"), ContentHash("b"));
}

}  // namespace
}  // namespace vexltags
