// SPDX-License-Identifier: MIT
// Small steps that the rules of the C family take while a construct is being read.
#pragma once

#include <antlr3.h>

#include <string>

#include "cfamily/declarations.h"
#include "engine/parser_ops.h"
#include "parserstate/lexer_state.h"
#include "parserstate/name.h"
#include "parserstate/param.h"

namespace vexltags {

/// A stretch of the token stream by the indices of its first and last token; empty at the start.
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

/// Tells the file's watchdog which line and token the parser has come to.
template <class Context>
void ReportProgress(Context* ctx) {
  ctx->fileState->CheckWatchdog([ctx] {
    pANTLR3_TOKEN_STREAM tokens = ctx->pParser->tstream;
    return std::to_string(NextLine(ctx)) + " " + TokenString(tokens->_LT(tokens, 1));
  });
}

/// Adds one word to a type of several, such as "long" to "unsigned", and takes its line.
void AppendTypeWord(Name& type, pANTLR3_COMMON_TOKEN word);
/// Adds the name of a type to the qualifiers in front of it, and takes its line.
void AppendTypeName(TypeDescriptor& type, const Name& name);
/// Adds further specifiers to a type, and takes their line.
void AppendSpecifiers(TypeDescriptor& type, const TypeDescriptor& specifiers);

/// The names of the parameters in parentheses, without their types: "(a, b)".
std::string ParenthesizedNames(const ParamList& list);

/// Ends one name of `@interface` or `@protocol`: tags and opens it, unless it is only declared
/// forward.
void EndObjcInterfacePart(VexlTagsParser& builder, const Name& name, const Name& category,
                          bool isInterface, bool isForward);

}  // namespace vexltags
