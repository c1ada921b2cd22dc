// SPDX-License-Identifier: MIT
// Tests of the compact form of tags.
#include "tree/tag_entry.h"

#include <gtest/gtest.h>

namespace vexltags::tree {
namespace {

TagEntry Entry(std::string_view line) {
  TagEntry entry;
  SplitRawLine(line, "/src/a.c", entry);
  return entry;
}

std::string RawLine(const TagEntry& entry, std::string_view stored = "/src/a.c") {
  std::string line;
  AppendRawLine(line, entry, stored);
  return line;
}

TEST(TagEntry, ARawLineLosesItsFileField) {
  const TagEntry entry = Entry("name\t/src/a.c\t12;\"\tf\tclass:C");
  EXPECT_FALSE(entry.isWhole);
  EXPECT_EQ(entry.name, "name");
  EXPECT_EQ(entry.rest, "12;\"\tf\tclass:C");
  EXPECT_EQ(LineOf(entry.rest), 12);
  EXPECT_EQ(RawLine(entry, "/other"), "name\t/other\t12;\"\tf\tclass:C\n");
}

TEST(TagEntry, LinesOfOtherFormsAreKeptWhole) {
  for (const std::string line : {"", "name", "name\t", "name\t/src/a.c", "name\t/src/a.cc\t1;\"\tf",
                                 "name\t/src/b.c\t1;\"\tf", "\t/src"}) {
    const TagEntry entry = Entry(line);
    EXPECT_TRUE(entry.isWhole) << line;
    EXPECT_EQ(RawLine(entry, "/other"), line + "\n");
  }
}

TEST(TagEntry, EntriesAreReadAsTheyWereWritten) {
  const std::string longText(kMostText, 'x');
  std::string entries;
  TagEntry first = Entry("one\t/src/a.c\t1;\"\tf");
  first.text = longText;
  first.offset = 5000000000;
  TagEntry second = Entry("two");
  second.scopeKind = "class";
  AppendEntry(entries, first);
  const std::size_t middle = entries.size();
  AppendEntry(entries, second);

  TagEntry read;
  std::size_t at = 0;
  ASSERT_TRUE(ReadEntry(entries, at, read));
  EXPECT_EQ(at, middle);
  EXPECT_EQ(RawLine(read), "one\t/src/a.c\t1;\"\tf\n");
  EXPECT_EQ(read.text, longText);
  EXPECT_EQ(read.offset, 5000000000U);
  EXPECT_EQ(NameWithTab(entries, middle), "two\t");
  ASSERT_TRUE(ReadEntry(entries, at, read));
  EXPECT_EQ(RawLine(read), "two\n");
  EXPECT_EQ(read.scopeKind, "class");
  EXPECT_FALSE(ReadEntry(entries, at, read));
}

TEST(TagEntry, IncompleteEntriesAreNone) {
  std::string entries;
  AppendEntry(entries, Entry("one\t/src/a.c\t1;\"\tf"));
  for (std::size_t size = 0; size < entries.size(); ++size) {
    TagEntry read;
    std::size_t at = 0;
    EXPECT_FALSE(ReadEntry(std::string_view(entries).substr(0, size), at, read)) << size;
  }
}

TEST(TagEntry, MadeUpNamesAreRenumberedInNamesAndFieldsOnly) {
  std::string entries;
  TagEntry entry = Entry("__anon2\t/src/a.c\t1;\"\tm\tstruct:__anon2::__anon10\ttyperef:__anonX");
  entry.text = "int __anon2;";
  AppendEntry(entries, entry);
  const std::string renumbered = RenumberAnon(entries, 95);
  std::size_t at = 0;
  ASSERT_TRUE(ReadEntry(renumbered, at, entry));
  EXPECT_EQ(RawLine(entry),
            "__anon97\t/src/a.c\t1;\"\tm\tstruct:__anon97::__anon105\ttyperef:__anonX\n");
  EXPECT_EQ(entry.text, "int __anon2;");
}

TEST(TagEntry, RenumberingKeepsAllOtherEntries) {
  std::string entries;
  const std::string names[] = {"a", "__anon1", "b", "c", "__anon2", "__anon3", "d"};
  for (const std::string& name : names) {
    const std::string line = name + "\t/src/a.c\t1;\"\ts";
    const std::string text = "text of " + name;
    TagEntry entry = Entry(line);
    entry.text = text;
    AppendEntry(entries, entry);
  }
  EXPECT_EQ(RenumberAnon(entries, 0), entries);
  const std::string renumbered = RenumberAnon(entries, 9);
  std::string found;
  TagEntry entry;
  for (std::size_t at = 0; ReadEntry(renumbered, at, entry);) {
    found += std::string(entry.name) + ' ' + std::string(entry.text) + '\n';
  }
  EXPECT_EQ(found,
            "a text of a\n__anon10 text of __anon1\nb text of b\nc text of c\n"
            "__anon11 text of __anon2\n__anon12 text of __anon3\nd text of d\n");
}

}  // namespace
}  // namespace vexltags::tree
