// SPDX-License-Identifier: MIT
// The messages of vexltags-ctags.
#pragma once

#include <string>

namespace vexltags::ctags {

/// The exit status of a run that failed, as that of other programs of this kind.
inline constexpr int kFailure = 1;

/// Prints `text` as one line to standard error, after the name of the program.
void Report(const std::string& text);

/// The same for what does not end the run.
void Warn(const std::string& text);

/// Prints `text` like `Report` and returns `kFailure`.
int Fail(const std::string& text);

}  // namespace vexltags::ctags
