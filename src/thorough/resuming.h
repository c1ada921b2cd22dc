// SPDX-License-Identifier: MIT
// Reading on after a token at which no item can begin.
#pragma once

#include "engine/reading.h"

namespace vexltags::thorough {

/// Reads items to the end of the file. Where an item ends and none can begin, skips one token and
/// tries again.
void ParseResuming(ItemParser& parser);

}  // namespace vexltags::thorough
