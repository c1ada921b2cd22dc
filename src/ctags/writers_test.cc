// SPDX-License-Identifier: MIT
// Tests of the lines that callers of ctags read.
#include "ctags/writers.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vexltags::ctags {
namespace {

const Language& kLanguage = Languages()[kCxx];

Tag Function() {
  Tag tag;
  tag.name = "f";
  tag.kind = KindWithLetter(kLanguage, 'f');
  tag.line = 3;
  tag.text = "int f(int a) {";
  tag.scopeKind = "class";
  tag.scope = "n::C";
  tag.signature = "(int a)";
  return tag;
}

std::string Line(const Tag& tag, const Settings& settings, const std::string& path = "a.cc") {
  std::string line;
  AppendTagsFormat(line, tag, path, kLanguage, settings);
  return line;
}

TEST(Writers, WriteTheChosenFields) {
  Settings settings;
  EXPECT_EQ(Line(Function(), settings), "f\ta.cc\t/^int f(int a) {$/;\"\tf\tclass:n::C\n");
  settings.fields.Apply("KlnsSZz");
  EXPECT_EQ(Line(Function(), settings),
            "f\ta.cc\t/^int f(int a) {$/;\"\tkind:function\tline:3\tlanguage:C++\t"
            "scope:class:n::C\tsignature:(int a)\n");
  settings.fields.Apply("");
  settings.address = Address::kLine;
  EXPECT_EQ(Line(Function(), settings), "f\ta.cc\t3;\"\n");
}

TEST(Writers, EscapeWhatSeparates) {
  Settings settings;
  EXPECT_EQ(Line(Function(), settings, "a\tb\\c\n.cc").substr(0, 17), "f\ta\\tb\\\\c\\n.cc\t/^");
  std::string escaped;
  AppendEscaped(escaped, "\r\x01\x7f");
  EXPECT_EQ(escaped, "\\r\\x01\\x7f");
  settings.isExuberant = true;
  EXPECT_EQ(Line(Function(), settings, "a\tb"), "");
  EXPECT_EQ(Line(Function(), settings, "a\\b").substr(0, 6), "f\ta\\b\t");
}

TEST(Writers, EndAPatternBeforeWhatReadersTakeForItsEnd) {
  Tag tag = Function();
  tag.text = "char *s = \";\"\t;";
  EXPECT_EQ(Line(tag, Settings()), "f\ta.cc\t/^char *s = \"/;\"\tf\tclass:n::C\n");
  tag.text = "";
  EXPECT_EQ(Line(tag, Settings()), "f\ta.cc\t3;\"\tf\tclass:n::C\n");
}

TEST(Writers, WriteJson) {
  Settings settings;
  settings.fields.Apply("+nS-PF");
  std::string line;
  Tag tag = Function();
  tag.name = "caf\xe9\"";
  AppendJsonFormat(line, tag, "a.cc", kLanguage, settings);
  EXPECT_EQ(line,
            "{\"_type\":\"tag\",\"name\":\"caf\xef\xbf\xbd\\\"\",\"line\":3,"
            "\"signature\":\"(int a)\",\"kind\":\"function\",\"scope\":\"n::C\","
            "\"scopeKind\":\"class\"}\n");
}

TEST(Writers, WriteXref) {
  Settings settings;
  const auto line = [&settings](const char* format) {
    settings.xformat = format;
    std::string text;
    AppendXrefFormat(text, Function(), "a.cc", kLanguage, settings);
    return text;
  };
  EXPECT_EQ(line("%N|%4n|%-6K|%F"), "f|   3|function|a.cc\n");
  EXPECT_EQ(line("%{name}%{signature}\t%{kind}\t%{line}"), "f(int a)\tfunction\t3\n");
  EXPECT_EQ(line("%"), "%\n");
  EXPECT_EQ(line("%-"), "%-\n");
  EXPECT_EQ(line("%{name"), "%{name\n");
  EXPECT_EQ(line("%%N"), "%N\n");
  EXPECT_EQ(line("%99999999999999999999N").size(), 1001U);
}

TEST(Writers, SortTheHeader) {
  Settings settings;
  std::string header;
  AppendHeader(header, settings, "/a b");
  std::string last;
  for (std::size_t at = 0; at < header.size();) {
    const std::size_t end = header.find('\n', at);
    const std::string line = header.substr(at, end - at);
    EXPECT_LT(last, line);
    EXPECT_EQ(std::count(line.begin(), line.end(), '\t'), 2) << line;
    last = line;
    at = end + 1;
  }
  EXPECT_NE(header.find("!_TAG_PROC_CWD\t/a b/\t//\n"), std::string::npos);
}

}  // namespace
}  // namespace vexltags::ctags
