// SPDX-License-Identifier: MIT
// Reads the tokens of C, C++ and Objective-C by hand: the same ones that the generated lexer gives.
#pragma once

#include "engine/token_feed.h"

namespace vexltags {

/// A `Scanner` for the C family where no word is to be hidden. Leaves to the generated lexer what
/// is rare or fails across several characters: macros to be eaten, conditional branches to be
/// dropped, Objective-C's `@` words, attributes in brackets, open literals and comments, unknown
/// escapes.
void ScanMain(ScanCursor& cursor, TokenTable& table);

}  // namespace vexltags
