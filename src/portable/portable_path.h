// SPDX-License-Identifier: MIT
// Converts the file field of a tag line to a plain path, which any reader can open.
#pragma once

#include <string>
#include <string_view>

namespace vexltags {

/// Returns the path that `field` was written for: removes each backslash before a character that is
/// escaped in tags files, and replaces a leading `~` before a slash by `home`, unless `home` is
/// empty. Other backslashes are part of the path.
std::string PlainPath(std::string_view field, const std::string& home);

/// Returns whether a tag line can contain `path` unescaped: it has no tab and no newline.
bool FitsInLine(std::string_view path);

}  // namespace vexltags
