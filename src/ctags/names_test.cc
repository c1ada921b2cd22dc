// SPDX-License-Identifier: MIT
// Tests of the plain forms of names.
#include "ctags/names.h"

#include <gtest/gtest.h>

namespace vexltags::ctags {
namespace {

std::string Plain(LanguageIndex language, std::string_view name) {
  return PlainName(name, Languages()[language]);
}

TEST(Names, LoseTemplateArguments) {
  EXPECT_EQ(Plain(kCxx, "Box<int>"), "Box");
  EXPECT_EQ(Plain(kCxx, "Map<A<int>, B>"), "Map");
  EXPECT_EQ(Plain(kCxx, "operator <"), "operator <");
  EXPECT_EQ(Plain(kCxx, "operator<<"), "operator<<");
  EXPECT_EQ(Plain(kCxx, "operator std::vector<int>"), "operator std::vector<int>");
  EXPECT_EQ(Plain(kCxx, "operators<int>"), "operators");
  EXPECT_EQ(Plain(kCxx, "Odd<(a>b)>"), "Odd<(a>b)>");
  EXPECT_EQ(Plain(kCxx, "~Box"), "~Box");
}

TEST(Names, LoseCategoriesProtocolsAndLabels) {
  EXPECT_EQ(Plain(kObjectiveC, "View(Extra)"), "View");
  EXPECT_EQ(Plain(kObjectiveC, "Drawing<NSObject>"), "Drawing");
  EXPECT_EQ(Plain(kObjectiveC, "set:to:"), "set:to:");
  EXPECT_EQ(Plain(kObjectiveC, "format:, ..."), "format:");
  EXPECT_EQ(Plain(kSwift, "move(to:,_)"), "move");
  EXPECT_EQ(Plain(kSwift, "<(a:,b:)"), "<");
  EXPECT_EQ(Plain(kSwift, "deinit"), "deinit");
  EXPECT_EQ(Plain(kPython, "f"), "f");
}

TEST(Names, OfScopesArePlainToo) {
  EXPECT_EQ(PlainScope("geo::Box<a::B>::Part", Languages()[kCxx]), "geo::Box::Part");
  EXPECT_EQ(PlainScope("View(Extra)", Languages()[kObjectiveC]), "View");
  EXPECT_EQ(PlainScope("Stack.Cell", Languages()[kPython]), "Stack.Cell");
  EXPECT_EQ(PlainScope("", Languages()[kC]), "");
}

TEST(Names, AreQualifiedByTheirScope) {
  EXPECT_TRUE(IsQualifiedIn("void T::f() {}", "f", "n::T"));
  EXPECT_TRUE(IsQualifiedIn("template <class U> A T<A<U>> :: f() {}", "f", "T"));
  EXPECT_TRUE(IsQualifiedIn("bool n::T::operator==(T a) {}", "operator ==", "n::T"));
  EXPECT_TRUE(IsQualifiedIn("T::~T() {}", "~T", "T"));
  EXPECT_FALSE(IsQualifiedIn("void f(n::X x) {}", "f", "n"));
  EXPECT_FALSE(IsQualifiedIn("n::X f(int a) {}", "f", "n"));
  EXPECT_FALSE(IsQualifiedIn("void ST::f() {}", "f", "T"));
  EXPECT_FALSE(IsQualifiedIn("> :: f", "f", "T"));
  EXPECT_FALSE(IsQualifiedIn("", "f", "T"));
  EXPECT_FALSE(IsQualifiedIn("T::f", "", "T"));
}

TEST(Names, HaveCategories) {
  EXPECT_EQ(CategoryOf("View(Extra)", Languages()[kObjectiveC]), "Extra");
  EXPECT_EQ(CategoryOf("View()", Languages()[kObjectiveC]), "");
  EXPECT_EQ(CategoryOf("View", Languages()[kObjectiveC]), "");
  EXPECT_EQ(CategoryOf("operator ()", Languages()[kObjectiveC]), "");
  EXPECT_EQ(CategoryOf("f(a)", Languages()[kSwift]), "");
}

TEST(Names, HaveLabels) {
  EXPECT_EQ(LabelsOf("move(to:,_)", Languages()[kSwift]), "(to:_:)");
  EXPECT_EQ(LabelsOf("move(_)", Languages()[kSwift]), "(_:)");
  EXPECT_EQ(LabelsOf("init()", Languages()[kSwift]), "");
  EXPECT_EQ(LabelsOf("deinit", Languages()[kSwift]), "");
  EXPECT_EQ(LabelsOf("f(a:)", Languages()[kCxx]), "");
}

}  // namespace
}  // namespace vexltags::ctags
