// SPDX-License-Identifier: MIT
// The names of the kinds.
#pragma once

#include <string_view>

namespace vexltags {

/// Returns the name of the kind with this letter (output/kinds.h) in `language` (`LanguageName`),
/// as Universal Ctags spells it where it has the kind; empty if there is no such kind.
std::string_view KindName(char kind, std::string_view language);

}  // namespace vexltags
