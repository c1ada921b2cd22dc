// SPDX-License-Identifier: MIT
// Reads the list of input paths that `-L` names.
#pragma once

#include <string>
#include <vector>

namespace vexltags {

/// Appends the entries of the list file `listPath`, or of standard input when it is empty, to
/// `paths`. A newline, a NUL byte or the end of the stream ends an entry; empty entries vanish,
/// blanks and carriage returns belong to the path. A list that cannot be opened or read counts as
/// ended there, without a message. With `showName` a list file is named on standard error.
void ReadInputList(const std::string& listPath, bool showName, std::vector<std::string>& paths);

}  // namespace vexltags
