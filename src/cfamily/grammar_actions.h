// SPDX-License-Identifier: MIT
// Actions of the C-family grammar within a construct.
#pragma once

#include <antlr3.h>

#include <string>

#include "cfamily/declarations.h"
#include "engine/parser_ops.h"
#include "parserstate/lexer_state.h"
#include "parserstate/name.h"
#include "parserstate/param.h"

namespace vexltags {

/// The part of the token stream between two token indices, inclusive; empty by default.
struct TokenRange {
  ANTLR3_MARKER first = 0;
  ANTLR3_MARKER last = -1;

  TokenRange() = default;
  TokenRange(ANTLR3_MARKER from, ANTLR3_MARKER to) : first(from), last(to) {}
};

/// The texts of all tokens of `range`, hidden ones included; see `TextBetween`.
template <class Context>
std::string TextOf(Context* ctx, const TokenRange& range) {
  return TextBetween(ctx, range.first, range.last);
}

/// The text and line of `token`.
Name NameOf(pANTLR3_COMMON_TOKEN token);

/// Reports the line and token that the parser has reached to the watchdog of the file. If that
/// finds that the file takes too long, moves to the end of the file.
template <class Context>
void ReportProgress(Context* ctx) {
  pANTLR3_TOKEN_STREAM tokens = ctx->pParser->tstream;
  const bool isOver = ctx->fileState->CheckWatchdog([ctx, tokens] {
    return std::to_string(NextLine(ctx)) + " " + TokenString(tokens->_LT(tokens, 1));
  });
  if (isOver) tokens->istream->seek(tokens->istream, tokens->istream->size(tokens->istream));
}

/// Appends a word to a type of several words, such as "long" to "unsigned", and copies its line.
void AppendTypeWord(Name& type, pANTLR3_COMMON_TOKEN word);
/// Appends the name of a type to the qualifiers before it, and copies its line.
void AppendTypeName(TypeDescriptor& type, const Name& name);
/// Appends further specifiers to a type, and copies their line.
void AppendSpecifiers(TypeDescriptor& type, const TypeDescriptor& specifiers);

/// The names of the parameters in parentheses, without types: "(a, b)".
std::string ParenthesizedNames(const ParamList& list);

/// Ends a name in `@interface` or `@protocol`: tags and opens it, unless it is a forward
/// declaration.
void EndObjcInterfacePart(VexlTagsParser& builder, const Name& name, const Name& category,
                          bool isInterface, bool isForward);

}  // namespace vexltags
