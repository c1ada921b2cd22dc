// SPDX-License-Identifier: MIT
// Tests of the joined scope names.
#include "parserstate/scope_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text.h"

namespace vexltags {
namespace {

TEST(ScopeText, IsEmptyOutsideScopes) {
  const ScopeText text("::");
  EXPECT_EQ(text.Joined(), "");
  EXPECT_EQ(text.Collapsed(), "");
}

TEST(ScopeText, JoinsAndCollapsesLikeTheWholeText) {
  const std::vector<std::string> names = {"a", "b <\n c>", " d ", "", "\t", "e"};
  ScopeText text("::");
  std::vector<std::string> joined;
  for (const std::string& name : names) {
    joined.push_back(text.Joined());
    const bool isFirst = joined.size() == 1;
    text.Open(name);
    EXPECT_EQ(text.Joined(), isFirst ? name : joined.back() + "::" + name);
    EXPECT_EQ(text.Collapsed(), CollapseWhitespace(text.Joined(), " "));
  }
  for (; !joined.empty(); joined.pop_back()) {
    text.Close();
    EXPECT_EQ(text.Joined(), joined.back());
    EXPECT_EQ(text.Collapsed(), CollapseWhitespace(joined.back(), " "));
  }
}

TEST(ScopeText, SeparatesAnEmptyFirstName) {
  ScopeText text(".");
  text.Open("");
  text.Open("b");
  EXPECT_EQ(text.Joined(), ".b");
}

}  // namespace
}  // namespace vexltags
