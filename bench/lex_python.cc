// SPDX-License-Identifier: MIT
// The Python lexer for the benchmarks.
#include "lexer_run.h"
#include "lexers.h"
#include "python/python_scanner.h"

// Included last because it defines every token name as a macro.
#include "pythonLexer.h"

namespace vexltags::bench {

unsigned LexPython(pANTLR3_INPUT_STREAM input, TokenTable& table, bool byHand) {
  return RunLexer(pythonLexerNew(input), byHand ? ScanPython : nullptr, table, [](ppythonLexer) {});
}

}  // namespace vexltags::bench
