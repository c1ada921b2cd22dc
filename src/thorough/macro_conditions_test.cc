// SPDX-License-Identifier: MIT
// Tests of the conditions under which macros are defined.
#include "thorough/macro_conditions.h"

#include <gtest/gtest.h>

namespace vexltags::thorough {
namespace {

constexpr Dialect kHeader = Dialect::Unknown;

TEST(MacroConditions, KnowsNamesThatNoFileDefines) {
  MacroConditions conditions;
  conditions.AddDefined("SEEN");
  EXPECT_EQ(conditions.Current(), 0U);
  conditions.Take(DirectiveKind::Ifdef, "UNSEEN");
  const std::uint32_t unseen = conditions.Current();
  conditions.Take(DirectiveKind::Else, "");
  const std::uint32_t otherwise = conditions.Current();
  conditions.Take(DirectiveKind::Endif, "");
  conditions.Take(DirectiveKind::Ifndef, "SEEN");
  const std::uint32_t seen = conditions.Current();
  EXPECT_EQ(conditions.Of(unseen, kHeader), Truth::Unlikely);
  EXPECT_EQ(conditions.Of(otherwise, kHeader), Truth::Likely);
  EXPECT_EQ(conditions.Of(seen, kHeader), Truth::Unknown);
  EXPECT_EQ(conditions.Of(0, kHeader), Truth::True);
}

TEST(MacroConditions, TakesTheLeastLikelyOfAllAround) {
  MacroConditions conditions;
  conditions.Take(DirectiveKind::If, "1");
  conditions.Take(DirectiveKind::Ifdef, "__cplusplus");
  const std::uint32_t inner = conditions.Current();
  EXPECT_EQ(conditions.Of(inner, Dialect::Cxx), Truth::True);
  EXPECT_EQ(conditions.Of(inner, Dialect::C), Truth::False);
  EXPECT_EQ(conditions.Of(inner, kHeader), Truth::Likely);
}

TEST(MacroConditions, ReadsAllBranchesBeforeAnElse) {
  MacroConditions conditions;
  conditions.Take(DirectiveKind::If, "0");
  conditions.Take(DirectiveKind::Elif, "1");
  const std::uint32_t second = conditions.Current();
  conditions.Take(DirectiveKind::Else, "");
  EXPECT_EQ(conditions.Of(second, kHeader), Truth::True);
  EXPECT_EQ(conditions.Of(conditions.Current(), kHeader), Truth::False);
}

TEST(MacroConditions, ForgetsWhatAFileLeavesOpen) {
  MacroConditions conditions;
  conditions.Take(DirectiveKind::If, "0");
  conditions.BeginFile();
  EXPECT_EQ(conditions.Current(), 0U);
  conditions.Take(DirectiveKind::Endif, "");
  conditions.Take(DirectiveKind::Else, "");
  EXPECT_EQ(conditions.Depth(), 0U);
}

TEST(MacroConditions, BoundsDepthAndBranches) {
  MacroConditions conditions;
  for (int i = 0; i < 100000; ++i) conditions.Take(DirectiveKind::If, "0");
  EXPECT_EQ(conditions.Current(), 0U);
  conditions.BeginFile();
  conditions.Take(DirectiveKind::If, "0");
  for (int i = 0; i < 100000; ++i) conditions.Take(DirectiveKind::Elif, "0");
  EXPECT_EQ(conditions.Current(), 0U);
}

}  // namespace
}  // namespace vexltags::thorough
