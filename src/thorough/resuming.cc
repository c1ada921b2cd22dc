// SPDX-License-Identifier: MIT
// Reading on after a token at which no item can begin.
#include "thorough/resuming.h"

namespace vexltags::thorough {

void ParseResuming(ItemParser& parser) {
  TokenTable& tokens = parser.Tokens();
  parser.ReadItems();
  while (tokens.Position() < tokens.Count()) {
    tokens.Consume();
    parser.ReadItems();
  }
}

}  // namespace vexltags::thorough
