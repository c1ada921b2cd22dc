// SPDX-License-Identifier: MIT
// What `--help` and `--version` print.
#pragma once

namespace vexltags {

/// Prints the banner and the list of options to standard output.
void Usage();

/// Prints name, version and build date to standard output, in one line.
void Version();

}  // namespace vexltags
