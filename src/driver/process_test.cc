// SPDX-License-Identifier: MIT
// Tests of the observer that finds the last tagged line.
#include "driver/process.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace vexltags {
namespace {

std::int32_t LastLineOf(std::initializer_list<const char*> lines) {
  std::int32_t last = -1;
  LastLineObserver observer{&last};
  for (const char* line : lines) observer(line);
  return last;
}

TEST(LastLineObserver, KeepsTheLargestNumber) {
  EXPECT_EQ(LastLineOf({}), -1);
  EXPECT_EQ(LastLineOf({"a\tf\t7;\"\tf\n"}), 7);
  EXPECT_EQ(LastLineOf({"a\tf\t7;\"\tf\n", "b\tf\t30;\"\tf\n", "c\tf\t9;\"\tf\n"}), 30);
}

TEST(LastLineObserver, TakesNoNumberFromWhatIsNoTagLine) {
  EXPECT_EQ(LastLineOf({"!_TAG\t2\t5;\n"}), -1);
  EXPECT_EQ(LastLineOf({"a\tf\t7\n"}), -1);
  EXPECT_EQ(LastLineOf({"a f 7;\"\n"}), -1);
  EXPECT_EQ(LastLineOf({"a\tf\tx7;\"\n"}), -1);
  EXPECT_EQ(LastLineOf({"a\tf\t-7;\"\n"}), -1);
  EXPECT_EQ(LastLineOf({"operator;\tf\t7;\"\n"}), -1);
  EXPECT_EQ(LastLineOf({""}), -1);
}

TEST(LastLineObserver, TakesNothingBetweenTabAndSemicolonAsZero) {
  EXPECT_EQ(LastLineOf({"a\tf\t;\"\n"}), 0);
}

}  // namespace
}  // namespace vexltags
