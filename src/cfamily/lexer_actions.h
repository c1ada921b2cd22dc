// SPDX-License-Identifier: MIT
// The actions of the C-family lexer on its input stream and on the current token.
#pragma once

#include <antlr3.h>

#include <string_view>

#include "cfamily/directives.h"
#include "parserstate/lexer_state.h"

namespace vexltags {

/// Returns the rest of the input, from the next character on. Valid while the input is open.
std::string_view CharsAhead(pANTLR3_INPUT_STREAM input);

/// Consumes the rest of a dropped branch through the line that closes it. If nothing closes it,
/// consumes all input and returns false. `memo` keeps results for later calls on the same input; it
/// may be null, which costs only time.
bool EatIfZeroBody(pANTLR3_INPUT_STREAM input, ConditionalMemo* memo);

/// Consumes the rest of a conditional through its `#endif` line; otherwise as `EatIfZeroBody`.
bool EatToEndif(pANTLR3_INPUT_STREAM input, ConditionalMemo* memo);

/// True when a closed `/*` comment comes next. Consumes nothing.
bool CCommentAhead(pANTLR3_INPUT_STREAM input, ConditionalMemo* memo);

/// Returns the characters from `start`, which GETCHARINDEX returned earlier, up to the next
/// character. The string belongs to the input.
pANTLR3_STRING TextSince(pANTLR3_INPUT_STREAM input, ANTLR3_MARKER start);

/// Moves the current token to the hidden channel if its text is one of the words to hide.
void HideFilteredWord(pANTLR3_LEXER lexer, const TagsLexerState* state);

}  // namespace vexltags
