// SPDX-License-Identifier: MIT
// Tests that tags are sorted as their whole lines are.
#include "tree/tag_sort.h"

#include <gtest/gtest.h>

#include <deque>

#include "output/line_order.h"
#include "output/line_store.h"

namespace vexltags::tree {
namespace {

constexpr std::string_view kNames[] = {"a",        "A", "ab",       "aB",      "a_b",
                                       "Ab",       "b", "abcdefgh", "abcdefg", "abcdefghi",
                                       "ABCDEFGH", "_", "Z",        "z",       "operator \x01"};
constexpr std::string_view kFields[] = {"/a.c", "/a.cc", "/a", "/b.c", "/a.c/d.c"};
constexpr std::string_view kRests[] = {"1;\"\tf", "1;\"\tf\tclass:A", "12;\"\tf", "2;\"\tf",
                                       "1;\"\tv"};

/// The raw lines of made-up files in the order of `SortTags`.
std::string Sorted(int sort, int threads, std::string& expected) {
  std::uint32_t seed = 7;
  const auto next = [&seed](std::size_t count) {
    seed = seed * 1664525 + 1013904223;
    return (seed >> 16) % count;
  };
  std::deque<std::string> entries;
  std::vector<TaggedFile> files;
  LineStore store;
  for (const std::string_view field : kFields) {
    std::string& texts = entries.emplace_back();
    for (int i = 0; i < 8000; ++i) {
      TagEntry entry;
      std::string name(kNames[next(std::size(kNames))]);
      if (next(3) == 0) name += name + std::string(next(20), 'x') + name;
      entry.name = name;
      entry.rest = kRests[next(std::size(kRests))];
      AppendEntry(texts, entry);
      std::string line;
      AppendRawLine(line, entry, field);
      store.Add(line);
    }
    TaggedFile file;
    file.field = field;
    file.entries = texts;
    files.push_back(std::move(file));
  }
  SortLines(store.Lines(), sort);
  for (const std::string_view line : store.Lines()) expected += line;
  RankFiles(files);
  const TagOrder order = sort == 0   ? TagOrder::kFiles
                         : sort == 1 ? TagOrder::kBytes
                                     : TagOrder::kFoldDown;
  std::string sorted;
  for (const TagPlace& place : SortTags(files, order, TieOrder::kBytes, threads)) {
    TagEntry entry;
    std::size_t at = place.at;
    EXPECT_TRUE(ReadEntry(files[place.file].entries, at, entry));
    AppendRawLine(sorted, entry, files[place.file].field);
  }
  return sorted;
}

TEST(SortTags, AgreesWithTheOrderOfWholeLines) {
  for (const int sort : {0, 1, 2}) {
    for (const int threads : {1, 2, 5}) {
      std::string expected;
      const std::string sorted = Sorted(sort, threads, expected);
      EXPECT_TRUE(sorted == expected) << sort << " " << threads;
    }
  }
}

TEST(SortTags, FoldsUpAsReadersExpect) {
  // `_` is between the upper-case and the lower-case letters.
  EXPECT_LT(CompareNames("az", "a_", TagOrder::kFoldUp), 0);
  EXPECT_GT(CompareNames("az", "a_", TagOrder::kFoldDown), 0);
  EXPECT_LT(CompareNames("a", "aB", TagOrder::kFoldUp), 0);
  EXPECT_LT(CompareNames("A", "a", TagOrder::kFoldUp), 0);
  EXPECT_EQ(CompareNames("a", "a", TagOrder::kFoldUp), 0);
}

TEST(SortTags, ComparesWithTheEnd) {
  EXPECT_LT(CompareEnded("a", "ab", '\t'), 0);
  EXPECT_GT(CompareEnded("a", "a\x01", '\t'), 0);
  EXPECT_LT(CompareEnded("f\tx", "f", '\n'), 0) << "a tab is less than the newline";
  EXPECT_EQ(CompareEnded("", "", '\n'), 0);
}

}  // namespace
}  // namespace vexltags::tree
