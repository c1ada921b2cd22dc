// SPDX-License-Identifier: MIT
// A reading that goes on after a token at which no item can begin.
#include "thorough/resuming.h"

namespace vexltags::thorough {

void Resuming::PrepareText(pANTLR3_INPUT_STREAM /*input*/) {}

void Resuming::PrepareTokens(TokenTable& /*tokens*/) {}

void Resuming::Parse(ItemParser& parser) { ParseResuming(parser); }

void ParseResuming(ItemParser& parser) {
  TokenTable& tokens = parser.Tokens();
  parser.ReadItems();
  while (tokens.Position() < tokens.Count()) {
    tokens.Consume();
    parser.ReadItems();
  }
}

}  // namespace vexltags::thorough
