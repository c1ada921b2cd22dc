// SPDX-License-Identifier: MIT
// Remembers how the trial parses of one file ended, per predicate or rule, and token.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vexltags {

/// Outcomes of trial parses. A trial runs no action, so what a predicate or a rule within a trial
/// gives depends only on the token it starts at, and asking twice must give the same. Keeping it
/// makes the cost of nested constructs linear where it would be exponential in their depth.
///
/// A trial that looked at fewer than kShort tokens, by itself or by what it tried on its way, is
/// kept in a window of kWindow tokens, from which a trial kWindow tokens away may drive it out: it
/// then costs its few tokens again, and while they are looked at none of them drives out another.
/// All others are kept until the parse stands behind them for good. So memory stays small on flat
/// input of any size and grows with the depth of nested input only.
class TrialTable {
 public:
  /// Predicates and remembered rules share the numbers from 0 to kNumbers - 1.
  static constexpr unsigned kNumbers = 256;
  static constexpr std::size_t kWindow = 64, kShort = 32;

  /// How a trial ended. `matched` tells whether it matched any token on its way, which clears the
  /// recogniser's "in error recovery" mark also when the trial fails; a kept outcome has to repeat
  /// that, or error counts would depend on what was kept.
  struct Outcome {
    bool known = false;
    bool success = false;
    bool matched = false;
    std::size_t end = 0;    ///< The token at which it ended, behind the last one that it took.
    std::size_t reach = 0;  ///< The furthest token that it or anything it tried came to.
  };

  TrialTable() : window(kWindow * kNumbers) {}

  /// The outcome of `number` at token index `token`; `known` is false if none is kept.
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

  /// Tells that the parse stands at token index `token` for good: it never asks about a token
  /// before it again.
  void Commit(std::size_t token) {
    if (farCount != 0 && token > lastFar) ForgetFar();
  }

  /// Empties the table for the next file.
  void Reset() {
    Clear();
    givenUp = false;
  }

  /// Tells whether the time limit has given the file up. A change forgets everything, since rules
  /// answer otherwise from then on.
  void SetGivenUp(bool now) {
    if (now != givenUp) Clear();
    givenUp = now;
  }

  /// The furthest token that the trial in progress came to so far.
  std::size_t reach = 0;

 private:
  static constexpr std::uint64_t kKnown = 1, kSuccess = 2, kMatched = 4;
  static constexpr unsigned kEndShift = 3, kReachShift = 8, kLapShift = 13;
  static constexpr std::uint64_t kLapsOfAFile = (std::uint64_t{1} << 32) / kWindow;

  struct Far {
    std::uint32_t token, end, reach;
    std::uint32_t time;  ///< An entry of another time than `now` is an empty place.
    std::uint16_t number;
    std::uint16_t bits;
  };

  static std::uint64_t Bits(const Outcome& outcome) {
    return kKnown | (outcome.success ? kSuccess : 0) | (outcome.matched ? kMatched : 0);
  }
  static std::size_t Slot(unsigned number, std::size_t token) {
    // A predicate is mostly asked at one token after the other.
    return number * kWindow + token % kWindow;
  }
  /// Tells the tokens apart that share a place of the window, also those of earlier files.
  std::uint64_t Lap(std::size_t token) const { return firstLap + token / kWindow; }
  std::size_t FarPlace(unsigned number, std::size_t token) const;
  Outcome FindFar(unsigned number, std::size_t token) const;
  void KeepFar(unsigned number, std::size_t token, const Outcome& outcome);
  void ForgetFar();
  void Clear();

  bool givenUp = false;
  std::vector<std::uint64_t> window;
  std::uint64_t firstLap = 0;
  std::vector<Far> far;  ///< Open addressing; its size is a power of two.
  std::uint32_t now = 1;
  std::size_t farCount = 0;
  std::size_t lastFar = 0;  ///< The largest token index among them.
};

}  // namespace vexltags
