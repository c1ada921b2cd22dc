// SPDX-License-Identifier: MIT
// Recognises the plain forms of frequent constructs, such as `int f(const char *, a::b c);`, so
// that speculative parses of them need no rules.
#pragma once

#include <antlr3.h>

#include <cstddef>
#include <type_traits>

#include "cfamily/plain_types.h"
#include "cfamily/type_text.h"
#include "engine/parser_ops.h"
#include "parserstate/name.h"
#include "vocabulary/main_tokens.h"

namespace vexltags {

/// Finds the ends of plain forms among the next tokens, which it counts from 1. Each function whose
/// name begins with `Past` returns the number of the token after the form that begins at number
/// `k`, or `k` if there is none. Where one is found, the rule of the same construct matches exactly
/// these tokens. Initialisers, defaults and long forms are left to the rules.
class PlainForms {
 public:
  explicit PlainForms(const TokenTable& table) : tokens(table) {}

  /// A form that ends here or later is none. Without a limit, long runs of names would be read
  /// again from each of their tokens.
  static constexpr ANTLR3_INT32 kLimit = 64;

  /// The type of the `k`th token ahead; 0, which no token has, from the limit on.
  ANTLR3_UINT32 TypeAt(ANTLR3_INT32 k) const { return k < kLimit ? tokens.LA(k) : 0; }

  /// `a` or `a<b<c>, d>`
  ANTLR3_INT32 PastSimpleName(ANTLR3_INT32 k) const {
    if (TypeAt(k) != kMainId) return k;
    if (TypeAt(k + 1) != kMainLess) return k + 1;
    int open = 1;
    for (ANTLR3_INT32 at = k + 2;; ++at) {
      const ANTLR3_UINT32 type = TypeAt(at);
      if (type == kMainGreater && --open == 0) return at + 1;
      // After anything but a name it opens no list.
      if (type == kMainLess && TypeAt(at - 1) != kMainId) return k;
      if (type == kMainLess) ++open;
      if (type == kMainLParen || type == kMainSemicolon || type == 0 || IsEnd(type)) return k;
    }
  }

  /// `a` or `a<b>::c`
  ANTLR3_INT32 PastName(ANTLR3_INT32 k) const {
    for (ANTLR3_INT32 at = k;; ++at) {
      const ANTLR3_INT32 name = at;
      at = PastSimpleName(name);
      if (at == name) return k;
      if (TypeAt(at) != kMainScope) return at;
    }
  }

  /// `f`, `~f` or `a<b>::~f`
  ANTLR3_INT32 PastFunctionName(ANTLR3_INT32 k) const {
    for (ANTLR3_INT32 at = k;; ++at) {
      if (TypeAt(at) == kMainTilde) ++at;
      const ANTLR3_INT32 name = at;
      at = PastSimpleName(name);
      if (at == name) return k;
      if (TypeAt(at) != kMainScope) return at;
    }
  }

  /// `int`, `const a::b *` or `struct a &`
  ANTLR3_INT32 PastType(ANTLR3_INT32 k) const {
    ANTLR3_INT32 at = k;
    while (IsPlainQualifier(TypeAt(at))) ++at;
    const ANTLR3_UINT32 key = TypeAt(at);
    if (key == kMainKw_struct || key == kMainKw_class || key == kMainKw_union) ++at;
    const ANTLR3_INT32 name = at;
    while (IsBuiltInWord(TypeAt(at))) ++at;
    if (at == name) at = PastName(name);
    if (at == name) return k;
    while (IsPointer(TypeAt(at)) || IsPlainQualifier(TypeAt(at))) ++at;
    return at;
  }

  /// `[]` or `[1][2]`; no token at all is such a form too.
  ANTLR3_INT32 PastArrays(ANTLR3_INT32 k) const {
    ANTLR3_INT32 at = k;
    while (TypeAt(at) == kMainLSquare) {
      for (++at; TypeAt(at) != kMainRSquare; ++at) {
        if (TypeAt(at) == kMainLSquare || TypeAt(at) == 0 || IsEnd(TypeAt(at))) return k;
      }
      ++at;
    }
    return at;
  }

