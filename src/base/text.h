// SPDX-License-Identifier: MIT
// Leaf functions on strings: suffix test, replacement, white space.
#pragma once

#include <string>
#include <string_view>

namespace vexltags {

/// True when `text` ends in `suffix`, case being significant. An empty suffix always matches.
bool EndsWith(const std::string& text, const std::string& suffix);

/// Replaces the first occurrence of `from`, wherever it stands, by `to`. An empty `from` matches at
/// the front. Changes `text` in place and returns it.
std::string& ReplaceFirst(std::string& text, const std::string& from, const std::string& to);

/// Replaces every occurrence of `from` by `to`, from the front; inserted text is not searched
/// again. Changes `text` in place and returns it. `from` must not be empty; an empty one changes
/// nothing.
std::string& ReplaceAll(std::string& text, const std::string& from, const std::string& to);

/// True when `text` has a blank, tab, newline or carriage return.
bool HasWhitespace(std::string_view text);

/// Copies `text` with each run of white space (tab, newline, carriage return, blank) turned into
/// one `separator`. A run at the end vanishes, one at the start does not.
std::string CollapseWhitespace(const std::string& text, const std::string& separator);

}  // namespace vexltags
