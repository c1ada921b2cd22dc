// SPDX-License-Identifier: MIT
// Tests of joining text with one blank.
#include "parserstate/append.h"

#include <gtest/gtest.h>

#include <string>

#include "engine/std_string.h"

namespace vexltags {
namespace {

TEST(AppendWithSpace, JoinsWithOneBlank) {
  const struct {
    const char* text;
    const char* piece;
    const char* expected;
  } cases[] = {
      {"", "", ""},       {"", "a", "a"},       {"a", "", "a"},        {"a", "b", "a b"},
      {"a ", "b", "a b"}, {"a  ", "b", "a  b"}, {"a\t", "b", "a\t b"}, {"a", " b", "a  b"},
      {" ", "b", " b"},   {"", " ", " "},
  };
  for (const auto& c : cases) {
    std::string text = c.text;
    EXPECT_EQ(AppendWithSpace(text, c.piece), c.expected) << '"' << c.text << '"';
    EXPECT_EQ(text, c.expected) << '"' << c.text << '"';
  }
}

TEST(AppendWithSpace, AcceptsEveryKindOfString) {
  stdString text = "unsigned";
  AppendWithSpace(text, stdString("long"));
  AppendWithSpace(text, std::string("int"));
  EXPECT_EQ(text, "unsigned long int");
}

}  // namespace
}  // namespace vexltags
