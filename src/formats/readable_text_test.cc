// SPDX-License-Identifier: MIT
// Tests of finding text that editors show unchanged.
#include "formats/readable_text.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags {
namespace {

TEST(Utf8Length, TakesValidText) {
  for (const std::string& text :
       {std::string(), std::string("plain text of more than eight bytes"), std::string("a\0b", 3),
        std::string("\xC2\x80\xDF\xBF"), std::string("\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80"),
        std::string("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF")}) {
    EXPECT_EQ(Utf8Length(text), text.size()) << text;
  }
}

TEST(Utf8Length, StopsAtTheFirstInvalidByte) {
  for (const char* bytes :
       {"\x80", "\xC0\x80", "\xC1\xBF", "\xC3", "\xC3(", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xE2\x82",
        "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF0\x9F\x98", "\xFF"}) {
    EXPECT_EQ(Utf8Length(std::string("12345678\xC3\xA9") + bytes), 10U) << bytes;
    EXPECT_EQ(Utf8Length(std::string(bytes) + "and more text"), 0U) << bytes;
  }
}

TEST(ReadableText, EndsBeforeWhatEditorsChange) {
  EXPECT_EQ(ReadableText("int caf\xC3\xA9;"), "int caf\xC3\xA9;");
  EXPECT_EQ(ReadableText("int caf\xE9;"), "int caf");
  EXPECT_EQ(ReadableText("int a;\rint b;"), "int a;");
  EXPECT_EQ(ReadableText(std::string_view("int a;\0int b;", 13)), "int a;");
  EXPECT_EQ(ReadableText("\tint\fa;"), "\tint\fa;");
}

}  // namespace
}  // namespace vexltags
