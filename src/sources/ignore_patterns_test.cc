// SPDX-License-Identifier: MIT
// Tests of patterns, with git as the judge where it is installed.
#include "sources/ignore_patterns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "sources/child_process.h"
#include "sources/path_filter.h"
#include "testing/scratch.h"

namespace vexltags {
namespace {

using Texts = std::vector<std::string>;

TEST(IgnorePattern, MatchesAsGitDoes) {
  struct Case {
    const char* pattern;
    const char* path;
    bool matches;
  };
  const Case cases[] = {
      {"a.c", "a.c", true},        {"a.c", "x/y/a.c", true},
      {"a.c", "a.cc", false},      {"/a.c", "a.c", true},
      {"/a.c", "x/a.c", false},    {"x/a.c", "x/a.c", true},
      {"x/a.c", "y/x/a.c", false}, {"*.c", "x/a.c", true},
      {"x/*.c", "x/y/a.c", false}, {"**/x/a", "x/a", true},
      {"**/x/a", "y/z/x/a", true}, {"x/**", "x/y/z", true},
      {"x/**", "x", false},        {"x/**/z", "x/z", true},
      {"x/**/z", "x/y/y/z", true}, {"?.c", "a.c", true},
      {"[ab].c", "b.c", true},     {"[!ab].c", "b.c", false},
      {"[a-c].c", "b.c", true},    {"\\*.c", "*.c", true},
      {"\\*.c", "a.c", false},     {"\\!a", "!a", true},
      {"[a", "[a", false},         {"a\\", "a\\", false},
      {"/", "a", false},           {"", "a", false},
      {"x/a**.c", "x/ab.c", true}, {"[]a].c", "].c", true},
      {"[[:digit:]]", "7", true},  {"x[/]a", "x/a", false},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(IgnorePattern(one.pattern).Matches(one.path, false), one.matches)
        << one.pattern << ' ' << one.path;
  }
}

TEST(IgnorePattern, RestrictsASlashAtTheEndToDirectories) {
  EXPECT_TRUE(IgnorePattern("x/").Matches("a/x", true));
  EXPECT_FALSE(IgnorePattern("x/").Matches("a/x", false));
  EXPECT_FALSE(IgnorePattern("/x/").Matches("a/x", true));
}

TEST(IgnorePatterns, LetsTheLastOneDecide) {
  IgnorePatterns patterns;
  for (const char* text : {"*.c", "!a.c", "x/a.c"}) patterns.Add(text);
  EXPECT_FALSE(patterns.Find("b.c", false)->IsNegated());
  EXPECT_TRUE(patterns.Find("a.c", false)->IsNegated());
  EXPECT_FALSE(patterns.Find("x/a.c", false)->IsNegated());
  EXPECT_EQ(patterns.Find("a.h", false), nullptr);
}

/// A work tree with files that differ in depth and special characters.
class WithGit : public ::testing::Test {
 protected:
  void SetUp() override {
    environment = {std::string("PATH=") + std::getenv("PATH"), "HOME=/nonexistent",
                   "GIT_CONFIG_NOSYSTEM=1"};
    if (!RunChild({"git", "init", "-q", scratch.Path()}, environment).started) {
      GTEST_SKIP() << "git is not installed";
    }
    const char* directories[] = {"", "a/b/c/", "b/a/", "a/", "a/b/", "b/", "a*/", "[a]/"};
    for (const char* directory : directories) {
      std::filesystem::create_directories(scratch.Path(directory));
    }
    for (const std::string directory : directories) {
      for (const char* name : {"a", "b", "ab", "a.c", "b.c", ".c", "a]", "!a", "a b", "\\", "7"}) {
        if (std::filesystem::is_directory(scratch.Path(directory + name))) continue;
        testing_support::WriteFile(scratch.Path(directory + name), "");
        paths.push_back(directory + name);
      }
    }
    std::sort(paths.begin(), paths.end());
  }

