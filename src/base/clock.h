// SPDX-License-Identifier: MIT
// The time of day, as the time limits and the timing line count it.
#pragma once

namespace vexltags {

/// Microseconds since the start of 1970, from the system clock; steps when that clock is set.
long long microseconds();

}  // namespace vexltags
