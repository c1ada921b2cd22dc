// SPDX-License-Identifier: MIT
// Decides which files and folders the patterns of --exclude leave out.
#pragma once

#include <string>

#include "ctags/settings.h"

namespace vexltags::ctags {

/// Returns whether a pattern of the settings matches the base name or the whole of `path`, as given
/// or without `./` at its start, and no exception does. In patterns, `*` also matches `/`. A
/// pattern that is `.` matches nothing: callers do not mean the folder that they name.
bool IsExcluded(const std::string& path, const Settings& settings);

}  // namespace vexltags::ctags
