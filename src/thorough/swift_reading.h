// SPDX-License-Identifier: MIT
// The reading of Swift files.
#pragma once

#include <string_view>

#include "engine/reading.h"
#include "thorough/swift_text.h"

namespace vexltags::thorough {

/// Lets the lexer read a copy that holds nothing but plain code, and reports the declarations among
/// its tokens to the tag builder.
class SwiftReading : public Reading {
 public:
  void PrepareText(pANTLR3_INPUT_STREAM input) override;
  bool PrepareTokens(TokenTable& tokens) override;
  void Parse(ItemParser& parser) override;

 private:
  std::string_view source;
  SwiftText text;
};

}  // namespace vexltags::thorough
