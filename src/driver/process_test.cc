// SPDX-License-Identifier: MIT
// Tests of the last-line observer and of indexing several files.
#include "driver/process.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "testing/scratch.h"

namespace vexltags {
namespace {

std::int32_t LastLineOf(std::initializer_list<const char*> lines) {
  std::int32_t last = -1;
  LastLineObserver observer{&last};
  for (const char* line : lines) observer(line);
  return last;
}

TEST(LastLineObserver, KeepsTheLargestNumber) {
  EXPECT_EQ(LastLineOf({}), -1);
  EXPECT_EQ(LastLineOf({"a\tf\t7;\"\tf\n"}), 7);
  EXPECT_EQ(LastLineOf({"a\tf\t7;\"\tf\n", "b\tf\t30;\"\tf\n", "c\tf\t9;\"\tf\n"}), 30);
  EXPECT_EQ(LastLineOf({"a\tf\t1234567890;\"\tf\n"}), 1234567890);
}

TEST(LastLineObserver, IgnoresLinesThatAreNotTags) {
  EXPECT_EQ(LastLineOf({"!_TAG\t2\t5;\n"}), -1);
  EXPECT_EQ(LastLineOf({"a\tf\t7\n"}), -1);
  EXPECT_EQ(LastLineOf({"a f 7;\"\n"}), -1);
  EXPECT_EQ(LastLineOf({"7;\"\tf\n"}), -1);
  EXPECT_EQ(LastLineOf({"a\tf\tx7;\"\n"}), -1);
  EXPECT_EQ(LastLineOf({"a\tf\t-7;\"\n"}), -1);
  EXPECT_EQ(LastLineOf({"operator;\tf\t7;\"\n"}), -1);
  EXPECT_EQ(LastLineOf({""}), -1);
}

TEST(LastLineObserver, TreatsAnEmptyNumberAsZero) { EXPECT_EQ(LastLineOf({"a\tf\t;\"\n"}), 0); }

/// Returns the names of the tags that one `Indexer` finds in files with these names and texts.
std::vector<std::string> NamesIn(const std::vector<std::pair<std::string, std::string>>& files,
                                 bool thorough) {
  const testing_support::ScratchFolder scratch;
  Options options;
  options.sort = 0;
  options.thorough = thorough;
  Dumper dumper;
  Indexer indexer(options, {});
  for (const auto& [name, text] : files) {
    const std::string path = scratch.Path(name);
    testing_support::WriteFile(path, text);
    EXPECT_EQ(indexer.Process(path, dumper), 0) << name;
  }
  std::vector<std::string> names;
  for (const std::string_view line : dumper.Lines()) {
    names.emplace_back(line.substr(0, line.find('\t')));
  }
  return names;
}

using Names = std::vector<std::string>;

TEST(Indexer, SeparatesTheFilesOfARun) {
  const std::pair<std::string, std::string> c = {"a.c", "namespace open { int in;"};
  const std::pair<std::string, std::string> python = {"b.py", "class C:\n  def f(): pass\n"};
  const std::pair<std::string, std::string> other = {"d.c", "int out;\n"};
  EXPECT_EQ(NamesIn({c, python, other, python, c}, false),
            (Names{"open", "in", "C", "f", "out", "C", "f", "open", "in"}));
}

TEST(Indexer, ReportsOnAFileWithoutMessages) {
  const testing_support::ScratchFolder scratch;
  testing_support::WriteFile(scratch.Path("a.c"), "int a;\n)\n) int b;\n");
  Options options;
  options.cannonicalPaths = false;
  thorough::Session session(options, {});
  Indexer indexer(options, session);
  Dumper dumper;
  std::string text;
  const FileOutcome outcome =
      indexer.Index(scratch.Path("a.c"), dumper, [&text](std::string_view bytes) { text = bytes; });
  EXPECT_TRUE(outcome.isRead);
  EXPECT_EQ(text, "int a;\n)\n) int b;\n");
  EXPECT_EQ(outcome.stored, scratch.Path("a.c"));
  EXPECT_EQ(outcome.lines, 4);
  EXPECT_EQ(outcome.skipped.count, 2U);
  EXPECT_EQ(outcome.skipped.firstLine, 2U);
  EXPECT_EQ(dumper.Lines().size(), 2U);
  testing::internal::CaptureStderr();
  EXPECT_FALSE(indexer.Index(scratch.Path("missing.c"), dumper).isRead);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(Indexer, IndexesTextWithoutAFile) {
  Options options;
  options.thorough = true;
  thorough::SessionSources sources;
  sources.text = [](const std::string& path, bool) {
    const bool isHeader = path == "missing/a.h";
    return std::optional<std::string_view>(isHeader ? "#define FUN(name) int name() {}" : "");
  };
  thorough::Session session({"missing/a.h", "missing/a.odd"}, sources);
  Indexer indexer(options, session);
  Dumper dumper;
  EXPECT_TRUE(indexer.IndexText("missing/a.odd", "a.c", "FUN(made)\nint b;", dumper));
  EXPECT_TRUE(indexer.IndexText("missing/b", "x.py", "def p(): pass", dumper));
  EXPECT_TRUE(indexer.IndexText("missing/c.py", "x.swift", "", dumper));
  EXPECT_EQ(dumper.Lines(),
            (std::vector<std::string>{"made\t-\t1;\"\tf\n", "b\t-\t2;\"\tv\n", "p\t-\t1;\"\tf\n"}));
}

TEST(Indexer, ResumesAfterAStrayTokenOnlyIfThorough) {
  const std::pair<std::string, std::string> c = {"a.c", "int a;\n)\nint b;\n) ) int c;\n"};
  EXPECT_EQ(NamesIn({c}, false), Names{"a"});
  EXPECT_EQ(NamesIn({c}, true), (Names{"a", "b", "c"}));
  const std::pair<std::string, std::string> swift = {"a.swift", "let a = 1\n)\nfunc b() {}\n"};
  EXPECT_EQ(NamesIn({swift}, false), Names{"a"});
  EXPECT_EQ(NamesIn({swift}, true), (Names{"a", "b()"}));
}

}  // namespace
}  // namespace vexltags
