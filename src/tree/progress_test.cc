// SPDX-License-Identifier: MIT
// Tests of the text of the progress line.
#include "tree/progress.h"

#include <gtest/gtest.h>

namespace vexltags::tree {
namespace {

TEST(Progress, ShowsFilesBytesRateAndTimeLeft) {
  EXPECT_EQ(ProgressText("reading", 5, 20, 10000000, 40000000, 2000000),
            "reading 5 of 20 files, 10.0 of 40.0 MB, 5.0 MB/s, 6 s left");
  EXPECT_EQ(ProgressText("reading", 0, 1, 0, 1000, 0),
            "reading 0 of 1 files, 0.0 of 0.0 MB, 0.0 MB/s, 0 s left");
}

}  // namespace
}  // namespace vexltags::tree
