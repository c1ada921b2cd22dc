// SPDX-License-Identifier: MIT
// Predicates of the Swift parser on its generated context, and the text of an operator.
//
// The grammar includes this file in @parser::members, where the type of the context is known.
#pragma once

static_assert(ANTLR3_TOKEN_EOF == vexltags::kSwiftEndOfFile);

/// Returns the types of the tokens around the next one, hidden tokens included.
static vexltags::TokenWindow TokensAround(pswiftParser ctx) {
#ifdef VEXLTAGS_PLAIN
  return {ctx->pParser->tstream->super, [](const void* buffer, int offset) {
            const auto* const stream = static_cast<const ANTLR3_COMMON_TOKEN_STREAM*>(buffer);
            const auto index = static_cast<ANTLR3_UINT32>(stream->p + offset);
            if (index >= stream->tokens->count) return static_cast<unsigned>(ANTLR3_TOKEN_EOF);
            void* const token = stream->tokens->elements[index].element;
            return static_cast<unsigned>(static_cast<pANTLR3_COMMON_TOKEN>(token)->type);
          }};
#else
  return {ctx->tokens,
          [](const void* tokens, int offset) {
            return static_cast<const vexltags::TokenTable*>(tokens)->RawType(offset);
          },
          ctx->tokens->Position(), ctx->builder->operatorRuns};
#endif
}

static int getLastOpTokenIndex(pswiftParser ctx) {
  return vexltags::getLastOpTokenIndex(TokensAround(ctx));
}
static bool isBinaryOp(pswiftParser ctx) { return vexltags::isBinaryOp(TokensAround(ctx)); }
static bool isPrefixOp(pswiftParser ctx) { return vexltags::isPrefixOp(TokensAround(ctx)); }
static bool isPostfixOp(pswiftParser ctx) { return vexltags::isPostfixOp(TokensAround(ctx)); }
static bool operNotGenericClauseOpener(pswiftParser ctx) {
  return vexltags::operNotGenericClauseOpener(TokensAround(ctx));
}

/// Returns the operator from token `first` to the last matched token: the text from one to the
/// other, hidden tokens included, with the line of the next token.
static vexltags::Name OperatorName(pswiftParser ctx, ANTLR3_MARKER first) {
#ifdef VEXLTAGS_PLAIN
  const pANTLR3_TOKEN_STREAM tokens = ctx->pParser->tstream;
  const auto last = static_cast<ANTLR3_UINT32>(tokens->_LT(tokens, -1)->index);
  const auto from = static_cast<ANTLR3_UINT32>(first);
  return {vexltags::stdString(tokens->toStringSS(tokens, from, last)),
          vexltags::TokenLine(tokens->_LT(tokens, 1))};
#else
  const vexltags::TokenTable& tokens = *ctx->tokens;
  return {tokens.Text(static_cast<std::size_t>(first), tokens.Position() - 1), tokens.NextLine()};
#endif
}
