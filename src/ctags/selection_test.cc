// SPDX-License-Identifier: MIT
// Tests of the sets that option values select.
#include "ctags/selection.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags::ctags {
namespace {

constexpr Choice kChoices[] = {
    {'a', "alpha", true, ""}, {'b', "beta", false, ""}, {'-', "named", true, ""}};

/// Returns the members of the set after the values, one after the other.
std::string After(std::initializer_list<const char*> values) {
  Selection selection(kChoices);
  for (const char* value : values) selection.Apply(value);
  std::string members;
  for (const Choice& choice : kChoices) {
    EXPECT_EQ(selection.Has(choice), selection.Has(choice.name));
    if (selection.Has(choice)) members += choice.name[0];
  }
  return members;
}

TEST(Selection, StartsWithTheDefaults) { EXPECT_EQ(After({}), "an"); }

TEST(Selection, ReplacesAddsAndRemoves) {
  EXPECT_EQ(After({"b"}), "b");
  EXPECT_EQ(After({""}), "");
  EXPECT_EQ(After({"+b"}), "abn");
  EXPECT_EQ(After({"-a"}), "n");
  EXPECT_EQ(After({"-a+b"}), "bn");
  EXPECT_EQ(After({"ab-a"}), "b");
  EXPECT_EQ(After({"*"}), "abn");
  EXPECT_EQ(After({"-*+b"}), "b");
  EXPECT_EQ(After({"b", "+a"}), "ab");
}

TEST(Selection, TakesNames) {
  EXPECT_EQ(After({"{named}{beta}"}), "bn");
  EXPECT_EQ(After({"-{named}a"}), "");
}

TEST(Selection, ReturnsWhatItLacks) {
  Selection selection(kChoices);
  EXPECT_EQ(selection.Apply("+bz{gamma}y{odd"),
            (std::vector<std::string>{"z", "gamma", "y", "{odd"}));
  EXPECT_TRUE(selection.Has("beta"));
  EXPECT_FALSE(selection.Has("gamma"));
}

TEST(Selection, SetsOneMember) {
  Selection selection(kChoices);
  selection.Set("beta", true);
  selection.Set("alpha", false);
  selection.Set("gamma", true);
  EXPECT_TRUE(selection.Has("beta"));
  EXPECT_FALSE(selection.Has("alpha"));
}

}  // namespace
}  // namespace vexltags::ctags
