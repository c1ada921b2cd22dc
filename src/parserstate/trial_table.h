// SPDX-License-Identifier: MIT
// Remembers how the trial parses of one file ended, per predicate and per rule, and token.
#pragma once

#include <cstddef>
#include <cstdint>

#include "parserstate/token_cells.h"

namespace vexltags {

/// Outcomes of trial parses. A trial runs no action, so what a predicate or a rule within a trial
/// gives depends only on the token it starts at, and asking twice must give the same. Keeping it
/// makes the cost of nested constructs linear where it would be exponential in their depth.
class TrialTable {
 public:
  /// Predicates are numbered from 0 to kPredicates - 1, remembered rules from 0 to kRules - 1.
  static constexpr unsigned kPredicates = 512;
  static constexpr unsigned kRules = 32;

  /// How a trial ended. `matched` tells whether it matched any token on its way, which clears the
  /// recogniser's "in error recovery" mark also when the trial fails; a kept outcome has to repeat
  /// that, or error counts would depend on what was kept.
  struct Outcome {
    bool known = false;
    bool success = false;
    bool matched = false;
    std::size_t end = 0;  ///< Of a rule that succeeded: the token behind it.
  };

  /// The outcome of `predicate` at token index `token`; `known` is false if none is kept.
  Outcome Find(unsigned predicate, std::size_t token) const {
    const std::uint8_t* cells = predicates.Find(token);
    if (cells == nullptr) return {};
    const unsigned bits = (cells[predicate / 2] >> Shift(predicate)) & kMask;
    return {(bits & kKnown) != 0, (bits & kSuccess) != 0, (bits & kMatched) != 0, 0};
  }
  /// Keeps one. `token` must not lie in front of the last `Commit`.
  void Keep(unsigned predicate, std::size_t token, bool success, bool matched) {
    std::uint8_t* cells = predicates.Make(token);
    if (cells == nullptr) return;
    const unsigned bits = kKnown | (success ? kSuccess : 0) | (matched ? kMatched : 0);
    std::uint8_t& cell = cells[predicate / 2];
    cell = static_cast<std::uint8_t>((cell & ~(kMask << Shift(predicate))) |
                                     (bits << Shift(predicate)));
  }

  /// The outcome of `rule` within a trial.
  Outcome FindRule(unsigned rule, std::size_t token) const {
    const std::uint32_t* cells = rules.Find(token);
    if (cells == nullptr || cells[rule] == 0) return {};
    const std::uint32_t cell = cells[rule];
    if (cell == kFailed || cell == kFailedMatched) return {true, false, cell == kFailedMatched, 0};
    const std::size_t end = cell / 2 - 1;
    return {true, true, cell % 2 != 0, end};
  }
  /// Keeps one; `end` is that of a success.
  void KeepRule(unsigned rule, std::size_t token, bool success, bool matched, std::size_t end) {
    if (end > kLargestEnd) return;
    std::uint32_t* cells = rules.Make(token);
    if (cells == nullptr) return;
    if (success) {
      cells[rule] = static_cast<std::uint32_t>((end + 1) * 2 + (matched ? 1 : 0));
    } else {
      cells[rule] = matched ? kFailedMatched : kFailed;
    }
  }

  /// Tells that the parse stands at token index `token` for good: it never asks about a token
  /// before it again.
  void Commit(std::size_t token) {
    predicates.Commit(token);
    rules.Commit(token);
  }

  /// Empties the table for the next file.
  void Reset() {
    predicates.Reset();
    rules.Reset();
    givenUp = false;
  }

  /// Tells whether the time limit has given the file up. A change forgets everything, since rules
  /// answer otherwise from then on.
  void SetGivenUp(bool now) {
    if (now == givenUp) return;
    predicates.Clear();
    rules.Clear();
    givenUp = now;
  }

 private:
  static constexpr unsigned kMask = 0xF, kKnown = 1, kSuccess = 2, kMatched = 4;
  static constexpr std::uint32_t kFailed = 0xFFFFFFFE, kFailedMatched = 0xFFFFFFFF;
  static constexpr std::size_t kLargestEnd = 0x7FFFFFF0;

  static unsigned Shift(unsigned predicate) { return (predicate % 2) * 4; }

  TokenCells<std::uint8_t, kPredicates / 2> predicates;
  TokenCells<std::uint32_t, kRules> rules;
  bool givenUp = false;
};

}  // namespace vexltags
