// SPDX-License-Identifier: MIT
// Turns the file field of a tag line back into a path that any reader opens as it stands.
#pragma once

#include <string>
#include <string_view>

namespace vexltags {

/// The path that `field` was made of: a backslash before a character that is escaped in tags files
/// goes away, and `~/` at the front becomes `home` and a `/`. Another backslash is part of the
/// path. With `home` empty the `~/` stays.
std::string PlainPath(std::string_view field, const std::string& home);

/// True for a path that a line of a tags file can hold as it is: one without tab and newline.
bool FitsInLine(std::string_view path);

}  // namespace vexltags