  ANTLR3_INT32 PastNoParams(ANTLR3_INT32 k) const {
    return TypeAt(k) == kMainLParen && TypeAt(k + 1) == kMainRParen ? k + 2 : k;
  }

  /// `()` or `(int, const a *b, c d[])`
  ANTLR3_INT32 PastParams(ANTLR3_INT32 k) const {
    if (TypeAt(k) != kMainLParen) return k;
    if (TypeAt(k + 1) == kMainRParen) return PastNoParams(k);
    for (ANTLR3_INT32 at = k + 1;; ++at) {
      const ANTLR3_INT32 type = at;
      at = PastType(type);
      if (at == type) return k;
      if (TypeAt(at) == kMainId) ++at;
      at = PastArrays(at);
      if (TypeAt(at) == kMainRParen) return at + 1;
      if (TypeAt(at) != kMainComma) return k;
    }
  }

  /// `template <>` without a constraint
  ANTLR3_INT32 PastTemplateHead(ANTLR3_INT32 k) const {
    const bool isHead = TypeAt(k) == kMainKw_template && TypeAt(k + 1) == kMainLess &&
                        TypeAt(k + 2) == kMainGreater && TypeAt(k + 3) != kMainKw_requires;
    return isHead ? k + 3 : k;
  }

  /// `static int a::f(int) const` or `virtual ~a()`, up to the `;` or `{`
  ANTLR3_INT32 PastFunction(ANTLR3_INT32 k) const {
    ANTLR3_INT32 at = k;
    if (TypeAt(at) == kMainKw_friend) ++at;
    for (ANTLR3_INT32 head = 0; head != at;) {
      head = at;
      at = PastTemplateHead(at);
    }
    // A constructor and a function with a result have different specifiers.
    bool canConstruct = true;
    bool canReturn = true;
    for (; IsLinkage(TypeAt(at)) || TypeAt(at) == kMainKw_explicit; ++at) {
      canConstruct = canConstruct && IsFunctionSpecifier(TypeAt(at));
      canReturn = canReturn && IsLinkage(TypeAt(at));
    }
    ANTLR3_INT32 name = PastFunctionName(at);
    const bool constructs = name != at && TypeAt(name) == kMainLParen;
    if (!constructs) {
      const ANTLR3_INT32 type = PastType(at);
      name = PastFunctionName(type);
      if (type == at || name == type) return k;
    }
    if (constructs ? !canConstruct : !canReturn) return k;
    at = PastParams(name);
    if (at == name) return k;
    while (!constructs && IsPlainQualifier(TypeAt(at))) ++at;
    return TypeAt(at) == kMainSemicolon || TypeAt(at) == kMainLCurly ? at : k;
  }

  /// `a, *b[1]` or `a : 1`, up to the `;`
  ANTLR3_INT32 PastDeclarators(ANTLR3_INT32 k) const {
    for (ANTLR3_INT32 at = k;; ++at) {
      const ANTLR3_INT32 name = at;
      at = PastName(name);
      if (at == name) return k;
      const bool isBitField = TypeAt(at) == kMainColon && TypeAt(at + 1) == kMainNumber;
      at = isBitField ? at + 2 : PastArrays(at);
      if (TypeAt(at) == kMainSemicolon) return at;
      if (TypeAt(at) != kMainComma) return k;
      while (IsPointer(TypeAt(at + 1))) ++at;
    }
  }

  /// `extern const int a, *b[1];`
  ANTLR3_INT32 PastDeclaration(ANTLR3_INT32 k) const {
    ANTLR3_INT32 type = k;
    while (IsLinkage(TypeAt(type))) ++type;
    const ANTLR3_INT32 names = PastType(type);
    const ANTLR3_INT32 at = PastDeclarators(names);
    return names == type || at == names ? k : at + 1;
  }

