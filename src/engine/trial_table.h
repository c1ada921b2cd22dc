// SPDX-License-Identifier: MIT
// Memoises the outcomes of the speculative parses of a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vexltags {

/// The outcomes of trials, that is, speculative parses of a predicate or rule. A trial runs no
/// actions, so its outcome depends only on its first token and is the same each time. Memoising it
/// makes the cost of nested constructs linear instead of exponential in their depth.
///
/// A trial that, including its nested trials, looks at fewer than kShort tokens is kept in a window
/// of kWindow tokens, where a trial kWindow tokens away can evict it. Repeating it then costs only
/// these few tokens, which do not evict each other. All other trials are kept until the parse has
/// moved past them for good. Memory therefore stays small on flat input of any size and grows only
/// with the depth of nested input.
class TrialTable {
 public:
  /// Predicates and memoised rules share the numbers from 0 to kNumbers - 1.
  static constexpr unsigned kNumbers = 256;
  static constexpr std::size_t kWindow = 64, kShort = 32;

  /// The outcome of a trial. `matched` says whether it matched any token, which clears the
  /// recogniser's "in error recovery" flag even if the trial fails. A memoised outcome must repeat
  /// that, or error counts would depend on which outcomes are kept.
  struct Outcome {
    bool known = false;
    bool success = false;
    bool matched = false;
    std::size_t end = 0;    ///< The token after the last one that it consumed.
    std::size_t reach = 0;  ///< The furthest token that it or a nested trial reached.
  };

  TrialTable() : window(kWindow * kNumbers) {}

  /// Returns the outcome of `number` at token index `token`; `known` is false if none is kept.
  Outcome Find(unsigned number, std::size_t token) const {
    const std::uint64_t packed = window[Slot(number, token)];
    if ((packed & kKnown) != 0 && packed >> kLapShift == Lap(token)) {
      return {true, (packed & kSuccess) != 0, (packed & kMatched) != 0,
              token + ((packed >> kEndShift) & (kShort - 1)),
              token + ((packed >> kReachShift) & (kShort - 1))};
    }
    return farCount == 0 ? Outcome{} : FindFar(number, token);
  }

  /// Keeps the outcome of a trial that started at `token`.
  void Keep(unsigned number, std::size_t token, const Outcome& outcome) {
    const std::size_t reached = outcome.reach - token;
    if (reached < kShort) {
      window[Slot(number, token)] = Lap(token) << kLapShift | reached << kReachShift |
                                    (outcome.end - token) << kEndShift | Bits(outcome);
    } else {
      KeepFar(number, token, outcome);
    }
  }

  /// Declares that the parse has moved to token index `token` for good and will never ask about an
  /// earlier one.
  void Commit(std::size_t token) {
    if (farCount != 0 && token > lastFar) ForgetFar();
  }

  /// Clears the table for the next file.
  void Reset() {
    Clear();
    givenUp = false;
  }

  /// Sets whether the time limit has aborted the parse of the file. A change clears the table,
  /// since from then on rules have different outcomes.
  void SetGivenUp(bool now) {
    if (now != givenUp) Clear();
    givenUp = now;
  }

  /// The furthest token that the current trial has reached.
  std::size_t reach = 0;

 private:
  static constexpr std::uint64_t kKnown = 1, kSuccess = 2, kMatched = 4;
  static constexpr unsigned kEndShift = 3, kReachShift = 8, kLapShift = 13;
  static constexpr std::uint64_t kLapsOfAFile = (std::uint64_t{1} << 32) / kWindow;

  struct Far {
    std::uint32_t token, end, reach;
    std::uint32_t time;  ///< An entry whose time is not `now` is vacant.
    std::uint16_t number;
    std::uint16_t bits;
  };

  static std::uint64_t Bits(const Outcome& outcome) {
    return kKnown | (outcome.success ? kSuccess : 0) | (outcome.matched ? kMatched : 0);
  }
  static std::size_t Slot(unsigned number, std::size_t token) {
    // Predicates are mostly evaluated at consecutive tokens.
    return number * kWindow + token % kWindow;
  }
  /// Distinguishes tokens that share a slot of the window, including those of earlier files.
  std::uint64_t Lap(std::size_t token) const { return firstLap + token / kWindow; }
  std::size_t FarPlace(unsigned number, std::size_t token) const;
  Outcome FindFar(unsigned number, std::size_t token) const;
  void KeepFar(unsigned number, std::size_t token, const Outcome& outcome);
  void ForgetFar();
  void Clear();

  bool givenUp = false;
  std::vector<std::uint64_t> window;
  std::uint64_t firstLap = 0;
  std::vector<Far> far;  ///< A hash table with open addressing; its size is a power of two.
  std::uint32_t now = 1;
  std::size_t farCount = 0;
  std::size_t lastFar = 0;  ///< The largest token index in `far`.
};

}  // namespace vexltags
