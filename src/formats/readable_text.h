// SPDX-License-Identifier: MIT
// How much of a source line other programs see as it is in the file.
#pragma once

#include <cstddef>
#include <string_view>

namespace vexltags {

/// Returns the number of bytes at the start of `text` that are valid UTF-8.
std::size_t Utf8Length(std::string_view text);

/// Returns the start of `line` up to the first byte that an editor may show, and search for, in
/// another form: one that is not valid UTF-8, since the editor converts the file from the encoding
/// that it guesses, or a NUL or carriage return.
std::string_view ReadableText(std::string_view line);

}  // namespace vexltags
