// SPDX-License-Identifier: MIT
// Classifies a word of the C family: a keyword, an identifier, or possibly a macro to eat.
#pragma once

#include <cstddef>
#include <string_view>

namespace vexltags {

/// What `ClassifyMainWord` returns for a word that may be an eaten macro.
inline constexpr unsigned kMainMaybeMacro = 0;

/// Returns the token type of the word of `length` letters, digits and `_` at `word`: that of a
/// keyword or identifier, or `kMainMaybeMacro` when it begins with the name of an eaten macro, in
/// which case the characters after it decide. Does not know keywords that contain other characters.
unsigned ClassifyMainWord(const unsigned char* word, std::size_t length);

/// True for the macros with which libc++ opens and closes namespaces, other than the two that are
/// keywords. Their names begin as those of its annotations do, so the lexer hides them.
inline bool IsLibraryScope(std::string_view word) {
  return (word.starts_with("_LIBCPP_BEGIN_NAMESPACE_") ||
          word.starts_with("_LIBCPP_END_NAMESPACE_")) &&
         ClassifyMainWord(reinterpret_cast<const unsigned char*>(word.data()), word.size()) ==
             kMainMaybeMacro;
}

}  // namespace vexltags
