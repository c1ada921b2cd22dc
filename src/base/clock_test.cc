// SPDX-License-Identifier: MIT
// Compares the clock with that of the standard library.
#include "base/clock.h"

#include <gtest/gtest.h>

#include <chrono>

namespace vexltags {
namespace {

long long StandardNow() {
  return std::chrono::duration_cast<std::chrono::microseconds>(
             std::chrono::system_clock::now().time_since_epoch())
      .count();
}

TEST(Clock, CountsMicrosecondsOfTheSystemClock) {
  const long long before = StandardNow();
  const long long now = microseconds();
  const long long after = StandardNow();
  EXPECT_LE(before, now);
  EXPECT_LE(now, after);
}

}  // namespace
}  // namespace vexltags
