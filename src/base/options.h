// SPDX-License-Identifier: MIT
// The options of a run and their defaults.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vexltags {

/// The options of a command line. Filled once when it is parsed and read-only afterwards.
struct Options {
  bool dumpErrors = false;                ///< Print the recognisers' error messages.
  bool debugDump = false;                 ///< Print tags in readable form instead of storing them.
  bool tagRelative = false;               ///< Write paths relative to the working directory.
  std::int32_t sort = 2;                  ///< 0: unsorted, 1: by bytes, 2: with case folded.
  bool cannonicalPaths = true;            ///< Write `~/` for the home directory.
  bool append = false;                    ///< Keep the lines of an existing output file.
  std::vector<std::string> filterTokens;  ///< Words that the C-family lexer can hide.
  std::int64_t reportIfLonger = 0;        ///< Microseconds per file; 0 is off.
  std::int64_t abortIfLonger = 0;         ///< Microseconds per file; 0 is off.
  bool debugDumpFilenames = false;        ///< Print each path to standard error.
  bool time = false;                      ///< Print the time that each file took.
  bool debugDumpFilesWithHugeOutput = false;   ///< Warn at the 10000th declaration of a file.
  bool checkForFilesWithAbortedParse = false;  ///< Report files whose tags end early.
  bool thorough = false;                       ///< Find what the grammars alone would miss.
  std::vector<std::string> macroPaths;         ///< Files and folders from which to learn macros.

  /// Sets the defaults above and the built-in list of filter tokens.
  Options();
};

}  // namespace vexltags
