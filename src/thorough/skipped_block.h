// SPDX-License-Identifier: MIT
// Blocks of which no more than the braces are read as tokens.
#pragma once

#include <string_view>

#include "engine/token_feed.h"
#include "engine/token_table.h"

namespace vexltags::thorough {

/// Where a `{` at `cursor` most likely opens the body of a function or an initializer, adds it to
/// `table` with all text up to the `}` that closes it, and moves there. Otherwise changes nothing
/// and returns false.
bool SkipBlock(ScanCursor& cursor, TokenTable& table);

/// True for the text of a `{` that such a block begins with.
constexpr bool IsSkippedBlock(std::string_view brace) { return brace.size() > 1; }

}  // namespace vexltags::thorough
