// SPDX-License-Identifier: MIT
// Takes a line of a tags file apart.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vexltags {

/// What a line turned out to be.
enum class LineForm : std::uint8_t {
  kTag,       ///< A tag: name, file, address.
  kOpenPath,  ///< The beginning of a tag whose path holds the line end; it goes on behind that.
  kNoTag,     ///< Neither.
};

/// The parts of a tag line. All are views into the line.
struct TagLine {
  std::string_view name;
  std::string_view file;     ///< As it stands there, with any escapes.
  std::string_view address;  ///< Up to `;"` or the end of the line.
  std::string_view fields;   ///< From the tab behind `;"` on; empty if there is none.
  bool numbered = false;     ///< The address is a line number, as in every tag of ours.
};

/// Takes `line`, which has no newline at its end, apart into `tag`. The file field ends where a tab
/// and a line number follow, so it may hold escaped tabs. Lines of other programs, with a pattern
/// for an address, end it at the first tab.
LineForm ParseTagLine(std::string_view line, TagLine& tag);

/// The line number of a numbered tag; 0 for one that is too large to be true.
long LineNumber(const TagLine& tag);

/// The field number `index` of `fields`, counted from 0, without its tab; empty if there is none.
std::string_view Field(std::string_view fields, int index);

}  // namespace vexltags
