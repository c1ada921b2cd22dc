// SPDX-License-Identifier: MIT
// The output of `--help` and `--version`.
#pragma once

namespace vexltags {

/// Prints the banner and the list of options to standard output.
void Usage();

/// Prints name, version and build date to standard output, on one line.
void Version();

}  // namespace vexltags
