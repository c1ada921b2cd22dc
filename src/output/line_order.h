// SPDX-License-Identifier: MIT
// The orders in which tag lines can be sorted.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace vexltags {

/// The order with case folded: true when line `a` comes before line `b`.
///
/// Names (the text before the first tab) are compared without regard to case and then with it, the
/// shorter one with its tab included, so that `abc` comes before `abc_d`; equal names fall to the
/// bytes of the whole line. Letters outside ASCII are not folded. Text behind a NUL byte is
/// ignored.
struct CaseCompare {
  /// Both texts have a NUL byte behind them.
  bool operator()(std::string_view a, std::string_view b) const;
};

/// Sorts by the sort option's number: 1 by the bytes of the whole line, 2 by `CaseCompare`; any
/// other number leaves the lines as they are. Each line has a NUL byte behind it.
void SortLines(std::vector<std::string_view>& lines, std::int32_t sort);

}  // namespace vexltags
