// SPDX-License-Identifier: MIT
// Remembers how the trial parses of one file ended, per predicate and token.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace vexltags {

/// Outcomes of trial parses. A trial runs no action and its outcome depends only on the predicate
/// and the token it starts at, so asking twice must give the same answer; keeping it makes the cost
/// of nested constructs linear where it would be exponential in their depth.
///
/// Memory follows the parse: outcomes in front of the committed position are given back, and only
/// stretches in which a trial started are held at all.
class TrialTable {
 public:
  /// Predicates are numbered from 0 to kPredicates - 1.
  static constexpr unsigned kPredicates = 512;

  /// How a trial ended. `matched` tells whether it matched any token on its way, which clears the
  /// recogniser's "in error recovery" mark also when the trial fails; a kept outcome has to repeat
  /// that, or error counts would depend on what was kept.
  struct Outcome {
    bool known = false;
    bool success = false;
    bool matched = false;
  };

  /// The outcome of `predicate` at raw token index `token`; `known` is false if none is kept.
  Outcome Find(unsigned predicate, std::size_t token) const {
    const std::size_t block = token / kTokensPerBlock;
    if (block < firstBlock || block - firstBlock >= blocks.size()) return {};
    const Block* held = blocks[block - firstBlock].get();
    if (held == nullptr) return {};
    const unsigned bits = (held->cells[Cell(predicate, token)] >> Shift(predicate)) & kMask;
    return {(bits & kKnown) != 0, (bits & kSuccess) != 0, (bits & kMatched) != 0};
  }

  /// Keeps an outcome. `token` must not lie in front of the last `Commit`.
  void Keep(unsigned predicate, std::size_t token, bool success, bool matched);

  /// Tells that the parse stands at raw token index `token` for good: it never asks about a token
  /// before it again.
  void Commit(std::size_t token) {
    if (token / kTokensPerBlock > firstBlock) Release(token / kTokensPerBlock);
  }

  /// Tells whether the time limit has given the file up. A change forgets everything, since rules
  /// answer otherwise from then on.
  void SetGivenUp(bool now) {
    if (now != givenUp) Clear();
    givenUp = now;
  }

 private:
  static constexpr std::size_t kTokensPerBlock = 32;
  static constexpr unsigned kMask = 0xF, kKnown = 1, kSuccess = 2, kMatched = 4;
  static constexpr std::size_t kBytesPerToken = kPredicates / 2;

  struct Block {
    std::uint8_t cells[kTokensPerBlock * kBytesPerToken] = {};
  };

  static std::size_t Cell(unsigned predicate, std::size_t token) {
    return (token % kTokensPerBlock) * kBytesPerToken + predicate / 2;
  }
  static unsigned Shift(unsigned predicate) { return (predicate % 2) * 4; }
  void Release(std::size_t upToBlock);
  void Clear();

  bool givenUp = false;
  std::size_t firstBlock = 0;
  std::vector<std::unique_ptr<Block>> blocks;  ///< blocks[i] holds block number firstBlock + i.
  std::vector<std::unique_ptr<Block>> spare;   ///< Given back, for the next use.
};

}  // namespace vexltags
