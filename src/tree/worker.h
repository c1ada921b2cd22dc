// SPDX-License-Identifier: MIT
// The loop of a worker.
#pragma once

#include <string>

#include "thorough/session.h"

namespace vexltags::tree {

/// Reads requests from `input` and writes an answer to each to `output`, in their order, until the
/// input ends or the output fails. `session` is null to read by the grammars alone. Returns false
/// if the input was no sequence of requests.
bool ServeRequests(int input, int output, thorough::Session* session);

/// Reads the file at `path` for what can be learned from it.
struct Answer;
Answer ReadFacts(const std::string& path);

}  // namespace vexltags::tree
