// SPDX-License-Identifier: MIT
// Tests of writing tags tables of Emacs.
#include "formats/etags.h"

#include <gtest/gtest.h>

#include <vector>

namespace vexltags {
namespace {

TagRecord Tag(const char* name, std::int32_t line, std::string_view text, std::size_t offset) {
  TagRecord tag;
  tag.name = name;
  tag.line = line;
  tag.text = text;
  tag.offset = offset;
  return tag;
}

TEST(AppendEtagsSection, WritesTextNameLineAndOffset) {
  const std::vector<TagRecord> tags = {Tag("f", 1, "int f() {", 0), Tag("g", 12, "\tint g;", 345)};
  std::string out = ">";
  EXPECT_TRUE(AppendEtagsSection(out, "a dir/b,c.c", tags));
  EXPECT_EQ(out,
            ">\f\na dir/b,c.c,33\nint f() {\x7f"
            "f\x01"
            "1,0\n\tint g;\x7fg\x01"
            "12,345\n");
}

TEST(AppendEtagsSection, EndsTheTextBeforeWhatEmacsWouldNotFind) {
  const std::string longLine(600, 'a');
  const std::string euros = std::string(498, 'a') + "\xE2\x82\xAC" + "b";
  const std::vector<TagRecord> tags = {
      Tag("a", 1, "int caf\xE9;", 0), Tag("b", 1, "int \x7f", 0), Tag("c", 1, "int \x01", 0),
      Tag("d", 1, "int \f", 0),       Tag("e", 1, longLine, 0),   Tag("f", 1, euros, 0),
      Tag("gone", -1, "unknown", 0),
  };
  std::string out;
  EXPECT_TRUE(AppendEtagsSection(out, "a.c", tags));
  const std::string rest = out.substr(out.find('\n', 2) + 1);
  EXPECT_EQ(rest,
            "int caf\x7f"
            "a\x01"
            "1,0\nint \x7f"
            "b\x01"
            "1,0\nint \x7f"
            "c\x01"
            "1,0\nint \x7f"
            "d\x01"
            "1,0\n" +
                std::string(500, 'a') +
                "\x7f"
                "e\x01"
                "1,0\n" +
                std::string(498, 'a') +
                "\x7f"
                "f\x01"
                "1,0\n");
  EXPECT_EQ(out.substr(0, out.find('\n', 2) + 1), "\f\na.c," + std::to_string(rest.size()) + "\n");
}

TEST(AppendEtagsSection, WritesNoSectionWithoutTags) {
  std::string out = ">";
  EXPECT_TRUE(AppendEtagsSection(out, "a.c", {}));
  const std::vector<TagRecord> tags = {Tag("f", 1, "int f() {", 0)};
  EXPECT_FALSE(AppendEtagsSection(out, "a\nb.c", tags));
  EXPECT_EQ(out, ">");
}

}  // namespace
}  // namespace vexltags
