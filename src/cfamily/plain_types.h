// SPDX-License-Identifier: MIT
// Recognises plain types, such as `const char *`, so that no speculative parse looks for a function
// pointer there.
#pragma once

#include <antlr3.h>

#include "engine/parser_ops.h"
#include "vocabulary/main_tokens.h"

namespace vexltags {

/// True for the type of a token that can begin a plain type: a name, a built-in type or a
/// qualifier.
constexpr bool BeginsPlainType(ANTLR3_UINT32 token) {
  return token == kMainId || (token >= kMainKw_char && token <= kMainKw_void) ||
         token == kMainKw_const || token == kMainKw_volatile || token == kMainKw_constexpr;
}

/// True for the type of a token that can continue a plain type without opening a bracket.
constexpr bool ContinuesPlainType(ANTLR3_UINT32 token) {
  return BeginsPlainType(token) || token == kMainStar || token == kMainAmpersand ||
         token == kMainAnd || token == kMainScope;
}

/// True for the type of a token that cannot be part of a type or parameter name outside brackets.
constexpr bool EndsPlainType(ANTLR3_UINT32 token) {
  return token == kMainComma || token == kMainRParen || token == kMainSemicolon ||
         token == kMainAssign;
}

/// Fails the speculative parse of a function pointer at once if a plain type, with or without a
/// name, ends at one of the tokens of `EndsPlainType`: a function pointer has a parenthesis before
/// that. This holds for nearly every parameter. Returns false to leave the decision to the rule.
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
  // The rule would match the first token and fail at a later one.
  state->errorRecovery = ANTLR3_FALSE;
  state->failed = ANTLR3_TRUE;
  return true;
}

}  // namespace vexltags
