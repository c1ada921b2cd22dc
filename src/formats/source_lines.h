// SPDX-License-Identifier: MIT
// The lines of a source file by number.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vexltags {

/// A line of a source file.
struct SourceLine {
  std::string_view text;   ///< Without its line end and without a byte order mark.
  std::size_t offset = 0;  ///< The byte offset of `text` in the file.
};

/// Finds lines in `text`, which has to outlive the object. A line ends after a newline, as in the
/// line numbers of tags; a carriage return alone ends none. The carriage return of CR LF is part of
/// the line end if all lines end so, else of the text: that is how editors show such files.
class SourceLines {
 public:
  explicit SourceLines(std::string_view text);

  /// Returns the line with the 1-based `number`; an empty one, with offset 0, if there is none.
  SourceLine Line(long number) const;

 private:
  std::string_view text;
  std::vector<std::size_t> starts;
  bool endsInCrLf = true;
};

}  // namespace vexltags
