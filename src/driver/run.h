// SPDX-License-Identifier: MIT
// Runs the program, from argv to the exit status.
#pragma once

#include <functional>
#include <string>

#include "output/dumper.h"

namespace vexltags {

/// A function that indexes one file, like `Indexer::Process`.
using FileIndexer = std::function<int(const std::string& path, Dumper& dumper)>;

/// Executes the command line and returns the exit status, 0 or -1. Ignores, for the whole process,
/// the signals of a closed pipe and a file size limit, so that writes fail instead. Tests can pass
/// `indexFile` to replace the `Indexer`.
int Run(int argc, const char* const* argv, FileIndexer indexFile = nullptr);

/// Prepares the process for a run: failed writes return errors instead of ending it, standard
/// streams that the caller closed are not given to other files, and when memory runs out it ends
/// with a message.
void PrepareProcess();

}  // namespace vexltags
