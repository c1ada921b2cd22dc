// SPDX-License-Identifier: MIT
// Predicates of the Swift lexer on its generated context.
//
// The grammar includes this file in @lexer::members, where the type of the context is known.
#pragma once

/// Returns the characters around the next one.
static vexltags::CharacterWindow CharactersAround(pswiftLexer ctx) {
  const pANTLR3_INPUT_STREAM input = ctx->pLexer->input;
  const auto* const begin = static_cast<const unsigned char*>(input->data);
  return {begin, input->nextChar, begin + input->sizeBuf};
}

/// True when the next character, a slash, opens a regular expression.
static bool IsRegexHead(pswiftLexer ctx) { return vexltags::IsRegexHead(CharactersAround(ctx)); }

/// True when the end of a raw string comes next.
static bool IsRawStringEnd(pswiftLexer ctx) {
  return vexltags::PostfixedBy(CharactersAround(ctx), 1, "\"#");
}
