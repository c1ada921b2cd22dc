// SPDX-License-Identifier: MIT
// Reads files for another machine.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tree/messages.h"

namespace vexltags::tree {

/// What another machine receives before the files.
struct HostTask {
  std::string folder;  ///< The working directory to which paths are relative.
  bool isExact = false;
  bool sendsFiles = false;    ///< The content of each file comes with its request.
  std::uint32_t learned = 0;  ///< The number of frames with facts that follow.
};
void AppendHostTask(std::string& out, const HostTask& task);
std::optional<HostTask> ReadHostTask(const Frame& frame);

/// Reads from standard input, to its end, a task, what is to be learned, and requests, sealed as a
/// whole, and then writes all answers, sealed, to standard output. Each request is followed by a
/// frame with the file field and the content. Returns the exit status: not 0 if the input is of
/// another version, is damaged, or refers to a folder that is not there.
int ServeMachine();

}  // namespace vexltags::tree
