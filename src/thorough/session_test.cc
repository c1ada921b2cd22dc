// SPDX-License-Identifier: MIT
// Tests of where a session learns macros from.
#include "thorough/session.h"

#include <gtest/gtest.h>

#include <map>

namespace vexltags::thorough {
namespace {

using Paths = std::vector<std::string>;

/// Files in memory that note what is asked for.
struct FakeFiles {
  std::map<std::string, std::string> texts;
  Paths read;
  Paths probed;

  SessionSources Sources() {
    return {[this](const std::string& path, bool) -> std::optional<std::string_view> {
              read.push_back(path);
              const auto found = texts.find(path);
              if (found == texts.end()) return std::nullopt;
              return found->second;
            },
            [this](const std::string& path) {
              probed.push_back(path);
              return texts.contains(path);
            }};
  }
};

std::string BodyOf(Session& session, std::string_view name) {
  const MacroDefinition* found = session.Macros().Find(name);
  return found == nullptr ? "none" : session.FileAt(found->file) + ": " + std::string(found->body);
}

TEST(Session, LearnsFromTheSourcesThatItIsGiven) {
  FakeFiles files;
  files.texts = {{"a/b.c", "#include \"x.h\"\n#define A int\n"}, {"x.h", "#define B long\n"}};
  Session session(Options(), {"a/b.c", "a/c.py", "a/missing.c"}, files.Sources());
  EXPECT_EQ(files.read, (Paths{"a/b.c", "a/missing.c", "x.h"}));
  EXPECT_EQ(files.probed, (Paths{"a/x.h", "x.h"}));
  EXPECT_EQ(BodyOf(session, "A"), "a/b.c: int");
  EXPECT_EQ(BodyOf(session, "B"), "x.h: long");
  EXPECT_EQ(Paths(session.Files().begin(), session.Files().end()),
            (Paths{"a/b.c", "a/missing.c", "x.h"}));
}

TEST(Session, LearnsFromAListOfFilesWithoutOtherIncludes) {
  FakeFiles files;
  files.texts = {{"a.c", "#include \"x.h\"\n#define A int\n"}, {"x.h", "#define A long\n"}};
  Session session({"x.h", "a.c"}, files.Sources());
  EXPECT_EQ(files.read, (Paths{"x.h", "a.c"}));
  EXPECT_TRUE(files.probed.empty());
  EXPECT_EQ(BodyOf(session, "A"), "x.h: long");
}

}  // namespace
}  // namespace vexltags::thorough
