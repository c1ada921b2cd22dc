// SPDX-License-Identifier: MIT
// Runs a generated lexer, with or without the hand-written scanner.
#pragma once

#include "base/options.h"
#include "engine/error_recovery.h"
#include "engine/token_feed.h"
#include "engine/token_table.h"
#include "parserstate/lexer_state.h"

namespace vexltags::bench {

/// Fills `table` and frees `lexer`. `prepare(lexer)` sets language-specific members first. Returns
/// the number of lexical errors.
template <class Lexer, class Prepare>
unsigned RunLexer(Lexer* lexer, Scanner scan, TokenTable& table, Prepare prepare) {
  TagsLexerState fileState("bench", 0, 0);
  lexer->fileState = &fileState;
  SilenceErrors(lexer->pLexer->rec);
  prepare(lexer);
  FillTokenTable(lexer->pLexer, scan, table);
  const unsigned errors = lexer->pLexer->rec->state->errorCount;
  lexer->free(lexer);
  return errors;
}

}  // namespace vexltags::bench
