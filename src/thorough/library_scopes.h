// SPDX-License-Identifier: MIT
// Macros that open and close namespaces although their names are among those that are eaten.
#pragma once

#include <string_view>

#include "cfamily/main_words.h"

namespace vexltags::thorough {

/// True for the words with which libc++ opens and closes namespaces, other than the two that are
/// keywords. Their names begin as those of its annotations do, which the lexer hides; read so, the
/// namespaces would be lost. They are tokens of type `kMainLibCPPMacroEater`, which either expand
/// to a learned definition or are left out.
inline bool IsLibraryScope(std::string_view word) {
  return (word.starts_with("_LIBCPP_BEGIN_NAMESPACE_") ||
          word.starts_with("_LIBCPP_END_NAMESPACE_")) &&
         ClassifyMainWord(reinterpret_cast<const unsigned char*>(word.data()), word.size()) ==
             kMainMaybeMacro;
}

}  // namespace vexltags::thorough
