// SPDX-License-Identifier: MIT
// Tests of finding the sources of directories, with and without git.
#include "sources/source_list.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "sources/child_process.h"
#include "testing/scratch.h"

namespace vexltags {
namespace {

namespace fs = std::filesystem;
using testing_support::ScopedDirectory;
using testing_support::ScopedVariable;
using testing_support::ScratchFolder;
using Paths = std::vector<std::string>;

class ListSourcesTest : public ::testing::Test {
 protected:
  void Make(const std::string& path, const std::string& text = "") const {
    fs::create_directories(fs::path(scratch.Path(path)).parent_path());
    testing_support::WriteFile(scratch.Path(path), text);
  }

  /// Runs git in the directory `at` of the scratch folder; false if it is not installed.
  bool Git(const std::string& at, const Paths& arguments) const {
    Paths command = {"git",
                     "-C",
                     scratch.Path(at),
                     "-c",
                     "user.name=a",
                     "-c",
                     "user.email=a@b",
                     "-c",
                     "protocol.file.allow=always"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    const ChildResult result =
        RunChild(command, {std::string("PATH=") + std::getenv("PATH"), "HOME=/nonexistent"});
    EXPECT_TRUE(!result.started || result.status == 0) << result.errors;
    return result.started;
  }

  SourceList List(const Paths& arguments, const Paths& patterns = {}) const {
    SourceOptions options = base;
    for (const std::string& pattern : patterns) options.patterns.Add(pattern);
    const ScopedDirectory directory(scratch.Path());
    return ListSources(arguments, options);
  }

  Paths Found(const Paths& arguments, const Paths& patterns = {}) const {
    const SourceList list = List(arguments, patterns);
    EXPECT_EQ(list.problems, Paths());
    EXPECT_EQ(list.missing, Paths());
    Paths paths;
    for (const Source& source : list.sources) paths.push_back(source.path);
    return paths;
  }

  ScratchFolder scratch;
  SourceOptions base;
};

TEST_F(ListSourcesTest, WalksAndSorts) {
  for (const char* path : {"b/z.swift", "a.c", "b.h", "b/a.py", "notes.txt", "a.pyi", "x.PY"}) {
    Make(path);
  }
  Make("include/vector", "// -*- C++ -*-\n");
  Make("Makefile", "all:\n");
  EXPECT_EQ(Found({}), (Paths{"a.c", "b.h", "b/a.py", "b/z.swift", "include/vector"}));
  EXPECT_EQ(Found({"."}), Found({}));
  EXPECT_EQ(Found({"./b//"}), (Paths{"b/a.py", "b/z.swift"}));
  EXPECT_EQ(Found({scratch.Path("b")}), (Paths{scratch.Path("b/a.py"), scratch.Path("b/z.swift")}));
}

TEST_F(ListSourcesTest, StampsFiles) {
  Make("a.c", "int a;");
  struct stat status;
  ASSERT_EQ(stat(scratch.Path("a.c").c_str(), &status), 0);
  const FileStamp stamp = List({}).sources.at(0).stamp;
  EXPECT_EQ(stamp.inode, status.st_ino);
  EXPECT_EQ(stamp.device, status.st_dev);
  EXPECT_EQ(stamp.size, 6);
  EXPECT_EQ(stamp.modifiedAt / 1000000000, status.st_mtim.tv_sec);
  EXPECT_EQ(stamp.modifiedAt % 1000000000, status.st_mtim.tv_nsec);
}

TEST_F(ListSourcesTest, LeavesOutWhatIsNotTheProjects) {
  for (const char* path : {"a.c", ".hidden/b.c", "node_modules/x/b.c", "CVS/b.c", "env/lib/b.py",
                           "target/b.c", "sub/__pycache__/b.c"}) {
    Make(path);
  }
  Make("env/pyvenv.cfg");
  Make("target/CACHEDIR.TAG");
  EXPECT_EQ(Found({}), Paths{"a.c"});
  EXPECT_EQ(Found({}, {"!node_modules/", "!/target"}),
            (Paths{"a.c", "node_modules/x/b.c", "target/b.c"}));
  // An argument is always listed.
  EXPECT_EQ(Found({"target"}), Paths{"target/b.c"});
  EXPECT_EQ(Found({".hidden"}), Paths{".hidden/b.c"});
}

TEST_F(ListSourcesTest, AppliesPatternsToEachArgument) {
  for (const char* path : {"a/x/1.c", "a/1.c", "b/x/1.c", "b/x.c", "b/t.inc", "b/t.png"}) {
    Make(path, "text");
  }
  EXPECT_EQ(Found({}, {"x/"}), (Paths{"a/1.c", "b/x.c"}));
  EXPECT_EQ(Found({"a", "b"}, {"/x"}), (Paths{"a/1.c", "b/x.c"}));
  EXPECT_EQ(Found({}, {"/b/x"}), (Paths{"a/1.c", "a/x/1.c", "b/x.c"}));
  EXPECT_EQ(Found({}, {"*", "!b/", "!*.inc"}), Paths{"b/t.inc"});
  EXPECT_EQ(Found({"b"}, {"!*.inc", "!**"}), (Paths{"b/x.c", "b/x/1.c"}));
  Make("b/t.inc", std::string("bin\0ary", 7));
  EXPECT_EQ(Found({"b"}, {"!*.inc"}), (Paths{"b/x.c", "b/x/1.c"}));
}

TEST_F(ListSourcesTest, TakesFileArguments) {
  for (const char* path : {"a.c", "sub/t.inc", "sub/b.py"}) Make(path);
  EXPECT_EQ(Found({"sub/t.inc", "./a.c"}), (Paths{"a.c", "sub/t.inc"}));
  EXPECT_EQ(Found({"sub/t.inc", "a.c"}, {"sub/"}), Paths{"a.c"});
  base.languages = kPython;
  EXPECT_EQ(Found({"sub/t.inc", "a.c", "sub/b.py"}), Paths{"sub/b.py"});
}

TEST_F(ListSourcesTest, ListsEachFileOnce) {
  for (const char* path : {"a.c", "sub/b.c"}) Make(path);
  EXPECT_EQ(Found({".", "sub", "a.c"}), (Paths{"a.c", "sub/b.c"}));
  EXPECT_EQ(Found({"sub", scratch.Path("sub"), "sub/../sub/b.c"}), Paths{"sub/b.c"});
}

TEST_F(ListSourcesTest, SelectsLanguages) {
  for (const char* path : {"a.c", "a.h", "a.cc", "a.mm", "a.swift", "a.py"}) Make(path);
  Make("list", "#pragma once\n");
  base.languages = kC;
  EXPECT_EQ(Found({}), (Paths{"a.c", "a.h", "list"}));
  base.languages = kSwift | kPython;
  EXPECT_EQ(Found({}), (Paths{"a.py", "a.swift"}));
}

TEST_F(ListSourcesTest, FollowsNoLinksToDirectoriesAndListsTargetsOnce) {
  Make("a.c");
  Make("sub/b.c");
  Make("outside/c.c");
  fs::create_directory_symlink(".", scratch.Path("sub/loop"));
  fs::create_symlink("a.c", scratch.Path("again.c"));
  fs::create_symlink("nowhere.c", scratch.Path("broken.c"));
  fs::create_symlink("../outside/c.c", scratch.Path("sub/out.c"));
  fs::create_symlink("../outside/c.c", scratch.Path("sub/out2.c"));
  fs::create_symlink("self.c", scratch.Path("self.c"));
  EXPECT_EQ(Found({}), (Paths{"a.c", "outside/c.c", "sub/b.c"}));
  EXPECT_EQ(Found({"sub"}), (Paths{"sub/b.c", "sub/out.c"}));
}

TEST_F(ListSourcesTest, ListsRegularFilesOnly) {
  Make("a.c");
  ASSERT_EQ(mkfifo(scratch.Path("pipe.c").c_str(), 0600), 0);
  ASSERT_EQ(mkfifo(scratch.Path("pipe").c_str(), 0600), 0);
  fs::create_directory(scratch.Path("directory.c"));
  EXPECT_EQ(Found({}), Paths{"a.c"});
  EXPECT_EQ(List({"pipe.c"}).missing, Paths{"pipe.c: not a file or directory"});
  EXPECT_EQ(List({"none.c"}).missing, Paths{"none.c: No such file or directory"});
}

TEST_F(ListSourcesTest, ReportsWhatItCannotRead) {
  Make("a.c");
  Make("closed/b.c");
  fs::permissions(scratch.Path(), fs::perms::all);
  fs::permissions(scratch.Path("closed"), fs::perms::none);
  const int status = testing_support::RunInChild([this] {
    // Root can read everything.
    if (geteuid() == 0 && setuid(65534) != 0) return 3;
    const SourceList list = List({});
    if (list.sources.size() != 1) return 1;
    return list.problems == Paths{"cannot read closed: Permission denied"} ? 0 : 2;
  });
  fs::permissions(scratch.Path("closed"), fs::perms::owner_all);
  EXPECT_EQ(status, 0);
}

TEST_F(ListSourcesTest, ListsWhatGitTracksOrWould) {
  for (const char* path : {"a.c", "gone.c", "sub/b.c", "sub/new.c", "build/gen.c", ".hide/c.c",
                           "node_modules/d.c", "a b\n\xE9.c", "read.me"}) {
    Make(path);
  }
  if (!Git("", {"init", "-q"})) GTEST_SKIP() << "git is not installed";
  Make(".gitignore", "build/\nnew.c\n");
  Git("", {"add", "a.c", "gone.c", "sub/b.c"});
  fs::remove(scratch.Path("gone.c"));
  EXPECT_EQ(Found({}), (Paths{".hide/c.c", "a b\n\xE9.c", "a.c", "node_modules/d.c", "sub/b.c"}));
  EXPECT_EQ(Found({"sub"}), Paths{"sub/b.c"});
  EXPECT_EQ(Found({}, {"node_modules/", ".*/", "a*"}), Paths{"sub/b.c"});
  // A directory that git ignores is walked if it is an argument.
  EXPECT_EQ(Found({"build"}), Paths{"build/gen.c"});
  // Negated patterns bring back what git ignores.
  EXPECT_EQ(Found({"sub"}, {"!/new.c"}), (Paths{"sub/b.c", "sub/new.c"}));
  EXPECT_EQ(Found({"sub"}, {"!new.c"}), (Paths{"sub/b.c", "sub/new.c"}));
  EXPECT_EQ(Found({"sub"}, {"!new.c", "new.c"}), Paths{"sub/b.c"});
  EXPECT_EQ(Found({}, {"*", "!build/"}), Paths());
  EXPECT_EQ(Found({}, {"/[!b]*", "!build/"}), Paths{"build/gen.c"});
  fs::rename(scratch.Path("sub"), scratch.Path("s[u]b"));
  EXPECT_EQ(Found({"s[u]b"}, {"!/new.c"}), (Paths{"s[u]b/b.c", "s[u]b/new.c"}));
  fs::rename(scratch.Path("s[u]b"), scratch.Path("sub"));
  base.useGit = false;
  EXPECT_EQ(Found({"sub"}), (Paths{"sub/b.c", "sub/new.c"}));
}

TEST_F(ListSourcesTest, IsNotMisledByTheVariablesOfAHook) {
  Make("a.c");
  Make("other/b.c");
  Make("other/ignored.c");
  if (!Git("", {"init", "-q"})) GTEST_SKIP() << "git is not installed";
  Git("other", {"init", "-q"});
  Make("other/.git/info/exclude", "ignored.c\n");
  const ScopedVariable directory("GIT_DIR", scratch.Path(".git").c_str());
  const ScopedVariable index("GIT_INDEX_FILE", scratch.Path(".git/index.lock").c_str());
  EXPECT_EQ(Found({"other"}), Paths{"other/b.c"});
}

TEST_F(ListSourcesTest, ListsAFileWithAConflictOnce) {
  Make("a.c");
  if (!Git("", {"init", "-q"})) GTEST_SKIP() << "git is not installed";
  Git("", {"hash-object", "-w", "a.c"});
  const std::string script =
      "cd \"$1\" && for stage in 1 2 3; do"
      " printf '100644 e69de29bb2d1d6434b8b29ae775ad8c2e48c5391 %s\\ta.c\\n' $stage;"
      " done | git update-index --index-info && git ls-files -u | wc -l";
  const ChildResult result =
      RunChild({"sh", "-c", script, "sh", scratch.Path()},
               {std::string("PATH=") + std::getenv("PATH"), "HOME=/nonexistent"});
  ASSERT_EQ(std::atoi(result.output.c_str()), 3) << result.errors;
  EXPECT_EQ(Found({}), Paths{"a.c"});
}

TEST_F(ListSourcesTest, ListsRepositoriesInRepositories) {
  Make("top/a.c");
  Make("top/nested/b.c");
  Make("top/nested/ignored.c");
  Make("top/nested/.gitignore", "ignored.c\n");
  Make("library/c.c");
  if (!Git("", {"init", "-q", "top"})) GTEST_SKIP() << "git is not installed";
  for (const char* at : {"top/nested", "library"}) {
    Git(at, {"init", "-q"});
    Git(at, {"add", "."});
    Git(at, {"commit", "-qm", "first"});
  }
  Git("top", {"submodule", "-q", "add", scratch.Path("library"), "lib.c"});
  Make("top/lib.c/new.c");
  const Paths all = {"top/a.c", "top/lib.c/c.c", "top/lib.c/new.c", "top/nested/b.c"};
  EXPECT_EQ(Found({"top"}), all);
  EXPECT_EQ(Found({"top"}, {"/lib.c"}), (Paths{"top/a.c", "top/nested/b.c"}));
  EXPECT_EQ(Found({"top"}, {"!ignored.c"}).size(), all.size() + 1);
  EXPECT_EQ(Found({"top"}, {"!/ignored.c"}), all);
  // From a directory that is no work tree itself.
  EXPECT_EQ(Found({}), (Paths{"library/c.c", "top/a.c", "top/lib.c/c.c", "top/lib.c/new.c",
                              "top/nested/b.c"}));
  // A repository that git cannot read is walked.
  fs::rename(scratch.Path("top/lib.c/.git"), scratch.Path("link"));
  Make("top/lib.c/.git", "gitdir: nowhere\n");
  const SourceList damaged = List({"top"});
  EXPECT_EQ(damaged.sources.size(), all.size());
  EXPECT_EQ(damaged.problems.size(), 1U);
  fs::rename(scratch.Path("link"), scratch.Path("top/lib.c/.git"));
  Git("top", {"submodule", "-q", "deinit", "-f", "lib.c"});
  EXPECT_EQ(Found({"top"}), (Paths{"top/a.c", "top/nested/b.c"}));
}

TEST_F(ListSourcesTest, WalksWhereGitListsTrackedFilesOnly) {
  Make("top/a.c");
  Make("top/.hidden/b.c");
  Make("more/c.c");
  if (!Git("", {"init", "-q", "top"})) GTEST_SKIP() << "git is not installed";
  Git("top", {"add", "."});
  EXPECT_EQ(Found({"top", "more"}), (Paths{"more/c.c", "top/.hidden/b.c", "top/a.c"}));
  // What is to be ignored cannot be read.
  fs::remove_all(scratch.Path("top/.git/info/exclude"));
  fs::create_directories(scratch.Path("top/.git/info/exclude"));
  const SourceList walked = List({"top", "more"});
  ASSERT_EQ(walked.sources.size(), 2U);
  EXPECT_EQ(walked.sources[0].path, "more/c.c");
  EXPECT_EQ(walked.sources[1].path, "top/a.c");
  EXPECT_EQ(walked.problems.size(), 1U);
}

TEST_F(ListSourcesTest, WalksWhereGitIsMissingOrFails) {
  Make("a.c");
  Make("sub/b.c");
  Make(".git/config", "no repository");
  if (!Git("", {"--version"})) GTEST_SKIP() << "git is not installed";
  const SourceList failed = List({});
  EXPECT_EQ(failed.sources.size(), 2U);
  ASSERT_EQ(failed.problems.size(), 1U);
  EXPECT_TRUE(failed.problems[0].starts_with("fatal: ")) << failed.problems[0];
  const ScopedVariable path("PATH", "/nonexistent");
  EXPECT_EQ(Found({}), (Paths{"a.c", "sub/b.c"}));
}

}  // namespace
}  // namespace vexltags
