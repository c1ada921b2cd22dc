// SPDX-License-Identifier: MIT
// Reading on after a token at which no item can begin.
#include "thorough/resuming.h"

namespace vexltags::thorough {

SkippedTokens ParseResuming(ItemParser& parser) {
  SkippedTokens skipped;
  TokenTable& tokens = parser.Tokens();
  parser.ReadItems();
  while (tokens.Position() < tokens.Count()) {
    if (skipped.count++ == 0) skipped.firstLine = tokens.LineAt(tokens.Position());
    tokens.Consume();
    parser.ReadItems();
  }
  return skipped;
}

}  // namespace vexltags::thorough
