// SPDX-License-Identifier: MIT
// The work of a worker.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "thorough/session.h"
#include "tree/answer_store.h"
#include "tree/messages.h"

namespace vexltags::tree {

/// What a worker shares with the process that forked it, apart from its answers.
struct Workplace {
  std::span<const Request> requests;
  std::size_t largeCount;  ///< So many at the start are taken one by one, others a few at once.
  std::atomic<std::uint32_t>& next;     ///< The number of the first request that no worker has.
  std::atomic<std::uint32_t>& current;  ///< That of the request that this worker has.
  AnswerStore& store;
  int output;  ///< Where an answer goes that the store does not take.
};

/// Answers requests until there is none left. The index of an answer is the number of its request.
/// `session` is null to read by the grammars alone.
void Work(const Workplace& place, thorough::Session* session);

/// Reads the file at `path` for what can be learned from it. `buffer` is where its content goes.
Answer ReadFacts(const std::string& path, std::string& buffer);

}  // namespace vexltags::tree
