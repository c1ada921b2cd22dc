// SPDX-License-Identifier: MIT
// The Swift lexer for the benchmarks.
#include "lexer_run.h"
#include "lexers.h"
#include "swift/swift_scanner.h"

// Included last because it defines every token name as a macro.
#include "swiftLexer.h"

namespace vexltags::bench {

unsigned LexSwift(pANTLR3_INPUT_STREAM input, TokenTable& table, bool byHand) {
  return RunLexer(swiftLexerNew(input), byHand ? ScanSwift : nullptr, table, [](pswiftLexer) {});
}

}  // namespace vexltags::bench
