// SPDX-License-Identifier: MIT
// Runs another program and reads what it prints.
#pragma once

#include <string>
#include <vector>

namespace vexltags {

/// What became of a program.
struct ChildResult {
  bool started = false;  ///< False if the program does not exist or could not be started.
  int status = -1;       ///< The exit status; -1 if it was ended by a signal.
  std::string output;    ///< What it wrote to standard output.
  std::string errors;    ///< What it wrote to standard error.
};

/// Runs `command`, found through PATH, with empty standard input and `environment`, each item
/// NAME=VALUE, and waits for its end. Uses no shell.
ChildResult RunChild(const std::vector<std::string>& command,
                     const std::vector<std::string>& environment);

}  // namespace vexltags
