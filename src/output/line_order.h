// SPDX-License-Identifier: MIT
// The orders in which tag lines can be sorted.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace vexltags {

/// The order with case folded: true if line `a` sorts before line `b`.
///
/// Compares the names (the text before the first tab) first without regard to case, then with it.
/// The tab after the shorter name takes part, so that `abc` sorts before `abc_d`. Lines with equal
/// names are compared byte by byte. Only ASCII letters are folded. Text after a NUL byte is
/// ignored.
struct CaseCompare {
  /// A NUL byte must follow each text.
  bool operator()(std::string_view a, std::string_view b) const;
};

/// Sorts by the value of the sort option: 1 sorts by the bytes of the whole line, 2 by
/// `CaseCompare`, any other value not at all. A NUL byte must follow each line.
void SortLines(std::vector<std::string_view>& lines, std::int32_t sort);

}  // namespace vexltags
