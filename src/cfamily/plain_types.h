// SPDX-License-Identifier: MIT
// Recognises plain types, such as `const char *`, so that no speculative parse looks for a function
// or a function pointer there.
#pragma once

#include <antlr3.h>

#include "engine/parser_ops.h"
#include "vocabulary/main_tokens.h"

namespace vexltags {

/// True for the type of a token that is a word of a built-in type.
constexpr bool IsBuiltInWord(ANTLR3_UINT32 token) {
  return token >= kMainKw_char && token <= kMainKw_void;
}

/// True for the type of a token that is a qualifier.
constexpr bool IsPlainQualifier(ANTLR3_UINT32 token) {
  return token == kMainKw_const || token == kMainKw_volatile || token == kMainKw_constexpr;
}

/// True for the type of a token that can begin a plain type: a name, a built-in type or a
/// qualifier.
constexpr bool BeginsPlainType(ANTLR3_UINT32 token) {
  return token == kMainId || IsBuiltInWord(token) || IsPlainQualifier(token);
}

/// True for the type of a token that can continue a plain type without opening a bracket.
constexpr bool ContinuesPlainType(ANTLR3_UINT32 token) {
  return BeginsPlainType(token) || token == kMainStar || token == kMainAmpersand ||
         token == kMainAnd || token == kMainScope;
}

/// True for the type of a token that cannot be part of a type or parameter name outside brackets.
constexpr bool EndsPlainType(ANTLR3_UINT32 token) {
  return token == kMainComma || token == kMainRParen || token == kMainSemicolon ||
         token == kMainAssign || token == kMainLSquare || token == kMainColon;
}

/// True for the type of a token that can begin a declaration of a plain type: also a specifier or a
/// class key.
constexpr bool BeginsPlainDeclaration(ANTLR3_UINT32 token) {
  return BeginsPlainType(token) || token == kMainKw_static || token == kMainKw_extern ||
         token == kMainKw_inline || token == kMainKw_struct || token == kMainKw_class ||
         token == kMainKw_union;
}

/// True for the type of a token that can continue such a declaration without opening a bracket.
constexpr bool ContinuesPlainDeclaration(ANTLR3_UINT32 token) {
  return ContinuesPlainType(token) || BeginsPlainDeclaration(token);
}

/// True for the type of a token that no function has outside brackets before its parameters.
constexpr bool EndsPlainDeclaration(ANTLR3_UINT32 token) {
  return EndsPlainType(token) || token == kMainLCurly;
}

/// Fails the speculative parse of a rule that begins at the next token, as it would do at a later
/// one.
template <class Context>
bool FailAtLaterToken(Context* ctx) {
  pANTLR3_RECOGNIZER_SHARED_STATE state = ctx->pParser->rec->state;
  state->errorRecovery = ANTLR3_FALSE;
  state->failed = ANTLR3_TRUE;
  return true;
}

/// Returns the type of the first token after the next one for which `continues` is false; after too
/// many, that of a token for which it may be true.
template <class Context, class Predicate>
ANTLR3_UINT32 FirstBeyond(Context* ctx, Predicate continues) {
  constexpr ANTLR3_INT32 kFarthest = 32;
  ANTLR3_INT32 k = 2;
  while (k < kFarthest && continues(ctx->tokens->LA(k))) ++k;
  return ctx->tokens->LA(k);
}

/// Fails the speculative parse of a function pointer at once if a plain type, with or without a
/// name, ends at one of the tokens of `EndsPlainType`: a function pointer has a parenthesis before
/// that. This holds for nearly every parameter. Returns false to leave the decision to the rule.
template <class Context>
bool FailsAsPlainType(Context* ctx) {
  if (!kReadsTable || ctx->pParser->rec->state->backtracking == 0) return false;
  if (!BeginsPlainType(ctx->tokens->LA(1))) return false;
  return EndsPlainType(FirstBeyond(ctx, ContinuesPlainType)) && FailAtLaterToken(ctx);
}

/// Fails the speculative parse of a function at once if a declaration of a plain type, or the head
/// of a plain class, ends at one of the tokens of `EndsPlainDeclaration`: a function has a
/// parenthesis or `operator` before that. Returns false to leave the decision to the rule.
template <class Context>
bool FailsAsPlainDeclaration(Context* ctx) {
  if (!kReadsTable || ctx->pParser->rec->state->backtracking == 0) return false;
  if (!BeginsPlainDeclaration(ctx->tokens->LA(1))) return false;
  return EndsPlainDeclaration(FirstBeyond(ctx, ContinuesPlainDeclaration)) && FailAtLaterToken(ctx);
}

}  // namespace vexltags
