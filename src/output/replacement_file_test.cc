// SPDX-License-Identifier: MIT
// Tests of replacing a file in one step.
#include "output/replacement_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "testing/scratch.h"

namespace vexltags {
namespace {

namespace fs = std::filesystem;
using testing_support::ReadFile;
using testing_support::ScratchFolder;
using testing_support::WriteFile;

void Fill(const ReplacementFile& file, const std::string& text) {
  EXPECT_EQ(write(file.Descriptor(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
  EXPECT_EQ(close(file.Descriptor()), 0);
}

mode_t ModeOf(const std::string& path) {
  struct stat status = {};
  EXPECT_EQ(stat(path.c_str(), &status), 0);
  return status.st_mode & 07777;
}

TEST(ReplacementFile, TakesThePlaceOfItsTarget) {
  const ScratchFolder scratch;
  const std::string path = scratch.Path("f");
  WriteFile(path, "old");
  fs::permissions(path, fs::perms(0640));
  ReplacementFile file;
  ASSERT_TRUE(file.Create(path));
  EXPECT_TRUE(file.KeepsOwner());
  Fill(file, "new");
  EXPECT_EQ(ReadFile(path), "old");
  EXPECT_TRUE(file.TakePlace());
  EXPECT_EQ(ReadFile(path), "new");
  EXPECT_EQ(ModeOf(path), 0640U);
  EXPECT_FALSE(file.TakePlace()) << "it has done so already";
}

TEST(ReplacementFile, ReplacesWhatALinkLeadsTo) {
  const ScratchFolder scratch;
  fs::create_directory(scratch.Path("d"));
  WriteFile(scratch.Path("d/f"), "old");
  fs::create_symlink("d/f", scratch.Path("link"));
  ReplacementFile file;
  ASSERT_TRUE(file.Create(scratch.Path("link")));
  Fill(file, "new");
  EXPECT_TRUE(file.TakePlace());
  EXPECT_TRUE(fs::is_symlink(scratch.Path("link")));
  EXPECT_EQ(ReadFile(scratch.Path("d/f")), "new");
}

TEST(ReplacementFile, IsRemovedUnlessItTookThePlace) {
  const ScratchFolder scratch;
  WriteFile(scratch.Path("f"), "old");
  {
    ReplacementFile file;
    ASSERT_TRUE(file.Create(scratch.Path("f")));
    Fill(file, "new");
  }
  EXPECT_EQ(ReadFile(scratch.Path("f")), "old");
  for (const auto& entry : fs::directory_iterator(scratch.Path())) {
    EXPECT_EQ(entry.path().filename(), "f");
  }
}

TEST(ReplacementFile, NeedsARegularFile) {
  const ScratchFolder scratch;
  fs::create_symlink("nowhere", scratch.Path("dangling"));
  for (const std::string& path : {scratch.Path("missing"), scratch.Path("dangling"), scratch.Path(),
                                  std::string("/dev/null"), std::string()}) {
    ReplacementFile file;
    EXPECT_FALSE(file.Create(path)) << path;
    EXPECT_FALSE(file.TakePlace()) << path;
  }
}

TEST(ReplacementFile, NeedsRoomForItsName) {
  const ScratchFolder scratch;
  const std::string path = scratch.Path(std::string(250, 'n'));
  WriteFile(path, "old");
  ReplacementFile file;
  EXPECT_FALSE(file.Create(path));
  EXPECT_EQ(ReadFile(path), "old");
}

}  // namespace
}  // namespace vexltags
