// SPDX-License-Identifier: MIT
// Tells what a word of the C family is: a keyword, an identifier, or perhaps a macro to be eaten.
#pragma once

#include <cstddef>

namespace vexltags {

/// What `ClassifyMainWord` says of a word that may be the name of a macro eater.
inline constexpr unsigned kMainMaybeMacro = 0;

/// The token type of the word of `length` letters, digits and `_` at `word`: that of a keyword or
/// identifier, or `kMainMaybeMacro` when it begins with the name of a macro eater, of which the
/// characters behind it decide. Keywords with other characters in them are not known here.
unsigned ClassifyMainWord(const unsigned char* word, std::size_t length);

}  // namespace vexltags
