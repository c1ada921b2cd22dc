// SPDX-License-Identifier: MIT
// Memoises long lookaheads of table-driven predictions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace vexltags {

/// For each decision, the states of its automaton along the last long prediction path, and where
/// that path ended.
///
/// A prediction can read any number of tokens, such as modifiers. If the parse fails after them,
/// one token is dropped and the next prediction reads the same tokens again, which takes quadratic
/// time in total. A long prediction therefore checks whether the last long path of the same
/// decision passed the same token in the same state: it then ends in the same way. This is valid
/// only if tables alone determine the path, so a path on which a predicate was evaluated is not
/// kept. Valid for one file.
class PredictionMemo {
 public:
  /// The number of steps before a prediction starts to memoise. Most predictions are shorter.
  static constexpr unsigned kFreeSteps = 32;

  /// Called before each later step, with `isFirst` before the first of them. Returns true if the
  /// end is known: `state` and `token` are then set to those at which the automaton stops, and the
  /// caller must not keep the path.
  bool Join(unsigned decision, bool isFirst, std::int32_t& state, std::size_t& token) {
    if (decision >= kept.size()) kept.resize(decision + 1);
    const Path& known = kept[decision];
    if (known.StateAt(token) == state) {
      state = known.endState;
      token = known.endToken;
      // A long path that joins the known one late replaces it, since it begins earlier.
      if (!isFirst && present.states.size() >= kFreeSteps) Keep(decision, state, token);
      return true;
    }
    if (isFirst) {
      present.states.clear();
      present.first = token;
    }
    // At the end of the file steps consume no token and need not be recorded.
    if (token == present.first + present.states.size()) {
      present.states.push_back(static_cast<std::int16_t>(state));
    }
    return false;
  }

  /// Keeps the path that began with the last `isFirst` and ended in `state` at `token`.
  void Keep(unsigned decision, std::int32_t state, std::size_t token) {
    present.endState = state;
    present.endToken = token;
    std::swap(kept[decision], present);
  }

  /// Clears all paths for the next file.
  void Reset() { kept.clear(); }

 private:
  struct Path {
    std::size_t first = 0;             ///< The token of the first state.
    std::vector<std::int16_t> states;  ///< One for each token from `first` on.
    std::int32_t endState = 0;
    std::size_t endToken = 0;

    /// Returns the state at `token`, or -1 if the path did not pass it.
    std::int32_t StateAt(std::size_t token) const {
      return token >= first && token - first < states.size() ? states[token - first] : -1;
    }
  };

  std::vector<Path> kept;  ///< The last long path of each decision.
  Path present;            ///< The path of the current prediction.
};

}  // namespace vexltags
