// SPDX-License-Identifier: MIT
// What `--version`, `--help` and the `--list-…` options print.
#pragma once

#include <string_view>

#include "ctags/settings.h"

namespace vexltags::ctags {

/// Prints what the option `name` asks for to standard output. `value` restricts the kinds and maps
/// to one language. Returns false, after a message, if there is no such language, or if `name` is
/// not an option that prints.
bool PrintListing(std::string_view name, std::string_view value, const Settings& settings);

}  // namespace vexltags::ctags
