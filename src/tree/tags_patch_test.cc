// SPDX-License-Identifier: MIT
// Tests that a patched file is the one that would be written anew.
#include "tree/tags_patch.h"

#include <gtest/gtest.h>

#include <deque>

namespace vexltags::tree {
namespace {

/// Files with tags of these names, one on each line.
class Project {
 public:
  TaggedFile& Add(const std::string& field, const std::vector<std::string>& names) {
    std::string& text = entries.emplace_back();
    int line = 0;
    for (const std::string& name : names) {
      const std::string rest = std::to_string(++line) + ";\"\tf";
      TagEntry entry;
      entry.name = name;
      entry.rest = rest;
      entry.text = name;
      AppendEntry(text, entry);
    }
    TaggedFile file;
    file.field = field;
    file.entries = text;
    files.push_back(std::move(file));
    return files.back();
  }
  std::string Output(const OutputStyle& style) {
    std::string all;
    WriteAllTags(files, style, 1, [&all](std::string_view bytes) {
      all += bytes;
      return true;
    });
    return all;
  }
  std::vector<TaggedFile> files;

 private:
  std::deque<std::string> entries;
};

using Names = std::vector<std::string>;

/// Replaces the tags of b.c in a file of three sources.
void CheckPatch(const Names& before, const Names& after, const OutputStyle& style) {
  Project old;
  Project now;
  for (Project* project : {&old, &now}) {
    project->Add("a.c", {"alpha", "Beta", "same", "beta_", "zeta"});
    project->Add("b.c", project == &old ? before : after);
    project->Add("b.cc", {"same", "same", "_x"});
  }
  std::vector<PatchLine> removed;
  std::vector<PatchLine> added;
  ASSERT_TRUE(AppendPatchLines(old.files[1], style, removed));
  ASSERT_TRUE(AppendPatchLines(now.files[1], style, added));
  const std::string former = old.Output(style);
  std::string patched;
  PatchSink sink;
  sink.write = [&patched](std::string_view bytes) {
    patched += bytes;
    return true;
  };
  sink.copy = [&](std::size_t begin, std::size_t size) {
    return sink.write(std::string_view(former).substr(begin, size));
  };
  ASSERT_TRUE(PatchTags(former, removed, added, style, sink));
  EXPECT_EQ(patched, now.Output(style));
}

TEST(PatchTags, GivesTheFileThatWouldBeWritten) {
  for (const Format format : {Format::kTags, Format::kRaw}) {
    for (const int sort : {1, 2}) {
      const OutputStyle style{format, Address::kCombined, sort, false};
      for (const Names& before : {Names{}, Names{"same"}, Names{"aaa", "same", "same", "zzz"},
                                  Names{"Beta", "beta", "BETA"}}) {
        for (const Names& after : {Names{}, Names{"same", "same"}, Names{"!", "beta", "~"}}) {
          CheckPatch(before, after, style);
        }
      }
    }
  }
}

TEST(PatchTags, FailsIfALineIsNotThere) {
  const OutputStyle style;
  Project project;
  project.Add("a.c", {"alpha"});
  const std::string old = project.Output(style);
  std::vector<PatchLine> removed;
  ASSERT_TRUE(AppendPatchLines(project.Add("b.c", {"alpha"}), style, removed));
  const PatchSink sink{[](std::string_view) { return true; },
                       [](std::size_t, std::size_t) { return true; }};
  EXPECT_FALSE(PatchTags(old, removed, {}, style, sink));
}

TEST(PatchTags, RefusesOddLines) {
  Project project;
  TaggedFile& file = project.Add("a.c", {"alpha"});
  std::vector<PatchLine> lines;
  file.hasOddLines = true;
  EXPECT_FALSE(AppendPatchLines(file, OutputStyle(), lines));
}

}  // namespace
}  // namespace vexltags::tree
