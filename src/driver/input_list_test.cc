// SPDX-License-Identifier: MIT
// Tests of reading list files.
#include "driver/input_list.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace vexltags {
namespace {

using Strings = std::vector<std::string>;
using namespace std::string_literals;
namespace fs = std::filesystem;

class InputList : public testing::Test {
 protected:
  InputList()
      : path((fs::temp_directory_path() / ("vexltags-list-" + std::to_string(getpid()))).string()) {
  }
  ~InputList() override { fs::remove(path); }

  Strings Read(const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
    Strings result;
    ReadInputList(path, false, result);
    return result;
  }

  std::string path;
};

TEST_F(InputList, SplitsAtNewlinesAndNulBytes) {
  const struct {
    std::string content;
    Strings expected;
  } cases[] = {
      {"", {}},
      {"\n\0\n"s, {}},
      {"a.c", {"a.c"}},
      {"a.c\n", {"a.c"}},
      {"a.c\0b.c\n\n"s, {"a.c", "b.c"}},
      {"a\nb\0c"s, {"a", "b", "c"}},
      {"\n\na\n\nb", {"a", "b"}},
      {" a b \n\tc", {" a b ", "\tc"}},
      {"a\r\nb\r\n", {"a\r", "b\r"}},
      {"\r\n", {"\r"}},
      {"\xff\xc3\n-L\n", {"\xff\xc3", "-L"}},
      {"a\na\n", {"a", "a"}},
  };
  for (const auto& c : cases) EXPECT_EQ(Read(c.content), c.expected) << c.content;
}

TEST_F(InputList, JoinsEntriesAcrossTheReadBuffer) {
  const std::string whole(200000, 'x');
  EXPECT_EQ(Read(whole + "\n" + whole), (Strings{whole, whole}));
  const std::string upToTheEdge((1 << 16) - 1, 'y');
  EXPECT_EQ(Read(upToTheEdge + "\nz\n"), (Strings{upToTheEdge, "z"}));
  EXPECT_EQ(Read(upToTheEdge + "y\nz"), (Strings{upToTheEdge + "y", "z"}));
}

TEST_F(InputList, AppendsToExistingPaths) {
  std::ofstream(path) << "b\n";
  Strings paths = {"a"};
  ReadInputList(path, false, paths);
  EXPECT_EQ(paths, (Strings{"a", "b"}));
}

TEST_F(InputList, TreatsAMissingFileOrADirectoryAsEmpty) {
  testing::internal::CaptureStderr();
  Strings paths;
  ReadInputList("/nonexistent/list", false, paths);
  ReadInputList(fs::temp_directory_path().string(), false, paths);
  EXPECT_EQ(paths, Strings{});
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(InputList, PrintsThePathIfRequested) {
  for (const std::string& list : {path, "/nonexistent/list"s}) {
    std::ofstream(path) << "a\n";
    Strings paths;
    testing::internal::CaptureStderr();
    ReadInputList(list, true, paths);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Indexing: " + list + "\n");
  }
}

TEST_F(InputList, ReadsStandardInput) {
  std::ofstream(path) << "a\nb";
  const int saved = dup(STDIN_FILENO);
  ASSERT_NE(std::freopen(path.c_str(), "r", stdin), nullptr);
  Strings paths;
  testing::internal::CaptureStderr();
  ReadInputList("", true, paths);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  if (saved != -1) {
    dup2(saved, STDIN_FILENO);
    close(saved);
  }
  EXPECT_EQ(paths, (Strings{"a", "b"}));
}

}  // namespace
}  // namespace vexltags
