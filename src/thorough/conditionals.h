// SPDX-License-Identifier: MIT
// Chooses which branches of the conditionals of a C-family file are read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "thorough/condition.h"

namespace vexltags::thorough {

/// A stretch of the text, by offsets; `end` is one past its last character.
struct TextRange {
  std::uint32_t begin = 0;
  std::uint32_t end = 0;
};

/// Returns the stretches of `text` that are not to be read: each branch that is dropped, and the
/// directives of each conditional that has a second branch or drops its only one. They are in the
/// order of the text and do not overlap. `#define` lines in a dropped branch are kept, unless its
/// condition is false: they are part of no declaration. A conditional without `#endif` is kept.
///
/// All branches of a conditional are kept when each of them is balanced and begins and ends where a
/// statement or an enumerator does: what they declare is all worth a tag. Otherwise one of them is
/// chosen: one whose condition is true, else the first that is not empty, not a lone `#error` and
/// not false or likely to be. A lone branch is dropped only where its condition is false by itself,
/// as `#if 0` is.
///
/// Takes time linear in the size of the text, however deep conditionals nest.
std::vector<TextRange> DroppedText(std::string_view text, Dialect dialect);

}  // namespace vexltags::thorough
