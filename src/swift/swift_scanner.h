// SPDX-License-Identifier: MIT
// Reads Swift's tokens by hand: the same ones that the generated lexer would give.
#pragma once

#include "engine/token_feed.h"

namespace vexltags {

/// A `Scanner` for Swift. Leaves to the generated lexer whatever is an error: open strings and
/// comments, unknown escapes and `#` words, stray characters.
void ScanSwift(ScanCursor& cursor, TokenTable& table);

}  // namespace vexltags
