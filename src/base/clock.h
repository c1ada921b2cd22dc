// SPDX-License-Identifier: MIT
// The clock of the time limits and of `--time`.
#pragma once

namespace vexltags {

/// Returns the microseconds since the start of 1970. The system clock is not monotonic: the value
/// jumps when the clock is set.
long long microseconds();

}  // namespace vexltags
