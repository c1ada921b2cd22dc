// SPDX-License-Identifier: MIT
// Tests of the header lines.
#include "output/tags_format.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags {
namespace {

TEST(TagsHeader, HasFourLinesWithTheSortNumber) {
  for (const int sort : {0, 1, 2}) {
    EXPECT_EQ(TagsHeader(sort),
              "!_TAG_FILE_FORMAT\t2\t/extended format/ \n"
              "!_TAG_FILE_SORTED\t" +
                  std::to_string(sort) +
                  " /0=unsorted, 1=sorted, 2=foldcase/ \n"
                  "!_TAG_PROGRAM_NAME\tvexltags\n"
                  "!_TAG_PROGRAM_VERSION\t0.78a3\n");
  }
}

}  // namespace
}  // namespace vexltags