  Texts ByGit(const Texts& patterns) const {
    Texts command = {"git", "-C", scratch.Path(), "ls-files", "-o", "-z"};
    for (const std::string& pattern : patterns) {
      command.emplace_back("-x");
      command.push_back(pattern);
    }
    const ChildResult result = RunChild(command, environment);
    EXPECT_EQ(result.status, 0) << result.errors;
    Texts found;
    for (std::size_t start = 0; start < result.output.size();) {
      found.emplace_back(result.output.c_str() + start);
      start += found.back().size() + 1;
    }
    std::sort(found.begin(), found.end());
    return found;
  }

  Texts ByUs(const Texts& patterns) const {
    IgnorePatterns list;
    for (const std::string& pattern : patterns) list.Add(pattern);
    PathFilter filter(list);
    Texts found;
    for (const std::string& path : paths) {
      if (filter.Judge(path, false) != PathVerdict::kExcluded) found.push_back(path);
    }
    return found;
  }

  void Compare(const Texts& patterns) const {
    std::string shown;
    for (const std::string& pattern : patterns) shown += " '" + pattern + "'";
    EXPECT_EQ(ByUs(patterns), ByGit(patterns)) << shown;
  }

  testing_support::ScratchFolder scratch;
  Texts environment;
  Texts paths;
};

TEST_F(WithGit, AgreesOnATable) {
  ASSERT_EQ(ByGit({}), paths);
  const std::vector<Texts> table = {
      {"a"},
      {"/a"},
      {"a/"},
      {"/a/"},
      {"a/b"},
      {"a/b/"},
      {"/a/*"},
      {"a/*", "!a/b"},
      {"a/*", "!a/b/"},
      {"a/", "!a/b"},
      {"*", "!*.c"},
      {"*", "!*/", "!*.c"},
      {"**"},
      {"**/"},
      {"**/a"},
      {"**/b/a"},
      {"a/**"},
      {"a/**/a"},
      {"a/**/b/a"},
      {"/**/a.c"},
      {"a/***/a"},
      {"***"},
      {"a**"},
      {"**a"},
      {"a/**b"},
      {"**/**/a"},
      {"a/**/"},
      {"?"},
      {"?/a"},
      {"*/*"},
      {"*/*/a"},
      {"[ab]"},
      {"[!a]"},
      {"[^a]"},
      {"[a"},
      {"a]"},
      {"[]a]"},
      {"[a]]"},
      {"[\\]]"},
      {"\\[a]/a"},
      {"[[]a]/a"},
      {"[[:alpha:]]"},
      {"[![:alpha:]]"},
      {"[a-]"},
      {"[--7]"},
      {"\\a"},
      {"\\*"},
      {"a\\*/"},
      {"\\\\"},
      {"\\!a"},
      {"!a"},
      {"*", "!\\!a"},
      {"a b"},
      {"a\\ b"},
      {"a "},
      {".c"},
      {"*.c"},
      {".*"},
      {"/.c"},
      {"/"},
      {"//"},
      {"a//b"},
      {"./a"},
      {"../a"},
      {"a/."},
      {"*a*"},
      {"*a*b*"},
      {"a/?/c"},
      {"a[/]b"},
      {"a[!x]b"},
      {"a\\/b"},
      {"\\"},
      {"a\\"},
      {"!"},
  };
  for (const Texts& patterns : table) Compare(patterns);
}

TEST_F(WithGit, AgreesOnRandomPatterns) {
  std::mt19937 random(20);
  const char* pieces[] = {"a", "b", "c", ".c", "*", "**", "?", "/", "/**/", "[ab]", "[!a]", "\\a"};
  const auto upTo = [&random](unsigned limit) { return random() % limit; };
  for (int round = 0; round < 60; ++round) {
    Texts patterns;
    for (unsigned count = 1 + upTo(3); count > 0; --count) {
      std::string pattern = upTo(3) == 0 ? "!" : "";
      for (unsigned length = 1 + upTo(5); length > 0; --length) {
        pattern += pieces[upTo(std::size(pieces))];
      }
      patterns.push_back(pattern);
    }
    Compare(patterns);
  }
}

}  // namespace
}  // namespace vexltags
