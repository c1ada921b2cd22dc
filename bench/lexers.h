// SPDX-License-Identifier: MIT
// The three lexers with a common signature, which hides the generated names from the benchmark.
#pragma once

#include <antlr3.h>

#include "engine/token_table.h"

namespace vexltags::bench {

/// Reads all of `input` into `table` with a new lexer. If `byHand` is set, the hand-written scanner
/// reads the tokens it knows, as in the program; otherwise the generated lexer reads everything.
/// Returns the number of lexical errors.
using Lex = unsigned (*)(pANTLR3_INPUT_STREAM input, TokenTable& table, bool byHand);

unsigned LexMain(pANTLR3_INPUT_STREAM input, TokenTable& table, bool byHand);
unsigned LexPython(pANTLR3_INPUT_STREAM input, TokenTable& table, bool byHand);
unsigned LexSwift(pANTLR3_INPUT_STREAM input, TokenTable& table, bool byHand);

}  // namespace vexltags::bench
