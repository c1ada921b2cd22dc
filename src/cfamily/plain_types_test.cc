// SPDX-License-Identifier: MIT
// Tests of recognising plain types.
#include "cfamily/plain_types.h"

#include <gtest/gtest.h>

#include <vector>

#include "cfamily/parser_test_support.h"

namespace vexltags {
namespace {

TEST(FailsAsPlainType, IfNoParenthesisComesBeforeTheEnd) {
  const std::vector<unsigned> plain[] = {
      {kMainId, kMainRParen},
      {kMainKw_int, kMainComma},
      {kMainKw_const, kMainKw_char, kMainStar, kMainId, kMainComma},
      {kMainId, kMainScope, kMainId, kMainAmpersand, kMainId, kMainAssign},
      {kMainId, kMainAnd, kMainSemicolon},
      {kMainId, kMainId, kMainLSquare, kMainRSquare, kMainRParen},
      {kMainId, kMainColon, kMainNumber, kMainComma},
      {kMainKw_volatile, kMainKw_void, kMainStar, kMainKw_const, kMainId, kMainRParen},
  };
  for (const auto& types : plain) {
    FakeParser parser(types);
    EXPECT_TRUE(FailsAsPlainType(&parser)) << types.size();
    EXPECT_EQ(parser.state.failed, static_cast<ANTLR3_BOOLEAN>(ANTLR3_TRUE));
    EXPECT_EQ(parser.state.errorRecovery, static_cast<ANTLR3_BOOLEAN>(ANTLR3_FALSE));
    EXPECT_EQ(parser.table.Position(), 0U);
  }
}

TEST(FailsAsPlainType, LeavesEverythingElseToTheRule) {
  const std::vector<unsigned> others[] = {
      {},
      {kMainRParen},
      {kMainStar, kMainRParen},
      {kMainId},
      {kMainId, kMainLParen, kMainRParen},
      {kMainId, kMainId, kMainLParen},
      {kMainId, kMainLess, kMainId, kMainGreater, kMainRParen},
      {kMainId, kMainEllipsis, kMainRParen},
      std::vector<unsigned>(100, kMainKw_int),
  };
  for (const auto& types : others) {
    FakeParser parser(types);
    EXPECT_FALSE(FailsAsPlainType(&parser)) << types.size();
    EXPECT_EQ(parser.state.failed, static_cast<ANTLR3_BOOLEAN>(ANTLR3_FALSE));
    EXPECT_EQ(parser.state.errorRecovery, static_cast<ANTLR3_BOOLEAN>(ANTLR3_TRUE));
  }
}

TEST(FailsAsPlainType, DoesNothingOutsideSpeculativeParses) {
  FakeParser parser({kMainId, kMainRParen});
  parser.state.backtracking = 0;
  EXPECT_FALSE(FailsAsPlainType(&parser));
}

TEST(FailsAsPlainDeclaration, IfNoParenthesisComesBeforeTheEnd) {
  const std::vector<unsigned> plain[] = {
      {kMainId, kMainId, kMainSemicolon},
      {kMainKw_int, kMainId, kMainAssign},
      {kMainKw_static, kMainKw_const, kMainKw_char, kMainStar, kMainId, kMainLSquare},
      {kMainKw_extern, kMainKw_struct, kMainId, kMainStar, kMainId, kMainComma},
      {kMainKw_inline, kMainKw_unsigned, kMainId, kMainColon, kMainNumber},
      {kMainKw_class, kMainId, kMainLCurly},
      {kMainKw_union, kMainLCurly},
  };
  for (const auto& types : plain) {
    FakeParser parser(types);
    EXPECT_TRUE(FailsAsPlainDeclaration(&parser)) << types.size();
    EXPECT_EQ(parser.state.failed, static_cast<ANTLR3_BOOLEAN>(ANTLR3_TRUE));
    EXPECT_EQ(parser.state.errorRecovery, static_cast<ANTLR3_BOOLEAN>(ANTLR3_FALSE));
    EXPECT_EQ(parser.table.Position(), 0U);
  }
}

TEST(FailsAsPlainDeclaration, LeavesEverythingElseToTheRule) {
  const std::vector<unsigned> others[] = {
      {},
      {kMainSemicolon},
      {kMainId},
      {kMainKw_friend, kMainId, kMainSemicolon},
      {kMainKw_int, kMainId, kMainLParen, kMainRParen, kMainSemicolon},
      {kMainKw_static, kMainId, kMainTilde, kMainId, kMainLParen},
      {kMainId, kMainStar, kMainKw_operator, kMainAssign, kMainLParen},
      {kMainId, kMainLess, kMainId, kMainComma},
      {kMainKw_extern, kMainStringLiteral, kMainLCurly},
      std::vector<unsigned>(100, kMainKw_static),
  };
  for (const auto& types : others) {
    FakeParser parser(types);
    EXPECT_FALSE(FailsAsPlainDeclaration(&parser)) << types.size();
    EXPECT_EQ(parser.state.failed, static_cast<ANTLR3_BOOLEAN>(ANTLR3_FALSE));
    EXPECT_EQ(parser.state.errorRecovery, static_cast<ANTLR3_BOOLEAN>(ANTLR3_TRUE));
  }
}

}  // namespace
}  // namespace vexltags
