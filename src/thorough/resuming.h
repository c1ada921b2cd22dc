// SPDX-License-Identifier: MIT
// A reading that goes on after a token at which no item can begin.
#pragma once

#include "engine/reading.h"

namespace vexltags::thorough {

/// Reads items to the end of the file. Where an item ends and none can begin, skips one token and
/// tries again.
void ParseResuming(ItemParser& parser);

/// Reads text and tokens as they are. Where an item ends and none can begin, skips one token and
/// tries again, so that a stray token costs no tags but its own.
class Resuming : public Reading {
 public:
  void PrepareText(pANTLR3_INPUT_STREAM input) override;
  void PrepareTokens(TokenTable& tokens) override;
  void Parse(ItemParser& parser) override;
};

}  // namespace vexltags::thorough
