// SPDX-License-Identifier: MIT
// The run from argv to exit status, step by step.
#pragma once

#include <string>

#include "base/options.h"
#include "driver/process.h"
#include "output/dumper.h"

namespace vexltags {

/// What indexes one file, see `Process`.
using FileIndexer = int (*)(const std::string& path, const Options& options, Dumper& dumper);

/// Does everything that the arguments ask for and returns the exit status, 0 or -1. A closed pipe
/// and a file size limit are made to show up as failed writes for the whole process. `indexFile`
/// is another function in tests only.
int Run(int argc, const char* const* argv, FileIndexer indexFile = Process);

}  // namespace vexltags
