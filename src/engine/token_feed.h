// SPDX-License-Identifier: MIT
// Fills a token table from a file: a hand-written scanner for common ground, the generated lexer
// for the rest.
#pragma once

#include <antlr3.h>

#include "engine/token_table.h"

namespace vexltags {

/// Where a scanner stands in the characters of a file.
struct ScanCursor {
  const unsigned char* begin;  ///< The file's first character.
  const unsigned char* end;    ///< Behind its last.
  const unsigned char* at;     ///< The next character; always the start of a token.
  unsigned line;               ///< Its 1-based line.
  /// The place from which columns count: `at - columnZero` is what the generated lexer calls the
  /// position in the line. That is the line's first character, but for the first line the second.
  const unsigned char* columnZero;
  unsigned errors;  ///< Lexer errors that the scanner counted.
  /// The first place from which a scanner has looked in vain for the end of a comment; null before.
  const unsigned char* unclosedFrom = nullptr;
};

/// Reads tokens into `table` as the generated lexer would, as far as it knows how to, and stops
/// with `at` at the start of the first token that it leaves to the generated lexer, or at `end`.
using Scanner = void (*)(ScanCursor& cursor, TokenTable& table);

/// Reads the whole input of `lexer` into `table`. `scan` may be null: the generated lexer then
/// reads everything. Both give the same table and the same count of errors in the lexer's state.
void FillTokenTable(pANTLR3_LEXER lexer, Scanner scan, TokenTable& table);

}  // namespace vexltags
