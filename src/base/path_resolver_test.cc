// SPDX-License-Identifier: MIT
// Compares resolved paths with realpath(3).
#include "base/path_resolver.h"

#include <gtest/gtest.h>
#include <limits.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "testing/scratch.h"

namespace vexltags {
namespace {

namespace fs = std::filesystem;

std::string RealPath(const std::string& path) {
  char buffer[PATH_MAX];
  return realpath(path.c_str(), buffer) == nullptr ? path : buffer;
}

TEST(PathResolver, AgreesWithRealpath) {
  const testing_support::ScratchFolder scratch;
  const fs::path root = scratch.Path();
  fs::create_directories(root / "a/b");
  std::ofstream(root / "a/b/file.c") << "int i;\n";
  std::ofstream(root / "a/b/other.c") << "int i;\n";
  std::ofstream(root / "top.c") << "int i;\n";
  fs::create_symlink("b", root / "a/link");
  fs::create_symlink("../../top.c", root / "a/b/up.c");
  fs::create_symlink("nowhere", root / "a/b/dangling.c");
  fs::create_symlink("circle.c", root / "a/b/circle.c");
  PathResolver resolver;
  for (const char* name : {"a/b/file.c",
                           "a/b/other.c",
                           "a/link/file.c",
                           "a/link/up.c",
                           "a/b/up.c",
                           "a/b/dangling.c",
                           "a/b/circle.c",
                           "a/b/none.c",
                           "a/none/file.c",
                           "top.c",
                           "a/../top.c",
                           "a//b///file.c",
                           "a/b/file.c/x",
                           "a/b/file.c/",
                           "a/b/.",
                           "a/b/..",
                           "a/b/",
                           "a/b",
                           ".",
                           "..",
                           "/",
                           "//top",
                           "./top.c",
                           "a/link/../b/file.c"}) {
    const std::string path = (*name == '/' ? "" : root.string() + "/") + name;
    EXPECT_EQ(resolver.Resolve(path), RealPath(path)) << path;
    EXPECT_EQ(resolver.Resolve(path), RealPath(path)) << path << ", a second time";
  }
  EXPECT_EQ(resolver.Resolve(""), "");
  const std::string tooLong = root.string() + "/" + std::string(PATH_MAX, 'x');
  EXPECT_EQ(resolver.Resolve(tooLong), tooLong);
}

TEST(PathResolver, ResolvesRelativePaths) {
  PathResolver resolver;
  EXPECT_EQ(resolver.Resolve("."), RealPath("."));
  for (const fs::directory_entry& entry : fs::directory_iterator(".")) {
    const std::string name = entry.path().filename().string();
    EXPECT_EQ(resolver.Resolve(name), RealPath(name));
    EXPECT_EQ(resolver.Resolve("./" + name), RealPath(name));
  }
}

TEST(PathResolver, NoticesAFileThatBecomesALink) {
  const testing_support::ScratchFolder scratch;
  const fs::path root = scratch.Path();
  std::ofstream(root / "one.c") << "int i;\n";
  std::ofstream(root / "two.c") << "int i;\n";
  PathResolver resolver;
  EXPECT_EQ(resolver.Resolve((root / "one.c").string()), RealPath((root / "one.c").string()));
  fs::remove(root / "one.c");
  fs::create_symlink("two.c", root / "one.c");
  EXPECT_EQ(resolver.Resolve((root / "one.c").string()), RealPath((root / "two.c").string()));
}

}  // namespace
}  // namespace vexltags
