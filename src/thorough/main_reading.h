// SPDX-License-Identifier: MIT
// The reading of C, C++ and Objective-C files.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/reading.h"
#include "engine/token_edits.h"
#include "thorough/condition.h"
#include "thorough/expander.h"
#include "thorough/resuming.h"

namespace vexltags::thorough {

/// Chooses branches of conditionals before the file is read as tokens, expands macros and repairs
/// declarations before the parser gets them, and goes on after a token at which no item can begin.
class MainReading : public Reading {
 public:
  /// `macros` must outlive the reading, and so must `paths`, which names files by their numbers.
  MainReading(const MacroTable& macros, const std::vector<std::string>& paths)
      : expander(macros, bodies), paths(paths) {}

  /// To be called before each file.
  void SetFile(std::uint32_t newNumber);

  void PrepareText(pANTLR3_INPUT_STREAM input) override;
  Scanner ScannerFor(Scanner exact) override;
  bool PrepareTokens(TokenTable& tokens) override;
  void Parse(ItemParser& parser) override;

  /// What the last `Parse` skipped.
  const SkippedTokens& Skipped() const { return skipped; }

 private:
  MacroBodies bodies;
  Expander expander;
  const std::vector<std::string>& paths;
  std::uint32_t number = 0;
  Dialect dialect = Dialect::Unknown;
  std::string_view text;    ///< Of the file.
  bool skipsBlocks = true;  ///< False once a declaration was in a block that had been skipped.
  TokenEdits edits;
  SkippedTokens skipped;
};

}  // namespace vexltags::thorough
