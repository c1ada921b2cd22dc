// SPDX-License-Identifier: MIT
// The run from argv to exit status, step by step.
#pragma once

#include <functional>
#include <string>

#include "output/dumper.h"

namespace vexltags {

/// What indexes one file, see `Indexer::Process`.
using FileIndexer = std::function<int(const std::string& path, Dumper& dumper)>;

/// Does everything that the arguments ask for and returns the exit status, 0 or -1. A closed pipe
/// and a file size limit are made to show up as failed writes for the whole process. `indexFile`
/// takes the place of an `Indexer`; only tests give one.
int Run(int argc, const char* const* argv, FileIndexer indexFile = nullptr);

}  // namespace vexltags
