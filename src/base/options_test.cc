// SPDX-License-Identifier: MIT
// Tests of the default options.
#include "base/options.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexltags {
namespace {

TEST(Options, StartWithFoldedSortingAndTilde) {
  const Options options;
  EXPECT_EQ(options.sort, 2);
  EXPECT_TRUE(options.cannonicalPaths);
  EXPECT_EQ(options.reportIfLonger, 0);
  EXPECT_EQ(options.abortIfLonger, 0);
}

TEST(Options, StartWithEveryOtherFlagOff) {
  const Options options;
  EXPECT_FALSE(options.dumpErrors);
  EXPECT_FALSE(options.debugDump);
  EXPECT_FALSE(options.tagRelative);
  EXPECT_FALSE(options.append);
  EXPECT_FALSE(options.debugDumpFilenames);
  EXPECT_FALSE(options.time);
  EXPECT_FALSE(options.debugDumpFilesWithHugeOutput);
  EXPECT_FALSE(options.checkForFilesWithAbortedParse);
}

TEST(Options, StartWithFifteenFilterTokens) {
  const std::string version = "MAC_OS_X_VERSION_10_";
  const std::vector<std::string> expected = {
      "AVAILABLE_" + version + "0_AND_LATER",
      "AVAILABLE_" + version + "1_AND_LATER",
      "AVAILABLE_" + version + "2_AND_LATER",
      "AVAILABLE_" + version + "3_AND_LATER",
      "AVAILABLE_" + version + "4_AND_LATER",
      "AVAILABLE_" + version + "5_AND_LATER",
      "AVAILABLE_" + version + "5_AND_LATER_BUT_DEPRECATED",
      "AVAILABLE_" + version + "0_AND_LATER_BUT_DEPRECATED_IN_" + version + "5",
      "AVAILABLE_" + version + "6_AND_LATER",
      "AVAILABLE_" + version + "7_AND_LATER",
      "AVAILABLE_" + version + "8_AND_LATER",
      "AVAILABLE_" + version + "9_AND_LATER",
      "DEPRECATED_IN_" + version + "5_AND_LATER",
      "DEPRECATED_IN_" + version + "6_AND_LATER",
      "DEPRECATED_IN_" + version + "7_AND_LATER",
  };
  EXPECT_EQ(Options().filterTokens, expected);
}

}  // namespace
}  // namespace vexltags
