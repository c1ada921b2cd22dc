// SPDX-License-Identifier: MIT
// Tests of the functions on paths.
#include "base/paths.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace vexltags {
namespace {

namespace fs = std::filesystem;

TEST(IsPathMeta, MatchesExactlySixteenCharacters) {
  const std::string meta = "\t\n\r \"'()*<>?[\\]^";
  ASSERT_EQ(meta.size(), 16U);
  for (int c = 0; c < 256; ++c) {
    const char ch = static_cast<char>(c);
    EXPECT_EQ(IsPathMeta()(ch), meta.find(ch) != std::string::npos) << "character " << c;
  }
}

TEST(EscapePath, PutsABackslashBeforeMetaCharacters) {
  const struct {
    const char* path;
    const char* expected;
  } cases[] = {
      {"", ""},
      {"/a/b.c", "/a/b.c"},
      {"/a b/c", "/a\\ b/c"},
      {"/a\\ b", "/a\\ b"},
      {"/a\\", "/a\\"},
      {"\\\\ ", "\\\\\\ "},
      {"\\xa b", "\\xa\\ b"},
      {"a\tb\nc\rd", "a\\\tb\\\nc\\\rd"},
      {"x\"'()*<>?[]^y", "x\\\"\\'\\(\\)\\*\\<\\>\\?\\[\\]\\^y"},
      {"{a}$;&|!#~%", "{a}$;&|!#~%"},
      {"\xc3\xa4/\xff", "\xc3\xa4/\xff"},
  };
  for (const auto& c : cases) EXPECT_EQ(EscapePath(c.path), c.expected) << c.path;
}

struct IsX {
  bool operator()(char c) const { return c == 'x'; }
};

TEST(EscapeWithBackslash, UsesItsPredicate) {
  EXPECT_EQ(EscapeWithBackslash<IsX>("ax x\\xb"), "a\\x \\x\\xb");
}

/// Sets or unsets `HOME` for one test.
class HomeGuard {
 public:
  explicit HomeGuard(const char* value) {
    if (const char* old = std::getenv("HOME")) saved = old;
    value != nullptr ? setenv("HOME", value, 1) : unsetenv("HOME");
  }
  ~HomeGuard() { saved ? setenv("HOME", saved->c_str(), 1) : unsetenv("HOME"); }

 private:
  std::optional<std::string> saved;
};

TEST(CanonicalizeHome, ReplacesTheFirstOccurrence) {
  const struct {
    const char* home;
    const char* path;
    const char* expected;
  } cases[] = {
      {"/Users/me", "/Users/me/x.c", "~/x.c"},
      {"/Users/me", "/Users/mex/x.c", "/Users/mex/x.c"},
      {"/Users/me", "/data/Users/me/x.c", "/data~/x.c"},
      {"/Users/me", "/Users/me", "/Users/me"},
      {"/Users/me", "/Users/me/Users/me/x", "~/Users/me/x"},
      {"/Users/me/", "/Users/me/x.c", "/Users/me/x.c"},
      {"/", "//x", "~/x"},
      {"", "/a/b", "~/a/b"},
  };
  for (const auto& c : cases) {
    const HomeGuard guard(c.home);
    testing::internal::CaptureStderr();
    EXPECT_EQ(CanonicalizeHome(c.path, true), c.expected) << c.home << " | " << c.path;
    EXPECT_EQ(CanonicalizeHome(c.path, false), c.path);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  }
}

TEST(CanonicalizeHome, ReportsAnUnsetHomeIfNeeded) {
  const HomeGuard guard(nullptr);
  testing::internal::CaptureStderr();
  EXPECT_EQ(CanonicalizeHome("/a/b", false), "/a/b");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  testing::internal::CaptureStderr();
  EXPECT_EQ(CanonicalizeHome("/a/b", true), "/a/b");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "No $HOME!\n");
}

class MakeParents : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "vexltags-paths-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    root = pattern;
    original = fs::current_path();
    fs::current_path(root);
  }
  void TearDown() override {
    fs::current_path(original);
    fs::remove_all(root);
  }

  fs::path root;
  fs::path original;
};

TEST_F(MakeParents, CreatesTheParentsButNotTheFile) {
  MakeParentDirForPathIfNeeded(root.string() + "/a/b/tags");
  EXPECT_TRUE(fs::is_directory(root / "a" / "b"));
  EXPECT_FALSE(fs::exists(root / "a" / "b" / "tags"));
}

TEST_F(MakeParents, AcceptsRelativeAndUnnormalizedPaths) {
  MakeParentDirForPathIfNeeded("a/b/c/tags");
  EXPECT_TRUE(fs::is_directory(root / "a" / "b" / "c"));
  MakeParentDirForPathIfNeeded("d//e/tags");
  EXPECT_TRUE(fs::is_directory(root / "d" / "e"));
  MakeParentDirForPathIfNeeded("x/y/");
  EXPECT_TRUE(fs::is_directory(root / "x" / "y"));
}

TEST_F(MakeParents, DoesNothingWithoutAParent) {
  for (const char* path : {"", "/", "tags", "/tags", "//tags"}) MakeParentDirForPathIfNeeded(path);
  EXPECT_TRUE(fs::is_empty(root));
}

TEST_F(MakeParents, KeepsExistingFilesAndReportsNothing) {
  fs::create_directory(root / "a");
  std::ofstream(root / "file") << "kept";
  testing::internal::CaptureStderr();
  MakeParentDirForPathIfNeeded("a/b/tags");
  MakeParentDirForPathIfNeeded("file/b/tags");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(fs::is_directory(root / "a" / "b"));
  EXPECT_EQ(fs::file_size(root / "file"), 4U);
}

TEST_F(MakeParents, AppliesTheUmask) {
  const mode_t old = umask(027);
  MakeParentDirForPathIfNeeded("m/tags");
  umask(old);
  struct stat status {};
  ASSERT_EQ(stat("m", &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0750U);
}

}  // namespace
}  // namespace vexltags