 private:
  static bool IsEnd(ANTLR3_UINT32 token) {
    return token == static_cast<ANTLR3_UINT32>(ANTLR3_TOKEN_EOF);
  }
  static constexpr bool IsPointer(ANTLR3_UINT32 token) {
    return token == kMainStar || token == kMainAmpersand || token == kMainAnd;
  }
  /// True for the words of the rule `linkage`; `extern` with a literal ends no plain form.
  static constexpr bool IsLinkage(ANTLR3_UINT32 token) {
    return token == kMainKw_static || token == kMainKw_inline || token == kMainKw_extern ||
           token == kMainKw_virtual || token == kMainKw_constexpr || token == kMainKw_mutable ||
           token == kMainKw_consteval || token == kMainKw_constinit ||
           token == kMainKw_thread_local;
  }
  /// True for the words of the rule `function_specifier`.
  static constexpr bool IsFunctionSpecifier(ANTLR3_UINT32 token) {
    return token == kMainKw_inline || token == kMainKw_virtual || token == kMainKw_constexpr ||
           token == kMainKw_explicit || token == kMainKw_consteval || token == kMainKw_constinit;
  }

  const TokenTable& tokens;
};

/// Moves past a plain form that begins at the next token, if `past` finds one. Returns false to
/// leave everything to the rule. For rules that have the same result for each of these forms.
template <class Context>
bool Takes(Context* ctx, ANTLR3_INT32 (PlainForms::*past)(ANTLR3_INT32 k) const) {
  if (!kReadsTable) return false;
  const ANTLR3_INT32 end = (PlainForms(*ctx->tokens).*past)(1);
  if (end == 1 || end >= PlainForms::kLimit) return false;
  ctx->tokens->Seek(ctx->tokens->Position() + static_cast<std::size_t>(end) - 1);
  ctx->pParser->rec->state->errorRecovery = ANTLR3_FALSE;
  return true;
}

/// The same for a template head without parameters, whose text is that of one parameter without a
/// type and a name. Sets `result` to it.
template <class Context, class Result>
bool TakesEmptyTemplateHead(Context* ctx, Result& result) {
  if (!Takes(ctx, &PlainForms::PastTemplateHead)) return false;
  result = ValueParameterText("", "");
  return true;
}

/// Moves past a plain form only in a speculative parse, where rules have no results.
template <class Context>
bool PassesAs(Context* ctx, ANTLR3_INT32 (PlainForms::*past)(ANTLR3_INT32 k) const) {
  return ctx->pParser->rec->state->backtracking > 0 && Takes(ctx, past);
}

/// The same for a function with its `;` or its body.
template <class Context>
bool PassesAsFunction(Context* ctx) {
  if (!kReadsTable) return false;
  const std::size_t start = ctx->tokens->Position();
  if (!PassesAs(ctx, &PlainForms::PastFunction)) return false;
  if (ctx->tokens->LA(1) == kMainSemicolon) {
    ctx->tokens->Consume();
    return true;
  }
  const std::size_t close = ctx->tokens->Partner(kMainLCurly, kMainRCurly);
  const bool isClosed = close != TokenTable::kNoPartner;
  ctx->tokens->Seek(isClosed ? close + 1 : start);
  return isClosed;
}

/// Takes a name that is one word, and sets `result` to it outside speculative parses. Returns false
/// to leave everything to the rule.
template <class Context, class Result>
bool TakesWord(Context* ctx, Result& result) {
  if (!kReadsTable || ctx->tokens->LA(1) != kMainId) return false;
  const ANTLR3_UINT32 next = ctx->tokens->LA(2);
  if (next == kMainLess || next == kMainScope) return false;
  if constexpr (std::is_same_v<Result, Name>) {
    result.text = ctx->tokens->TextAt(ctx->tokens->Position());
    result.line = ctx->tokens->NextLine();
  }
  ctx->tokens->Consume();
  ctx->pParser->rec->state->errorRecovery = ANTLR3_FALSE;
  return true;
}

/// True in a speculative parse at a name after which no `::` can come.
template <class Context>
bool HasNoQualifier(Context* ctx) {
  if (!kReadsTable || ctx->pParser->rec->state->backtracking == 0) return false;
  if (ctx->tokens->LA(1) != kMainId) return false;
  const ANTLR3_UINT32 next = ctx->tokens->LA(2);
  if (next == kMainLess || next == kMainScope) return false;
  ctx->pParser->rec->state->errorRecovery = ANTLR3_FALSE;
  return true;
}

}  // namespace vexltags
