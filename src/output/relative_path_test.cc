// SPDX-License-Identifier: MIT
// Tests of paths relative to the working directory.
#include "output/relative_path.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>

#include "testing/scratch.h"

namespace vexltags {
namespace {

using testing_support::RunInChild;
using testing_support::ScopedDirectory;
using testing_support::ScopedVariable;
using testing_support::ScratchFolder;

TEST(CommonSubpath, EndsAtTheLastSharedSeparator) {
  const struct {
    const char* a;
    const char* b;
    const char* common;
  } cases[] = {
      {"/w/a/x.c", "/w/a/", "/w/a/"},
      {"/w/a/x.c", "/w/ab/", "/w/"},
      {"/w/ab/x.c", "/w/a/", "/w/"},
      {"/w/a", "/w/a/", "/w/"},
      {"/w/a/", "/w/a/", "/w/a/"},
      {"/w/a", "/w/a", "/w/a"},
      {"/w/x.c", "/v/", ""},
      {"/x.c", "/", ""},
      {"/x.c", "//", ""},
      {"~/x.c", "/home/", ""},
      {"a/b", "a/c", "a/"},
      {"", "/", ""},
      {"", "", ""},
      {"/w//a", "/w//b", "/w//"},
  };
  for (const auto& c : cases) EXPECT_EQ(CommonSubpath(c.a, c.b), c.common) << c.a << ' ' << c.b;
}

TEST(RelativeToWorkingDirectory, RewritesThePath) {
  const struct {
    const char* why;
    const char* path;
    const char* home;
    const char* cwd;
    const char* expected;
  } cases[] = {
      {"in the working directory", "/w/a/x.c", "", "/w/a/", "x.c"},
      {"below it", "/w/a/b/x.c", "", "/w/a/", "b/x.c"},
      {"in its parent", "/w/x.c", "", "/w/a/", "../x.c"},
      {"beside it", "/w/b/x.c", "", "/w/a/", "../b/x.c"},
      {"two up", "/w/x.c", "", "/w/a/b/", "../../x.c"},
      {"sharing only the root", "/v/x.c", "", "/w/a/", "/v/x.c"},
      {"in the root", "/x.c", "", "/w/a/", "/x.c"},
      {"working in the root", "/x.c", "", "//", "/x.c"},
      {"the home directory is put in", "~/s/x.c", "/home/u/", "/home/u/", "s/x.c"},
      {"and counts as shared", "~/s/x.c", "/home/u/", "/home/u/t/", "../s/x.c"},
      {"without a home the tilde stays", "~/s/x.c", "", "/home/u/", "~/s/x.c"},
      {"a tilde anywhere is taken", "/w/a~/x.c", "/home/u/", "/w/a/", "home/u/x.c"},
      {"only the first tilde", "~/a~/x.c", "/home/u/", "/home/u/", "a~/x.c"},
      {"a name that begins alike", "/w/ab/x.c", "", "/w/a/", "../ab/x.c"},
      {"doubled separators count once", "/w/x.c", "", "/w/a//b/", "../../x.c"},
      {"an escaped blank differs from the plain one", "/w/a\\ b/x.c", "", "/w/a b/",
       "../a\\ b/x.c"},
      {"no step counts after a backslash", "/w/x.c", "", "/w/a/b\\c/d/e/", "../x.c"},
      {"a backslash first thing", "/w/x.c", "", "/w/\\a/b/", "x.c"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(RelativeToWorkingDirectory(c.path, c.home, c.cwd), c.expected) << c.why;
  }
}

TEST(HomePrefix, ComesFromTheEnvironment) {
  const ScopedVariable home("HOME", "/home/u");
  EXPECT_EQ(HomePrefix(true), "/home/u/");
  EXPECT_EQ(HomePrefix(false), "");
}

TEST(HomePrefix, IsNothingIfHomeIsUnset) {
  const ScopedVariable home("HOME", nullptr);
  EXPECT_EQ(HomePrefix(true), std::nullopt);
  EXPECT_EQ(HomePrefix(false), std::nullopt);
}

TEST(WorkingDirectory, IsThatOfPwdWithoutSymbolicLinks) {
  const ScratchFolder scratch;
  std::filesystem::create_directory(scratch.Path("real"));
  std::filesystem::create_symlink("real", scratch.Path("link"));
  const ScopedDirectory directory(scratch.Path("real"));
  const ScopedVariable pwd("PWD", scratch.Path("link").c_str());
  EXPECT_EQ(WorkingDirectory(), scratch.Path("real") + "/");
}

TEST(WorkingDirectory, IsThatOfPwdEvenFromElsewhere) {
  const ScratchFolder scratch;
  std::filesystem::create_directory(scratch.Path("other"));
  const ScopedDirectory directory(scratch.Path());
  {
    const ScopedVariable pwd("PWD", scratch.Path("other").c_str());
    EXPECT_EQ(WorkingDirectory(), scratch.Path("other") + "/");
  }
  const ScopedVariable pwd("PWD", "/");
  EXPECT_EQ(WorkingDirectory(), "//");
}

TEST(WorkingDirectory, IsThatOfTheProcessIfPwdDoesNotResolve) {
  const ScratchFolder scratch;
  const ScopedDirectory directory(scratch.Path());
  for (const std::string& wrong : {scratch.Path("missing"), std::string()}) {
    const ScopedVariable pwd("PWD", wrong.c_str());
    EXPECT_EQ(WorkingDirectory(), scratch.Path() + "/") << wrong;
  }
  const ScopedVariable pwd("PWD", nullptr);
  EXPECT_EQ(WorkingDirectory(), scratch.Path() + "/");
}

TEST(WorkingDirectory, IsEmptyIfNoneResolves) {
  const ScratchFolder scratch;
  std::filesystem::create_directory(scratch.Path("gone"));
  const ScopedVariable pwd("PWD", scratch.Path("gone").c_str());
  const int status = RunInChild([&scratch] {
    std::filesystem::current_path(scratch.Path("gone"));
    std::filesystem::remove(scratch.Path("gone"));
    return WorkingDirectory().empty() ? 0 : 1;
  });
  EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace vexltags
