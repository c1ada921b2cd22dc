// SPDX-License-Identifier: MIT
// Runs another program to its end.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vexltags::tree {

/// Runs a program, found as the shell finds it, with nothing as its standard input, and waits for
/// it. Its standard output goes to the file `output`, its messages are dropped. `onTick` is called
/// some ten times a second. Once that returns false, or after `seconds`, the program is told to
/// end with SIGTERM, is told again a second later, and is killed a second after that. Returns
/// whether it was started.
bool RunProgram(const std::vector<std::string>& arguments, const std::string& output, int seconds,
                const std::function<bool()>& onTick);

}  // namespace vexltags::tree
