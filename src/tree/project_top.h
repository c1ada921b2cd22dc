// SPDX-License-Identifier: MIT
// Where the project is that contains the working directory.
#pragma once

#include <string>

namespace vexltags::tree {

/// Returns the top of the git work tree that the working directory is below. Empty if the working
/// directory is the top itself, is in no work tree, or is ignored by git. The home directory is
/// never such a top: it may be in git without being a project.
std::string ProjectTop();

}  // namespace vexltags::tree
