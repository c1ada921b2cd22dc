// SPDX-License-Identifier: MIT
// The hand-written scanner of Python.
#pragma once

#include "engine/token_feed.h"

namespace vexltags {

/// A `Scanner` for Python. It leaves to the generated lexer errors over several characters, that is
/// unclosed strings and comments, and the blanks at the start of the file, whose column is -1.
void ScanPython(ScanCursor& cursor, TokenTable& table);

}  // namespace vexltags
