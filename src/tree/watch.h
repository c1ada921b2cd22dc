// SPDX-License-Identifier: MIT
// Keeps the tags file fresh while files are edited.
#pragma once

#include "tree/tree_options.h"

namespace vexltags::tree {

/// Brings the tags file up to date whenever something changes in the folders that are read, until
/// the process gets SIGINT or SIGTERM. Returns the exit status.
int Watch(const TreeOptions& options);

}  // namespace vexltags::tree
