// SPDX-License-Identifier: MIT
// Remembers how long loops of rules went within trials.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace vexltags {

/// Where a loop of a rule stood at the beginning of its rounds, and how it ended.
///
/// An item that fails behind a long run of tokens costs one token; the next item then reads the
/// same run again from its second token on, and so forth. From some round on a loop therefore looks
/// whether its last long run came by the same token: it can then end as that did.
class LoopRuns {
 public:
  /// Rounds that a loop makes before it remembers or asks: most loops are shorter.
  static constexpr unsigned kFreeRounds = 32;

  /// One run that is remembered, with the end that it came to from each of its positions.
  class Run {
   public:
    std::size_t end = 0;  ///< The token behind the loop, if it succeeded.
    bool failed = false;

    bool CameBy(std::size_t position) const { return position < passed.size() && passed[position]; }
    /// Adds positions from which the loop comes to the same end.
    void Extend(const std::vector<std::uint32_t>& more) {
      for (const std::uint32_t position : more) {
        if (position >= passed.size()) passed.resize(position + position / 2 + 1);
        passed[position] = true;
      }
      positions.insert(positions.end(), more.begin(), more.end());
    }
    void Clear() {
      for (const std::uint32_t position : positions) passed[position] = false;
      positions.clear();
    }

   private:
    std::vector<bool> passed;              ///< By token index.
    std::vector<std::uint32_t> positions;  ///< The indices that are set.
  };

  /// The last long run of the loop with this decision number.
  Run& Last(unsigned loop) {
    if (loop >= runs.size()) runs.resize(loop + 1);
    return runs[loop];
  }

  /// Tells whether the time limit has given the file up. A change forgets everything, since loops
  /// end otherwise from then on.
  void SetGivenUp(bool now) {
    if (now != givenUp) runs.clear();
    givenUp = now;
  }

  /// For the next file.
  void Reset() {
    runs.clear();
    givenUp = false;
  }

 private:
  std::vector<Run> runs;
  bool givenUp = false;
};

/// Stands in front of a loop of a parser rule that is being tried.
template <class Context>
class LoopMemo {
 public:
  LoopMemo(Context* context, unsigned decision)
      : ctx(context), loop(decision), state(context->pParser->rec->state) {}
  ~LoopMemo() {
    if (round > LoopRuns::kFreeRounds) Keep();
  }
  LoopMemo(const LoopMemo&) = delete;
  LoopMemo& operator=(const LoopMemo&) = delete;

  /// Called at the beginning of each round. True when the loop has been brought to its known end:
  /// behind its last token, or to the failure that the state then tells of.
  bool JoinsKnownRun() { return ++round > LoopRuns::kFreeRounds && Join(); }

 private:
  /// What is known of the rounds behind the free ones.
  struct LateRounds {
    bool joined = false;
    std::vector<std::uint32_t> positions;
  };

  __attribute__((noinline)) bool Join() {
    if (!late) late = std::make_unique<LateRounds>();
    ctx->loops->SetGivenUp(ctx->fileState->Aborted());
    const std::size_t position = ctx->tokens->Position();
    const LoopRuns::Run& last = ctx->loops->Last(loop);
    if (!last.CameBy(position)) {
      late->positions.push_back(static_cast<std::uint32_t>(position));
      return false;
    }
    late->joined = true;
    ctx->trials->reach = std::max(ctx->trials->reach, last.end);
    state->errorRecovery = 0;
    if (last.failed) {
      state->failed = 1;
    } else {
      ctx->tokens->Seek(last.end);
    }
    return true;
  }

  __attribute__((noinline)) void Keep() {
    LoopRuns::Run& last = ctx->loops->Last(loop);
    if (!late->joined) {
      // Of the last round nothing is known but where it began: it may have matched no token.
      late->positions.pop_back();
      if (late->positions.empty()) return;
      last.Clear();
      last.end = ctx->tokens->Position();
      last.failed = state->failed != 0;
    }
    last.Extend(late->positions);
  }

  Context* ctx;
  unsigned loop;
  decltype(ctx->pParser->rec->state) state;
  unsigned round = 0;
  std::unique_ptr<LateRounds> late;
};

}  // namespace vexltags
