// SPDX-License-Identifier: MIT
// The orders in which other readers expect the tags of a file.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vexltags {

/// A line for the output, newline included, with the length of its name.
struct NamedLine {
  std::string text;
  std::size_t nameLength = 0;
};

/// Sorts by name: for the mark '1' by bytes, for '2' with `a` to `z` folded to upper case and then
/// by bytes, each time a name before longer ones that begin with it. Equal names fall to the bytes
/// of the line. Leaves the lines as they are for any other mark.
void SortForReaders(std::vector<NamedLine>& lines, char mark);

}  // namespace vexltags
