// SPDX-License-Identifier: MIT
// Parses a line of a tags file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vexltags {

/// The form of a line.
enum class LineForm : std::uint8_t {
  kTag,       ///< A tag: name, file, address.
  kOpenPath,  ///< The first part of a tag whose path contains a newline.
  kNoTag,     ///< Neither.
};

/// The parts of a tag line. All are views into the line.
struct TagLine {
  std::string_view name;
  std::string_view file;     ///< As written, including escapes.
  std::string_view address;  ///< Up to `;"` or the end of the line.
  std::string_view fields;   ///< From the tab after `;"` on; empty if there is none.
  bool numbered = false;     ///< The address is a line number, as in every vexltags tag.
};

/// Parses `line`, without its newline, into `tag`. The file field extends to a tab followed by a
/// line number, so it can contain escaped tabs. If the address is a pattern, as other programs
/// write it, the file field ends at the first tab.
LineForm ParseTagLine(std::string_view line, TagLine& tag);

/// Returns the line number of a numbered tag, or 0 if it is out of range.
long LineNumber(const TagLine& tag);

/// Returns field `index`, counted from 0, of `fields` without its tab; empty if there is none.
std::string_view Field(std::string_view fields, int index);

}  // namespace vexltags
