// SPDX-License-Identifier: MIT
// What the rules of the C-family lexer call: on the input stream, and on the token in the making.
#pragma once

#include <antlr3.h>

#include <string_view>

#include "cfamily/directives.h"
#include "parserstate/lexer_state.h"

namespace vexltags {

/// The characters from the next one to the end of the input. Valid while the input is open.
std::string_view CharsAhead(pANTLR3_INPUT_STREAM input);

/// Consumes the rest of a dropped branch through the line that closes it. False when nothing closes
/// it: the whole input is then consumed. `memo` keeps what was learned for the next call on the
/// same input; null is allowed and costs time only.
bool EatIfZeroBody(pANTLR3_INPUT_STREAM input, ConditionalMemo* memo);

/// Consumes the rest of a conditional through its `#endif` line; otherwise as `EatIfZeroBody`.
bool EatToEndif(pANTLR3_INPUT_STREAM input, ConditionalMemo* memo);

/// True when a whole `/*` comment stands next. Consumes nothing.
bool CCommentAhead(pANTLR3_INPUT_STREAM input, ConditionalMemo* memo);

/// The characters from the mark `start`, taken earlier with GETCHARINDEX, up to the next character.
/// The string belongs to the input.
pANTLR3_STRING TextSince(pANTLR3_INPUT_STREAM input, ANTLR3_MARKER start);

/// Puts the token in the making on the hidden channel when its text is one of the words to hide.
void HideFilteredWord(pANTLR3_LEXER lexer, const TagsLexerState* state);

}  // namespace vexltags
