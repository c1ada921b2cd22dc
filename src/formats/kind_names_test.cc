// SPDX-License-Identifier: MIT
// Tests of the names of kinds.
#include "formats/kind_names.h"

#include <gtest/gtest.h>

#include <string_view>

namespace vexltags {
namespace {

TEST(KindName, NamesEveryKind) {
  for (const char letter : std::string_view("csugetnXYwbVZCfpmvdiIoOrR")) {
    EXPECT_NE(KindName(letter, "C++"), "") << letter;
  }
  for (const char letter : std::string_view(" aAx\n")) EXPECT_EQ(KindName(letter, "C++"), "");
  EXPECT_EQ(KindName('g', "C"), "enum");
  EXPECT_EQ(KindName('e', "C"), "enumerator");
  EXPECT_EQ(KindName('p', "C++"), "prototype");
  EXPECT_EQ(KindName('m', "Python"), "member");
  EXPECT_EQ(KindName('O', "ObjectiveC"), "classMethod");
}

TEST(KindName, DependsOnTheLanguage) {
  EXPECT_EQ(KindName('t', "C++"), "typedef");
  EXPECT_EQ(KindName('t', "Swift"), "typealias");
}

}  // namespace
}  // namespace vexltags
