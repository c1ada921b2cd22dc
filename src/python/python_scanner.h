// SPDX-License-Identifier: MIT
// Reads Python's tokens by hand: the same ones that the generated lexer would give.
#pragma once

#include "engine/token_feed.h"

namespace vexltags {

/// A `Scanner` for Python. Leaves to the generated lexer what ends in an error across several
/// characters: open strings and comments, and blanks where the columns of the first line begin at
/// -1.
void ScanPython(ScanCursor& cursor, TokenTable& table);

}  // namespace vexltags
