// SPDX-License-Identifier: MIT
// Reads the system clock.
#include "base/clock.h"

#include <sys/time.h>

namespace vexltags {

long long microseconds() {
  timeval now{};
  gettimeofday(&now, nullptr);
  return static_cast<long long>(now.tv_sec) * 1000000 + now.tv_usec;
}

}  // namespace vexltags
