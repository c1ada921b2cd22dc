// SPDX-License-Identifier: MIT
// The options of vexltags-tree.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "sources/source_list.h"
#include "tree/tag_format.h"

namespace vexltags::tree {

/// What the command line asks for.
struct TreeOptions {
  std::vector<std::string> folders;  ///< Files and folders; empty for the working directory.
  std::string output;                ///< The tags file; "-" is standard output.
  /// The working directory of the caller, if another one is that of the run.
  std::string calledFrom;
  OutputStyle style;
  int jobs = 0;  ///< Worker processes; at least 1.
  bool isExact = false;
  bool usesCache = true;
  bool isQuiet = false;
  bool wantsReport = false;
  bool listsOnly = false;
  bool watches = false;
  bool isWorker = false;  ///< Serve another machine's `--hosts`.
  bool sendsFiles = false;
  SourceOptions sources;
  std::vector<std::string> macros;  ///< Files and folders from which to learn macros.
  std::vector<std::string> hosts;
  /// All options that decide what is read, and how, as text.
  std::string identity;
};

/// Parses the command line. Without folders and output, enters the top of the project. Returns
/// nothing, with `status` set to the exit status, if the run is to end: 0 after `--help` and
/// `--version`, 2 after a message on a mistake.
std::optional<TreeOptions> ParseTreeOptions(int argc, const char* const* argv, int& status);

}  // namespace vexltags::tree
