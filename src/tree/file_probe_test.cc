// SPDX-License-Identifier: MIT
// Tests that files are found in folders of any kind.
#include "tree/file_probe.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "testing/scratch.h"

namespace vexltags::tree {
namespace {

using testing_support::ScratchFolder;
using testing_support::WriteFile;

TEST(FileProbe, FindsFilesAlone) {
  const ScratchFolder scratch;
  std::filesystem::create_directories(scratch.Path("a/b"));
  std::filesystem::create_directory_symlink("a", scratch.Path("link"));
  WriteFile(scratch.Path("a/b/f.h"), "");
  FileProbe probe;
  for (int round = 0; round < 2; ++round) {
    EXPECT_TRUE(probe.IsFile(scratch.Path("a/b/f.h")));
    EXPECT_TRUE(probe.IsFile(scratch.Path("link/b/f.h")));
    EXPECT_FALSE(probe.IsFile(scratch.Path("a/b/g.h")));
    EXPECT_FALSE(probe.IsFile(scratch.Path("a/b")));
    EXPECT_FALSE(probe.IsFile(scratch.Path("a/c/d/f.h")));
    EXPECT_FALSE(probe.IsFile(scratch.Path("a/c/f.h")));
    EXPECT_FALSE(probe.IsFile(scratch.Path("a/b/f.h/g.h")));
    EXPECT_FALSE(probe.IsFile("no file of this name"));
  }
}

}  // namespace
}  // namespace vexltags::tree
