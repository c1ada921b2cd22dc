// SPDX-License-Identifier: MIT
// Tests that a file is replaced as a whole or not at all.
#include "tree/output_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "testing/scratch.h"

namespace vexltags::tree {
namespace {

using testing_support::ReadFile;
using testing_support::ScratchFolder;
using testing_support::WriteFile;

TEST(OutputFile, ReplacesOnlyAtTheEnd) {
  const ScratchFolder scratch;
  const std::string path = scratch.Path("tags");
  WriteFile(path, "old");
  std::filesystem::permissions(path, std::filesystem::perms(0640));
  {
    OutputFile file;
    ASSERT_TRUE(file.Open(path));
    ASSERT_TRUE(file.Write(std::string(3000000, 'x')));
    EXPECT_EQ(ReadFile(path), "old");
  }
  EXPECT_EQ(ReadFile(path), "old");
  {
    OutputFile file;
    ASSERT_TRUE(file.Open(path));
    file.Write("given up");
    ASSERT_TRUE(file.Open(path));
    file.Write("new");
    ASSERT_TRUE(file.Commit());
    EXPECT_EQ(file.Status().st_size, 3);
  }
  EXPECT_EQ(ReadFile(path), "new");
  EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0640));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(scratch.Path()), {}), 1);
}

TEST(OutputFile, CopiesPartsOfAnotherFile) {
  const ScratchFolder scratch;
  std::string content;
  for (int i = 0; content.size() < 4000000; ++i) content += std::to_string(i);
  WriteFile(scratch.Path("source"), content);
  const int source = open(scratch.Path("source").c_str(), O_RDONLY | O_CLOEXEC);
  OutputFile file;
  ASSERT_TRUE(file.Open(scratch.Path("tags")));
  EXPECT_TRUE(file.Write("before"));
  EXPECT_TRUE(file.Copy(source, 5, 3000001));
  EXPECT_TRUE(file.Copy(source, 7, 11));
  EXPECT_TRUE(file.Write("after"));
  ASSERT_TRUE(file.Commit());
  EXPECT_EQ(ReadFile(scratch.Path("tags")),
            "before" + content.substr(5, 3000001) + content.substr(7, 11) + "after");
  ASSERT_TRUE(file.Open(scratch.Path("more")));
  EXPECT_FALSE(file.Copy(source, content.size() - 1, 2));
  close(source);
}

TEST(OutputFile, CannotBeInAFolderThatIsNotThere) {
  const ScratchFolder scratch;
  OutputFile file;
  EXPECT_FALSE(file.Open(scratch.Path("no/tags")));
}

TEST(OutputFile, OnlyTagsFilesAreReplaced) {
  const ScratchFolder scratch;
  const auto why = [&scratch](const std::string& content) {
    WriteFile(scratch.Path("f"), content);
    return WhyNotReplaced(scratch.Path("f"));
  };
  EXPECT_EQ(why(""), "");
  EXPECT_EQ(why("!_TAG_FILE_FORMAT\t2\t//\n"), "");
  EXPECT_EQ(why("name\tfile.c\t12;\"\tf\n"), "");
  EXPECT_EQ(why("\f\na.c,10\n"), "");
  EXPECT_EQ(why("{\"_type\":\"tag\"}\n"), "");
  EXPECT_EQ(why("int main() {}\n"), "is not a tags file");
  EXPECT_EQ(why("a\tb\t12\n"), "is not a tags file");
  EXPECT_EQ(why("{\"name\":1}\n"), "is not a tags file");
  EXPECT_EQ(WhyNotReplaced(scratch.Path()), "is a folder");
  EXPECT_EQ(WhyNotReplaced("/dev/null"), "is not a regular file");
  EXPECT_EQ(WhyNotReplaced(scratch.Path("missing")), "");
}

}  // namespace
}  // namespace vexltags::tree
