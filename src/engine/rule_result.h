// SPDX-License-Identifier: MIT
// The result type of generated rules: their value, or nothing in speculative parses.
#pragma once

namespace vexltags {

/// Replaces the value of a rule in a speculative parse. Any value can be assigned to it.
struct Nothing {
  Nothing() = default;
  template <class Value>
  Nothing& operator=(const Value&) {
    return *this;
  }
};

}  // namespace vexltags

#ifdef VEXLTAGS_TRIALS
#define VEXL_RESULT(...) vexltags::Nothing
#else
#define VEXL_RESULT(...) __VA_ARGS__
#endif
