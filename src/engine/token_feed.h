// SPDX-License-Identifier: MIT
// Fills a token table: a hand-written scanner reads common tokens, the generated lexer the others.
#pragma once

#include <antlr3.h>

#include "engine/token_table.h"

namespace vexltags {

/// The position of a scanner in a file.
struct ScanCursor {
  const unsigned char* begin;  ///< The first character of the file.
  const unsigned char* end;    ///< The end of the file.
  const unsigned char* at;     ///< The next character; always the start of a token.
  unsigned line;               ///< Its 1-based line.
  /// The origin of columns: `at - columnZero` is the generated lexer's position in the line. It is
  /// the first character of the line, except that it is the second character of the first line.
  const unsigned char* columnZero;
  unsigned errors;  ///< Lexer errors that the scanner counted.
  /// The first position from which the scanner searched for the end of a comment and found none;
  /// null if there is no such position.
  const unsigned char* unclosedFrom = nullptr;
  /// Before this position a scanner that may skip text has to read all tokens; null for none.
  const unsigned char* readTo = nullptr;
};

/// Reads tokens into `table` exactly as the generated lexer would. Stops with `at` at the start of
/// the first token that it cannot read, or at `end`.
using Scanner = void (*)(ScanCursor& cursor, TokenTable& table);

/// Reads the whole input of `lexer` into `table`. If `scan` is null, the generated lexer reads
/// everything. The table and the error count in the lexer's state are the same in both cases.
void FillTokenTable(pANTLR3_LEXER lexer, Scanner scan, TokenTable& table);

}  // namespace vexltags
