// SPDX-License-Identifier: MIT
// The orders in which tag lines can be sorted.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vexltags {

/// The order with case folded: true when line `a` comes before line `b`.
///
/// Names (the text before the first tab) are compared without regard to case and then with it, the
/// shorter one with its tab included, so that `abc` comes before `abc_d`; equal names fall to the
/// bytes of the whole line. Letters outside ASCII are not folded. Text behind a NUL byte is
/// ignored.
struct CaseCompare {
  bool operator()(const std::string& a, const std::string& b) const;
};

/// Sorts by the sort option's number: 1 by the bytes of the whole line, 2 by `CaseCompare`; any
/// other number leaves the lines as they are.
void SortLines(std::vector<std::string>& lines, std::int32_t sort);

}  // namespace vexltags
