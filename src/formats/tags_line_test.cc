// SPDX-License-Identifier: MIT
// Tests of writing tag lines with each form of address.
#include "formats/tags_line.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

std::string Pattern(std::string_view text) {
  std::string out = ">";
  AppendSearchPattern(out, text);
  return out;
}

std::string Line(const TagRecord& tag, Address address) {
  std::string out = ">";
  AppendTagsLine(out, tag, address);
  return out;
}

TagRecord Width() {
  TagRecord tag;
  tag.name = "width";
  tag.path = "a dir/b.h";
  tag.line = 12;
  tag.kind = 'm';
  tag.scopeKind = "class";
  tag.scope = "geo::Shape";
  tag.typeref = "struct:Size";
  tag.text = "  } width;";
  return tag;
}

TEST(AppendSearchPattern, EscapesWhatASearchWouldTakeForItself) {
  EXPECT_EQ(Pattern("int a;"), ">/^int a;$/");
  EXPECT_EQ(Pattern("a/b\\c"), ">/^a\\/b\\\\c$/");
  EXPECT_EQ(Pattern("$a $"), ">/^$a \\$$/");
  EXPECT_EQ(Pattern("$$"), ">/^$\\$$/");
  EXPECT_EQ(Pattern("\t^[a]*.~;\"|"), ">/^\t^[a]*.~;\"|$/");
  EXPECT_EQ(Pattern("a\\"), ">/^a\\\\$/");
}

TEST(AppendSearchPattern, EndsBeforeWhatEditorsChange) {
  EXPECT_EQ(Pattern("int caf\xE9;"), ">/^int caf/");
  EXPECT_EQ(Pattern("caf\xC3\xA9"), ">/^caf\xC3\xA9$/");
  EXPECT_EQ(Pattern("a$\rb"), ">/^a$/");
  EXPECT_EQ(Pattern("a$\r"), ">/^a$/");
}

TEST(AppendSearchPattern, CutsLongLines) {
  const std::string a(kPatternLimit, 'a');
  EXPECT_EQ(Pattern(a), ">/^" + a + "$/");
  EXPECT_EQ(Pattern(a + "b"), ">/^" + a + "/");
  EXPECT_EQ(Pattern(a.substr(1) + "\xE2\x82\xAC" + "b"), ">/^" + a.substr(1) + "\xE2\x82\xAC/");
  EXPECT_EQ(Pattern(a.substr(1) + "/b"), ">/^" + a.substr(1) + "\\//");
}

TEST(AppendTagsLine, WritesEachAddress) {
  const std::string start = ">width\ta dir/b.h\t";
  const std::string end = "\tclass:geo::Shape\ttyperef:struct:Size\n";
  EXPECT_EQ(Line(Width(), Address::kCombined), start + "11;/^  } width;$/;\"\tm\tline:12" + end);
  EXPECT_EQ(Line(Width(), Address::kPattern), start + "/^  } width;$/;\"\tm\tline:12" + end);
  EXPECT_EQ(Line(Width(), Address::kLine), start + "12;\"\tm" + end);
}

TEST(AppendTagsLine, WritesNoFieldsThatAreEmpty) {
  TagRecord tag = Width();
  tag.scope = tag.typeref = "";
  tag.line = 1;
  EXPECT_EQ(Line(tag, Address::kCombined), ">width\ta dir/b.h\t0;/^  } width;$/;\"\tm\tline:1\n");
}

TEST(AppendTagsLine, GivesAScopeOfUnknownKindAKey) {
  TagRecord tag = Width();
  tag.scopeKind = "";
  EXPECT_EQ(Line(tag, Address::kLine),
            ">width\ta dir/b.h\t12;\"\tm\tscope:geo::Shape\ttyperef:struct:Size\n");
}

TEST(AppendTagsLine, WritesALineNumberWhereThereIsNothingToSearch) {
  TagRecord tag = Width();
  tag.scope = tag.typeref = "";
  for (const char* text : {"", "\xE9t\xE9", "\r"}) {
    tag.text = text;
    EXPECT_EQ(Line(tag, Address::kCombined), ">width\ta dir/b.h\t12;\"\tm\n");
    EXPECT_EQ(Line(tag, Address::kPattern), ">width\ta dir/b.h\t12;\"\tm\n");
  }
  tag.text = "int width;";
  tag.line = -1;
  EXPECT_EQ(Line(tag, Address::kCombined), ">width\ta dir/b.h\t1;\"\tm\n");
}

TEST(AppendTagsLine, RefusesPathsThatDoNotFit) {
  TagRecord tag = Width();
  for (const char* path : {"a\tb.c", "a\nb.c"}) {
    tag.path = path;
    std::string out = ">";
    EXPECT_FALSE(AppendTagsLine(out, tag, Address::kLine));
    EXPECT_EQ(out, ">");
  }
  tag.path = "a\\ b.c";
  std::string out;
  EXPECT_TRUE(AppendTagsLine(out, tag, Address::kLine));
  EXPECT_TRUE(out.starts_with("width\ta\\ b.c\t12;"));
}

TEST(AppendTagsHeader, SaysWhatIsTrueOfTheFile) {
  std::string out;
  AppendTagsHeader(out, '1', false);
  EXPECT_TRUE(
      out.starts_with("!_TAG_FILE_FORMAT\t2\t/extended format/\n"
                      "!_TAG_FILE_SORTED\t1\t/0=unsorted, 1=sorted, 2=foldcase/\n"
                      "!_TAG_PROGRAM_NAME\tvexltags\t//\n!_TAG_PROGRAM_VERSION\t"));
  EXPECT_EQ(out.find("ENCODING"), out.npos);
  out.clear();
  AppendTagsHeader(out, '0', true);
  EXPECT_TRUE(out.starts_with("!_TAG_FILE_ENCODING\tutf-8\t//\n!_TAG_FILE_FORMAT\t"));
  EXPECT_NE(out.find("!_TAG_FILE_SORTED\t0\t"), out.npos);
}

}  // namespace
}  // namespace vexltags
