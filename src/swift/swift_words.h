// SPDX-License-Identifier: MIT
// Tells what a word of Swift is: a keyword, the lone letter of an exponent, or a name.
#pragma once

#include <cstddef>
#include <string_view>

namespace vexltags {

/// The token type of `word`, which consists of letters, digits and `_` and begins with no digit.
unsigned ClassifySwiftWord(std::string_view word);

/// The token type of the literal that consists of `#` and `word`, such as "file"; 0 for none.
unsigned ClassifySwiftHashWord(std::string_view word);

}  // namespace vexltags
