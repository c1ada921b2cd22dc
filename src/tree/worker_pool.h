// SPDX-License-Identifier: MIT
// Distributes files among worker processes.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "thorough/session.h"
#include "tree/messages.h"

namespace vexltags::tree {

/// A request and its estimated cost in bytes of source.
struct PooledRequest {
  Request request;
  std::int64_t cost = 0;
};

/// Receives the answers of workers.
struct PoolEvents {
  /// Takes an answer. A file whose worker died has the status `kDied`.
  std::function<void(Answer&& answer)> onAnswer;
  /// Called from time to time, also while there is no answer; false ends the work.
  std::function<bool()> onTick;
};

/// Answers all `requests` in up to `count` worker processes, forked from this one, which share what
/// `session` has learned (null to read by the grammars alone). A worker that dies costs the file
/// that it was reading, and another one takes its place. Returns false if no worker could be
/// started or `onTick` ended the work; what is not answered then has no answer.
bool RunInWorkers(std::span<const PooledRequest> requests, int count, thorough::Session* session,
                  const PoolEvents& events);

}  // namespace vexltags::tree
