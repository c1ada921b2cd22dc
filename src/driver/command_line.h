// SPDX-License-Identifier: MIT
// The scan of the command line, from the argument vector to a record of what the run shall do.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/options.h"

namespace vexltags {

/// Everything the command line asked for.
struct CommandLine {
  Options options;
  std::vector<std::string> inputPaths;  ///< Paths given as arguments, in order.
  std::string listPath;                 ///< The list file of `-L`; empty is standard input.
  std::string outputPath;               ///< The file of `-f`; empty is standard output.
  bool hasListFile = false;             ///< `-L` was accepted.
  bool hasOutputFile = false;           ///< `-f` was accepted with something other than `-`.
};

/// How a scan ended: the run goes on, it ends at once with status 0, or it ends with status -1.
enum class ScanResult : std::uint8_t { kRun, kDone, kFailed };

/// Reads `arguments`, without the program's name, from left to right into `commandLine`, then sorts
/// the filter tokens and drops double ones. The first bad argument ends the scan with a message on
/// standard error. `--help`, `--version` and an empty list print to standard output and end it with
/// `kDone`. Nothing named by an argument is opened or looked at.
ScanResult ScanCommandLine(const std::vector<std::string>& arguments, CommandLine& commandLine);

/// Every option in the order in which an argument is compared with them.
std::vector<std::string> OptionSpellings();

/// True when `arg` begins with `option`, whatever follows: `-hello` matches `-h`.
bool MatchArg(const std::string& arg, const std::string& option);

/// The same, and sets `flag` on a match; `flag` is never cleared.
bool MatchArg(const std::string& arg, const std::string& option, bool& flag);

/// `MatchArg` for an option that takes "=yes" or "=no". On a match `flag` becomes false exactly
/// when
/// "=no" stands right behind `option`, and true otherwise.
bool MatchYesNoArg(const std::string& arg, const std::string& option, bool& flag);

/// Reads the number behind the last `=` of `arg` into `number`, as `atof` does, so text that is no
/// number gives 0. False, with `number` untouched, when there is no `=` or nothing behind it.
bool EndsWithEqualsNumber(const std::string& arg, double& number);

}  // namespace vexltags
