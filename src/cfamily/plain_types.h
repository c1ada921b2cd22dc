// SPDX-License-Identifier: MIT
// Tells at a glance that a type is a plain one, such as `const char *`, and no pointer to a
// function.
#pragma once

#include <antlr3.h>

#include "engine/parser_ops.h"
#include "vocabulary/main_tokens.h"

namespace vexltags {

/// True for a token of this type with which a type can begin, if it is a name, the word of a
/// built-in type or a qualifier.
constexpr bool BeginsPlainType(ANTLR3_UINT32 token) {
  return token == kMainId || (token >= kMainKw_char && token <= kMainKw_void) ||
         token == kMainKw_const || token == kMainKw_volatile || token == kMainKw_constexpr;
}

/// True for a token that may go on a type without opening a bracket of any kind.
constexpr bool ContinuesPlainType(ANTLR3_UINT32 token) {
  return BeginsPlainType(token) || token == kMainStar || token == kMainAmpersand ||
         token == kMainAnd || token == kMainScope;
}

/// True for a token that no type and no name of a parameter holds outside brackets.
constexpr bool EndsPlainType(ANTLR3_UINT32 token) {
  return token == kMainComma || token == kMainRParen || token == kMainSemicolon ||
         token == kMainAssign;
}

/// Fails a trial of a function pointer at once where a plain type, with or without a name, comes up
/// to one of the tokens of `EndsPlainType`: a function pointer needs a parenthesis, and none stands
/// before that. Nearly every parameter is such. False leaves everything to the rule.
template <class Context>
bool FailsAsPlainType(Context* ctx) {
  pANTLR3_RECOGNIZER_SHARED_STATE state = ctx->pParser->rec->state;
  if (!kReadsTable || state->backtracking == 0) return false;
  const TokenTable& tokens = *ctx->tokens;
  if (!BeginsPlainType(tokens.LA(1))) return false;
  constexpr ANTLR3_INT32 kFarthest = 32;
  ANTLR3_INT32 k = 2;
  while (k < kFarthest && ContinuesPlainType(tokens.LA(k))) ++k;
  if (!EndsPlainType(tokens.LA(k))) return false;
  // The rule would have matched the first token, and failed at a later one.
  state->errorRecovery = ANTLR3_FALSE;
  state->failed = ANTLR3_TRUE;
  return true;
}

}  // namespace vexltags
