// SPDX-License-Identifier: MIT
// The three lexers behind one signature, so that the benchmark need not see generated names.
#pragma once

#include <antlr3.h>

#include "engine/token_table.h"

namespace vexltags::bench {

/// Reads all of `input` into `table` with a lexer made for the purpose. `byHand` lets the scanner
/// written by hand read what it knows, as the program does; without, the generated lexer reads
/// everything. A language that has no scanner ignores it. Returns the number of lexical errors.
using Lex = unsigned (*)(pANTLR3_INPUT_STREAM input, TokenTable& table, bool byHand);

unsigned LexMain(pANTLR3_INPUT_STREAM input, TokenTable& table, bool byHand);
unsigned LexPython(pANTLR3_INPUT_STREAM input, TokenTable& table, bool byHand);
unsigned LexSwift(pANTLR3_INPUT_STREAM input, TokenTable& table, bool byHand);

}  // namespace vexltags::bench
