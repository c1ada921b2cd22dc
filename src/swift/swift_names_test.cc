// SPDX-License-Identifier: MIT
// Tests of labels, dotted names and first names.
#include "swift/swift_names.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

TEST(ParameterLabel, PrefersTheExternalName) {
  const Param label = ParameterLabel(Name("to", 3), Name("x", 4));
  EXPECT_EQ(label.name, "to:");
  EXPECT_EQ(label.line, 3);
  EXPECT_EQ(label.type, "");
}

TEST(ParameterLabel, IsTheLocalNameWithoutAnExternalOne) {
  const Param label = ParameterLabel(Name(), Name("x", 4));
  EXPECT_EQ(label.name, "x:");
  EXPECT_EQ(label.line, 4);
}

TEST(ParameterLabel, AddsNoColonToAnUnderscore) {
  EXPECT_EQ(ParameterLabel(Name("_", 1), Name("x", 1)).name, "_");
  EXPECT_EQ(ParameterLabel(Name(), Name("_", 1)).name, "_");
  EXPECT_EQ(ParameterLabel(Name("_x", 1), Name("y", 1)).name, "_x:");
}

TEST(AppendMember, JoinsWithADotAndCopiesTheLine) {
  Name path("A", 1);
  AppendMember(path, Name("B", 2));
  AppendMember(path, Name("C", 5));
  EXPECT_EQ(path.text, "A.B.C");
  EXPECT_EQ(path.line, 5);
}

TEST(FirstName, IsTheFirst) {
  VectorOfName names;
  names.Add(Name("a", 7));
  names.Add(Name("b", 8));
  EXPECT_EQ(FirstName(names).text, "a");
  EXPECT_EQ(FirstName(names).line, 7);
}

TEST(FirstName, IsEmptyForAnEmptyList) {
  EXPECT_EQ(FirstName(VectorOfName()).text, "");
  EXPECT_EQ(FirstName(VectorOfName()).line, -1);
}

}  // namespace
}  // namespace vexltags
