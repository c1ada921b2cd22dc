// SPDX-License-Identifier: MIT
// What generated rules give back: their value, or nothing where they only try.
#pragma once

namespace vexltags {

/// Stands for the value of a rule that only tries: takes whatever the rule sets it to.
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
