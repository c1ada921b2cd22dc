// SPDX-License-Identifier: MIT
// The C, C++ and Objective-C lexer for the benchmarks.
#include "cfamily/directives.h"
#include "cfamily/main_scanner.h"
#include "lexer_run.h"
#include "lexers.h"

// Included last because it defines every token name as a macro.
#include "mainLexer.h"

namespace vexltags::bench {

unsigned LexMain(pANTLR3_INPUT_STREAM input, TokenTable& table, bool byHand) {
  ConditionalMemo conditionals;
  return RunLexer(mainLexerNew(input), byHand ? ScanMain : nullptr, table,
                  [&](pmainLexer lexer) { lexer->conditionals = &conditionals; });
}

}  // namespace vexltags::bench
