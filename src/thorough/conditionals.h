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

/// The stretches of `text` that are not to be read: the lines of conditional directives, and each
/// branch that is dropped. In the order of the text, without overlaps; empty when the text has no
/// conditional with a second branch and none that is known to be false. Lines of `#define` in a
/// branch that is dropped, but might have been read, are not among them: they are no part of any
/// declaration.
///
/// All branches of a conditional are kept when each of them is balanced and begins and ends where a
/// statement or an enumerator does: what they declare is all worth a tag. Otherwise one of them is
/// chosen: one whose condition is known to hold, else the first that is not empty, not an #error
/// alone and not known or likely to be false. A lone branch is dropped only where its condition is
/// false by itself, as `#if 0` is.
///
/// Takes time linear in the size of the text, however deep conditionals nest.
std::vector<TextRange> DroppedText(std::string_view text, Dialect dialect);

}  // namespace vexltags::thorough
