// SPDX-License-Identifier: MIT
// Tells binary, prefix and postfix operators apart by the tokens directly beside them.
#pragma once

#include <cstddef>

#include "vocabulary/swift_tokens.h"

namespace vexltags {

/// Where the runs of operator tokens end that were looked at last, by token index: each of ten
/// thousand question marks in a row asks for the end of the run that it begins. For one file.
class OperatorRuns {
 public:
  /// The offset of the last token of the run that begins at `position` with or without a dot, -1
  /// when it is not known. There must be an operator token.
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
    std::size_t start = 0, end = 0;  ///< From the first token to behind the last.
  };
  Run plain, dotted;
};

/// The token types around the place where a parser stands, hidden tokens included.
class TokenWindow {
 public:
  /// Gives the type of the token `offset` places behind the current one in `tokens`, or before it
  /// when negative; outside the file the type of its end.
  using TypeReader = unsigned (*)(const void* tokens, int offset);

  /// A window on `tokens`, which it does not own, as `reader` sees them. What stands two or more
  /// places behind the current token is asked for only while all tokens between are operators.
  TokenWindow(const void* tokens, TypeReader reader) : tokens_(tokens), reader_(reader) {}
  /// The same at the token with index `position`, with ends of runs kept in `runs`.
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

/// The same test, for the tokens that an operator goes on with. The dot is not among them: only an
/// operator that begins with a dot holds dots.
bool isOperatorToken(unsigned type);

/// True for what counts as white space to the left of an operator: blanks and line ends, and
/// ; ( , : [ {. A comment does not count.
bool isLeftOperatorWS(unsigned type);

/// True for what counts as white space to the right of an operator: blanks, line ends and comments,
/// and ; } ) , : ].
bool isRightOperatorWS(unsigned type);

/// The offset of the last token of the run of adjacent operator tokens that begins at the current
/// token; -1 when that is no operator token. A hidden token ends a run.
int getLastOpTokenIndex(const TokenWindow& window);

/// White space on both sides of the run or on neither. A single `?` or `!` that is glued to its
/// operand, with a dot directly behind it, is a suffix and so not binary.
bool isBinaryOp(const TokenWindow& window);

/// White space on the left of the run only.
bool isPrefixOp(const TokenWindow& window);

/// No white space on the left of the run, and white space or a dot on its right.
bool isPostfixOp(const TokenWindow& window);

/// False for a `<` that is glued to a name behind it, which opens a generic clause; else true.
bool operNotGenericClauseOpener(const TokenWindow& window);

}  // namespace vexltags
