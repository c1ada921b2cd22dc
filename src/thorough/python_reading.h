// SPDX-License-Identifier: MIT
// The reading of Python files.
#pragma once

#include <string_view>

#include "engine/reading.h"

namespace vexltags::thorough {

/// Finds definitions in the text itself and reports them to the tag builder. Lexer and parser have
/// nothing to read.
class PythonReading : public Reading {
 public:
  void PrepareText(pANTLR3_INPUT_STREAM input) override;
  bool PrepareTokens(TokenTable& tokens) override;
  void Parse(ItemParser& parser) override;

 private:
  std::string_view source;
};

}  // namespace vexltags::thorough
