// SPDX-License-Identifier: MIT
// Tests how source files are read, files of the kernel included.
#include "driver/source_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "testing/scratch.h"

namespace vexltags {
namespace {

std::string TextOf(const SourceFile& source) {
  const pANTLR3_INPUT_STREAM input = source.Input();
  return {static_cast<const char*>(input->data), input->sizeBuf};
}

TEST(SourceFile, ReadsSeveralFilesInTurn) {
  const testing_support::ScratchFolder scratch;
  SourceFile source;
  for (const char* text : {"int first;\n", "", "x", "a longer text than those before it\n"}) {
    testing_support::WriteFile(scratch.Path("a.c"), text);
    ASSERT_TRUE(source.Read(scratch.Path("a.c")));
    EXPECT_EQ(TextOf(source), text);
  }
}

// The kernel reports size 0 for such a file and gives at most a page at a time.
TEST(SourceFile, ReadsToTheEndOfAFileWithoutASize) {
  const char* const path = "/proc/kallsyms";
  const std::string expected = testing_support::ReadFile(path).value_or("");
  if (expected.size() < 10000) GTEST_SKIP() << path << " is missing";
  SourceFile source;
  ASSERT_TRUE(source.Read(path));
  EXPECT_EQ(TextOf(source).size(), expected.size());
}

TEST(SourceFile, FailsWhereReadingFails) {
  const char* const path = "/proc/self/mem";  // Nothing is mapped at its beginning.
  if (!std::filesystem::exists(path)) GTEST_SKIP() << path << " is missing";
  SourceFile source;
  EXPECT_FALSE(source.Read(path));
  EXPECT_EQ(source.Input(), nullptr);
}

}  // namespace
}  // namespace vexltags
