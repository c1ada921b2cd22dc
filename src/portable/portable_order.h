// SPDX-License-Identifier: MIT
// Sorts tag lines in the orders that other readers expect.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vexltags {

/// An output line, including its newline, and the length of its name.
struct NamedLine {
  std::string text;
  std::size_t nameLength = 0;
};

/// Sorts the lines by name: by bytes for sort mark '1'; for '2' by the name with `a` to `z` folded
/// to upper case, then by bytes. A name sorts before longer names that begin with it. Lines with
/// equal names are sorted by bytes. Does nothing for any other mark.
void SortForReaders(std::vector<NamedLine>& lines, char mark);

}  // namespace vexltags
