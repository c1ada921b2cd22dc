// SPDX-License-Identifier: MIT
// Memoises the outcome of long loops in speculative parses.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace vexltags {

/// For each loop of a rule, the tokens at which the iterations of its last long run began, and how
/// that run ended.
///
/// An item that fails after a long run of tokens costs only one token. The next item then reads the
/// same run again from its second token, which takes quadratic time in total. A loop of many
/// iterations therefore checks whether the last long run had an iteration at the same token: it
/// then ends in the same way.
class LoopRuns {
 public:
  /// The number of iterations before a loop starts to memoise. Most loops are shorter.
  static constexpr unsigned kFreeRounds = 32;

  /// A memoised run: the tokens from which it reaches its end.
  class Run {
   public:
    std::size_t end = 0;  ///< The token after the loop, if it succeeded.
    bool failed = false;

    bool Contains(std::size_t position) const {
      return position < passed.size() && passed[position];
    }
    /// Adds tokens from which the loop reaches the same end.
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
    std::vector<std::uint32_t> positions;  ///< The indices set in `passed`.
  };

  /// Returns the last long run of the loop with this decision number.
  Run& Last(unsigned loop) {
    if (loop >= runs.size()) runs.resize(loop + 1);
    return runs[loop];
  }

  /// Sets whether the time limit has aborted the parse of the file. A change clears all runs, since
  /// from then on loops end differently.
  void SetGivenUp(bool now) {
    if (now != givenUp) runs.clear();
    givenUp = now;
  }

  /// Clears all runs for the next file.
  void Reset() {
    runs.clear();
    givenUp = false;
  }

 private:
  std::vector<Run> runs;
  bool givenUp = false;
};

/// Memoises one execution of a loop in a speculative parse; constructed before the loop.
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

  /// Called at the beginning of each iteration. Returns true if the outcome of the loop is known
  /// and has been applied: the parser is after its last token, or its state says that it failed.
  bool JoinsKnownRun() { return ++round > LoopRuns::kFreeRounds && Join(); }

 private:
  /// The iterations after the first `kFreeRounds`.
  struct LateRounds {
    bool joined = false;
    std::vector<std::uint32_t> positions;
  };

  __attribute__((noinline)) bool Join() {
    if (!late) late = std::make_unique<LateRounds>();
    ctx->loops->SetGivenUp(ctx->fileState->Aborted());
    const std::size_t position = ctx->tokens->Position();
    const LoopRuns::Run& last = ctx->loops->Last(loop);
    if (!last.Contains(position)) {
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
      // The last iteration ended the loop, so it says nothing about its token.
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
