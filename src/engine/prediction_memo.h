// SPDX-License-Identifier: MIT
// Remembers how long looks ahead of table-driven predictions went.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace vexltags {

/// Which states a prediction's automaton was in on its last long way ahead, and where it came out.
///
/// A prediction may read a run of tokens of any length, such as modifiers. Where it fails behind
/// them, one token is dropped and the next prediction reads the same run again. From some step on a
/// prediction therefore looks whether the last long one of the same decision came by the same token
/// in the same state: it then ends as that did. That holds only while tables alone lead the way, so
/// a way on which a predicate was asked is not kept. For one file.
class PredictionMemo {
 public:
  /// Steps that a prediction makes before it remembers or asks: most predictions are shorter.
  static constexpr unsigned kFreeSteps = 32;

  /// Called in front of each later step; `isFirst` in front of the first of them. True when the
  /// end is known: `state` and `token` then are those in which the automaton stopped, and the way
  /// is not to be kept by the caller.
  bool Join(unsigned decision, bool isFirst, std::int32_t& state, std::size_t& token) {
    if (decision >= kept.size()) kept.resize(decision + 1);
    const Way& known = kept[decision];
    if (known.StateAt(token) == state) {
      state = known.endState;
      token = known.endToken;
      // A way of its own that meets the known one late is the better one to know.
      if (!isFirst && present.states.size() >= kFreeSteps) Keep(decision, state, token);
      return true;
    }
    if (isFirst) {
      present.states.clear();
      present.first = token;
    }
    // At the end of the file a step takes no token; nothing is lost there.
    if (token == present.first + present.states.size()) {
      present.states.push_back(static_cast<std::int16_t>(state));
    }
    return false;
  }

  /// Keeps the way that began with the last `isFirst` and has ended in `state` at `token`.
  void Keep(unsigned decision, std::int32_t state, std::size_t token) {
    present.endState = state;
    present.endToken = token;
    std::swap(kept[decision], present);
  }

  /// For the next file.
  void Reset() { kept.clear(); }

 private:
  struct Way {
    std::size_t first = 0;             ///< The token of the first state.
    std::vector<std::int16_t> states;  ///< One for each token from there on.
    std::int32_t endState = 0;
    std::size_t endToken = 0;

    /// The state at `token`, -1 when the way did not come by it.
    std::int32_t StateAt(std::size_t token) const {
      return token >= first && token - first < states.size() ? states[token - first] : -1;
    }
  };

  std::vector<Way> kept;  ///< By decision.
  Way present;
};

}  // namespace vexltags
