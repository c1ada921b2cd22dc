// SPDX-License-Identifier: MIT
// The hand-written scanner of C, C++ and Objective-C.
#pragma once

#include "engine/token_feed.h"

namespace vexltags {

/// A `Scanner` for the C family, for runs that hide no words. It leaves to the generated lexer
/// whatever is rare or fails over several characters: eaten macros, dropped conditional branches,
/// the `@` words of Objective-C, attributes in brackets, unclosed literals and comments, and
/// unknown escapes.
void ScanMain(ScanCursor& cursor, TokenTable& table);

/// The same, but it also stops before each `{`.
void ScanMainToBrace(ScanCursor& cursor, TokenTable& table);

}  // namespace vexltags
