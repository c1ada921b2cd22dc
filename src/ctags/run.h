// SPDX-License-Identifier: MIT
// The steps of a run of vexltags-ctags.
#pragma once

#include <string>
#include <vector>

namespace vexltags::ctags {

/// Runs with these arguments, which do not include the name of the program. Returns the exit
/// status: 0 if the output was written, even if some files could not be read, else `kFailure`.
int RunCtags(const std::vector<std::string>& arguments);

}  // namespace vexltags::ctags
