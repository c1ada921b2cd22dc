// SPDX-License-Identifier: MIT
// The hand-written scanner of Swift.
#pragma once

#include "engine/token_feed.h"

namespace vexltags {

/// A `Scanner` for Swift. It leaves all errors to the generated lexer: unclosed strings and
/// comments, unknown escapes and `#` words, stray characters.
void ScanSwift(ScanCursor& cursor, TokenTable& table);

}  // namespace vexltags
