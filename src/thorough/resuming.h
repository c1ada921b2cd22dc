// SPDX-License-Identifier: MIT
// Reading on after a token at which no item can begin.
#pragma once

#include <cstdint>

#include "engine/reading.h"

namespace vexltags::thorough {

/// The tokens of a file at which no item could begin.
struct SkippedTokens {
  std::uint32_t count = 0;
  std::uint32_t firstLine = 0;  ///< 1-based; 0 if there are none.
};

/// Reads items to the end of the file. Where an item ends and none can begin, skips one token and
/// tries again. Returns what it skipped.
SkippedTokens ParseResuming(ItemParser& parser);

}  // namespace vexltags::thorough
