// SPDX-License-Identifier: MIT
// Reads whole files.
#pragma once

#include <string>
#include <vector>

namespace vexltags::ctags {

/// Reads the regular file at `path` into `text`. Returns 0, or a number of
/// errno: EISDIR for a folder, EFBIG for 4 GiB or
/// more, EINVAL for what could block, such as a pipe.
int ReadText(const std::string& path, std::string& text);

/// Reads standard input to its end into `text`. Returns 0 or a number of errno.
int ReadStandardInput(std::string& text);

/// Appends the lines of the file at `path` to `lines`, without their newlines; `-` is standard
/// input. The last one needs no newline. Also reads pipes. Returns 0 or a number of errno.
int ReadLines(const std::string& path, std::vector<std::string>& lines);

}  // namespace vexltags::ctags
