// SPDX-License-Identifier: MIT
// Tests of the steps of a run, with a fake indexer.
#include "driver/run.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace vexltags {
namespace {

using Strings = std::vector<std::string>;
namespace fs = std::filesystem;

Strings indexedPaths;

/// Adds a tag named like the path if it begins with "good"; otherwise fails with minus its length.
int FakeProcess(const std::string& path, Dumper& dumper) {
  indexedPaths.push_back(path);
  if (!path.starts_with("good")) return -static_cast<int>(path.size());
  dumper.Print(path + "\tfile\t1;\"\tf\n");
  return 0;
}

class RunTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "vexltags-run-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder = pattern;
    indexedPaths.clear();
  }
  void TearDown() override { fs::remove_all(folder); }

  /// Runs with the program name followed by `arguments`.
  int RunWith(const Strings& arguments) {
    std::vector<const char*> argv = {"vexltags"};
    for (const std::string& argument : arguments) argv.push_back(argument.c_str());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int status = vexltags::Run(static_cast<int>(argv.size()), argv.data(), FakeProcess);
    err = testing::internal::GetCapturedStderr();
    out = testing::internal::GetCapturedStdout();
    return status;
  }

  std::string File(const char* name, const std::string& content) {
    std::ofstream(folder / name, std::ios::binary) << content;
    return (folder / name).string();
  }

  std::string Content(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
  }

  fs::path folder;
  std::string out;
  std::string err;
};

TEST_F(RunTest, IndexesPathsInOrderAndWritesOnce) {
  EXPECT_EQ(RunWith({"--sort=no", "good2", "good1", "good2"}), 0);
  EXPECT_EQ(indexedPaths, (Strings{"good2", "good1", "good2"}));
  EXPECT_TRUE(out.starts_with("!_TAG_FILE_FORMAT"));
  EXPECT_TRUE(out.ends_with("good2\tfile\t1;\"\tf\ngood1\tfile\t1;\"\tf\ngood2\tfile\t1;\"\tf\n"));
  EXPECT_EQ(err, "");
}

TEST_F(RunTest, SucceedsIfAnyFileDoes) {
  EXPECT_EQ(RunWith({"bad", "good", "worse"}), 0);
  EXPECT_EQ(indexedPaths, (Strings{"bad", "good", "worse"}));
  EXPECT_TRUE(out.ends_with("good\tfile\t1;\"\tf\n"));
}

TEST_F(RunTest, ReturnsTheLastResultIfAllFail) {
  const std::string tags = File("tags", "untouched");
  EXPECT_EQ(RunWith({"bad", "worse", "-f", tags}), -5);
  EXPECT_EQ(RunWith({"worse", "bad"}), -3);
  EXPECT_EQ(Content(tags), "untouched");
  EXPECT_EQ(out, "");
}

TEST_F(RunTest, IndexesAnEmptyPathIfThereAreNone) {
  EXPECT_EQ(RunWith({"--sort=yes", "--debugDumpFilenames"}), 0);
  EXPECT_EQ(indexedPaths, Strings{""});
  EXPECT_EQ(err, "") << "no file is named when there is none";
  // A result of 0 writes the output here, too.
  EXPECT_TRUE(out.starts_with("!_TAG_FILE_FORMAT"));
}

TEST_F(RunTest, TreatsAnEmptyOrMissingListAsNoPath) {
  EXPECT_EQ(RunWith({"-L", File("list", "\n\n")}), 0);
  EXPECT_EQ(indexedPaths, Strings{""});
  EXPECT_EQ(RunWith({"-L", (folder / "missing").string()}), 0);
  EXPECT_EQ(indexedPaths, (Strings{"", ""}));
}

TEST_F(RunTest, AppendsTheListToTheArguments) {
  const std::string list = File("list", std::string("goodB\0goodC\n\n", 13));
  EXPECT_EQ(RunWith({"goodA", "-L", list}), 0);
  EXPECT_EQ(indexedPaths, (Strings{"goodA", "goodB", "goodC"}));
}

TEST_F(RunTest, PrintsListAndFilesOnRequest) {
  const std::string list = File("list", "goodB\n");
  EXPECT_EQ(RunWith({"--debugDumpFilenames", "bad", "-L", list}), 0);
  EXPECT_EQ(err, "Indexing: " + list + "\nIndexing: bad\nIndexing: goodB\n");
}

TEST_F(RunTest, WritesTheOutputFile) {
  const std::string tags = (folder / "new" / "tags").string();
  EXPECT_EQ(RunWith({"good", "-f", tags}), 0);
  EXPECT_EQ(out, "");
  EXPECT_TRUE(Content(tags).ends_with("good\tfile\t1;\"\tf\n"));
}

TEST_F(RunTest, ReturnsTheResultOfTheDump) {
  EXPECT_EQ(RunWith({"good", "-f", folder.string()}), -1);
  EXPECT_EQ(err, "error opening " + folder.string() + "\n");
}

TEST_F(RunTest, IndexesNothingAfterABadArgumentOrHelp) {
  EXPECT_EQ(RunWith({"good", "--sort"}), -1);
  EXPECT_EQ(RunWith({"good", "--append"}), -1);
  EXPECT_EQ(RunWith({"good", "--help"}), 0);
  EXPECT_EQ(RunWith({"good", "--version"}), 0);
  EXPECT_EQ(RunWith({}), 0);
  EXPECT_NE(out.find("Usage: vexltags"), std::string::npos);
  EXPECT_EQ(indexedPaths, Strings{});
}

TEST_F(RunTest, AcceptsAnEmptyArgumentVector) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(vexltags::Run(0, nullptr, FakeProcess), 0);
  EXPECT_NE(testing::internal::GetCapturedStdout().find("Usage: vexltags"), std::string::npos);
}

}  // namespace
}  // namespace vexltags
