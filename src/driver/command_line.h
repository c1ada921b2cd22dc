// SPDX-License-Identifier: MIT
// Parses the command line into the options and paths of a run.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/options.h"

namespace vexltags {

/// The contents of a command line.
struct CommandLine {
  Options options;
  std::vector<std::string> inputPaths;  ///< Paths given as arguments, in order.
  std::string listPath;                 ///< The list file of `-L`; empty is standard input.
  std::string outputPath;               ///< The file of `-f`; empty is standard output.
  bool hasListFile = false;             ///< `-L` was accepted.
  bool hasOutputFile = false;           ///< `-f` was accepted with something other than `-`.
};

/// The result of a scan: continue the run, end it with status 0, or end it with status -1.
enum class ScanResult : std::uint8_t { kRun, kDone, kFailed };

/// Parses `arguments`, without the program name, from left to right into `commandLine`, then sorts
/// the filter tokens and removes duplicates. The first bad argument ends the scan with a message to
/// standard error. `--help`, `--version` and an empty list print to standard output and end the
/// scan with `kDone`. Does not access any file named by an argument.
ScanResult ScanCommandLine(const std::vector<std::string>& arguments, CommandLine& commandLine);

/// Returns all options in the order in which arguments are compared with them.
std::vector<std::string> OptionSpellings();

/// Returns whether `arg` begins with `option`: `-hello` matches `-h`.
bool MatchArg(const std::string& arg, const std::string& option);

/// Does the same, and sets `flag` on a match; never clears it.
bool MatchArg(const std::string& arg, const std::string& option, bool& flag);

/// Does the same for an option that accepts "=yes" and "=no". On a match, `flag` becomes false if
/// "=no" directly follows `option`, and true otherwise.
bool MatchYesNoArg(const std::string& arg, const std::string& option, bool& flag);

/// Parses the number after the last `=` of `arg` into `number` as `atof` does; text that is not a
/// number gives 0. Returns false and leaves `number` unchanged if there is no `=` or nothing after
/// it.
bool EndsWithEqualsNumber(const std::string& arg, double& number);

}  // namespace vexltags
