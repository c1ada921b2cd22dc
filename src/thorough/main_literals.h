// SPDX-License-Identifier: MIT
// Types of tokens of the C family that have no name of their own in the vocabulary.
#pragma once

#include <string_view>

#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {

/// The type of the token that the grammar names by `text`; the end of the file's for none.
constexpr unsigned MainLiteral(std::string_view text) {
  for (const Keyword& literal : kMainLiterals) {
    if (literal.text == text) return literal.type;
  }
  return kMainEndOfFile;
}

inline constexpr unsigned kMainSynthesize = MainLiteral("@synthesize");
inline constexpr unsigned kMainProperty = MainLiteral("@property");
inline constexpr unsigned kMainGetter = MainLiteral("getter=");
inline constexpr unsigned kMainSetter = MainLiteral("setter=");
inline constexpr unsigned kMainNoexceptMacro = MainLiteral("_NOEXCEPT");
inline constexpr unsigned kMainWeak = MainLiteral("__weak");
inline constexpr unsigned kMainStrong = MainLiteral("__strong");
static_assert(kMainSynthesize != kMainEndOfFile && kMainProperty != kMainEndOfFile &&
              kMainGetter != kMainEndOfFile && kMainSetter != kMainEndOfFile &&
              kMainNoexceptMacro != kMainEndOfFile && kMainWeak != kMainEndOfFile &&
              kMainStrong != kMainEndOfFile);

}  // namespace vexltags::thorough
