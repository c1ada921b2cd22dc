// SPDX-License-Identifier: MIT
// The predicates of the Swift lexer, over its generated context.
//
// The grammar includes it in its @lexer::members, where the context's type is known.
#pragma once

/// The characters around the place where the lexer stands.
static vexltags::CharacterWindow CharactersAround(pswiftLexer ctx) {
  const pANTLR3_INPUT_STREAM input = ctx->pLexer->input;
  const auto* const begin = static_cast<const unsigned char*>(input->data);
  return {begin, input->nextChar, begin + input->sizeBuf};
}

/// Whether the slash that comes next opens a regular expression.
static bool IsRegexHead(pswiftLexer ctx) { return vexltags::IsRegexHead(CharactersAround(ctx)); }

/// Whether the end of a raw string comes next.
static bool IsRawStringEnd(pswiftLexer ctx) {
  return vexltags::PostfixedBy(CharactersAround(ctx), 1, "\"#");
}
