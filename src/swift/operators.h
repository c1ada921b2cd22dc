// SPDX-License-Identifier: MIT
// Classifies operators as binary, prefix or postfix by the tokens directly beside them.
#pragma once

#include <cstddef>

#include "vocabulary/swift_tokens.h"

namespace vexltags {

/// Remembers, for one file, where the last runs of operator tokens end. Without it ten thousand
/// question marks in a row would each search for the end of the run.
class OperatorRuns {
 public:
  /// Returns the offset of the last token of the run that begins at token `position`, with or
  /// without a dot; -1 when it is not known. An operator token must be there.
  int Last(std::size_t position, bool hasDots) const {
    const Run& run = hasDots ? dotted : plain;
    if (position < run.start || position >= run.end) return -1;
    return static_cast<int>(run.end - 1 - position);
  }
  void Keep(std::size_t position, bool hasDots, int last) {
    (hasDots ? dotted : plain) = {position, position + static_cast<std::size_t>(last) + 1};
  }

 private:
  struct Run {
    std::size_t start = 0, end = 0;  ///< Token indices: [start, end).
  };
  Run plain, dotted;
};

/// The token types around the current token of a parser, hidden tokens included.
class TokenWindow {
 public:
  /// Returns the type of the token `offset` places after the current one in `tokens`, or before it
  /// when negative; outside the file the type of the end of the file.
  using TypeReader = unsigned (*)(const void* tokens, int offset);

  /// A window on `tokens`, which it does not own, through `reader`. A token two or more places
  /// after the current one is read only if all tokens between are operators.
  TokenWindow(const void* tokens, TypeReader reader) : tokens_(tokens), reader_(reader) {}
  /// The same at token `position`, with the ends of runs kept in `runs`.
  TokenWindow(const void* tokens, TypeReader reader, std::size_t position, OperatorRuns& runs)
      : tokens_(tokens), reader_(reader), position_(position), runs_(&runs) {}

  unsigned Type(int offset) const { return reader_(tokens_, offset); }
  /// See `OperatorRuns`, for the run that begins at the current token.
  int KnownLast(bool hasDots) const { return runs_ ? runs_->Last(position_, hasDots) : -1; }
  void KeepLast(bool hasDots, int last) const {
    if (runs_) runs_->Keep(position_, hasDots, last);
  }

 private:
  const void* tokens_;
  TypeReader reader_;
  std::size_t position_ = 0;
  OperatorRuns* runs_ = nullptr;
};

/// True for the characters that an operator can begin with: < > = & ? ! / - + * % | ^ ~
bool isOperatorHead(unsigned type);

/// The same for the tokens that an operator continues with. The dot is not among them: only an
/// operator that begins with a dot contains dots.
bool isOperatorToken(unsigned type);

/// True for what counts as white space to the left of an operator: blanks and line ends, and
/// ; ( , : [ {. A comment does not count.
bool isLeftOperatorWS(unsigned type);

/// True for what counts as white space to the right of an operator: blanks, line ends and comments,
/// and ; } ) , : ].
bool isRightOperatorWS(unsigned type);

/// Returns the offset of the last token of the run of adjacent operator tokens that begins at the
/// current token; -1 when that is no operator token. A hidden token ends a run.
int getLastOpTokenIndex(const TokenWindow& window);

/// True for white space on both sides of the run or on neither. A single `?` or `!` directly
/// between an operand and a dot is a suffix and therefore not binary.
bool isBinaryOp(const TokenWindow& window);

/// True for white space on the left of the run only.
bool isPrefixOp(const TokenWindow& window);

/// True for white space or a dot on the right of the run and no white space on its left.
bool isPostfixOp(const TokenWindow& window);

/// False for a `<` directly before a name, which opens a generic clause; otherwise true.
bool operNotGenericClauseOpener(const TokenWindow& window);

}  // namespace vexltags
