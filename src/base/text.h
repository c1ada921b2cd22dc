// SPDX-License-Identifier: MIT
// Functions on strings: suffixes, replacement and white space.
#pragma once

#include <string>
#include <string_view>

namespace vexltags {

/// Returns whether `text` ends in `suffix`, case-sensitively. An empty suffix always matches.
bool EndsWith(const std::string& text, const std::string& suffix);

/// Replaces the first occurrence of `from` by `to` in place and returns `text`. An empty `from`
/// matches at the start.
std::string& ReplaceFirst(std::string& text, const std::string& from, const std::string& to);

/// Replaces every occurrence of `from` by `to` in place, from left to right, and returns `text`.
/// Does not search the inserted text. An empty `from` changes nothing.
std::string& ReplaceAll(std::string& text, const std::string& from, const std::string& to);

/// Returns whether `text` contains a blank, tab, newline or carriage return.
bool HasWhitespace(std::string_view text);

/// Returns `text` with each run of white space (tab, newline, carriage return, blank) replaced by
/// one `separator`. A run at the end is removed, one at the start is not.
std::string CollapseWhitespace(std::string_view text, const std::string& separator);

}  // namespace vexltags
