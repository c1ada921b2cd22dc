// SPDX-License-Identifier: MIT
// Classifies a word of Swift: a keyword, the letter of an exponent, or a name.
#pragma once

#include <cstddef>
#include <string_view>

namespace vexltags {

/// Returns the token type of `word`, which consists of letters, digits and `_` and does not begin
/// with a digit.
unsigned ClassifySwiftWord(std::string_view word);

/// Returns the token type of the literal `#word`, for example of `#file` for "file"; 0 for none.
unsigned ClassifySwiftHashWord(std::string_view word);

}  // namespace vexltags
