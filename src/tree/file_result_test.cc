// SPDX-License-Identifier: MIT
// Tests that what is known of a file survives as bytes.
#include "tree/file_result.h"

#include <gtest/gtest.h>

namespace vexltags::tree {
namespace {

TEST(FileInfo, IsReadAsItWasWritten) {
  FileInfo info;
  info.status = FileStatus::kDied;
  info.hash = ~std::uint64_t{0};
  info.size = 5000000000;
  info.stored = "~/a\xff\n.c";
  info.tagCount = 7;
  info.anonCount = 3;
  info.anonStart = 12;
  info.isUtf8 = false;
  info.rest = std::string("x\0y", 3);
  info.lines = 99;
  info.skipped = 5;
  info.unknownWords = "API\n";
  const std::string bytes = EncodeInfo(info);
  FileInfo read;
  ASSERT_TRUE(DecodeInfo(bytes, read));
  EXPECT_EQ(EncodeInfo(read), bytes);
  EXPECT_EQ(read.hash, info.hash);
  EXPECT_EQ(read.stored, info.stored);
  EXPECT_EQ(read.rest, info.rest);
  EXPECT_EQ(read.unknownWords, "API\n");
  const InfoHead head = DecodeHead(bytes);
  EXPECT_EQ(head.anonCount, 3);
  EXPECT_EQ(head.anonStart, 12);
  EXPECT_EQ(head.tagCount, 7U);
  EXPECT_FALSE(head.isUtf8);
  EXPECT_TRUE(head.isOdd);
}

TEST(FileInfo, OtherBytesAreRefused) {
  FileInfo info;
  const std::string bytes = EncodeInfo(info);
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    EXPECT_FALSE(DecodeInfo(bytes.substr(0, size), info)) << size;
  }
  EXPECT_FALSE(DecodeInfo(bytes + "x", info));
}

}  // namespace
}  // namespace vexltags::tree
