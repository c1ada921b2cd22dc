// SPDX-License-Identifier: MIT
// Reads the list of input paths given by `-L`.
#pragma once

#include <string>
#include <vector>

namespace vexltags {

/// Appends the entries of the list file `listPath`, or of standard input if it is empty, to
/// `paths`. Entries end at a newline, a NUL byte or the end of the stream. Empty entries are
/// ignored; blanks and carriage returns are part of the path. An error on opening or reading ends
/// the list without a message. If `showName` is set, prints the path of a list file to standard
/// error.
void ReadInputList(const std::string& listPath, bool showName, std::vector<std::string>& paths);

}  // namespace vexltags
